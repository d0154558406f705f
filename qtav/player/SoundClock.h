#pragma once

#include <array>
#include <chrono>

namespace QtAV {

/// Tells the time that is heard from how much a sound device has taken.
///
/// A device takes samples in blocks, which may last for a fifth of a second, and systems say only
/// what has been taken, not how much of it is still to be heard. But a block is taken when the one
/// before has been played, and just then the two are the same. So what is heard runs evenly, as
/// far behind real time as what was taken is at most.
///
/// On a busy machine it may be known late what was taken, once in a while; after an interruption
/// all is later. To tell the one from the other, what is believed is the median of three spans,
/// each long enough for a block to begin in it.
///
/// Not thread-safe, but tied to no thread.
class SoundClock
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// The device begins with its next samples, of which nothing is heard yet.
    /// @param longestBlock  no more than this is taken at once, in seconds.
    void reset(double longestBlock, Time now);

    /// Looks at how much has been taken since reset(), in seconds, and gives how much of that has
    /// been heard. It knows the better the oftener it looks.
    double heard(double takenSeconds, Time now);

private:
    void beginAt(Time now);

    double m_spanSeconds = 0.0;
    Time m_start;     ///< when nothing had been taken for the last time
    Time m_spanStart; ///< of the last of the three
    /// How far behind the time since the start, in seconds, what was taken was at most in each.
    std::array<double, 3> m_lags{};
};

} // namespace QtAV
