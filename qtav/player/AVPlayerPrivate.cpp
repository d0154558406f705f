#include "qtav/player/AVPlayerPrivate.h"

#include <algorithm>
#include <cmath>

namespace QtAV {

namespace {

/// A picture later than this by the monotonic clock is still shown, and the clock is set back to
/// it: there is no sound that it would have to follow.
constexpr double mostLatenessSeconds = 0.5;

/// Maximum duration of the last frame, however late the stated end of the file is.
constexpr double longestLastFrameSeconds = 1.0;

} // namespace

AVPlayer::Private::Private(AVPlayer* player)
    : q(player)
    , capture(new VideoCapture(player))
    , audio(new AudioOutput(player))
    , engine([player] { QMetaObject::invokeMethod(player, "handleEngine", Qt::QueuedConnection); })
{
    capture->setTaker([this] { engine.capture(frame); });
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, q, &AVPlayer::presentDue);
    const auto setVolume = [this] { sound.setVolume(audio->isMute() ? 0.0 : audio->volume()); };
    QObject::connect(audio, &AudioOutput::volumeChanged, q, setVolume);
    QObject::connect(audio, &AudioOutput::muteChanged, q, setVolume);
}

void AVPlayer::Private::setState(State newState)
{
    if (newState == state) {
        return;
    }
    state = newState;
    Q_EMIT q->stateChanged(newState);
}

void AVPlayer::Private::setStatus(MediaStatus newStatus)
{
    if (newStatus == status) {
        return;
    }
    status = newStatus;
    Q_EMIT q->mediaStatusChanged(newStatus);
}

void AVPlayer::Private::setDuration(qint64 ms)
{
    if (ms == duration) {
        return;
    }
    duration = ms;
    Q_EMIT q->durationChanged(ms);
}

void AVPlayer::Private::show(const VideoFrame& newFrame)
{
    const qint64 before = q->displayPosition();
    frame = newFrame;
    const QSize size = frame.isValid() ? frame.displaySize() : QSize(0, 0);
    statistics.video_only = {size.width(), size.height()};
    if (renderer) {
        renderer->present(frame);
    }
    if (q->displayPosition() != before) {
        Q_EMIT q->positionChanged(q->displayPosition());
    }
}

void AVPlayer::Private::close(MediaStatus statusAfterwards)
{
    haltTime();
    sound.close();
    openSerial = engine.close();
    isLoaded = false;
    hasSound = false;
    facts = MediaFacts();
    isFieldStepUnderWay = false;
    soughtMs.reset();
    const quint64 serial = openSerial;
    show(VideoFrame());
    setDuration(0);
    // A connected slot may have opened another file, or may do so now.
    if (openSerial != serial) {
        return;
    }
    setState(StoppedState);
    if (openSerial == serial) {
        setStatus(statusAfterwards);
    }
    Q_EMIT q->stopped();
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
    startsOverAtEnd = false;
    isFieldStepUnderWay = false;
    soughtMs = clamped(ms);
    seekSerial = engine.seek(*soughtMs);
    if (isLoaded) {
        setStatus(LoadedMedia);
    }
}

void AVPlayer::Private::step(PlaybackEngine::Direction direction)
{
    if (state == StoppedState) {
        return;
    }
    q->pause();
    engine.step(direction);
    isFieldStepUnderWay = false;
}

void AVPlayer::Private::stepField(PlaybackEngine::Direction direction)
{
    if (state == StoppedState || isFieldStepUnderWay) {
        return;
    }
    q->pause();
    if (showOtherField(direction)) {
        return;
    }
    wantsSecondField = direction == PlaybackEngine::Direction::Backward;
    fieldStepSerial = engine.step(direction);
    isFieldStepUnderWay = true;
}

/// Switches to the other moment of the frame on screen if it lies in this direction.
bool AVPlayer::Private::showOtherField(PlaybackEngine::Direction direction)
{
    const bool goesBack = direction == PlaybackEngine::Direction::Backward;
    if (goesBack != frame.isSecondField()) {
        return false;
    }
    const VideoFrame other = goesBack ? frame.firstField() : frame.secondField();
    if (other.isValid()) {
        show(other);
    }
    return other.isValid();
}

void AVPlayer::Private::handle(const PlaybackEngine::Answer& answer)
{
    using Kind = PlaybackEngine::Answer::Kind;
    const bool isFrame = answer.result.answer == FrameAnswer::Frame;
    // Captures are answered even if the file has been closed since.
    if (answer.serial < openSerial && answer.kind != Kind::Captured) {
        return;
    }
    switch (answer.kind) {
    case Kind::Opened:
        isFrame ? opened(answer) : fail(answer.result.error);
        break;
    case Kind::Sought:
        if (answer.serial != seekSerial) {
            break;
        }
        isFrame ? sought(answer) : fail(AVPlayer::tr("The file cannot be read any more."));
        break;
    case Kind::Stepped:
        isFieldStepUnderWay = isFieldStepUnderWay && answer.serial < fieldStepSerial;
        if (answer.serial < seekSerial) {
            break;
        }
        if (isFrame) {
            stepped(answer);
        } else if (answer.result.answer == FrameAnswer::Failed) {
            halt(answer.result.error);
        }
        break;
    case Kind::Refined:
        if (answer.result.frame.timestamp() == frame.timestamp()) {
            show(answer.result.frame);
        }
        break;
    case Kind::Captured:
        capture->deliver(answer.image, answer.result.frame);
        break;
    }
}

void AVPlayer::Private::opened(const PlaybackEngine::Answer& answer)
{
    isLoaded = true;
    hasSound = answer.hasSound;
    facts = answer.facts;
    if (hasSound) {
        sound.open(file);
    }
    if (interval != answer.frameInterval) {
        interval = answer.frameInterval;
        Q_EMIT q->notifyIntervalChanged();
    }
    setDuration(answer.duration);
    if (soughtMs) {
        soughtMs = clamped(*soughtMs);
    }
    show(answer.result.frame);
    // A connected slot may have closed the file.
    if (openSerial != answer.serial) {
        return;
    }
    setStatus(LoadedMedia);
    resumeTime();
}

void AVPlayer::Private::sought(const PlaybackEngine::Answer& answer)
{
    soughtMs.reset();
    setDuration(answer.duration);
    show(answer.result.frame);
    resumeTime();
    // A connected slot may have sought again, or closed the file.
    if (!soughtMs && isLoaded) {
        Q_EMIT q->seekFinished(q->displayPosition());
    }
}

void AVPlayer::Private::stepped(const PlaybackEngine::Answer& answer)
{
    setDuration(answer.duration);
    setStatus(LoadedMedia);
    // A connected slot may have closed the file, or sought.
    if (!isLoaded || answer.serial < seekSerial || openSerial > answer.serial) {
        return;
    }
    const VideoFrame& given = answer.result.frame;
    const bool goesToSecond = wantsSecondField && answer.serial == fieldStepSerial;
    const VideoFrame second = goesToSecond ? given.secondField() : VideoFrame();
    show(second.isValid() ? second : given);
}

void AVPlayer::Private::fail(const QString& reason)
{
    error = reason;
    close(InvalidMedia);
}

/// Lets time continue from the frame on screen if playing and no other answer is pending.
void AVPlayer::Private::resumeTime()
{
    if (!plays()) {
        return;
    }
    clock.set(frame.timestamp());
    clock.start();
    if (playsSound()) {
        sound.play(frame.timestamp(), speed);
    }
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
    if (hasSound) {
        sound.pause();
    }
}

double AVPlayer::Private::now()
{
    if (const std::optional<double> heard = sound.position()) {
        clock.set(*heard);
    }
    return clock.now();
}

bool AVPlayer::Private::playsSound() const
{
    return hasSound && speed >= slowestSound && speed <= fastestSound;
}

/// @param playedSeconds  how much of the video is played until then
void AVPlayer::Private::schedule(double playedSeconds)
{
    const double seconds = std::clamp(playedSeconds / speed, 0.0, 1.0);
    timer.start(static_cast<int>(std::ceil(seconds * 1000.0)));
}

void AVPlayer::Private::presentDue()
{
    if (!plays()) {
        return;
    }
    const bool soundLeads = sound.position().has_value();
    const double time = now();
    const PlaybackEngine::Due due = engine.takeDue(time, soundLeads ? PlaybackEngine::CatchUp::Yes
                                                                    : PlaybackEngine::CatchUp::No);
    statistics.droppedFrames += due.dropped;
    setDuration(due.duration);
    if (due.frame.isValid()) {
        startsOverAtEnd = false;
        if (!soundLeads && time - due.frame.timestamp() > mostLatenessSeconds * speed) {
            clock.set(due.frame.timestamp());
        }
        show(due.frame);
    }
    // A connected slot may have stopped, paused or sought.
    if (!plays()) {
        return;
    }
    if (due.next) {
        schedule(*due.next - now());
    } else if (due.failure) {
        halt(*due.failure);
    } else if (due.isEnded && startsOverAtEnd) {
        seek(0);
    } else if (due.isEnded && now() >= endTime(soundLeads)) {
        finish();
    } else if (due.isEnded) {
        schedule(endTime(soundLeads) - now());
    }
}

/// When playback ends: at the end of the last frame, or of the sound.
double AVPlayer::Private::endTime(bool soundLeads) const
{
    const double end = double(duration) / 1000.0;
    const double last = frame.timestamp();
    return soundLeads ? std::max(end, last) : std::clamp(end, last, last + longestLastFrameSeconds);
}

/// Stops here, but the picture on screen stays, and other places may be readable.
void AVPlayer::Private::halt(const QString& reason)
{
    error = reason;
    q->pause();
    Q_EMIT q->failed(reason);
}

void AVPlayer::Private::finish()
{
    haltTime();
    setStatus(EndOfMedia);
    if (endAction == MediaEndAction_Stop) {
        q->stop();
    } else {
        q->pause();
    }
}

} // namespace QtAV
