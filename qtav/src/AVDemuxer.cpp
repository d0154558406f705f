#include <QtAV/AVDemuxer.h>

#include "qtav/src/KeyFrameSearch.h"
#include "qtav/src/MediaFile.h"
#include "qtav/src/PacketHandle.h"

#include <algorithm>
#include <deque>
#include <optional>

namespace QtAV {

namespace {

/// More frames than any decoder holds back: re-ordering keeps at most 16, and as many threads.
constexpr int MostHeldFrames = 64;

/// Positions behind this are the end of any video, and small enough to be calculated with.
constexpr qint64 LastPositionMs = qint64(1) << 40;

QList<int> listOf(const QVector<int>& streams)
{
    return QList<int>(streams.cbegin(), streams.cend());
}

} // namespace

class AVDemuxer::Private
{
public:
    void unload();
    void findDuration();
    bool seek(qint64 ms);
    void ensurePosition();
    void forgetPackets();
    void selectVideo(int stream);
    void takePacket(PacketPtr source);
    void beginDraining();
    bool drain();

    QString fileName;
    QString error;
    std::unique_ptr<MediaFile> file;
    std::unique_ptr<VideoCodecContext> codecContext;
    qint64 duration = 0;
    DurationSource durationSource = DurationSource::Unknown;
    qint64 usualStepBackMs = 0;

    bool positioned = false;
    std::deque<PacketPtr> kept; ///< read by the last seek
    bool fileEnded = false;
    int drainsLeft = 0;
    int videoPackets = 0; ///< since the last seek
    double lastVideoPts = 0.0;

    Packet packet;
    int stream = -1;
};

void AVDemuxer::Private::unload()
{
    forgetPackets();
    codecContext.reset();
    file.reset();
    duration = 0;
    durationSource = DurationSource::Unknown;
    usualStepBackMs = 0;
}

void AVDemuxer::Private::findDuration()
{
    const std::optional<qint64> stated = file->confirmedDuration();
    duration = stated ? *stated : file->measuredDuration();
    const bool isFromHeader = stated && !file->durationIsMeasured();
    if (duration > 0)
        durationSource = isFromHeader ? DurationSource::Header : DurationSource::Scan;
    positioned = false;
}

bool AVDemuxer::Private::seek(qint64 ms)
{
    forgetPackets();
    positioned = true;
    KeyFrameSearch search(*file, duration, file->jumpsAnywhere() ? usualStepBackMs : 0);
    if (!search.run(ms)) {
        error = file->errorText();
        return false;
    }
    usualStepBackMs = search.stepBackMs();
    kept = std::move(search.packets());
    fileEnded = search.reachedEnd();
    return true;
}

void AVDemuxer::Private::forgetPackets()
{
    kept.clear();
    fileEnded = false;
    drainsLeft = 0;
    videoPackets = 0;
    packet = Packet();
    stream = -1;
}

void AVDemuxer::Private::selectVideo(int streamNumber)
{
    codecContext.reset();
    if (!file->selectVideo(streamNumber))
        error = file->errorText();
    if (file->videoParameters())
        codecContext = std::make_unique<VideoCodecContext>(file->videoParameters());
}

/// Measuring the length has moved the file: reading begins at its start all the same.
void AVDemuxer::Private::ensurePosition()
{
    if (positioned)
        return;
    positioned = true;
    if (file->videoStream() >= 0 ? !seek(0) : !file->rewind())
        fileEnded = true;
}

void AVDemuxer::Private::takePacket(PacketPtr source)
{
    stream = source->stream_index;
    const bool isVideo = stream == file->videoStream();
    packet = PacketHandle::wrap(std::move(source), isVideo ? file->videoParameters()->timeline
                                                           : file->timeline(stream));
    if (isVideo) {
        ++videoPackets;
        lastVideoPts = packet.pts;
    }
}

void AVDemuxer::Private::beginDraining()
{
    fileEnded = true;
    drainsLeft = std::min(videoPackets, MostHeldFrames);
}

bool AVDemuxer::Private::drain()
{
    if (drainsLeft == 0)
        return false;
    --drainsLeft;
    packet = PacketHandle::drain(lastVideoPts);
    stream = file->videoStream();
    return true;
}

AVDemuxer::AVDemuxer(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}

AVDemuxer::~AVDemuxer() = default;

void AVDemuxer::setMedia(const QString& fileName)
{
    if (d->fileName == fileName)
        return;
    unload();
    d->fileName = fileName;
}

bool AVDemuxer::load()
{
    unload();
    d->error.clear();
    d->file = MediaFile::open(d->fileName, d->error);
    if (!d->file)
        return false;
    if (!d->file->videoStreams().isEmpty())
        d->selectVideo(d->file->videoStreams().constFirst());
    d->findDuration();
    return true;
}

void AVDemuxer::unload()
{
    d->unload();
}

bool AVDemuxer::isLoaded() const
{
    return d->file != nullptr;
}

QString AVDemuxer::fileName() const
{
    return d->fileName;
}

QString AVDemuxer::errorString() const
{
    return d->error;
}

bool AVDemuxer::atEnd() const
{
    return !d->file || (d->fileEnded && d->kept.empty() && d->drainsLeft == 0);
}

qint64 AVDemuxer::duration() const
{
    return d->duration;
}

AVDemuxer::DurationSource AVDemuxer::durationSource() const
{
    return d->durationSource;
}

qint64 AVDemuxer::startTime() const
{
    return 0;
}

QList<int> AVDemuxer::videoStreams() const
{
    return d->file ? listOf(d->file->videoStreams()) : QList<int>();
}

QList<int> AVDemuxer::audioStreams() const
{
    return d->file ? listOf(d->file->audioStreams()) : QList<int>();
}

int AVDemuxer::videoStream() const
{
    return d->file ? d->file->videoStream() : -1;
}

int AVDemuxer::audioStream() const
{
    return d->file ? d->file->audioStream() : -1;
}

bool AVDemuxer::setStreamIndex(StreamType type, int index)
{
    const QList<int> streams = type == VideoStream ? videoStreams() : audioStreams();
    if (!d->file || index < -1 || index >= streams.size())
        return false;
    const int stream = index < 0 ? -1 : streams.at(index);
    if (type == AudioStream)
        d->file->selectAudio(stream);
    else if (stream != videoStream())
        d->selectVideo(stream);
    return true;
}

int AVDemuxer::stream() const
{
    return d->stream;
}

const VideoCodecContext* AVDemuxer::videoCodecContext() const
{
    return d->codecContext.get();
}

bool AVDemuxer::seek(qint64 ms)
{
    return videoStream() >= 0 && d->seek(qBound<qint64>(0, ms, LastPositionMs));
}

bool AVDemuxer::readFrame()
{
    if (!d->file)
        return false;
    d->ensurePosition();
    PacketPtr fresh;
    if (!d->kept.empty()) {
        fresh = std::move(d->kept.front());
        d->kept.pop_front();
    } else if (!d->fileEnded) {
        const MediaFile::Read result = d->file->read(fresh);
        if (result == MediaFile::Read::Failure) {
            d->error = d->file->errorText();
            return false;
        }
        if (result == MediaFile::Read::End) {
            d->error = d->file->errorText();
            d->beginDraining();
        }
    }
    if (!fresh)
        return d->drain();
    d->takePacket(std::move(fresh));
    if (d->fileEnded && d->kept.empty())
        d->beginDraining();
    return true;
}

Packet AVDemuxer::packet() const
{
    return d->packet;
}

} // namespace QtAV
