#pragma once

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FileInput.h"
#include "qtav/src/PictureLimit.h"
#include "qtav/src/Timeline.h"

#include <QtAV/MediaFacts.h>

#include <QRect>
#include <QString>
#include <QVector>

#include <chrono>
#include <memory>
#include <optional>

namespace QtAV {

/// Result of reading a packet.
enum class PacketAnswer {
    Packet,
    End,
    Failed,    ///< the packet could not be read; the next may be, while canGoOn() is true
    Cancelled, ///< interrupted; unless canGoOn(), the position in the file is now undefined
};

/// One open video file: its streams, its packets as they are stored, and FFmpeg's inexact seeks.
///
/// Opens only local regular files. Playlists, manifests and scripts are refused because they would
/// make FFmpeg open other files.
///
/// Not thread-safe, but tied to no thread: one thread at a time may use it.
class Container
{
public:
    /// This many failures in a row count as the end of a file whose bytes can be read.
    static constexpr int maximumFailures = 64;

    /// Opens a file. Null, with a text for people in `error`, if it cannot be opened. Pictures
    /// beyond the limit are not decoded when FFmpeg determines the parameters of the streams.
    [[nodiscard]] static std::unique_ptr<Container>
    open(const QString& path, const IsCancelled& isCancelled, QString& error,
         const PictureLimit& limit = PictureLimit());
    ~Container();
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    /// Sets the callback that is polled while reading and seeking. Must not be empty. A packet
    /// being read is abandoned only after some time, because reading cannot resume where it was.
    void setInterrupt(IsCancelled isCancelled);

    /// Stream numbers of the video and audio streams; cover pictures are neither.
    const QVector<int>& videoStreams() const { return m_videoStreams; }
    const QVector<int>& audioStreams() const { return m_audioStreams; }

    const AVStream& stream(int index) const { return *m_format->streams[index]; }
    Timeline timeline(int stream) const;

    /// What the file and one of its streams state about themselves; for -1, the file alone.
    MediaFacts facts(int stream) const;

    /// Frames per second; 0/1 if the file does not state it.
    AVRational frameRate(int stream) const;

    bool isAvi() const;
    /// The part of a stream's pictures that the file declares visible; nothing for all of them.
    [[nodiscard]] std::optional<QRect> cleanAperture(int stream);
    /// True for a bare sequence of pictures without a container that would hold times.
    bool isRawStream() const;
    /// True for a transmission format: seeks land on any packet instead of a key frame.
    bool isTransmission() const { return m_format->iformat->flags & AVFMT_TS_DISCONT; }
    /// True if FFmpeg knows all packets of a stream from the file's header or index.
    bool indexesAllPackets() const;

    /// Decoding times of a stream's key frames in ticks, in rising order, as listed in the file's
    /// index. The index may omit key frames and list packets that are none. Empty if no index
    /// covers the whole file. May change the position in the file.
    QVector<qint64> indexedKeyFrames(int stream);

    /// Whether FFmpeg guesses the times that packets do not have; it does initially.
    enum class MissingTimes { Guess, Leave };
    void setMissingTimes(MissingTimes missing);

    /// Reads the next packet of any stream.
    [[nodiscard]] PacketAnswer read(PacketPtr& packet);

    /// False if reading failed for good or was interrupted within a packet, until the next seek.
    bool canGoOn() const { return !m_isLost; }

    /// True if the last operation was interrupted.
    bool wasInterrupted() const { return m_wasInterrupted; }

    /// A text for people about the last failure; empty if there was none.
    const QString& errorText() const { return m_errorText; }

    /// Seeks to some packet near a time in the stream's ticks, before it if the container supports
    /// that. Returns false if that fails or is interrupted.
    [[nodiscard]] bool seekNear(int stream, qint64 ticks);

    /// Seeks to the packet this many packets before the last one in FFmpeg's index of a stream.
    /// Returns the number of bytes from there to the end of the file; nothing if it is not
    /// possible.
    [[nodiscard]] std::optional<qint64> seekToTail(int stream, int packets);

    /// Seeks to a byte position. Returns false if the container does not support it.
    [[nodiscard]] bool seekToByte(qint64 position);

    /// Opens the file again, for containers that cannot return to their start. Returns false, with
    /// the state unchanged, if it can no longer be opened or holds other streams than before.
    [[nodiscard]] bool reopen();

    /// True, and recorded as a failure, once another program has truncated the file.
    [[nodiscard]] bool isOverwritten();

    /// Number of bytes behind those that were read; 0 if unknown.
    qint64 remainingBytes();

    /// The stated length in milliseconds; 0 if the file states none or FFmpeg guessed it from a bit
    /// rate.
    qint64 statedDuration() const;

    /// True if FFmpeg itself determined the length from the last packets.
    bool durationIsMeasured() const;

private:
    /// Properties that must not change while a file is open.
    struct StreamFacts
    {
        AVMediaType type;
        AVCodecID codec;
        AVRational timeBase;

        bool operator==(const StreamFacts& other) const;
    };

    /// FFmpeg's view of the file.
    struct View
    {
        std::unique_ptr<FileStream> stream;
        FormatContextPtr format;
    };

    /// Whether the current FFmpeg call may be interrupted at once.
    enum class Patience { None, Some };

    explicit Container(QString path);
    [[nodiscard]] std::optional<View> makeView(QString& error);
    static QVector<StreamFacts> factsOf(const AVFormatContext& format);
    void findStreams();
    void findStart();
    QVector<Chapter> chapters() const;
    void begin(Patience patience);
    bool isInterrupted();
    bool isInterruptedBetweenPackets();
    static int interrupt(void* container);
    void forgetFailures();
    [[nodiscard]] PacketAnswer failed(int result);

    QString m_path;
    PictureLimit m_limit;
    IsCancelled m_isCancelled;
    Patience m_patience = Patience::None;
    std::chrono::steady_clock::time_point m_began;
    std::chrono::steady_clock::time_point m_asked; ///< between two packets, the last time
    bool m_wasInterrupted = false;

    std::unique_ptr<FileInput> m_input;
    View m_view;
    AVFormatContext* m_format = nullptr; ///< that of m_view
    QVector<StreamFacts> m_facts;
    QVector<int> m_videoStreams;
    QVector<int> m_audioStreams;
    qint64 m_startTicks = 0;
    AVRational m_startTimeBase{1, AV_TIME_BASE};

    MissingTimes m_missingTimes = MissingTimes::Guess;
    int m_failures = 0;
    bool m_isLost = false;
    QString m_errorText;
};

} // namespace QtAV
