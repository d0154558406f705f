#pragma once

#include <QtAV/VideoFrame.h>

#include <QSize>

#include <map>
#include <optional>
#include <set>

namespace QtAV {

/// Decoded frames around the one on screen, by time, limited to a number of bytes.
///
/// The few frames nearest to the focus are kept as decoded. Those further away are scaled down to
/// the size at which they are shown if that makes them smaller, so that enough frames for steps
/// fit. The cache knows which frames are direct neighbours, so that it never mistakes a frame
/// further away for the next or previous one. When it is full, it drops the frames furthest from
/// the focus first; frames after the focus count as further away.
///
/// A frame is identified by its exact time in seconds, VideoFrame::timestamp(). Not thread-safe:
/// one thread uses it.
class FrameCache
{
public:
    static constexpr qint64 defaultBytes = qint64(224) << 20;

    /// Screen size in pixels that frames are scaled down for while the real one is unknown.
    static constexpr QSize usualScreen{960, 540};

    /// How frames other than the few nearest to the focus are treated.
    enum class FarFrames {
        ScaleDown,
        Drop, ///< while frames pass too quickly for scaling
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

    /// Size of the screen in pixels, into which pictures are fitted. Frames that are already scaled
    /// down stay as they are. Ignored when empty.
    void setScreen(const QSize& size);
    void setFarFrames(FarFrames farFrames) { m_farFrames = farFrames; }

    /// Adds a frame, or adds newly known facts about a cached one. A decoded frame replaces a
    /// scaled-down one if it would stay as decoded or be scaled to another size.
    /// @param predecessor  the time of the direct predecessor; nothing if unknown.
    void insert(const VideoFrame& frame, std::optional<double> predecessor);

    /// Records that the frame with this time is the first of the video.
    void setFirst(double seconds) { m_first = seconds; }
    std::optional<double> first() const { return m_first; }

    /// The time around which frames are kept.
    void setFocus(double seconds);

    /// Changes the limit and drops frames beyond it.
    void setMostBytes(qint64 bytes);

    void clear();

    /// The following return an invalid frame if the cache does not hold the requested one.
    VideoFrame at(double seconds) const;
    /// The direct predecessor or successor of the frame with that time.
    VideoFrame before(double seconds) const;
    VideoFrame after(double seconds) const;
    /// The first frame of the video whose whole milliseconds lie at or after a position.
    VideoFrame atOrAfter(qint64 ms) const;

    /// The run that contains the frame with that time; nothing if it is not cached.
    std::optional<Run> runAround(double seconds) const;

    qint64 byteCount() const { return m_bytes; }
    qint64 mostBytes() const { return m_mostBytes; }
    int frameCount() const { return static_cast<int>(m_frames.size()); }

    /// Estimated number of frames that fit before the focus; 0 before the first insert().
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
    qint64 m_wholeBytes = 0;   ///< their total size
    qint64 m_decodedBytes = 0; ///< size of the largest inserted frame
    qint64 m_keptBytes = 0;    ///< size of a frame as it is kept far from the focus
};

} // namespace QtAV
