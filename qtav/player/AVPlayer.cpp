#include <QtAV/AVPlayer.h>

#include "qtav/player/PlaybackClock.h"
#include "qtav/player/PlaybackEngine.h"
#include "qtav/player/SoundPlayer.h"
#include "qtav/player/Times.h"

#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <optional>

namespace QtAV {

namespace {

/// A picture that is later than this by the monotonic clock is shown all the same, and the clock
/// set back to it: nothing was heard that it would have to follow.
constexpr double MostLatenessSeconds = 0.5;

/// The last frame is shown no longer than this, however late the file is said to end.
constexpr double LongestLastFrameSeconds = 1.0;

} // namespace

class AVPlayer::Private
{
public:
    explicit Private(AVPlayer* player);

    void setState(State newState);
    void setStatus(MediaStatus newStatus);
    void setDuration(qint64 ms);
    void show(const VideoFrame& frame);

    void openFile();
    void heed(const PlaybackEngine::Answer& answer);
    void opened(const PlaybackEngine::Answer& answer);
    void sought(const PlaybackEngine::Answer& answer);
    void fail(const QString& reason);
    void close(MediaStatus statusAfterwards);
    qint64 clamped(qint64 ms) const;
    void seek(qint64 ms);
    void step(PlaybackEngine::Direction direction);

    void resumeTime();
    void haltTime();
    double now();
    bool plays() const { return state == PlayingState && isLoaded && !soughtMs; }
    double endTime(bool hasSound) const;
    void schedule(double secondsFromNow);
    void finish();

    AVPlayer* const q;
    QString file;
    QString error;
    State state = StoppedState;
    MediaStatus status = NoMedia;
    MediaEndAction endAction = MediaEndAction_Stop;
    qint64 cacheBytes = FrameCache::DefaultBytes;
    bool isLoaded = false;
    bool hasSound = false;
    bool hasStarted = false; ///< started() has been sent since opening
    qint64 duration = 0;
    int interval = 0;
    VideoFrame frame;
    QPointer<VideoRenderer> renderer;
    Statistics statistics;

    std::optional<qint64> soughtMs; ///< the target of the seek that runs
    quint64 seekSerial = 0;         ///< of the newest seek; older seeks and steps come too late
    quint64 openSerial = 0;         ///< of opening or closing; all that is older comes too late

    PlaybackClock clock;
    QTimer timer;
    VideoCapture* const capture;
    AudioOutput* const audio;
    SoundPlayer sound;
    PlaybackEngine engine; ///< last: its thread calls for the others
};

AVPlayer::Private::Private(AVPlayer* player)
    : q(player)
    , capture(new VideoCapture(player))
    , audio(new AudioOutput(player))
    , engine([player] { QMetaObject::invokeMethod(player, "heedEngine", Qt::QueuedConnection); })
{
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, q, &AVPlayer::presentDue);
    const auto setVolume = [this] { sound.setVolume(audio->isMute() ? 0.0 : audio->volume()); };
    QObject::connect(audio, &AudioOutput::volumeChanged, q, setVolume);
    QObject::connect(audio, &AudioOutput::muteChanged, q, setVolume);
}

AVPlayer::AVPlayer(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    qRegisterMetaType<QtAV::AVPlayer::State>("QtAV::AVPlayer::State");
    qRegisterMetaType<QtAV::MediaStatus>("QtAV::MediaStatus");
}

AVPlayer::~AVPlayer() = default;

QString AVPlayer::file() const
{
    return d->file;
}

bool AVPlayer::isLoaded() const
{
    return d->isLoaded;
}

AVPlayer::State AVPlayer::state() const
{
    return d->state;
}

MediaStatus AVPlayer::mediaStatus() const
{
    return d->status;
}

QString AVPlayer::errorString() const
{
    return d->error;
}

qint64 AVPlayer::duration() const
{
    return d->duration;
}

qint64 AVPlayer::position() const
{
    return d->soughtMs.value_or(displayPosition());
}

qint64 AVPlayer::displayPosition() const
{
    return toMilliseconds(d->frame.timestamp());
}

int AVPlayer::notifyInterval() const
{
    return d->interval;
}

void AVPlayer::setMediaEndAction(MediaEndAction action)
{
    d->endAction = action;
}

MediaEndAction AVPlayer::mediaEndAction() const
{
    return d->endAction;
}

void AVPlayer::setFrameCacheSize(qint64 bytes)
{
    d->cacheBytes = std::max<qint64>(0, bytes);
}

qint64 AVPlayer::frameCacheSize() const
{
    return d->cacheBytes;
}

void AVPlayer::setRenderer(VideoRenderer* renderer)
{
    if (d->renderer == renderer)
        return;
    if (d->renderer)
        d->renderer->present(VideoFrame());
    d->renderer = renderer;
    if (d->renderer)
        d->renderer->present(d->frame);
}

VideoRenderer* AVPlayer::renderer() const
{
    return d->renderer;
}

VideoFrame AVPlayer::displayedFrame() const
{
    return d->frame;
}

VideoCapture* AVPlayer::videoCapture() const
{
    return d->capture;
}

AudioOutput* AVPlayer::audio() const
{
    return d->audio;
}

const Statistics& AVPlayer::statistics() const
{
    return d->statistics;
}

void AVPlayer::Private::setState(State newState)
{
    if (newState == state)
        return;
    state = newState;
    Q_EMIT q->stateChanged(newState);
}

void AVPlayer::Private::setStatus(MediaStatus newStatus)
{
    if (newStatus == status)
        return;
    status = newStatus;
    Q_EMIT q->mediaStatusChanged(newStatus);
}

void AVPlayer::Private::setDuration(qint64 ms)
{
    if (ms == duration)
        return;
    duration = ms;
    Q_EMIT q->durationChanged(ms);
}

void AVPlayer::Private::show(const VideoFrame& newFrame)
{
    const qint64 before = q->displayPosition();
    frame = newFrame;
    capture->setFrame(frame);
    const QSize size = frame.isValid() ? frame.displaySize() : QSize(0, 0);
    statistics.video_only = {size.width(), size.height()};
    if (renderer)
        renderer->present(frame);
    if (q->displayPosition() != before)
        Q_EMIT q->positionChanged(q->displayPosition());
}

void AVPlayer::setFile(const QString& path)
{
    if (path == d->file)
        return;
    stop();
    d->file = path;
    d->error.clear();
    d->setStatus(NoMedia);
}

void AVPlayer::play(const QString& path)
{
    stop();
    setFile(path);
    play();
}

void AVPlayer::play()
{
    if (d->state == PlayingState || d->file.isEmpty())
        return;
    if (d->state == StoppedState) {
        d->openFile();
        return;
    }
    if (d->status == EndOfMedia)
        d->seek(0);
    d->engine.setPlaying(true);
    d->setState(PlayingState);
    Q_EMIT paused(false);
    d->resumeTime();
}

void AVPlayer::pause(bool pause)
{
    if (!pause && d->state == PausedState)
        play();
    if (!pause || d->state != PlayingState)
        return;
    d->haltTime();
    d->engine.setPlaying(false);
    d->setState(PausedState);
    Q_EMIT paused(true);
}

void AVPlayer::stop()
{
    if (d->state != StoppedState)
        d->close(NoMedia);
}

void AVPlayer::Private::close(MediaStatus statusAfterwards)
{
    haltTime();
    sound.close();
    openSerial = engine.close();
    isLoaded = false;
    hasSound = false;
    soughtMs.reset();
    show(VideoFrame());
    setDuration(0);
    setState(StoppedState);
    setStatus(statusAfterwards);
    Q_EMIT q->stopped();
}

void AVPlayer::setPosition(qint64 ms)
{
    if (d->state != StoppedState)
        d->seek(ms);
}

void AVPlayer::stepForward()
{
    d->step(PlaybackEngine::Direction::Forward);
}

void AVPlayer::stepBackward()
{
    d->step(PlaybackEngine::Direction::Backward);
}

void AVPlayer::Private::openFile()
{
    error.clear();
    hasStarted = false;
    statistics = Statistics();
    openSerial = engine.open(file, cacheBytes);
    engine.setPlaying(true);
    setState(PlayingState);
    setStatus(LoadingMedia);
}

/// The length is known only once the file is open.
qint64 AVPlayer::Private::clamped(qint64 ms) const
{
    return std::max<qint64>(0, duration > 0 ? std::min(ms, duration) : ms);
}

void AVPlayer::Private::seek(qint64 ms)
{
    haltTime();
    soughtMs = clamped(ms);
    seekSerial = engine.seek(*soughtMs);
    if (isLoaded)
        setStatus(LoadedMedia);
}

void AVPlayer::Private::step(PlaybackEngine::Direction direction)
{
    if (state == StoppedState)
        return;
    q->pause();
    engine.step(direction);
}

void AVPlayer::heedEngine()
{
    for (const PlaybackEngine::Answer& answer : d->engine.takeAnswers()) {
        if (answer.serial >= d->openSerial)
            d->heed(answer);
    }
    presentDue();
}

void AVPlayer::Private::heed(const PlaybackEngine::Answer& answer)
{
    using Kind = PlaybackEngine::Answer::Kind;
    switch (answer.kind) {
    case Kind::Opened:
        opened(answer);
        break;
    case Kind::OpenFailed:
        fail(answer.error);
        break;
    case Kind::Sought:
        if (answer.serial == seekSerial)
            sought(answer);
        break;
    case Kind::SeekFailed:
        if (answer.serial == seekSerial)
            fail(AVPlayer::tr("The file cannot be read any more."));
        break;
    case Kind::Stepped:
        if (answer.serial < seekSerial || !answer.frame.isValid())
            break;
        setStatus(LoadedMedia);
        show(answer.frame);
        break;
    }
}

void AVPlayer::Private::opened(const PlaybackEngine::Answer& answer)
{
    isLoaded = true;
    hasSound = answer.hasSound;
    if (hasSound)
        sound.open(file);
    if (interval != answer.frameInterval) {
        interval = answer.frameInterval;
        Q_EMIT q->notifyIntervalChanged();
    }
    setDuration(answer.duration);
    if (soughtMs)
        soughtMs = clamped(*soughtMs);
    show(answer.frame);
    setStatus(LoadedMedia);
    resumeTime();
}

void AVPlayer::Private::sought(const PlaybackEngine::Answer& answer)
{
    soughtMs.reset();
    show(answer.frame);
    resumeTime();
    Q_EMIT q->seekFinished(q->displayPosition());
}

void AVPlayer::Private::fail(const QString& reason)
{
    error = reason;
    close(InvalidMedia);
}

/// Lets the time run on from the frame on screen, if playing and nothing else is awaited.
void AVPlayer::Private::resumeTime()
{
    if (!plays())
        return;
    clock.set(frame.timestamp());
    clock.start();
    if (hasSound)
        sound.play(frame.timestamp());
    schedule(0.0);
    if (!hasStarted) {
        hasStarted = true;
        Q_EMIT q->started();
    }
}

void AVPlayer::Private::haltTime()
{
    timer.stop();
    clock.stop();
    if (hasSound)
        sound.pause();
}

double AVPlayer::Private::now()
{
    if (const std::optional<double> heard = sound.position())
        clock.set(*heard);
    return clock.now();
}

void AVPlayer::Private::schedule(double secondsFromNow)
{
    timer.start(static_cast<int>(std::ceil(std::clamp(secondsFromNow, 0.0, 1.0) * 1000.0)));
}

void AVPlayer::presentDue()
{
    if (!d->plays())
        return;
    const bool soundLeads = d->sound.position().has_value();
    const double now = d->now();
    const PlaybackEngine::Due due = d->engine.takeDue(
        now, soundLeads ? PlaybackEngine::CatchUp::Yes : PlaybackEngine::CatchUp::No);
    d->statistics.droppedFrames += due.dropped;
    if (due.frame.isValid()) {
        if (!soundLeads && now - due.frame.timestamp() > MostLatenessSeconds)
            d->clock.set(due.frame.timestamp());
        d->show(due.frame);
        // Who heeded positionChanged() may have stopped, paused or sought.
        if (!d->plays())
            return;
    }
    if (due.next)
        d->schedule(*due.next - d->now());
    else if (due.isEnded && d->now() >= d->endTime(soundLeads))
        d->finish();
    else if (due.isEnded)
        d->schedule(d->endTime(soundLeads) - d->now());
}

/// When playback is over: with the last frame's time on screen, or with the sound.
double AVPlayer::Private::endTime(bool soundLeads) const
{
    const double end = double(duration) / 1000.0;
    const double last = frame.timestamp();
    return soundLeads ? std::max(end, last) : std::clamp(end, last, last + LongestLastFrameSeconds);
}

void AVPlayer::Private::finish()
{
    haltTime();
    setStatus(EndOfMedia);
    if (endAction == MediaEndAction_Stop)
        q->stop();
    else
        q->pause();
}

} // namespace QtAV
