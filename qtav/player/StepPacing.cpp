#include "qtav/player/StepPacing.h"

#include <algorithm>

namespace QtAV {

StepPacing::Duration StepPacing::pauseFor(qint64 framesLeft, std::optional<double> secondsToMore)
{
    if (!secondsToMore) {
        return Duration::zero();
    }
    const Duration pause(*secondsToMore / double(framesLeft + 1));
    return pause < shortestPause ? Duration::zero() : std::min(pause, longestPause);
}

} // namespace QtAV
