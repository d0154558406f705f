// How large the video is shown.

#include "ui/mainwindow/MainWindow.h"

#include "ui/widgets/ZoomGestures.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <cmath>

namespace {

constexpr double fourfold = 4.0;
constexpr int scaleMessageMs = 1500;

} // namespace

/// The button over the video gets the mouse in its place.
void MainWindow::setupZoom()
{
    m_videoZoom = new ZoomGestures(*m_ui->openVideoLabel);
    connect(m_videoZoom, &ZoomGestures::changed, this, &MainWindow::followZoom);
    connect(m_videoZoom, &ZoomGestures::pressed, this, [this] {
        m_playedWhenPressed = m_player->isPlaying();
        m_pressedAtMs = m_player->displayPosition();
    });
    // Its first click has played, or paused.
    connect(m_videoZoom, &ZoomGestures::doubleClicked, this, [this] {
        if (m_playedWhenPressed) {
            m_player->play();
        } else {
            m_player->pause();
            m_player->setPosition(m_pressedAtMs);
        }
    });
}

void MainWindow::followZoom()
{
    if (m_videoOutput == nullptr) {
        return;
    }
    const PictureZoom& zoom = m_videoZoom->zoom();
    m_videoOutput->setPlace(zoom.isFitted() ? QRect() : zoom.place());
    if (!zoom.isFitted()) {
        const int percent = static_cast<int>(std::lround(zoom.scale() * 100.0));
        statusBar()->showMessage(tr("%1 %").arg(percent), scaleMessageMs);
    }
}

/// A video may change its size on the way.
void MainWindow::noteVideoSize()
{
    m_videoZoom->setPicture(m_player->displayedFrame().displaySize());
}

void MainWindow::fitVideo()
{
    m_videoZoom->fit();
}

void MainWindow::showActualSize()
{
    m_videoZoom->showActualSize();
}

void MainWindow::showFourfold()
{
    m_videoZoom->setScale(fourfold);
}

void MainWindow::toggleActualSize()
{
    m_videoZoom->toggleActualSize();
}
