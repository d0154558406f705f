#include "tests/qtav/Playing.h"

#include <QTest>

using QtAV::AVPlayer;

namespace playing {

void Screen::present(const QtAV::VideoFrame& newFrame)
{
    frame = newFrame;
    if (frame.isValid())
        shown.append(decoding::shown(frame));
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
        if (!changed.wait(Patience))
            return false;
    }
    return true;
}

bool Stage::seek(qint64 ms)
{
    QSignalSpy finished(&player, &AVPlayer::seekFinished);
    player.setPosition(ms);
    return finished.wait(Patience);
}

bool Stage::stepForward()
{
    QSignalSpy presented(&screen, &Screen::presented);
    player.stepForward();
    return presented.wait(Patience);
}

bool Stage::stepBackward()
{
    QSignalSpy presented(&screen, &Screen::presented);
    player.stepBackward();
    return presented.wait(Patience);
}

/// A player that has been told nothing for this long has nothing more to answer.
void Stage::settle()
{
    constexpr int QuietMs = 150;
    QTest::qWait(QuietMs);
}

} // namespace playing
