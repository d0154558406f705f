#include "qtav/player/SoundPlayer.h"

namespace QtAV {

SoundPlayer::SoundPlayer() = default;
SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::ensureThread()
{
    if (m_thread && (!m_thread->isHeldUp() || SoundThread::count() >= SoundThread::maximumCount)) {
        return;
    }
    m_thread = std::make_unique<SoundThread>(m_wish);
}

void SoundPlayer::tellWish()
{
    if (m_thread) {
        m_thread->state().setWish(m_wish);
    }
}

void SoundPlayer::open(const QString& path)
{
    m_wish.path = path;
    ensureThread();
    tellWish();
}

void SoundPlayer::close()
{
    m_wish.path.clear();
    m_wish.plays = false;
    ++m_wish.playSerial;
    tellWish();
}

void SoundPlayer::play(double seconds, double speed)
{
    m_wish.plays = true;
    m_wish.from = seconds;
    m_wish.speed = speed;
    ++m_wish.playSerial;
    ensureThread();
    tellWish();
}

void SoundPlayer::pause()
{
    m_wish.plays = false;
    ++m_wish.playSerial;
    tellWish();
}

void SoundPlayer::setVolume(qreal volume)
{
    m_wish.volume = volume;
    tellWish();
}

std::optional<double> SoundPlayer::position() const
{
    return m_thread ? m_thread->state().heard() : std::nullopt;
}

} // namespace QtAV
