#pragma once

#include <QtAV/FrameReader.h>

#include "qtav/player/BackwardFill.h"
#include "qtav/player/FrameCache.h"

#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace QtAV {

/// Gives exactly the frame that is asked for: the first at or after a position, the very next and
/// the very one before.
///
/// What was decoded is kept in a FrameCache, and frames far from the focus come out of it scaled
/// down. One reader walks in the file, since each decoder takes the memory of a dozen pictures.
/// While nothing is asked for, prepare() sends it back to fill the cache with what lies before the
/// focus, and on again to where the cached frames end, so that going forward goes on decoding.
///
/// Not thread-safe, but tied to no thread.
class FrameSource
{
public:
    using Rest = std::chrono::milliseconds;
    static constexpr Rest longestRest = Rest::max();

    /// What there is for steps back.
    struct Supply
    {
        qint64 frames = 0; ///< before the focus that are cached
        /// How many seconds of decoding it takes until there are more; nothing when enough are
        /// there, when these reach the start, and while it is not known.
        std::optional<double> secondsToMore = {};
    };

    FrameSource();

    /// Opens a file and decodes its first frame, which goes into the cache. False, with a text for
    /// people, when no frame comes out.
    /// @param cacheBytes  most memory for kept frames.
    [[nodiscard]] bool open(const QString& path, qint64 cacheBytes, const IsCancelled& isCancelled,
                            QString& error);
    void close();
    bool isOpen() const { return m_reader.isOpen(); }

    /// In milliseconds, 0 when nothing is open. Grows when frames lie behind the stated end.
    qint64 duration() const;
    /// The usual time between two frames in milliseconds, 1 or more.
    int frameInterval() const;
    /// What the file says of itself.
    MediaFacts facts() const { return m_reader.demuxer().facts(); }
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

    /// The size in pixels of the screen that frames are shown on; ignored when empty.
    void setScreen(const QSize& size) { m_cache.setScreen(size); }

    /// What becomes of interlaced pictures. Another choice drops what is cached: decodeAnew() gives
    /// the frame on screen as it is to be.
    void setDeinterlacing(Deinterlacing deinterlacing);
    Deinterlacing deinterlacing() const { return m_deinterlacing; }

    /// What one picture may take in memory, from the next open() on.
    void setPictureMemory(qint64 bytes) { m_reader.setPictureMemory(bytes); }

    /// While frames pass by in playback, those far from the focus are not kept.
    void setFarFrames(FrameCache::FarFrames farFrames) { m_cache.setFarFrames(farFrames); }

    /// Decodes one frame of those that are likely to be wanted next: before the focus and, when the
    /// user rests longer, the one at the focus in full size and those from there on.
    /// @param rest  how long nothing has been asked for.
    /// @return false when there is nothing to do, or not yet: see nextRest().
    [[nodiscard]] bool prepare(Rest rest, const IsCancelled& isCancelled);

    /// The next longer rest after which prepare() may do more; nothing when no rest is long enough.
    static std::optional<Rest> nextRest(Rest rest);

    /// Plans the next pass back when one is needed, so that prepare() goes for it.
    Supply supplyBehind();

    /// Decodes one frame of the pass back that is under way. False when none is, or it cannot go
    /// on.
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
    qint64 m_longestGapMs = 0;        ///< between two neighbours that have been seen
    double m_focus = 0.0;
    Move m_move = Move::Seek; ///< the last one
    /// The last cached frame's time, when the reader is on its way back there.
    std::optional<double> m_returnsTo;
    std::optional<double> m_returnedTo; ///< the focus that it has been sent to already
};

} // namespace QtAV
