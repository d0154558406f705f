// The zoom of the video.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/VideoZoom.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

namespace {

constexpr int scaleMessageMs = 1500;

} // namespace

/// The button over the video receives its mouse events.
void MainWindow::setupZoom()
{
    m_videoZoom = new VideoZoom(*m_ui->openVideoLabel, *m_player, *m_videoOutput, this);
    connect(m_videoZoom, &VideoZoom::scaled, this, [this](int percent) {
        statusBar()->showMessage(tr("%1 %").arg(percent), scaleMessageMs);
    });
    connect(m_ui->actionFitVideo, &QAction::triggered, this, &MainWindow::fitVideo);
    connect(m_ui->actionActualSize, &QAction::triggered, this, &MainWindow::toggleActualSize);
    connect(m_ui->actionFourfold, &QAction::triggered, this, &MainWindow::showFourfold);
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
    m_videoZoom->showFourfold();
}

void MainWindow::toggleActualSize()
{
    m_videoZoom->toggleActualSize();
}
