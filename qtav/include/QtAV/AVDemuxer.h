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
/// A read error is not the end: readFrame() then returns false while atEnd() is still false, and
/// reading may go on behind the damage, unless canGoOn() is false. A file whose contents give
/// nothing but errors, though its bytes can be read, ends after a bounded number of them, with
/// errorString() set.
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

    /// Names the file for the next load(); what is loaded is unloaded when the name differs.
    void setMedia(const QString& fileName);

    /// Asked while the file is opened, read and sought in, and while the disk does not answer. Once
    /// it says true, load(), seek() and readFrame() return false as soon as they can. Empty, as at
    /// first, for none.
    void setInterrupt(IsCancelled isCancelled);

    /// What one picture may take in memory, in bytes, where opening has to decode some to find out
    /// what the streams are like; from the next load() on.
    void setPictureMemory(qint64 bytes);

    /// Opens the file and selects its first video stream and no audio stream. False, with
    /// errorString() set, for what cannot be opened; a file without video opens.
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

    /// Length in milliseconds; 0 when nothing is loaded or nothing could be measured. It grows when
    /// packets turn up behind it.
    qint64 duration() const;
    DurationSource durationSource() const;

    /// Where the timeline starts, in milliseconds: always 0, since the container's own start is
    /// taken off all times.
    qint64 startTime() const;

    /// The container's numbers of its video streams; cover pictures are none. Empty when nothing
    /// is loaded.
    QList<int> videoStreams() const;
    QList<int> audioStreams() const;

    /// The container's number of the selected video stream; -1 without one.
    int videoStream() const;
    /// The container's number of the selected audio stream; -1 without one.
    int audioStream() const;

    /// Selects by place in videoStreams() or audioStreams(); -1 selects none. Only packets of
    /// selected streams are read. False for a place that does not exist, and where the stream could
    /// not be read through, see errorString().
    [[nodiscard]] bool setStreamIndex(StreamType type, int index);

    /// The stream that the last packet belongs to; -1 before the first.
    int stream() const;

    /// Facts of the selected video stream, owned by the demuxer until it is unloaded or another
    /// stream is selected; null without one.
    const VideoCodecContext* videoCodecContext() const;

    /// What the file says of itself, as far as it was read so far; nothing when none is loaded.
    MediaFacts facts() const;

    /// Where the key frames of the video stream lie, in milliseconds in rising order, as far as the
    /// file's index tells without reading the file: good for planning, since the index may leave
    /// some out, call others so that are none, and be some frames off. Empty where there is no
    /// index of the whole file. Afterwards only seek() goes on.
    QVector<qint64> indexedKeyFrames();

    /// How long a frame is usually shown, in milliseconds; 0 where the file does not say.
    double frameDurationMs() const;

    /// Goes to a position in milliseconds, so that the next packet of the video stream is the
    /// last key frame whose whole milliseconds lie at or before it: the stream's first key frame
    /// when none does, its last one for positions at and past the end. False when the file
    /// allows no seeking at all or holds no packet, cannot be read any more or was overwritten.
    [[nodiscard]] bool seek(qint64 ms);

    /// Reads the next packet of the selected streams. False at the end and when reading failed;
    /// atEnd() tells them apart.
    [[nodiscard]] bool readFrame();

    /// False after reading failed for good, or was interrupted: only seek() helps, and load().
    bool canGoOn() const;

    /// The packet that readFrame() read last.
    Packet packet() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace QtAV
