#include "qtav/player/SoundClock.h"

#include <algorithm>

namespace QtAV {

namespace {

/// Longer than a block, because what is known about it comes with some delay.
constexpr double spanToBlock = 1.2;

double secondsBetween(SoundClock::Time from, SoundClock::Time to)
{
    return std::chrono::duration<double>(to - from).count();
}

} // namespace

void SoundClock::reset(double longestBlock, Time now)
{
    m_spanSeconds = spanToBlock * longestBlock;
    beginAt(now);
}

void SoundClock::beginAt(Time now)
{
    m_start = now;
    m_spanStart = now;
    m_lags.fill(0.0);
}

double SoundClock::heard(double takenSeconds, Time now)
{
    if (takenSeconds <= 0.0) {
        beginAt(now);
        return 0.0;
    }
    const double elapsed = secondsBetween(m_start, now);
    const double lag = elapsed - takenSeconds;
    if (secondsBetween(m_spanStart, now) > m_spanSeconds) {
        std::rotate(m_lags.begin(), m_lags.begin() + 1, m_lags.end());
        m_lags.back() = lag;
        m_spanStart = now;
    }
    m_lags.back() = std::max(m_lags.back(), lag);
    std::array<double, 3> sorted = m_lags;
    std::sort(sorted.begin(), sorted.end());
    return std::clamp(elapsed - sorted[1], 0.0, takenSeconds);
}

} // namespace QtAV
