#include "qtav/player/SoundState.h"

#include <QObject>

#include <algorithm>
#include <utility>

namespace QtAV {

namespace {

using Clock = std::chrono::steady_clock;

/// Time is extrapolated between updates, at most this long: a worker that sends no more updates may
/// be blocked.
constexpr double LongestSilentSeconds = 0.1;

} // namespace

SoundState::SoundState(Wish wish)
    : m_wish(std::move(wish))
    , m_behindSince(Clock::now())
{}

void SoundState::setWish(const Wish& wish)
{
    const std::lock_guard lock(m_mutex);
    m_wish = wish;
    noteChange();
}

void SoundState::end()
{
    const std::lock_guard lock(m_mutex);
    m_isOver = true;
    noteChange();
}

void SoundState::noteChange()
{
    m_isTaken = false;
    if (!m_behindSince)
        m_behindSince = Clock::now();
    wake();
}

void SoundState::wake()
{
    if (m_worker)
        QMetaObject::invokeMethod(m_worker, "heed", Qt::QueuedConnection);
}

void SoundState::setWorker(QObject* worker)
{
    const std::lock_guard lock(m_mutex);
    m_worker = worker;
    wake();
}

std::optional<SoundState::Wish> SoundState::takeWish()
{
    const std::lock_guard lock(m_mutex);
    if (m_isOver)
        return std::nullopt;
    m_isTaken = true;
    return m_wish;
}

void SoundState::setCarriedOut()
{
    const std::lock_guard lock(m_mutex);
    if (m_isTaken)
        m_behindSince.reset();
    else
        m_behindSince = Clock::now();
}

std::chrono::milliseconds SoundState::behindFor() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_behindSince)
        return std::chrono::milliseconds(0);
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - *m_behindSince);
}

void SoundState::setHeard(quint64 playSerial, std::optional<double> seconds)
{
    const std::lock_guard lock(m_mutex);
    m_heardSerial = playSerial;
    m_heard = seconds;
    m_heardAt = Clock::now();
}

std::optional<double> SoundState::heard() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_wish.plays || m_heardSerial != m_wish.playSerial || !m_heard)
        return std::nullopt;
    const std::chrono::duration<double> since = Clock::now() - m_heardAt;
    return *m_heard + m_wish.speed * std::min(since.count(), LongestSilentSeconds);
}

} // namespace QtAV
