#pragma once

#include <QtAV/VideoFrame.h>

#include <QSize>

#include <map>
#include <optional>
#include <set>

namespace QtAV {

/// Decoded frames around the one on screen, by their times, up to a number of bytes.
///
/// The few nearest to the focus are kept as they were decoded; those further off are scaled down to
/// the size at which they are shown, where that makes them smaller, so that the stretches of steps
/// fit. The cache knows which frames are direct neighbours, so that it never gives a frame further
/// off for the next or the previous one. When it is full, the frames furthest from the focus go
/// first, with those after it counting as further away.
///
/// A frame is known by its exact time in seconds, the one that VideoFrame::timestamp() gives.
/// Not thread-safe: one thread uses it.
class FrameCache
{
public:
    static constexpr qint64 defaultBytes = qint64(224) << 20;

    /// For which screen frames are scaled down while none is known, in pixels.
    static constexpr QSize usualScreen{960, 540};

    /// What becomes of frames that are not among the few nearest to the focus.
    enum class FarFrames {
        ScaleDown,
        Drop, ///< while frames pass by too quickly for the time that scaling takes
    };

    /// Cached frames without a gap between them, around a given one.
    struct Run
    {
        double start;        ///< the time of the first of them
        double end;          ///< the time of the last of them
        qint64 framesBefore; ///< before the given one
        qint64 framesAfter;  ///< after it
        bool isAtStart;      ///< the first of them is the first of the video
    };

    explicit FrameCache(qint64 mostBytes = defaultBytes);

    /// The screen's size in pixels, into which pictures are fitted. Frames that are scaled down
    /// already stay as they are. Ignored when empty.
    void setScreen(const QSize& size);
    void setFarFrames(FarFrames farFrames) { m_farFrames = farFrames; }

    /// Adds a frame, or what is newly known of a cached one. A decoded frame replaces one that is
    /// scaled down where it would stay as it is, or be scaled to another size.
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

    /// About how many frames there is room for before the focus; 0 before the first insert().
    qint64 roomBefore() const;

private:
    struct Entry
    {
        VideoFrame frame;
        std::optional<double> predecessor;
    };

    QSize shownSize(const VideoFrame& frame) const;
    qint64 bytesScaledDown(const VideoFrame& frame) const;
    qint64 mostWholeBytes() const;
    double furthestWhole() const;
    bool isWorthReplacing(const VideoFrame& old, const VideoFrame& frame) const;
    void add(Entry& entry, const VideoFrame& frame);
    void remove(double seconds, const VideoFrame& frame);
    void erase(double seconds);
    void reduceFarFrames();
    void shrink();

    qint64 m_mostBytes;
    QSize m_screen = usualScreen;
    FarFrames m_farFrames = FarFrames::ScaleDown;
    double m_focus = 0.0;
    std::optional<double> m_first;
    std::map<double, Entry> m_frames;
    qint64 m_bytes = 0;
    std::set<double> m_whole;  ///< times of the frames that scaling down would make smaller
    qint64 m_wholeBytes = 0;   ///< that those take
    qint64 m_decodedBytes = 0; ///< of the largest frame inserted
    qint64 m_keptBytes = 0;    ///< of a frame as it is kept far from the focus
};

} // namespace QtAV
