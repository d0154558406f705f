#pragma once

#include <array>
#include <chrono>

namespace QtAV {

/// Derives the time that is heard from the amount of sound that a device has taken.
///
/// A device takes samples in blocks, which may last up to a fifth of a second. Systems report only
/// what has been taken, not how much of it is still to be heard. A block is taken when the previous
/// one has been played, and at that moment both amounts are equal. So the heard time runs evenly,
/// behind real time by the largest lag of the taken amount.
///
/// A busy machine occasionally notices late what was taken, while after an interruption everything
/// is later. To tell these apart, the estimate is the median of three spans, each long enough for a
/// block to begin in it.
///
/// Not thread-safe, but tied to no thread.
class SoundClock
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// The device starts with its next samples, none of which has been heard yet.
    /// @param longestBlock  maximum length of a block, in seconds.
    void reset(double longestBlock, Time now);

    /// Records how many seconds of sound have been taken since reset() and returns how many of
    /// these have been heard. Call it often for accuracy.
    double heard(double takenSeconds, Time now);

private:
    void beginAt(Time now);

    double m_spanSeconds = 0.0;
    Time m_start;     ///< when nothing had been taken for the last time
    Time m_spanStart; ///< of the last of the three
    /// Largest lag of the taken amount behind the time since the start, in seconds, per span.
    std::array<double, 3> m_lags{};
};

} // namespace QtAV
