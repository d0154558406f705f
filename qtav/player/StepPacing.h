#pragma once

#include <QtGlobal>

#include <chrono>
#include <optional>

namespace QtAV {

/// Spreads steps back over the time that decoding more frames takes.
///
/// Steps that come as soon as the one before is answered use the cached frames up in a moment, and
/// then all wait for the frames before those, which a pass of decoding gives only at its end.
/// Answered evenly, the same steps are done at the same time, and none of them seems to hang.
class StepPacing
{
public:
    using Duration = std::chrono::duration<double>;

    /// Steps are not spread further apart than this: more looks like a program that hangs.
    static constexpr Duration longestPause{1.0};
    /// About what a step takes by itself. A shorter pause makes no difference.
    static constexpr Duration shortestPause{0.004};

    /// How long after a step back the next one is to be answered.
    /// @param framesLeft    how many frames are there for further steps.
    /// @param secondsToMore how long it takes until there are more; nothing when none are needed.
    [[nodiscard]] static Duration pauseFor(qint64 framesLeft, std::optional<double> secondsToMore);
};

} // namespace QtAV
