#include "ui/mainwindow/PaneWindow.h"

#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/VideoZoom.h"

#include <QtAV/AVPlayer.h>

#include <QSplitter>

void PaneWindow::makePanes(QSettings& settings, QSplitter& splitter)
{
    m_playerPane = new PlayerPane(settings, &splitter);
    m_snapshotPane = new SnapshotPane(settings, &splitter);
}

bool PaneWindow::isVideoLoaded() const
{
    return m_playerPane->isVideoLoaded();
}

QString PaneWindow::currentVideoFilePath() const
{
    return m_playerPane->video();
}

QFileInfo PaneWindow::currentVideoFileInfo() const
{
    return QFileInfo(m_playerPane->player().file());
}

QString PaneWindow::currentVideoFileName() const
{
    return currentVideoFileInfo().fileName();
}

QString PaneWindow::currentVideoFileBaseName() const
{
    return currentVideoFileInfo().baseName();
}

QDir PaneWindow::currentVideoFileDir() const
{
    return currentVideoFileInfo().dir();
}

void PaneWindow::openVideoLabelClicked()
{
    m_playerPane->clickVideo();
}

void PaneWindow::setupVolumePopup()
{
    m_playerPane->setupVolumePopup();
}

void PaneWindow::pause()
{
    m_playerPane->pause();
}

void PaneWindow::playPause()
{
    m_playerPane->playPause();
}

void PaneWindow::updatePlayButton()
{
    m_playerPane->updatePlayButton();
}

void PaneWindow::updateSliderUnit()
{
    m_playerPane->updateSliderUnit();
}

void PaneWindow::updateSlider()
{
    m_playerPane->updateSlider();
}

void PaneWindow::updateSlider(qint64 position)
{
    Q_UNUSED(position)
    m_playerPane->updateSlider();
}

void PaneWindow::durationChanged(qint64 duration)
{
    m_playerPane->showDuration(duration);
}

void PaneWindow::positionChanged(qint64 position)
{
    Q_UNUSED(position)
    m_playerPane->showPosition();
}

void PaneWindow::seekBySlider(int value)
{
    m_playerPane->seekBySlider(value);
}

void PaneWindow::seekBySlider()
{
    m_playerPane->seekBySlider();
}

void PaneWindow::skipBackward()
{
    m_playerPane->skipBackward();
}

void PaneWindow::skipForward()
{
    m_playerPane->skipForward();
}

void PaneWindow::seekRelative(qint64 ms)
{
    m_playerPane->seekRelative(ms);
}

void PaneWindow::stepBackward()
{
    m_playerPane->stepBackward();
}

void PaneWindow::stepForward()
{
    m_playerPane->stepForward();
}

void PaneWindow::step(SeekDirection direction)
{
    if (direction == Forward) {
        m_playerPane->stepForward();
    } else {
        m_playerPane->stepBackward();
    }
}

void PaneWindow::volumeChanged(int volume)
{
    m_playerPane->setVolume(volume);
}

void PaneWindow::on_volumeButton_clicked()
{
    m_playerPane->showVolumePopup();
}

void PaneWindow::showActualSize()
{
    m_playerPane->zoom().showActualSize();
}

void PaneWindow::showFourfold()
{
    m_playerPane->zoom().showFourfold();
}

void PaneWindow::toggleActualSize()
{
    m_playerPane->zoom().toggleActualSize();
}

void PaneWindow::processFullFrameImage(ImageProfile* profile)
{
    m_snapshotPane->processFullFrameImage(profile);
}

void PaneWindow::imageProfileUpdated(ImageProfile* profile)
{
    m_snapshotPane->imageProfileUpdated(profile);
}

void PaneWindow::saveButtonPressed()
{
    m_snapshotPane->save();
}

void PaneWindow::on_actionSaveSnapshot_triggered()
{
    m_snapshotPane->save();
}

void PaneWindow::on_actionShow_in_Folder_triggered()
{
    m_snapshotPane->showSavedFile();
}

bool PaneWindow::saveSnapshot(QString path)
{
    return m_snapshotPane->saveSnapshot(path);
}

void PaneWindow::saveWithAutomaticFileName()
{
    m_snapshotPane->saveWithAutomaticFileName();
}

QString PaneWindow::automaticFileName(QDir dir)
{
    return m_snapshotPane->automaticFileName(dir);
}

void PaneWindow::updateAutomaticFileNameDisplay()
{
    m_snapshotPane->updateAutomaticFileNameDisplay();
}

void PaneWindow::on_automaticFileNameGroupBox_toggled(bool on)
{
    Q_UNUSED(on)
    m_snapshotPane->updateAutomaticFileNameDisplay();
}

void PaneWindow::on_selectOutputFolderButton_clicked()
{
    m_snapshotPane->chooseOutputFolder();
}

void PaneWindow::setupFileDialogs()
{
    m_snapshotPane->setupFileDialogs();
}

void PaneWindow::showSaveDialog()
{
    m_snapshotPane->showSaveDialog();
}

void PaneWindow::on_actionCopy_Snapshot_triggered()
{
    m_snapshotPane->copySnapshot();
}

void PaneWindow::on_actionCopy_Full_Frame_triggered()
{
    m_snapshotPane->copyFullFrame();
}

void PaneWindow::loadImageProfileComboBox()
{
    m_snapshotPane->loadImageProfileComboBox();
}

void PaneWindow::loadFileNameProfileComboBox()
{
    m_snapshotPane->loadFileNameProfileComboBox();
}

void PaneWindow::on_imageProfileComboBox_activated(int index)
{
    Q_UNUSED(index)
    m_snapshotPane->chooseImageProfile();
}

void PaneWindow::on_filenameProfileComboBox_activated(int index)
{
    Q_UNUSED(index)
    m_snapshotPane->chooseFileNameProfile();
}
