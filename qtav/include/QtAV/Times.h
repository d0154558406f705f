#pragma once

#include <QtGlobal>

namespace QtAV {

/// Converts the time of a frame or packet from seconds to whole milliseconds, truncated; exact, see
/// AVDemuxer.
inline qint64 toMilliseconds(double seconds)
{
    return static_cast<qint64>(seconds * 1000.0);
}

} // namespace QtAV
