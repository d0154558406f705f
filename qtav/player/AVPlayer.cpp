#include <QtAV/AVPlayer.h>

#include <QtAV/Times.h>

#include "qtav/player/AVPlayerPrivate.h"

#include <algorithm>
#include <cmath>

namespace QtAV {

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

MediaFacts AVPlayer::facts() const
{
    return d->facts;
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

qreal AVPlayer::speed() const
{
    return d->speed;
}

void AVPlayer::setSpeed(qreal speed)
{
    const qreal wanted = std::clamp(speed, slowest, fastest);
    if (!(std::abs(wanted - d->speed) > 0.0)) {
        return;
    }
    // Time continues from the frame on screen, for the sound as well.
    d->haltTime();
    d->speed = wanted;
    d->clock.setSpeed(wanted);
    d->resumeTime();
    Q_EMIT speedChanged(wanted);
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

void AVPlayer::setPictureMemory(qint64 bytes)
{
    d->engine.setPictureMemory(bytes);
}

qint64 AVPlayer::frameCacheSize() const
{
    return d->cacheBytes;
}

void AVPlayer::setRenderer(VideoRenderer* renderer)
{
    if (d->renderer == renderer) {
        return;
    }
    if (d->renderer) {
        disconnect(d->renderer, &VideoRenderer::screenSizeChanged, this, nullptr);
        d->renderer->present(VideoFrame());
    }
    d->renderer = renderer;
    if (!d->renderer) {
        return;
    }
    connect(renderer, &VideoRenderer::screenSizeChanged, this,
            [this, renderer] { d->engine.setScreen(renderer->screenSize()); });
    d->engine.setScreen(renderer->screenSize());
    d->renderer->present(d->frame);
}

void AVPlayer::setDeinterlacing(Deinterlacing deinterlacing)
{
    d->engine.setDeinterlacing(deinterlacing);
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

void AVPlayer::setFile(const QString& path)
{
    if (path == d->file) {
        return;
    }
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
    if (d->state == PlayingState || d->file.isEmpty()) {
        return;
    }
    if (d->state == StoppedState) {
        d->openFile();
        return;
    }
    const bool isAtEnd = d->status == EndOfMedia;
    if (isAtEnd) {
        d->seek(0);
    }
    d->startsOverAtEnd = !isAtEnd;
    d->engine.setPlaying(true);
    d->setState(PlayingState);
    Q_EMIT paused(false);
    d->resumeTime();
}

void AVPlayer::pause(bool pause)
{
    if (!pause && d->state == PausedState) {
        play();
    }
    if (!pause || d->state != PlayingState) {
        return;
    }
    d->haltTime();
    d->engine.setPlaying(false);
    d->setState(PausedState);
    Q_EMIT paused(true);
}

void AVPlayer::stop()
{
    if (d->state != StoppedState) {
        d->close(NoMedia);
    }
}

void AVPlayer::setPosition(qint64 ms)
{
    if (d->state != StoppedState) {
        d->seek(ms);
    }
}

void AVPlayer::stepForward()
{
    d->step(PlaybackEngine::Direction::Forward);
}

void AVPlayer::stepBackward()
{
    d->step(PlaybackEngine::Direction::Backward);
}

void AVPlayer::stepFieldForward()
{
    d->stepField(PlaybackEngine::Direction::Forward);
}

void AVPlayer::stepFieldBackward()
{
    d->stepField(PlaybackEngine::Direction::Backward);
}

void AVPlayer::handleEngine()
{
    for (const PlaybackEngine::Answer& answer : d->engine.takeAnswers()) {
        d->handle(answer);
    }
    presentDue();
}

void AVPlayer::presentDue()
{
    d->presentDue();
}

} // namespace QtAV
