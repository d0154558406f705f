#pragma once

#include <QtAV/FrameReader.h>

#include "qtav/player/BackwardFill.h"
#include "qtav/player/FrameCache.h"

#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace QtAV {

/// Delivers exactly the requested frame: the first at or after a position, or the direct successor
/// or predecessor of another frame.
///
/// Decoded frames are kept in a FrameCache, and frames far from the focus come out of it scaled
/// down. There is only one reader, because each decoder takes the memory of a dozen pictures. While
/// nothing is requested, prepare() moves the reader back to fill the cache before the focus, and
/// then forward again to the end of the cached frames, so that going forward simply continues
/// decoding.
///
/// Not thread-safe, but tied to no thread.
class FrameSource
{
public:
    using Rest = std::chrono::milliseconds;
    static constexpr Rest longestRest = Rest::max();

    /// What is available for steps back.
    struct Supply
    {
        qint64 frames = 0; ///< number of cached frames before the focus
        /// Estimated decoding time in seconds until there are more; nothing if there are enough, if
        /// they reach the start, or if it is unknown.
        std::optional<double> secondsToMore = {};
    };

    FrameSource();

    /// Opens a file and decodes its first frame into the cache. Returns false, with a text for
    /// people, if no frame can be decoded.
    /// @param cacheBytes  maximum memory for cached frames.
    [[nodiscard]] bool open(const QString& path, qint64 cacheBytes, const IsCancelled& isCancelled,
                            QString& error);
    void close();
    bool isOpen() const { return m_reader.isOpen(); }

    /// Length in milliseconds; 0 when nothing is open. Grows when frames turn up behind the stated
    /// end.
    qint64 duration() const;
    /// Usual time between two frames in milliseconds, 1 or more.
    int frameInterval() const;
    /// What the file states about itself.
    MediaFacts facts() const { return m_reader.demuxer().facts(); }
    bool hasSound() const { return !m_reader.demuxer().audioStreams().isEmpty(); }

    /// The first frame at or after a position in milliseconds; behind the last frame, the last.
    [[nodiscard]] FrameResult frameAt(qint64 ms, const IsCancelled& isCancelled);

    /// The successor of the frame with that time in seconds; End after the last.
    [[nodiscard]] FrameResult after(double seconds, const IsCancelled& isCancelled);

    /// The predecessor of the frame with that time in seconds; End before the first.
    [[nodiscard]] FrameResult before(double seconds, const IsCancelled& isCancelled);

    /// Decodes the frame with that time in seconds again, in full size, regardless of the cache.
    /// Failed if the file no longer delivers it.
    [[nodiscard]] FrameResult decodeAnew(double seconds, const IsCancelled& isCancelled);

    /// Time in seconds around which frames are kept and before which they are decoded ahead.
    void setFocus(double seconds);

    /// Size in pixels of the screen on which frames are shown; ignored when empty.
    void setScreen(const QSize& size) { m_cache.setScreen(size); }

    /// How interlaced pictures are treated. A change clears the cache; decodeAnew() then gives the
    /// frame on screen with the new setting.
    void setDeinterlacing(Deinterlacing deinterlacing);
    Deinterlacing deinterlacing() const { return m_deinterlacing; }

    /// Memory limit for one picture, from the next open() on.
    void setPictureMemory(qint64 bytes) { m_reader.setPictureMemory(bytes); }

    /// Whether frames far from the focus are kept; not while frames pass by in playback.
    void setFarFrames(FrameCache::FarFrames farFrames) { m_cache.setFarFrames(farFrames); }

    /// Decodes one frame that is likely to be requested next: before the focus and, after a longer
    /// rest, the one at the focus in full size and its successors.
    /// @param rest  how long nothing has been requested.
    /// @return false if there is nothing to do, or not yet: see nextRest().
    [[nodiscard]] bool prepare(Rest rest, const IsCancelled& isCancelled);

    /// The next longer rest after which prepare() may do more; nothing if no rest is long enough.
    static std::optional<Rest> nextRest(Rest rest);

    /// Plans the next pass back if one is needed, so that prepare() runs it.
    Supply supplyBehind();

    /// Decodes one frame of the current pass back. Returns false if there is none or it cannot
    /// continue.
    [[nodiscard]] bool fillBehind(const IsCancelled& isCancelled);

    const FrameCache& cache() const { return m_cache; }

private:
    enum class Move { Seek, Backward, Forward };

    FrameReader::Search searchFor(qint64 ms, qint64 completeFrom,
                                  std::function<bool(const VideoFrame&)> isReached);
    [[nodiscard]] FrameResult look(bool goesOn, const FrameReader::Search& search,
                                   const IsCancelled& isCancelled);
    bool isShortlyBefore(double seconds) const;
    void leaveBackgroundWork();

    [[nodiscard]] bool fillsBehind(const FrameCache::Run& run);
    [[nodiscard]] bool decodeAhead(const FrameCache::Run& run, const IsCancelled& isCancelled);
    [[nodiscard]] bool returnToEnd(const FrameCache::Run& run, const IsCancelled& isCancelled);
    [[nodiscard]] bool startReturn(double target, double end);

    [[nodiscard]] FrameResult advance(const IsCancelled& isCancelled);
    void keep();
    qint64 lengthOf(qint64 frames) const { return frames * m_longestGapMs; }

    Deinterlacing m_deinterlacing = Deinterlacing::Automatic;
    FrameCache m_cache;
    FrameReader m_reader;
    BackwardFill m_fill;
    std::optional<double> m_lastTime; ///< of the video's last frame, once it has been seen
    qint64 m_latestMs = 0;            ///< the time of the latest frame that has been seen
    qint64 m_longestGapMs = 0;        ///< between two neighbouring frames seen so far
    double m_focus = 0.0;
    Move m_move = Move::Seek; ///< the last one
    /// Time of the last cached frame while the reader is returning there.
    std::optional<double> m_returnsTo;
    std::optional<double> m_returnedTo; ///< the focus for which it has already returned
};

} // namespace QtAV
