#pragma once

#include <atomic>
#include <chrono>

namespace QtAV {

/// A time limit. It never expires unless start() is called. Thread-safe.
class Deadline
{
public:
    /// Expires after this time, counted from now; 0 or less means no limit.
    void start(std::chrono::milliseconds limit)
    {
        m_end = limit.count() > 0 ? (Clock::now() + limit).time_since_epoch().count() : never;
    }

    [[nodiscard]] bool hasPassed() const
    {
        const Clock::rep end = m_end;
        return end != never && Clock::now().time_since_epoch().count() >= end;
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr Clock::rep never = Clock::duration::max().count();

    std::atomic<Clock::rep> m_end{never};
};

} // namespace QtAV
