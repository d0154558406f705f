#pragma once

#include "tests/qtav/Decoding.h"
#include "tests/support/Patience.h"

#include <QtAV/AVPlayer.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include <functional>

/// What the tests of the player share.
namespace playing {

using testsupport::patienceMs;

/// Remembers what it was given to show.
class Screen : public QtAV::VideoRenderer
{
    Q_OBJECT

public:
    void present(const QtAV::VideoFrame& newFrame) override;

    QtAV::VideoFrame frame;
    /// Without the invalid frames, and without those that came again in full size.
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

    /// Each waits for its effect; false when it does not come.
    [[nodiscard]] bool waitForStatus(QtAV::MediaStatus status);
    [[nodiscard]] bool seek(qint64 ms);
    [[nodiscard]] bool stepForward();
    [[nodiscard]] bool stepBackward();

    /// Lets the decoding thread answer everything that it was told before.
    void settle();

    /// The number in the picture on screen; -1 where it cannot be read.
    [[nodiscard]] int number() const { return decoding::shown(screen.frame).number; }

    Screen screen;
    QtAV::AVPlayer player;

private:
    [[nodiscard]] bool waitForOther(const std::function<void()>& action);
};

} // namespace playing
