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

/// What asking for a packet gave.
enum class PacketAnswer {
    Packet,
    End,
    Failed,    ///< the packet could not be read; the next may, while canGoOn() is true
    Cancelled, ///< the interrupt asked for it; where the file stands is known no more
};

/// One open video file: its streams, its packets as they stand in the file, and FFmpeg's rough
/// seeks.
///
/// Only local regular files are opened, and no playlists, manifests or scripts, which would lead
/// FFmpeg to other files.
///
/// Not thread-safe, but tied to no thread: one thread at a time may use it.
class Container
{
public:
    /// So many failures in a row count as the end of a file whose bytes can be read.
    static constexpr int maximumFailures = 64;

    /// Null, with a text for people in `error`, for what cannot be opened. Pictures beyond the
    /// limit are not decoded where FFmpeg wants to know what a stream is like.
    [[nodiscard]] static std::unique_ptr<Container>
    open(const QString& path, const IsCancelled& isCancelled, QString& error,
         const PictureLimit& limit = PictureLimit());
    ~Container();
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    /// Asked while reading and seeking, until it is set anew. Must not be empty. A packet that is
    /// being read is given up only after some time, for reading cannot go on where it was.
    void setInterrupt(IsCancelled isCancelled);

    /// The numbers of the streams with pictures and with sound; a cover picture is neither.
    const QVector<int>& videoStreams() const { return m_videoStreams; }
    const QVector<int>& audioStreams() const { return m_audioStreams; }

    const AVStream& stream(int index) const { return *m_format->streams[index]; }
    Timeline timeline(int stream) const;

    /// What the file and one of its streams say of themselves; of the file alone for -1.
    MediaFacts facts(int stream) const;

    /// Frames in a second; 0/1 where the file does not say.
    AVRational frameRate(int stream) const;

    bool isAvi() const;
    /// The part of a stream's pictures that the file wants shown; nothing for all of them.
    [[nodiscard]] std::optional<QRect> cleanAperture(int stream);
    /// A bare sequence of pictures, without a container that would tell times.
    bool isRawStream() const;
    /// A stream for transmission: seeks land on any packet instead of a key frame.
    bool isTransmission() const { return m_format->iformat->flags & AVFMT_TS_DISCONT; }
    /// FFmpeg knows all packets of a stream from the file's head or index.
    bool indexesAllPackets() const;

    /// The decoding times of a stream's key frames in ticks, in rising order, as the file's index
    /// says: it may leave some out, and call a packet one that is none. Empty where there is no
    /// index, or not of the whole file. May move the file to another packet.
    QVector<qint64> indexedKeyFrames(int stream);

    /// Whether FFmpeg makes up times that packets do not bear, as it does at first.
    enum class MissingTimes { Guess, Leave };
    void setMissingTimes(MissingTimes missing);

    /// Reads the next packet, of whatever stream.
    [[nodiscard]] PacketAnswer read(PacketPtr& packet);

    /// False when reading fails for good: until the next seek.
    bool canGoOn() const { return !m_isLost; }

    /// What was done last ended because the interrupt asked for it.
    bool wasInterrupted() const { return m_wasInterrupted; }

    /// A text for people for the last failure; empty when there was none.
    const QString& errorText() const { return m_errorText; }

    /// Goes to some packet near a time in the stream's ticks, before it if the container can. False
    /// when that is refused or interrupted.
    [[nodiscard]] bool seekNear(int stream, qint64 ticks);

    /// Goes to the packet that stands so many before the last one in FFmpeg's index of a stream.
    /// How many bytes there are from there to the end of the file; nothing where that is not
    /// possible.
    [[nodiscard]] std::optional<qint64> seekToTail(int stream, int packets);

    /// Goes to a byte. False when the container does not go by bytes.
    [[nodiscard]] bool seekToByte(qint64 position);

    /// Opens the file anew, for containers that do not find back to their start. False, with all as
    /// before, when it cannot be opened any more or holds other streams than it did.
    [[nodiscard]] bool reopen();

    /// True, and a failure, once another program has cut the file short.
    [[nodiscard]] bool isOverwritten();

    /// How many bytes follow those that were read; 0 where that is unknown.
    qint64 remainingBytes();

    /// The length that the file states, in milliseconds; 0 where it states none, or FFmpeg guessed
    /// it from a bit rate.
    qint64 statedDuration() const;

    /// FFmpeg took the stated length from the last packets itself.
    bool durationIsMeasured() const;

private:
    /// What must not change while a file is open.
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

    /// What FFmpeg does now, and whether it may be interrupted at once.
    enum class Patience { None, Some };

    explicit Container(QString path);
    [[nodiscard]] std::optional<View> makeView(QString& error);
    static QVector<StreamFacts> factsOf(const AVFormatContext& format);
    void findStreams();
    void findStart();
    QVector<Chapter> chapters() const;
    void begin(Patience patience);
    bool isInterrupted();
    static int interrupt(void* container);
    void forgetFailures();
    [[nodiscard]] PacketAnswer failed(int result);

    QString m_path;
    PictureLimit m_limit;
    IsCancelled m_isCancelled;
    Patience m_patience = Patience::None;
    std::chrono::steady_clock::time_point m_began;
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
