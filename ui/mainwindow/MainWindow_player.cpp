#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/FolderSteps.h"
#include "ui/mainwindow/FrameProposals.h"
#include "ui/mainwindow/RecentMenu.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/VideoZoom.h"
#include "ui/theme/Icons.h"
#include "ui/widgets/SmartFileDialog.h"
#include "ui/widgets/TimeText.h"
#include "ui/widgets/VolumePopup.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QDebug>

#include <algorithm>
#include <limits>

namespace {

/// Distance of the skip buttons.
constexpr qint64 skipMs = 1000;

/// Resolution of the slider: finer than a frame of most videos.
constexpr qint64 sliderUnitMs = 30;

int sliderSteps(qint64 ms, qint64 unit)
{
    return int(std::min<qint64>(ms / unit, std::numeric_limits<int>::max()));
}

} // namespace

bool MainWindow::isVideoLoaded() const
{
    return !m_currentVideoPath.isEmpty();
}

QString MainWindow::currentVideoFilePath() const
{
    return m_currentVideoPath;
}

QFileInfo MainWindow::currentVideoFileInfo() const
{
    return QFileInfo(m_player->file());
}

QString MainWindow::currentVideoFileName() const
{
    return currentVideoFileInfo().fileName();
}

QString MainWindow::currentVideoFileBaseName() const
{
    return currentVideoFileInfo().baseName();
}

QDir MainWindow::currentVideoFileDir() const
{
    return currentVideoFileInfo().dir();
}

void MainWindow::updateWindowTitle()
{
    setWindowTitle(isVideoLoaded()
                       ? tr("Morvantile - %1").arg(QFileInfo(m_currentVideoPath).fileName())
                       : tr("Morvantile"));
}

void MainWindow::setVideoControlsEnabled(bool on)
{
    m_ui->actionTake_Snapshot->setEnabled(on);
    m_ui->snapshotButton->setEnabled(on);
    m_bestFramesAction->setEnabled(on);
    m_ui->videoSlider->setEnabled(on);
    m_ui->videoControlsFrame->setEnabled(on);
    m_ui->timecodeField->setEnabled(on);
    const QList<QAction*> actions = m_ui->menuVideoControls->actions();
    for (QAction* const action : actions) {
        action->setEnabled(on);
    }
    setSteeringEnabled(on);
    if (!on) {
        durationChanged(0);
        positionChanged(0);
    }
}

void MainWindow::on_actionOpen_triggered()
{
    showSelectVideoDialog();
}

void MainWindow::openVideoLabelClicked()
{
    if (isVideoShown()) {
        playPause();
    } else {
        showSelectVideoDialog();
    }
}

/// True if a video is open and playable.
bool MainWindow::isVideoShown() const
{
    return isVideoLoaded() && m_player->mediaStatus() != QtAV::InvalidMedia;
}

void MainWindow::showSelectVideoDialog()
{
    pause();
    SmartFileDialog dialog(this, QStringLiteral("openDialog"));
    dialog.setFiltersToVideo();
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString file = dialog.selectedFiles().value(0);
    if (!file.isEmpty() && maySnapshotGo()) {
        openVideo(file);
    }
}

void MainWindow::openVideo(QString path)
{
    if (m_volumePopup == nullptr) {
        return;
    }
    closeVideo();
    const QFileInfo video(path);
    m_currentVideoPath = path;
    m_player->play(path);
    volumeChanged(m_volumePopup->volume());
    m_snapshotPane->setVideo(path);
    noteOpenFolder(video);
    m_recentMenu->note(path);
    m_folderSteps->setVideo(path);
    hideOpenButton();
    // Keys control the video, so no button needs the focus.
    m_ui->videoFrame->setFocus();
    setVideoControlsEnabled(true);
    updateWindowTitle();
    updatePlayButton();
    updateSliderUnit();
    tellSnapshotTimes();
    noticeMediaStatus();
}

void MainWindow::closeVideo()
{
    m_player->stop();
    m_player->setFile(QString());
    m_currentVideoPath.clear();
    m_snapshotPane->setVideo({});
    m_captures.forgetAll();
    m_folderSteps->setVideo({});
    m_proposals->reset();
    m_videoZoom->fit();
    m_savesCapture.clear();
    updateWindowTitle();
    setVideoControlsEnabled(false);
    setSnapshotControlsEnabled(false);
    resetSnapshot();
    tellSnapshotTimes();
    statusBar()->clearMessage();
    showOpenButton(tr("Click to open video"));
}

void MainWindow::showOpenButton(const QString& text)
{
    m_ui->openVideoLabel->invite(text);
    showRecentFiles();
    m_ui->openVideoLabel->setAccessibleName(QString());
    m_ui->openVideoLabel->setAccessibleDescription(QString());
    m_ui->openVideoLabel->setToolTip(tr("Open a video, or drop one here"));
    m_ui->openVideoLabel->setFocusPolicy(Qt::TabFocus);
    m_ui->openVideoLabel->raise();
}

/// The invisible button still receives the clicks on the video. It has no tool tip then, which
/// would cover the picture.
void MainWindow::hideOpenButton()
{
    m_ui->openVideoLabel->withdraw();
    m_videoOutput->widget()->raise();
    m_ui->openVideoLabel->setAccessibleName(tr("Video"));
    m_ui->openVideoLabel->setAccessibleDescription(tr("Plays and pauses"));
    m_ui->openVideoLabel->setToolTip(QString());
    m_ui->openVideoLabel->setFocusPolicy(Qt::NoFocus);
}

/// Otherwise an unplayable file would just leave a black screen.
void MainWindow::noticeMediaStatus()
{
    if (!isVideoLoaded() || m_player->mediaStatus() != QtAV::InvalidMedia) {
        return;
    }
    const auto fitting = [this](const QString& text) {
        const QPushButton& button = *m_ui->openVideoLabel;
        return button.fontMetrics().elidedText(text, Qt::ElideMiddle, button.width() * 3 / 4);
    };
    const QString name = QFileInfo(m_currentVideoPath).fileName();
    showOpenButton(
        tr("%1\ncannot be played as a video.\n\nClick to open another video").arg(fitting(name)));
    statusBar()->showMessage(m_player->errorString());
    // A snapshot taken before stays.
    setVideoControlsEnabled(false);
}

void MainWindow::noticeBaseLayer()
{
    const QString text = QtAV::textOf(m_player->facts().baseLayer);
    if (!text.isEmpty()) {
        statusBar()->showMessage(text, messageMs);
    }
}

/// The picture that stays on screen does not explain why the video stops.
void MainWindow::noticeFailedRead(const QString& reason)
{
    statusBar()->showMessage(tr("%1: %2").arg(currentVideoFileName(), reason), messageMs);
}

void MainWindow::pause()
{
    m_player->pause();
}

void MainWindow::playPause()
{
    if (m_player->isPlaying()) {
        m_player->pause(!m_player->isPaused());
    } else {
        m_player->play();
    }
}

void MainWindow::updatePlayButton()
{
    qDebug() << "updatePlayButton: " << m_player->state();
    if (m_playIcon.isNull()) {
        m_playIcon = theme::icon(QStringLiteral("Play"));
        m_pauseIcon = theme::icon(QStringLiteral("Pause"));
    }
    const bool isPlaying = isVideoLoaded() && m_player->state() == QtAV::AVPlayer::PlayingState;
    m_ui->playButton->setIcon(isPlaying ? m_pauseIcon : m_playIcon);
}

void MainWindow::updateSliderUnit()
{
    m_sliderUnit = sliderUnitMs;
    m_ui->videoSlider->setStepMs(m_sliderUnit);
    qDebug() << "updateSliderUnit: " << m_sliderUnit;
    updateSlider();
}

void MainWindow::updateSlider()
{
    if (m_ui->videoSlider->isSliderDown()) {
        return;
    }
    m_ui->videoSlider->setRange(0, sliderSteps(m_player->duration(), m_sliderUnit));
    m_ui->videoSlider->setValue(sliderSteps(m_player->position(), m_sliderUnit));
}

void MainWindow::updateSlider(qint64 position)
{
    Q_UNUSED(position)
    updateSlider();
}

void MainWindow::durationChanged(qint64 duration)
{
    m_ui->durationLabel->setText(timeText(duration));
    updateSlider();
}

void MainWindow::positionChanged(qint64 position)
{
    Q_UNUSED(position)
    m_ui->timecodeField->setTime(timeText(m_player->displayPosition()));
    m_videoZoom->followFrame();
    updateSlider();
}

void MainWindow::seekBySlider(int value)
{
    m_player->seek(value * m_sliderUnit);
}

void MainWindow::seekBySlider()
{
    seekBySlider(m_ui->videoSlider->value());
}

void MainWindow::skipBackward()
{
    seekRelative(-skipMs);
}

void MainWindow::skipForward()
{
    seekRelative(skipMs);
}

void MainWindow::seekRelative(qint64 ms)
{
    m_player->pause();
    m_player->setPosition(m_player->position() + ms);
}

void MainWindow::stepBackward()
{
    step(Backward);
}

void MainWindow::stepForward()
{
    step(Forward);
}

void MainWindow::step(SeekDirection direction)
{
    if (direction == Forward) {
        m_player->stepForward();
    } else {
        m_player->stepBackward();
    }
}

void MainWindow::setupVolumePopup()
{
    m_volumePopup = new VolumePopup(this);
    connect(m_volumePopup, &VolumePopup::volumeChanged, this, &MainWindow::volumeChanged);
}

void MainWindow::volumeChanged(int volume)
{
    m_player->audio()->setVolume(volume / 100.0);
}

void MainWindow::on_volumeButton_clicked()
{
    // Showing it again would otherwise widen it.
    m_volumePopup->resize(m_volumePopup->size().expandedTo(m_volumePopup->minimumSizeHint()));
    const QPoint button = m_ui->volumeButton->mapToGlobal(QPoint(0, 0));
    const int x = button.x() + (m_ui->volumeButton->width() - m_volumePopup->width()) / 2;
    const int y = int(button.y() - m_volumePopup->height() * 1.1);
    m_volumePopup->move(x, y);
    m_volumePopup->show();
}
