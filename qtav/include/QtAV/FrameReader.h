#pragma once

#include <QtAV/AVDemuxer.h>
#include <QtAV/Deinterlacing.h>
#include <QtAV/FrameResult.h>
#include <QtAV/VideoDecoder.h>
#include <QtAV/VideoFrame.h>

#include <QString>
#include <QVector>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace QtAV {

class Deinterlacer;

/// The only source of decoded frames: delivers those of a file's first video stream in presentation
/// order, from any key frame on. The times of the delivered frames rise strictly.
///
/// It reports the predecessor of each frame where it is known, so that callers can tell whether the
/// first frame that they see at a position really is the first one there.
///
/// Frames of interlaced video carry their neighbouring pictures, from which whole pictures are
/// made. For that the reader decodes one frame beyond the one that it delivers, and stops skipping
/// slightly earlier. Everything documented about last() and its predecessor refers to the delivered
/// frame.
///
/// The implementation is split: FrameReader.cpp delivers frames in sequence,
/// FrameReader_packets.cpp seeks and reads without decoding, FrameReader_search.cpp searches for a
/// frame.
///
/// Not thread-safe, but tied to no thread: one thread at a time may use it.
class FrameReader
{
public:
    /// Decoding on to a frame at most this far ahead is cheaper than starting at a key frame.
    static constexpr double nearSeconds = 1.0;

    /// If a search lands too late, the next one starts at least this much earlier, then twice as
    /// much.
    static constexpr qint64 smallestStepBackMs = 500;

    /// How packets that cannot be decoded are treated on the way to a frame.
    enum class Damage { Skip, Report };

    /// Describes the frame to search for.
    struct Search
    {
        /// The position in milliseconds at which, or shortly behind which, the frame lies.
        qint64 ms = 0;
        /// Frames before this position in milliseconds may be skipped, see setCompleteFrom(). The
        /// frame searched for must not lie before it.
        qint64 completeFrom = 0;
        /// True for the frame searched for and for all frames after it.
        std::function<bool(const VideoFrame&)> isReached;
        /// Called for each frame on the way, including the result. May be empty.
        std::function<void(const VideoFrame&)> onFrame = {};
        Damage damage = Damage::Skip;
    };

    FrameReader();
    ~FrameReader();
    FrameReader(const FrameReader&) = delete;
    FrameReader& operator=(const FrameReader&) = delete;

    /// Number of decoding threads, from the next open() or seek() on; 0, the initial value, means
    /// one per core.
    void setThreads(int threads) { m_threads = threads; }

    /// How interlaced pictures are treated, from the next open() or seek() on.
    void setDeinterlacing(Deinterlacing deinterlacing) { m_wantedDeinterlacing = deinterlacing; }

    /// Memory limit for one picture in bytes, from the next open() on.
    void setPictureMemory(qint64 bytes) { m_pictureMemory = bytes; }

    /// What one picture of the open video takes in memory, see VideoDecoder; 0 when none is open.
    [[nodiscard]] qint64 pictureBytes() const { return m_decoder ? m_decoder->pictureBytes() : 0; }

    /// Once the deadline has expired no further picture is decoded, however many a packet holds.
    /// Applies from the next open() on. It does not interrupt waiting for the disk; IsCancelled
    /// does that.
    void setDeadline(std::shared_ptr<const Deadline> deadline) { m_deadline = std::move(deadline); }

    /// Opens a file, positioned at its start. Returns false, with a text for people, if it cannot
    /// be opened, has no video that can be decoded, or opening was cancelled. A file without video
    /// stays loaded in the demuxer.
    [[nodiscard]] bool open(const QString& path, const IsCancelled& isCancelled, QString& error);
    void close();
    [[nodiscard]] bool isOpen() const { return m_decoder != nullptr; }

    const AVDemuxer& demuxer() const { return m_demuxer; }

    /// Times of the key frames, see AVDemuxer. Reading can only continue after a seek().
    QVector<qint64> indexedKeyFrames() { return m_demuxer.indexedKeyFrames(); }

    /// The times of all frames in whole milliseconds, in presentation order: reads all packets and
    /// decodes none. Ends early if reading fails or is cancelled. Reading can only continue after a
    /// seek().
    [[nodiscard]] QVector<qint64> readFrameTimes(const IsCancelled& isCancelled);

    /// Makes land() and next() start at the last key frame at or before a position in milliseconds.
    /// Nothing is skipped until setCompleteFrom() allows it. Does not access the file yet.
    void seek(qint64 ms);

    /// Carries out the pending seek(), if any. Returns Frame when a packet is available there.
    /// next() calls it by itself.
    [[nodiscard]] FrameAnswer land(const IsCancelled& isCancelled);

    /// Reads up to a position in milliseconds without decoding. If that passes a key frame at or
    /// before the position, the result is the same as seeking to it; otherwise next() continues
    /// where it was. Cheaper than a seek over short distances, and where a seek is a search.
    /// Returns Frame, also at the end of the video, unless reading failed or was cancelled.
    [[nodiscard]] FrameAnswer readAhead(qint64 ms, const IsCancelled& isCancelled);

    /// The longest distance in milliseconds between key frames that were read one after the other,
    /// or from a key frame to the packet read last; nothing before two were read since open().
    [[nodiscard]] std::optional<qint64> longestGroupMs() const;

    /// The next key frame before a time in milliseconds, without the frames between; End if there
    /// is none. Call only after seek() or another nextKeyFrame(). The neighbours of the key frame
    /// are unknown: where wantsNeighbours() is true, a search for its time gives a better picture.
    [[nodiscard]] FrameResult nextKeyFrame(qint64 beforeMs, const IsCancelled& isCancelled);

    /// Whether the key frame at which a seek lands is delivered at once; initially true. That is
    /// quicker, but the key frame is decoded again if frames behind it are wanted too.
    void setKeyFrameAtOnce(bool isAtOnce) { m_keyFrameAtOnce = isAtOnce; }

    /// Allows skipping disposable frames before this position in milliseconds, which saves time.
    void setCompleteFrom(qint64 ms) { m_completeFrom = ms; }
    qint64 completeFrom() const { return m_completeFrom; }

    /// The next frame. After Cancelled the next call continues where this one stopped; after Failed
    /// it continues behind the damage while canGoOn() is true.
    [[nodiscard]] FrameResult next(const IsCancelled& isCancelled);

    /// The first frame of the video for which Search::isReached is true; if there is none, the
    /// video's last frame. End if the video delivers no frame at all.
    ///
    /// find() starts at the key frame before the position. findOn() continues from last(), which
    /// must not lie behind the frame. Both start again further back until no frame can be missing
    /// before the result: some streams give no whole picture at what the container calls a key
    /// frame.
    [[nodiscard]] FrameResult find(const Search& search, const IsCancelled& isCancelled);
    [[nodiscard]] FrameResult findOn(const Search& search, const IsCancelled& isCancelled);

    /// False once the file cannot be read any more: every next() fails until the next seek().
    bool canGoOn() const { return !m_isLost || !m_decoded.empty(); }

    /// The time in seconds of the frame that next() delivered last; nothing since seek().
    std::optional<double> last() const { return m_last; }
    /// That frame.
    const VideoFrame& lastFrame() const { return m_lastFrame; }

    /// The time of the predecessor of last(); nothing if it was not seen.
    std::optional<double> predecessor() const { return m_predecessor; }

    /// Whether last() may comb, so that its picture depends on its neighbours.
    [[nodiscard]] bool wantsNeighbours() const { return m_last && wantsNeighbours(m_lastFrame); }

    /// True if last() is the first frame of the video.
    bool isAtFirstOfVideo() const { return m_isAtFirst; }

    /// False if the picture of last() would be made with its predecessor, and that exists but is
    /// not known: the picture would then differ from the one that a search gives. Call only once a
    /// frame has been delivered.
    [[nodiscard]] bool looksAsEver() const;

    /// True if last() is the picture of the packet at which the last seek landed.
    bool isAtLanding() const { return m_isAtLanding; }

    /// Number of packets skipped since seek() because they were marked as damaged.
    int invalidPackets() const { return m_invalidPackets; }

    /// Why the last seek, land() or next() failed, for people.
    QString errorString() const { return m_demuxer.errorString(); }

    /// The time of the packet at which the last seek landed, and whether it shows a key frame;
    /// nothing until it has landed.
    std::optional<double> landing() const { return m_landing; }
    bool landedOnKeyFrame() const { return m_landedOnKeyFrame; }

    /// True if no frame at or after a time in seconds has been skipped.
    bool isCompleteFrom(double seconds) const { return m_skippedUpTo < seconds; }

    /// True if frames behind last() were skipped.
    bool skippedSinceLast() const { return m_last && *m_last < m_skippedUpTo; }

private:
    /// Time before an interlaced frame from which on nothing is skipped, so that its predecessor is
    /// decoded, too: more than one frame lasts and less than two.
    static constexpr qint64 neighbourMs = 60;

    /// How far one attempt of a search came, and whether it can have missed an earlier frame that
    /// exists or that the result needs.
    struct Way
    {
        FrameResult result;
        bool isCertain = true;
    };

    /// A decoded frame and what was known about it at that time.
    struct Decoded
    {
        FrameResult result;
        std::optional<double> predecessor = {}; ///< time of the frame directly before it
        bool isInSequence = false;              ///< a frame was decoded before it without
                                                ///< interruption
        bool isAtFirst = false;
        bool isAtLanding = false;
    };

    void restart();
    [[nodiscard]] bool openDecoder();
    [[nodiscard]] Decoded decodeNext(const IsCancelled& isCancelled);
    [[nodiscard]] Decoded arrived(const VideoFrame& frame, bool isLanding);
    [[nodiscard]] FrameResult give(Decoded decoded);
    [[nodiscard]] bool wantsNeighbours(const VideoFrame& frame) const;
    [[nodiscard]] VideoFrame withNeighbours(const Decoded& decoded) const;
    void landOnAhead(size_t index);
    void measureGroup(const Packet& packet);
    [[nodiscard]] FrameAnswer readFromFile(Packet& packet, const IsCancelled& isCancelled);
    [[nodiscard]] Way walk(const Search& search, const IsCancelled& isCancelled);
    [[nodiscard]] FrameResult findFrom(Search search, const IsCancelled& isCancelled);
    [[nodiscard]] FrameResult lastOfVideo(const Search& search, const IsCancelled& isCancelled);
    [[nodiscard]] bool isCertain() const;
    [[nodiscard]] bool isWholeLast() const;
    [[nodiscard]] bool wantsPredecessors() const;
    [[nodiscard]] FrameAnswer lost(const IsCancelled& isCancelled);
    QString failureText() const;
    QString damageText() const;
    [[nodiscard]] FrameAnswer readPacket(Packet& packet, const IsCancelled& isCancelled);
    void chooseSkipping(const Packet& packet);

    AVDemuxer m_demuxer;
    std::unique_ptr<VideoDecoder> m_decoder;
    qint64 m_pictureMemory = usualPictureBytes;
    std::shared_ptr<const Deadline> m_deadline;
    int m_threads = 0;
    int m_decoderThreads = 0;           ///< those of m_decoder
    std::optional<qint64> m_target;     ///< of a seek that has not landed yet, in milliseconds
    qint64 m_origin = 0;                ///< the position of the last seek in milliseconds
    Packet m_first;                     ///< read by land() and not decoded yet
    std::deque<Packet> m_ahead;         ///< packets read after m_first by readAhead()
    std::optional<double> m_groupStart; ///< time of the key frame read last since land()
    double m_longestGroup = 0;          ///< in seconds, see longestGroupMs()
    Deinterlacing m_wantedDeinterlacing = Deinterlacing::Automatic;
    Deinterlacing m_deinterlacing = Deinterlacing::Automatic; ///< in effect since seek()
    std::shared_ptr<Deinterlacer> m_deinterlacer;             ///< of the open file
    std::deque<Decoded> m_decoded;                            ///< decoded and not delivered yet
    std::optional<double> m_newest; ///< the time of the most recently decoded frame
    qint64 m_completeFrom = 0;
    double m_skippedUpTo = -1.0; ///< frames up to this time may be missing
    bool m_skips = false;
    bool m_keyFrameAtOnce = true;
    bool m_decoderHurries = true; ///< m_decoder delivers key frames at once
    bool m_startedAtZero = true;
    bool m_isLost = false;
    bool m_isInterlaced = false; ///< neighbours may be needed in the open file
    bool m_resumes = false;      ///< m_target returns to where reading was interrupted
    bool m_hasReadGroup = false; ///< two key frames were read one after the other
    int m_invalidPackets = 0;
    std::optional<double> m_landing;
    bool m_landedOnKeyFrame = false;
    std::optional<double> m_last;
    VideoFrame m_lastFrame;
    std::optional<double> m_predecessor;
    bool m_isInSequence = false; ///< a frame was decoded before m_last without interruption
    bool m_isAtFirst = false;
    bool m_isAtLanding = false;
};

} // namespace QtAV
