#pragma once

#include <QtAV/FrameReader.h>

#include "qtav/player/FrameCache.h"

#include <QString>

#include <functional>
#include <optional>

namespace QtAV {

/// Gives exactly the frame that is asked for: the first at or after a position, the very next and
/// the very one before.
///
/// What was decoded is kept in a FrameCache. One cursor walks in the file, since a decoder takes
/// the memory of a dozen pictures: it goes back to fill the cache with what lies before the focus,
/// so that stepping back finds it there, and then on to where the cached frames end, so that going
/// forward goes on decoding.
///
/// Where a codec gives no whole picture at a place that the container calls a key frame, decoding
/// starts again further back, until nothing can be missing before the frame that was found.
///
/// Not thread-safe, but tied to no thread.
class FrameSource
{
public:
    /// Opens a file and decodes its first frame, which goes into the cache. False, with a text for
    /// people, when no frame comes out.
    /// @param cacheBytes  most memory for kept frames; less is taken where more would be no use.
    [[nodiscard]] bool open(const QString& path, qint64 cacheBytes, const IsCancelled& isCancelled,
                            QString& error);
    void close();
    bool isOpen() const { return m_reader.isOpen(); }

    /// In milliseconds, 0 when nothing is open. Grows when frames lie behind the stated end.
    qint64 duration() const;
    /// The usual time between two frames in milliseconds, 1 or more.
    int frameInterval() const;
    bool hasSound() const { return !m_reader.demuxer().audioStreams().isEmpty(); }

    /// The first frame at or after a position in milliseconds; behind the last frame, the last.
    [[nodiscard]] FrameResult frameAt(qint64 ms, const IsCancelled& isCancelled);

    /// The frame directly after the one of that time in seconds; none after the last.
    [[nodiscard]] FrameResult after(double seconds, const IsCancelled& isCancelled);

    /// The frame directly before the one of that time in seconds; none before the first.
    [[nodiscard]] FrameResult before(double seconds, const IsCancelled& isCancelled);

    /// The frame of that time in seconds, decoded anew: in its full size whatever is kept of it.
    /// Failed when the file does not give it any more.
    [[nodiscard]] FrameResult decodeAnew(double seconds, const IsCancelled& isCancelled);

    /// The time in seconds around which frames are kept and before which they are decoded ahead.
    void setFocus(double seconds);

    /// Decodes one frame of those that will be wanted before the focus, or on the way back from
    /// them. False when there are enough, and decoding can go on after them.
    ///
    /// After a seek the few frames that came with it are enough; the more steps back follow, the
    /// more frames are wanted before the focus.
    [[nodiscard]] bool fillBehind(const IsCancelled& isCancelled);

    const FrameCache& cache() const { return m_cache; }

private:
    /// One step of filling; the result says how it ended once it is over.
    struct Filling
    {
        bool isOver = false;
        FrameResult result = {};
    };

    /// The way to the frames before a cached one.
    struct WalkBehind
    {
        double target; ///< the time of that frame in seconds
        /// The key frame from which decoding had come to the frames after the target.
        std::optional<double> wayBack = {};
        qint64 stepBackMs = 0;
        bool skips = true;
        VideoFrame previous = {}; ///< the last frame before the target
    };

    FrameReader::Search searchFor(qint64 ms, qint64 completeFrom,
                                  std::function<bool(const VideoFrame&)> isReached);
    FrameResult look(bool goesOn, const FrameReader::Search& search,
                     const IsCancelled& isCancelled);
    bool isShortlyBefore(double seconds) const;

    void startWalkBehind(double target);
    void landBehind();
    Filling walkOnBehind(const IsCancelled& isCancelled);
    FrameResult finishWalkBehind(const IsCancelled& isCancelled);
    bool isOnTheWay(double seconds) const;
    void leaveWalkBehind();
    bool startFilling();
    bool catchUp(const IsCancelled& isCancelled);

    FrameResult advance(const IsCancelled& isCancelled);
    void keep();
    qint64 lengthOf(qint64 frames) const { return frames * m_longestGapMs; }

    FrameCache m_cache;
    FrameReader m_reader;
    std::optional<double> m_lastTime; ///< of the video's last frame, once it has been seen
    qint64 m_latestMs = 0;            ///< the time of the latest frame that has been seen
    qint64 m_longestGapMs = 0;        ///< between two neighbours that have been seen
    double m_focus = 0.0;
    int m_stepsBack = 0; ///< since the last seek or step forward
    std::optional<WalkBehind> m_walk;
    std::optional<double> m_filledUpTo; ///< the frame that the last filling was for
};

} // namespace QtAV
