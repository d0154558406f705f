#include "tests/qtav/Playing.h"

#include <QTest>

using QtAV::AVPlayer;

namespace playing {

void Screen::present(const QtAV::VideoFrame& newFrame)
{
    const bool isRefined =
        frame.isScaledDown() && newFrame.isValid() && newFrame.timestamp() == frame.timestamp();
    frame = newFrame;
    if (frame.isValid() && !isRefined) {
        shown.append(decoding::shown(frame));
    }
    Q_EMIT presented();
}

bool Stage::open(const QString& file)
{
    player.play(testsupport::samplePath(file));
    player.pause();
    screen.shown.clear();
    return waitForStatus(QtAV::LoadedMedia) && screen.frame.isValid();
}

bool Stage::waitForStatus(QtAV::MediaStatus status)
{
    QSignalSpy changed(&player, &AVPlayer::mediaStatusChanged);
    while (player.mediaStatus() != status) {
        if (!changed.wait(patienceMs)) {
            return false;
        }
    }
    return true;
}

bool Stage::seek(qint64 ms)
{
    QSignalSpy finished(&player, &AVPlayer::seekFinished);
    player.setPosition(ms);
    return finished.wait(patienceMs);
}

bool Stage::stepForward()
{
    return waitForOther([this] { player.stepForward(); });
}

bool Stage::stepBackward()
{
    return waitForOther([this] { player.stepBackward(); });
}

/// The frame on screen may be delivered again in full size, which is not the answer.
bool Stage::waitForOther(const std::function<void()>& action)
{
    const double before = screen.frame.timestamp();
    QSignalSpy presented(&screen, &Screen::presented);
    action();
    while (screen.frame.timestamp() == before) {
        if (!presented.wait(patienceMs)) {
            return false;
        }
    }
    return true;
}

/// A player without requests for this long has no more answers.
void Stage::settle()
{
    constexpr int quietMs = 150;
    QTest::qWait(quietMs);
}

} // namespace playing
