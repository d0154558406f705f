// The open video.

#include "ui/mainwindow/MainWindow.h"

#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/FolderSteps.h"
#include "ui/mainwindow/FrameProposals.h"
#include "ui/mainwindow/RecentMenu.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/widgets/SmartFileDialog.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

namespace {

// The key of the dialog for videos: see SmartFileDialog.
const QString openFolderKey = QStringLiteral("openDialog_dialogPath");

} // namespace

void MainWindow::updateWindowTitle()
{
    setWindowTitle(isVideoLoaded()
                       ? tr("Morvantile - %1").arg(QFileInfo(playerPane()->video()).fileName())
                       : tr("Morvantile"));
}

void MainWindow::setVideoControlsEnabled(bool on)
{
    m_ui->actionTake_Snapshot->setEnabled(on);
    playerPane()->setControlsEnabled(on);
    m_bestFramesAction->setEnabled(on);
    const QList<QAction*> actions = m_ui->menuVideoControls->actions();
    for (QAction* const action : actions) {
        action->setEnabled(on);
    }
    setSteeringEnabled(on);
}

void MainWindow::on_actionOpen_triggered()
{
    showSelectVideoDialog();
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
    if (!file.isEmpty()) {
        openWhenSafe(file);
    }
}

void MainWindow::openVideo(QString path)
{
    if (playerPane()->volumePopup() == nullptr) {
        return;
    }
    closeVideo();
    playerPane()->open(path);
    snapshotPane()->setVideo(path);
    // The dialog for videos starts there.
    m_settings.setValue(openFolderKey, QFileInfo(path).absolutePath());
    m_recentMenu->note(path);
    m_folderSteps->setVideo(path);
    setVideoControlsEnabled(true);
    updateWindowTitle();
    tellSnapshotTimes();
    playerPane()->showOpened();
}

void MainWindow::closeVideo()
{
    playerPane()->close();
    snapshotPane()->setVideo({});
    m_captures.forgetAll();
    m_folderSteps->setVideo({});
    m_proposals->reset();
    m_savesCapture.clear();
    m_leaving = nullptr;
    updateWindowTitle();
    setVideoControlsEnabled(false);
    setSnapshotControlsEnabled(false);
    m_wantedSnapshot.clear();
    snapshotPane()->clear();
    m_filmstrip->setCurrent({});
    tellSnapshotTimes();
    statusBar()->clearMessage();
}
