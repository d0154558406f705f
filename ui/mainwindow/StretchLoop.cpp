#include "ui/mainwindow/StretchLoop.h"

#include <QtAV/AVPlayer.h>

StretchLoop::StretchLoop(QtAV::AVPlayer& player, QObject* parent)
    : QObject(parent)
    , m_player(player)
{
    using QtAV::AVPlayer;
    connect(&player, &AVPlayer::positionChanged, this, &StretchLoop::noticePosition);
    // Queued, because the player is about to pause, which would override a call of play() here.
    connect(&player, &AVPlayer::mediaStatusChanged, this, &StretchLoop::noticeEnd,
            Qt::QueuedConnection);
}

/// The last frame of the stretch stays on screen while the first is being sought.
void StretchLoop::noticePosition(qint64 ms)
{
    if (loops() && m_player.isPlaying() && m_stretch.toMs && ms >= *m_stretch.toMs) {
        m_player.seek(m_stretch.fromMs.value_or(0));
    }
}

void StretchLoop::noticeEnd()
{
    if (loops() && m_player.mediaStatus() == QtAV::EndOfMedia) {
        m_player.seek(m_stretch.fromMs.value_or(0));
        m_player.play();
    }
}
