#include <QtAV/AVDemuxer.h>

#include <QtAV/Times.h>

#include "qtav/src/Container.h"
#include "qtav/src/DurationProbe.h"
#include "qtav/src/FFmpegLog.h"
#include "qtav/src/KeyFrameSearch.h"
#include "qtav/src/PacketHandle.h"
#include "qtav/src/PictureLimit.h"
#include "qtav/src/VideoPackets.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <deque>
#include <new>
#include <optional>

namespace QtAV {

namespace {

/// More frames than any decoder holds back: at most 16 for reordering, and one per thread.
constexpr int mostHeldFrames = 64;

/// Later positions are behind the end of any video. Small enough to avoid overflow.
constexpr qint64 lastPositionMs = Timeline::longestMs;

/// An index that ends further before the end of the video does not cover all of it.
constexpr qint64 longestGroupMs = 20000;

QList<int> listOf(const QVector<int>& streams)
{
    return QList<int>(streams.cbegin(), streams.cend());
}

} // namespace

class AVDemuxer::Private
{
public:
    void unload();
    bool load();
    void findDuration();
    bool seek(qint64 ms);
    bool ensurePosition();
    void forgetPackets();
    bool selectVideo(int stream);
    PacketAnswer readPacket(PacketPtr& fresh);
    void takePacket(PacketPtr source);
    void beginDraining();
    bool drain();
    bool isCancelled() const { return interrupt && interrupt(); }

    QString fileName;
    QString error;
    IsCancelled interrupt;
    PictureLimit pictureLimit;
    std::unique_ptr<Container> container;
    std::unique_ptr<VideoPackets> video; ///< null without a selected video stream
    std::unique_ptr<VideoCodecContext> codecContext;
    int audioStream = -1;
    qint64 duration = 0;
    DurationSource durationSource = DurationSource::Unknown;
    qint64 usualStepBackMs = 0;

    bool positioned = false;
    bool lost = false;          ///< reading failed for good or was interrupted: only a seek helps
    bool interrupted = false;   ///< the last seek or packet
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
    video.reset();
    container.reset();
    audioStream = -1;
    duration = 0;
    durationSource = DurationSource::Unknown;
    usualStepBackMs = 0;
    positioned = false;
}

bool AVDemuxer::Private::load()
{
    const auto asksInterrupt = [this] { return isCancelled(); };
    container = Container::open(fileName, asksInterrupt, error, pictureLimit);
    if (!container) {
        return false;
    }
    if (!container->videoStreams().isEmpty()) {
        static_cast<void>(selectVideo(container->videoStreams().constFirst()));
    }
    findDuration();
    if (!isCancelled()) {
        return true;
    }
    unload();
    error = QCoreApplication::translate("QtAV::AVDemuxer", "Opening was cancelled.");
    return false;
}

void AVDemuxer::Private::findDuration()
{
    const DurationProbe::Length length = DurationProbe(*container, video.get()).run();
    duration = std::min(length.ms, Timeline::longestMs);
    if (duration > 0) {
        durationSource = length.isMeasured ? DurationSource::Scan : DurationSource::Header;
    }
    positioned = false;
}

bool AVDemuxer::Private::seek(qint64 ms)
{
    forgetPackets();
    positioned = true;
    if (container->isOverwritten()) {
        error = container->errorText();
        lost = true;
        return false;
    }
    KeyFrameSearch search(*video, duration, container->isTransmission() ? usualStepBackMs : 0);
    const PacketAnswer answer = search.run(ms);
    interrupted = answer == PacketAnswer::Cancelled;
    if (answer != PacketAnswer::Packet) {
        error = container->errorText();
        lost = answer != PacketAnswer::End;
        fileEnded = answer == PacketAnswer::End;
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
    lost = false;
    interrupted = false;
    drainsLeft = 0;
    videoPackets = 0;
    packet = Packet();
    stream = -1;
}

bool AVDemuxer::Private::selectVideo(int streamNumber)
{
    codecContext.reset();
    video.reset();
    if (streamNumber < 0) {
        return true;
    }
    video = std::make_unique<VideoPackets>(*container, streamNumber);
    video->setAudioStream(audioStream);
    codecContext = std::make_unique<VideoCodecContext>(video->parameters());
    const bool isReady = video->index();
    if (!isReady) {
        error = container->errorText();
    }
    return isReady;
}

/// Measuring the length changes the position in the file; reading must still begin at its start.
bool AVDemuxer::Private::ensurePosition()
{
    if (positioned) {
        return true;
    }
    positioned = true;
    if (video) {
        return seek(0);
    }
    fileEnded = !container->seekNear(-1, 0) && !container->reopen();
    return !fileEnded;
}

PacketAnswer AVDemuxer::Private::readPacket(PacketPtr& fresh)
{
    if (video) {
        return video->read(fresh);
    }
    for (;;) {
        const PacketAnswer answer = container->read(fresh);
        if (answer != PacketAnswer::Packet || fresh->stream_index == audioStream) {
            return answer;
        }
    }
}

void AVDemuxer::Private::takePacket(PacketPtr source)
{
    stream = source->stream_index;
    const bool isVideo = video && stream == video->stream();
    packet = PacketHandle::wrap(std::move(source),
                                isVideo ? video->timeline() : container->timeline(stream));
    if (!isVideo) {
        return;
    }
    ++videoPackets;
    lastVideoPts = packet.pts;
    // The file continues behind its supposed end.
    const qint64 ms = toMilliseconds(packet.pts);
    if (ms > duration && !packet.isHidden) {
        duration = std::min(ms + toMilliseconds(packet.duration), Timeline::longestMs);
        durationSource = DurationSource::Scan;
    }
}

void AVDemuxer::Private::beginDraining()
{
    fileEnded = true;
    drainsLeft = std::min(videoPackets, mostHeldFrames);
}

bool AVDemuxer::Private::drain()
{
    if (drainsLeft == 0) {
        return false;
    }
    --drainsLeft;
    packet = PacketHandle::drain(lastVideoPts);
    stream = video->stream();
    return true;
}

AVDemuxer::AVDemuxer(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}

AVDemuxer::~AVDemuxer() = default;

void AVDemuxer::setMedia(const QString& fileName)
{
    if (d->fileName == fileName) {
        return;
    }
    unload();
    d->fileName = fileName;
}

void AVDemuxer::setInterrupt(IsCancelled isCancelled)
{
    d->interrupt = std::move(isCancelled);
}

void AVDemuxer::setPictureMemory(qint64 bytes)
{
    d->pictureLimit = PictureLimit(bytes);
}

bool AVDemuxer::load()
{
    unload();
    d->error.clear();
    return d->load();
}

void AVDemuxer::unload()
{
    d->unload();
}

bool AVDemuxer::isLoaded() const
{
    return d->container != nullptr;
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
    return !d->container || (d->fileEnded && d->kept.empty() && d->drainsLeft == 0);
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
    return d->container ? listOf(d->container->videoStreams()) : QList<int>();
}

QList<int> AVDemuxer::audioStreams() const
{
    return d->container ? listOf(d->container->audioStreams()) : QList<int>();
}

int AVDemuxer::videoStream() const
{
    return d->video ? d->video->stream() : -1;
}

int AVDemuxer::audioStream() const
{
    return d->audioStream;
}

bool AVDemuxer::setStreamIndex(StreamType type, int index)
{
    const QList<int> streams = type == VideoStream ? videoStreams() : audioStreams();
    if (!d->container || index < -1 || index >= streams.size()) {
        return false;
    }
    const int stream = index < 0 ? -1 : streams.at(index);
    if (type == VideoStream) {
        return stream == videoStream() || d->selectVideo(stream);
    }
    d->audioStream = stream;
    if (d->video) {
        d->video->setAudioStream(stream);
    }
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

MediaFacts AVDemuxer::facts() const
{
    return d->container ? d->container->facts(videoStream()) : MediaFacts();
}

QVector<qint64> AVDemuxer::indexedKeyFrames()
{
    if (!d->video) {
        return {};
    }
    // The index holds decoding times. Reordered pictures are shown later, by as many frames as the
    // decoder holds back.
    const StreamParameters& parameters = *d->video->parameters();
    const double delayMs = parameters.codec->video_delay * frameDurationMs();
    QVector<qint64> keys = d->container->indexedKeyFrames(d->video->stream());
    for (qint64& key : keys) {
        key = parameters.timeline.milliseconds(key) + std::llround(delayMs);
    }
    std::sort(keys.begin(), keys.end());
    d->forgetPackets();
    d->positioned = false;
    const bool isWhole = !keys.isEmpty() && d->duration - keys.constLast() <= longestGroupMs;
    return isWhole ? keys : QVector<qint64>();
}

double AVDemuxer::frameDurationMs() const
{
    if (!d->video) {
        return 0.0;
    }
    const AVRational rate = d->video->parameters()->frameRate;
    return rate.num > 0 && rate.den > 0 ? 1000.0 * rate.den / rate.num : 0.0;
}

bool AVDemuxer::seek(qint64 ms)
{
    return videoStream() >= 0 && d->seek(qBound<qint64>(0, ms, lastPositionMs));
}

bool AVDemuxer::readFrame()
{
    if (!d->container || !d->ensurePosition() || !canGoOn()) {
        return false;
    }
    PacketPtr fresh;
    if (!d->kept.empty()) {
        fresh = std::move(d->kept.front());
        d->kept.pop_front();
    } else if (!d->fileEnded) {
        const PacketAnswer answer = d->readPacket(fresh);
        d->interrupted = answer == PacketAnswer::Cancelled;
        if (answer != PacketAnswer::Packet) {
            d->error = d->container->errorText();
        }
        d->lost = !d->container->canGoOn();
        if (answer == PacketAnswer::End) {
            d->beginDraining();
        } else if (answer != PacketAnswer::Packet) {
            return false;
        }
    }
    if (!fresh) {
        return d->drain();
    }
    try {
        d->takePacket(std::move(fresh));
    } catch (const std::bad_alloc&) {
        // The packet is missing, so only a seek helps.
        d->error = ffmpegErrorText(AVERROR(ENOMEM));
        d->lost = true;
        return false;
    }
    if (d->fileEnded && d->kept.empty()) {
        d->beginDraining();
    }
    return true;
}

bool AVDemuxer::canGoOn() const
{
    return d->container && !d->lost;
}

bool AVDemuxer::wasInterrupted() const
{
    return d->interrupted;
}

Packet AVDemuxer::packet() const
{
    return d->packet;
}

} // namespace QtAV
