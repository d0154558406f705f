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

/// The one way to decoded frames: gives those of a file's first video stream in the order in which
/// they are shown, from any key frame on. The times of the frames that it gives rise strictly.
///
/// It says what it knows of the frame before each one, so that callers can tell whether the first
/// frame that they see at a position is the first one there is.
///
/// Frames of interlaced video bear the pictures around them, of which whole ones are made. For that
/// it decodes one frame further than the one that it gives, and begins to skip nothing a little
/// sooner. Everything that is said of last() and the frames before it is said of the frame given.
///
/// Its sources are split: how frames come one after another in FrameReader.cpp, how one is found in
/// FrameReader_search.cpp.
///
/// Not thread-safe, but tied to no thread: one thread at a time may use it.
class FrameReader
{
public:
    /// What becomes of packets that cannot be decoded on the way to a frame.
    enum class Damage { Skip, Report };

    /// A frame that is looked for.
    struct Search
    {
        /// The position in milliseconds at which, or shortly behind which, the frame lies.
        qint64 ms = 0;
        /// Frames before this position in milliseconds may be skipped, see setCompleteFrom(). No
        /// frame before it may be the one that is looked for.
        qint64 completeFrom = 0;
        /// True for the frame, and for all that come after it.
        std::function<bool(const VideoFrame&)> isReached;
        /// Called for each frame on the way, the one looked for included. May be empty.
        std::function<void(const VideoFrame&)> onFrame = {};
        Damage damage = Damage::Skip;
    };

    FrameReader();
    ~FrameReader();
    FrameReader(const FrameReader&) = delete;
    FrameReader& operator=(const FrameReader&) = delete;

    /// How many threads decode, from the next open() or seek() on; 0, as at first, for one a core.
    void setThreads(int threads) { m_threads = threads; }

    /// What becomes of interlaced pictures, from the next open() or seek() on.
    void setDeinterlacing(Deinterlacing deinterlacing) { m_wantedDeinterlacing = deinterlacing; }

    /// What one picture may take in memory, in bytes, from the next open() on.
    void setPictureMemory(qint64 bytes) { m_pictureMemory = bytes; }

    /// What one picture of the open video takes in memory, see VideoDecoder; 0 when none is open.
    [[nodiscard]] qint64 pictureBytes() const { return m_decoder ? m_decoder->pictureBytes() : 0; }

    /// Once it has passed no picture is decoded any more, however many a packet holds; from the
    /// next open() on. It ends no waiting for the disk: that is for IsCancelled.
    void setDeadline(std::shared_ptr<const Deadline> deadline) { m_deadline = std::move(deadline); }

    /// Opens a file and stands at its start. False, with a text for people, when it cannot be
    /// opened, has no video or none that can be decoded, or when opening was cancelled. A file
    /// without video stays loaded in the demuxer.
    [[nodiscard]] bool open(const QString& path, const IsCancelled& isCancelled, QString& error);
    void close();
    [[nodiscard]] bool isOpen() const { return m_decoder != nullptr; }

    const AVDemuxer& demuxer() const { return m_demuxer; }

    /// Where key frames lie, see AVDemuxer. Afterwards only seek() goes on.
    QVector<qint64> indexedKeyFrames() { return m_demuxer.indexedKeyFrames(); }

    /// The times in whole milliseconds of all frames, in the order shown: reads all packets and
    /// decodes none. Ends early where reading fails or is cancelled. Afterwards only seek() goes
    /// on.
    [[nodiscard]] QVector<qint64> readFrameTimes(const IsCancelled& isCancelled);

    /// Makes land() and next() start at the last key frame at or before a position in milliseconds.
    /// Skips nothing until told to. Touches no file yet.
    void seek(qint64 ms);

    /// Goes to where the last seek() is to start, unless that is done. Frame when a packet waits
    /// there; next() calls it by itself.
    [[nodiscard]] FrameAnswer land(const IsCancelled& isCancelled);

    /// Reads on to a position in milliseconds without decoding. Where a key frame at or before it
    /// was passed, all is as if that had been sought; else next() goes on where it was. Cheaper
    /// than a seek over short distances, and where seeks are searches. Frame unless reading failed
    /// or was cancelled; at the end of the video, too.
    [[nodiscard]] FrameAnswer readAhead(qint64 ms, const IsCancelled& isCancelled);

    /// The next key frame before a time in milliseconds, without the frames between; End where
    /// there is none. Only after seek() or another nextKeyFrame(). The frames around it are
    /// unknown: where wantsNeighbours(), a search for its time gives a better picture.
    [[nodiscard]] FrameResult nextKeyFrame(qint64 beforeMs, const IsCancelled& isCancelled);

    /// Whether the key frame where a seek lands comes out at once, as at first. That is quicker,
    /// but it is decoded once more where frames behind it are wanted too.
    void setKeyFrameAtOnce(bool isAtOnce) { m_keyFrameAtOnce = isAtOnce; }

    /// From here on, frames before this position in milliseconds may be skipped where no other
    /// frame needs them, which saves time.
    void setCompleteFrom(qint64 ms) { m_completeFrom = ms; }
    qint64 completeFrom() const { return m_completeFrom; }

    /// The next frame. After Cancelled the next call goes on where this one stopped; after Failed
    /// it goes on behind the damage while canGoOn() is true.
    [[nodiscard]] FrameResult next(const IsCancelled& isCancelled);

    /// The first frame of the video that is reached; where none is, the video's last frame. End
    /// where no frame comes out at all.
    ///
    /// find() starts at the key frame before the position, findOn() with last(), which must not be
    /// behind the frame. Both
    /// start again further back until no frame can be missing before the one that they give: some
    /// streams give no whole picture at what the container calls a key frame.
    [[nodiscard]] FrameResult find(const Search& search, const IsCancelled& isCancelled);
    [[nodiscard]] FrameResult findOn(const Search& search, const IsCancelled& isCancelled);

    /// False once the file cannot be read any more: until the next seek(), every next() fails.
    bool canGoOn() const { return !m_isLost || !m_decoded.empty(); }

    /// The time in seconds of the frame that next() gave last; nothing since seek().
    std::optional<double> last() const { return m_last; }
    /// That frame.
    const VideoFrame& lastFrame() const { return m_lastFrame; }

    /// The time of the frame directly before last(); nothing where it was not seen.
    std::optional<double> predecessor() const { return m_predecessor; }

    /// Whether last() may comb, so that its picture may be made of the frames around it, too.
    [[nodiscard]] bool wantsNeighbours() const { return m_last && wantsNeighbours(m_lastFrame); }

    /// No frame comes before last().
    bool isAtFirstOfVideo() const { return m_isAtFirst; }

    /// False where a whole picture would be made of last() and the one before it, and that is not
    /// known though there is one: then it would look another way than by a search. Only once a
    /// frame has come.
    [[nodiscard]] bool looksAsEver() const;

    /// last() is the very picture of the packet where the last seek landed.
    bool isAtLanding() const { return m_isAtLanding; }

    /// How many packets were passed over since seek() because they were marked as damaged.
    int invalidPackets() const { return m_invalidPackets; }

    /// Why the last seek, land() or next() failed, for people.
    QString errorString() const { return m_demuxer.errorString(); }

    /// The time of the packet where the last seek landed, and whether that shows a key frame;
    /// nothing until it has landed.
    std::optional<double> landing() const { return m_landing; }
    bool landedOnKeyFrame() const { return m_landedOnKeyFrame; }

    /// No frame at or after a time in seconds has been skipped.
    bool isCompleteFrom(double seconds) const { return m_skippedUpTo < seconds; }

    /// Frames behind last() were skipped.
    bool skippedSinceLast() const { return m_last && *m_last < m_skippedUpTo; }

private:
    /// The frame before an interlaced one is wanted, too: more than one lasts, and less than two.
    static constexpr qint64 NeighbourMs = 60;

    /// How far one attempt of a search came, and whether no earlier frame can be missing that there
    /// is or that the frame needs.
    struct Way
    {
        FrameResult result;
        bool isCertain = true;
    };

    /// What came out of the decoder, and what was known of the frame when it did.
    struct Decoded
    {
        FrameResult result;
        std::optional<double> predecessor = {}; ///< time of the frame directly before it
        bool isInSequence = false;              ///< one came out before it, without an interruption
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
    int m_decoderThreads = 0;       ///< those of m_decoder
    std::optional<qint64> m_target; ///< of a seek that has not landed yet, in milliseconds
    qint64 m_origin = 0;            ///< what was sought last, in milliseconds
    bool m_resumes = false;         ///< m_target is to get back to where reading was interrupted
    Packet m_first;                 ///< read by land(), not decoded yet
    std::deque<Packet> m_ahead;     ///< read after that by readAhead()
    Deinterlacing m_wantedDeinterlacing = Deinterlacing::Automatic;
    Deinterlacing m_deinterlacing = Deinterlacing::Automatic; ///< since seek()
    std::shared_ptr<Deinterlacer> m_deinterlacer;             ///< of the open file
    bool m_isInterlaced = false;    ///< neighbours may be wanted in the open file
    std::deque<Decoded> m_decoded;  ///< not given yet
    std::optional<double> m_newest; ///< the time of the frame that was decoded last
    qint64 m_completeFrom = 0;
    double m_skippedUpTo = -1.0; ///< frames up to this time may be missing
    bool m_skips = false;
    bool m_keyFrameAtOnce = true;
    bool m_decoderHurries = true; ///< m_decoder gives key frames at once
    bool m_startedAtZero = true;
    bool m_isLost = false;
    int m_invalidPackets = 0;
    std::optional<double> m_landing;
    bool m_landedOnKeyFrame = false;
    std::optional<double> m_last;
    VideoFrame m_lastFrame;
    std::optional<double> m_predecessor;
    bool m_isInSequence = false; ///< a frame came out before m_last, without an interruption
    bool m_isAtFirst = false;
    bool m_isAtLanding = false;
};

} // namespace QtAV
