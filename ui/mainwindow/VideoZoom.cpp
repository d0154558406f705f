#include "ui/mainwindow/VideoZoom.h"

#include "ui/widgets/ZoomGestures.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QWidget>

#include <cmath>

namespace {

constexpr double fourfold = 4.0;

} // namespace

VideoZoom::VideoZoom(QWidget& area, QtAV::AVPlayer& player, QtAV::VideoOutput& output,
                     QObject* parent)
    : QObject(parent)
    , m_player(player)
    , m_output(&output)
    , m_gestures(new ZoomGestures(area))
{
    connect(m_gestures, &ZoomGestures::changed, this, &VideoZoom::placeVideo);
    connect(m_gestures, &ZoomGestures::pressed, this, &VideoZoom::notePress);
    connect(m_gestures, &ZoomGestures::doubleClicked, this, &VideoZoom::undoClick);
}

void VideoZoom::placeVideo()
{
    if (m_output == nullptr) {
        return;
    }
    const PictureZoom& zoom = m_gestures->zoom();
    m_output->setPlace(zoom.isFitted() ? QRect() : zoom.place());
    if (!zoom.isFitted()) {
        Q_EMIT scaled(static_cast<int>(std::lround(zoom.scale() * 100.0)));
    }
}

void VideoZoom::notePress()
{
    m_playedWhenPressed = m_player.isPlaying();
    m_pressedAtMs = m_player.displayPosition();
}

void VideoZoom::undoClick()
{
    if (m_playedWhenPressed) {
        m_player.play();
        return;
    }
    m_player.pause();
    m_player.setPosition(m_pressedAtMs);
}

void VideoZoom::followFrame()
{
    m_gestures->setPicture(m_player.displayedFrame().displaySize());
}

void VideoZoom::fit()
{
    m_gestures->fit();
}

void VideoZoom::showActualSize()
{
    followFrame();
    m_gestures->showActualSize();
}

void VideoZoom::showFourfold()
{
    followFrame();
    m_gestures->setScale(fourfold);
}

void VideoZoom::toggleActualSize()
{
    followFrame();
    m_gestures->toggleActualSize();
}
