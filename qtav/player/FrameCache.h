#pragma once

#include <QtAV/VideoFrame.h>

#include <map>
#include <optional>

namespace QtAV {

/// Decoded frames around the one on screen, by their times, up to a number of bytes.
///
/// The cache knows which frames are direct neighbours, so that it never gives a frame further off
/// for the next or the previous one. When it is full, the frames furthest from the focus go first,
/// with those after it counting as further away.
///
/// A frame is known by its exact time in seconds, the one that VideoFrame::timestamp() gives.
/// Not thread-safe: one thread uses it.
class FrameCache
{
public:
    static constexpr qint64 DefaultBytes = qint64(256) << 20;

    /// Cached frames without a gap between them, around a given one.
    struct Run
    {
        double start;        ///< the time of the first of them
        double end;          ///< the time of the last of them
        qint64 framesBefore; ///< before the given one
        qint64 bytesBefore;  ///< that those take
        bool isAtStart;      ///< the first of them is the first of the video
    };

    explicit FrameCache(qint64 mostBytes = DefaultBytes);

    /// Adds a frame, or what is newly known of a cached one.
    /// @param predecessor  the time of the frame directly before it; nothing where unknown.
    void insert(const VideoFrame& frame, std::optional<double> predecessor);

    /// Says that no frame comes before the one of this time.
    void setFirst(double seconds) { m_first = seconds; }
    std::optional<double> first() const { return m_first; }

    /// The time around which frames are kept.
    void setFocus(double seconds);

    /// Changes how much may be kept, and lets go of what is too much.
    void setMostBytes(qint64 bytes);

    void clear();

    /// The frames below are invalid ones where the cache does not hold them.
    VideoFrame at(double seconds) const;
    /// The frame directly before or after the one of that time.
    VideoFrame before(double seconds) const;
    VideoFrame after(double seconds) const;
    /// The first frame of the video whose whole milliseconds are at or after a position.
    VideoFrame atOrAfter(qint64 ms) const;

    /// The run in which the frame of that time is; nothing when that is not cached.
    std::optional<Run> runAround(double seconds) const;

    qint64 byteCount() const { return m_bytes; }
    qint64 mostBytes() const { return m_mostBytes; }
    int frameCount() const { return static_cast<int>(m_frames.size()); }

private:
    struct Entry
    {
        VideoFrame frame;
        std::optional<double> predecessor;
    };

    void shrink();

    qint64 m_mostBytes;
    qint64 m_bytes = 0;
    double m_focus = 0.0;
    std::optional<double> m_first;
    std::map<double, Entry> m_frames;
};

} // namespace QtAV
