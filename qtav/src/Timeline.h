#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

namespace QtAV {

/// Converts one stream's ticks to the library's times, which start at 0 where the container starts.
///
/// The container's start is kept in the ticks of the stream that starts first, not in FFmpeg's
/// rounded microseconds: callers truncate to whole milliseconds, so a frame at 40 ms must not come
/// out at 39.9997 ms.
class Timeline
{
public:
    Timeline() = default;

    /// @param timeBase       the length of one tick of the stream, in seconds
    /// @param startTicks     the start of the container, in ticks of startTimeBase
    /// @param startTimeBase  the length of one tick of startTicks, in seconds
    Timeline(AVRational timeBase, qint64 startTicks, AVRational startTimeBase);

    /// Whole milliseconds, truncated; 0 for ticks before the start.
    qint64 milliseconds(qint64 ticks) const;

    /// Seconds; 0 for ticks before the start. `qint64(seconds(t) * 1000.0)` is milliseconds(t).
    double seconds(qint64 ticks) const;

    /// The last tick whose whole milliseconds are `ms`.
    qint64 lastTickOf(qint64 ms) const;

    /// No length is longer: files state anything, and calculations need room.
    static constexpr qint64 longestMs = qint64(1) << 40;

    /// A duration in seconds, at most longestMs.
    double lengthSeconds(qint64 ticks) const;

    /// Where something ends that begins at these ticks, in whole milliseconds, at most longestMs.
    qint64 endMilliseconds(qint64 ticks, qint64 length) const;

    AVRational timeBase() const { return m_timeBase; }

    /// Products of ticks and two denominators do not fit into 64 bits.
    __extension__ typedef __int128 Wide; // NOLINT(modernize-use-using): it takes no __extension__

private:
    struct Fraction
    {
        Wide numerator;
        Wide denominator;
    };
    Fraction exactSeconds(qint64 ticks) const;

    AVRational m_timeBase{1, 1000};
    qint64 m_startTicks = 0;
    AVRational m_startTimeBase{1, 1000};
};

} // namespace QtAV
