#pragma once

#include <QtGlobal>

#include <chrono>
#include <optional>

namespace QtAV {

/// Spreads steps back over the time that decoding more frames takes.
///
/// Steps that follow each other without delay use up the cached frames in a moment, and then all
/// wait for frames that a pass of decoding gives only at its end. Evenly spread, the same steps are
/// done at the same time, and none of them seems to hang.
class StepPacing
{
public:
    using Duration = std::chrono::duration<double>;

    /// Maximum pause between steps: a longer one looks as if the program hangs.
    static constexpr Duration longestPause{1.0};
    /// Duration of a step itself. A shorter pause makes no difference.
    static constexpr Duration shortestPause{0.004};

    /// Pause after a step back before the next one is answered.
    /// @param framesLeft    number of frames available for further steps.
    /// @param secondsToMore time until there are more, in seconds; nothing if none are needed.
    [[nodiscard]] static Duration pauseFor(qint64 framesLeft, std::optional<double> secondsToMore);
};

} // namespace QtAV
