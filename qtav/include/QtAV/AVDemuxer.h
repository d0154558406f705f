#pragma once

#include <QtAV/FrameResult.h>
#include <QtAV/MediaFacts.h>
#include <QtAV/Packet.h>
#include <QtAV/VideoCodecContext.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

namespace QtAV {

/// Reads the packets of one video file and seeks in it exactly.
///
/// Set a file with setMedia(), open it with load(), then alternate seek() and readFrame(). Only
/// local regular files are opened: no addresses, devices or pipes.
///
/// All times are on one timeline that starts at 0 where the file starts. A packet's whole
/// milliseconds, `qint64(pts * 1000.0)`, are exact: they never come out one too small through
/// floating-point rounding.
///
/// A read error is not the end of the file: readFrame() then returns false while atEnd() is still
/// false, and reading may continue behind the damage unless canGoOn() is false. If the bytes of a
/// file can be read but yield nothing except errors, reading ends after a bounded number of them,
/// with errorString() set.
///
/// Not thread-safe, but tied to no thread: one thread at a time may use it.
class AVDemuxer : public QObject
{
    Q_OBJECT

public:
    enum StreamType { AudioStream, VideoStream };

    /// Where duration() comes from.
    enum class DurationSource {
        Unknown, ///< nothing is loaded, or the file has no measurable length
        Header,  ///< the file states it
        Scan,    ///< measured from the last packets
    };

    explicit AVDemuxer(QObject* parent = nullptr);
    ~AVDemuxer() override;

    /// Names the file for the next load(). Unloads the current file if the name differs.
    void setMedia(const QString& fileName);

    /// Sets a callback that is polled while the file is opened, read and sought in, and while the
    /// disk does not answer. Once it returns true, load(), seek() and readFrame() return false as
    /// soon as they can. Empty, the initial value, disables it.
    void setInterrupt(IsCancelled isCancelled);

    /// Sets the memory limit for one picture, in bytes. It applies from the next load() on, where
    /// opening has to decode pictures to find the parameters of the streams.
    void setPictureMemory(qint64 bytes);

    /// Opens the file and selects its first video stream and no audio stream. Returns false, with
    /// errorString() set, if the file cannot be opened. A file without video can be opened.
    [[nodiscard]] bool load();

    /// Closes the file; the file name stays.
    void unload();

    bool isLoaded() const;
    QString fileName() const;

    /// Why the last load(), seek() or readFrame() failed; empty when none did since load().
    QString errorString() const;

    /// True when the last packet, drain packets included, has been read, and when nothing is
    /// loaded.
    bool atEnd() const;

    /// Length in milliseconds; 0 when nothing is loaded or no length could be measured. It grows
    /// when packets turn up behind it.
    qint64 duration() const;
    DurationSource durationSource() const;

    /// Start of the timeline in milliseconds: always 0, because the container's own start is
    /// subtracted from all times.
    qint64 startTime() const;

    /// The container's stream numbers of its video streams, without cover pictures. Empty when
    /// nothing is loaded.
    QList<int> videoStreams() const;
    QList<int> audioStreams() const;

    /// The container's number of the selected video stream; -1 without one.
    int videoStream() const;
    /// The container's number of the selected audio stream; -1 without one.
    int audioStream() const;

    /// Selects a stream by its index in videoStreams() or audioStreams(); -1 selects none. Only
    /// packets of selected streams are read. Returns false if the index does not exist, or if the
    /// stream could not be read through; see errorString().
    [[nodiscard]] bool setStreamIndex(StreamType type, int index);

    /// The stream that the last packet belongs to; -1 before the first.
    int stream() const;

    /// Parameters of the selected video stream; null without one. Owned by the demuxer and valid
    /// until the file is unloaded or another stream is selected.
    const VideoCodecContext* videoCodecContext() const;

    /// What the file states about itself, as far as it has been read. Empty when nothing is loaded.
    MediaFacts facts() const;

    /// Times of the video stream's key frames in milliseconds, in rising order, as listed in the
    /// file's index; the file itself is not read. Use this for planning only: an index may omit key
    /// frames, list packets that are none, and be some frames off. Empty if no index covers the
    /// whole file. Reading can only continue after a seek().
    QVector<qint64> indexedKeyFrames();

    /// Usual duration of a frame in milliseconds; 0 if the file does not state it.
    double frameDurationMs() const;

    /// Seeks so that the next packet of the video stream is the last key frame whose whole
    /// milliseconds lie at or before the position `ms`. That is the stream's first key frame for
    /// positions before all of them, and its last one for positions at or past the end. Returns
    /// false if the file does not support seeking, holds no packet, can no longer be read or was
    /// overwritten.
    [[nodiscard]] bool seek(qint64 ms);

    /// Reads the next packet of the selected streams. Returns false at the end and when reading
    /// failed; atEnd() tells these apart.
    [[nodiscard]] bool readFrame();

    /// False after reading failed for good or was interrupted within a packet. Only seek() and
    /// load() help then.
    bool canGoOn() const;

    /// True if the last seek() or readFrame() was interrupted.
    bool wasInterrupted() const;

    /// The packet that readFrame() read last.
    Packet packet() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace QtAV
