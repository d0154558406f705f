#pragma once

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/PresentationOrder.h"
#include "qtav/src/StreamParameters.h"
#include "qtav/src/Timeline.h"

#include <QString>
#include <QVector>

#include <deque>
#include <memory>
#include <optional>

namespace QtAV {

/// One open video file: reads its packets in file order and makes FFmpeg's rough jumps.
///
/// Every video packet that comes out bears a time: packets of raw streams are numbered, those of
/// AVI files put in order of presentation, packed B-frames taken apart, gaps bridged. What the
/// jumps of containers lack in exactness is made up for by KeyFrameSearch.
class MediaFile
{
public:
    enum class Read {
        Packet,
        End,
        /// The packet could not be read; the next may. After MostFailures of them in a row the
        /// file counts as ended.
        Failure,
    };

    static constexpr int MostFailures = 64;

    /// Opens a local regular file; null, with a text for people in `error`, when it can't.
    static std::unique_ptr<MediaFile> open(const QString& path, QString& error);

    ~MediaFile();

    const QVector<int>& videoStreams() const { return m_videoStreams; }
    const QVector<int>& audioStreams() const { return m_audioStreams; }
    int videoStream() const { return m_video; }
    int audioStream() const { return m_audio; }

    /// Which streams read() gives; -1 for none. False when a raw stream could not be read through.
    bool selectVideo(int stream);
    void selectAudio(int stream) { m_audio = stream; }

    /// The selected video stream's facts; null without one.
    const std::shared_ptr<const StreamParameters>& videoParameters() const { return m_parameters; }

    /// The selected audio stream's parameters, which last as long as this file; null without one.
    const AVCodecParameters* audioParameters() const;

    Timeline timeline(int stream) const;

    /// Reads the next packet of the selected streams.
    Read read(PacketPtr& packet);

    /// FFmpeg's text for the last failure of read(); empty when there was none.
    const QString& errorText() const { return m_errorText; }

    /// Jumps to some packet near a position, before it if the container can. False when refused.
    bool jumpNear(qint64 ms);

    /// The same by the selected audio stream, for a file of which no video stream is selected.
    bool jumpNearInAudio(qint64 ms);

    /// Jumps to the first packet of the file. False when the file cannot be read any more.
    bool rewind();

    /// Opens the file anew, for containers that do not find back to their start.
    bool reopen();

    /// True for containers whose jumps land on any packet instead of a key frame.
    bool jumpsAnywhere() const { return m_format->iformat->flags & AVFMT_TS_DISCONT; }

    /// The length that the container states, in milliseconds, where the file reaches that far and
    /// no further; nothing where it states none or guesses it from a bit rate. Moves the position.
    std::optional<qint64> confirmedDuration();

    /// The end of the last packet in milliseconds, read from the end of the file; 0 for a file
    /// without packets. Moves the position.
    qint64 measuredDuration();

    /// True where FFmpeg read the stated length from the last packets itself.
    bool durationIsMeasured() const;

private:
    /// A key frame of a raw stream.
    struct RawKeyFrame
    {
        qint64 position;
        qint64 decodingTicks;
        qint64 presentationTicks;
    };

    MediaFile() = default;
    bool openInput(QString& error);
    void findStreams();
    void findStart();
    void prepareVideoPipeline();
    bool indexRawStream();
    bool jumpInRawStream(qint64 ms);
    void forgetPosition();
    qint64 statedDuration() const;
    bool reaches(qint64 ms);
    bool showsPicturesAfter(qint64 ms);
    std::optional<qint64> firstTimeAt(qint64 ms);
    qint64 readToEnd();

    Read readFromContainer(PacketPtr& packet);
    void acceptVideo(PacketPtr packet);
    void orderVideo(PacketPtr packet);
    void takeOrdered();
    void setMissingTime(AVPacket& packet);
    qint64 frameTicks(const AVPacket& packet) const;

    QString m_path;
    FormatContextPtr m_format;
    QVector<int> m_videoStreams;
    QVector<int> m_audioStreams;
    int m_video = -1;
    int m_audio = -1;
    qint64 m_startTicks = 0;
    AVRational m_startTimeBase{1, AV_TIME_BASE};

    std::shared_ptr<const StreamParameters> m_parameters;
    BitstreamFilterPtr m_unpackBFrames;
    std::unique_ptr<PresentationOrder> m_order;
    bool m_rawStream = false;
    QVector<RawKeyFrame> m_rawKeyFrames;
    qint64 m_rawLength = 0; ///< in ticks

    std::deque<PacketPtr> m_ready; ///< read, but not yet handed out
    qint64 m_nextTicks = 0;        ///< where the next video packet without any time belongs
    bool m_ended = false;
    int m_failures = 0;
    QString m_errorText;
};

} // namespace QtAV
