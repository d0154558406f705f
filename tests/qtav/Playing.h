#pragma once

#include "tests/qtav/Decoding.h"
#include "tests/support/Patience.h"

#include <QtAV/AVPlayer.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include <functional>

/// Shared by the tests of the player.
namespace playing {

using testsupport::patienceMs;

/// Records what it has to show.
class Screen : public QtAV::VideoRenderer
{
    Q_OBJECT

public:
    void present(const QtAV::VideoFrame& newFrame) override;

    QtAV::VideoFrame frame;
    /// Without invalid frames, and without those repeated in full size.
    QList<decoding::Shown> shown;

Q_SIGNALS:
    void presented();
};

/// A player with a screen.
class Stage
{
public:
    Stage() { player.setRenderer(&screen); }

    /// Opens a sample, paused on its first frame.
    [[nodiscard]] bool open(const QString& file);

    /// Each waits for its effect; false if it does not occur.
    [[nodiscard]] bool waitForStatus(QtAV::MediaStatus status);
    [[nodiscard]] bool seek(qint64 ms);
    [[nodiscard]] bool stepForward();
    [[nodiscard]] bool stepBackward();

    /// Waits until the decoding thread has answered all requests.
    void settle();

    /// The number in the picture on screen; -1 if it is unreadable.
    [[nodiscard]] int number() const { return decoding::shown(screen.frame).number; }

    Screen screen;
    QtAV::AVPlayer player;

private:
    [[nodiscard]] bool waitForOther(const std::function<void()>& action);
};

} // namespace playing
