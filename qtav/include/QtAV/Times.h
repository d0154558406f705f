#pragma once

#include <QtGlobal>

namespace QtAV {

/// A frame's or packet's seconds as whole milliseconds, cut off; exact, see AVDemuxer.
inline qint64 toMilliseconds(double seconds)
{
    return static_cast<qint64>(seconds * 1000.0);
}

} // namespace QtAV
