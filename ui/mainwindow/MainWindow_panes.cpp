// What the panes do, as functions of the window.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/SnapshotPane.h"

void MainWindow::snapshotButtonPressed()
{
    capture();
}

void MainWindow::on_actionTake_Snapshot_triggered()
{
    capture();
}

void MainWindow::takeAndSave()
{
    capture(true);
}

void MainWindow::processFullFrameImage(ImageProfile* profile)
{
    m_snapshotPane->processFullFrameImage(profile);
}

void MainWindow::imageProfileUpdated(ImageProfile* profile)
{
    m_snapshotPane->imageProfileUpdated(profile);
}

void MainWindow::saveButtonPressed()
{
    m_snapshotPane->save();
}

void MainWindow::on_actionSaveSnapshot_triggered()
{
    m_snapshotPane->save();
}

void MainWindow::on_actionShow_in_Folder_triggered()
{
    m_snapshotPane->showSavedFile();
}

bool MainWindow::saveSnapshot(QString path)
{
    return m_snapshotPane->saveSnapshot(path);
}

void MainWindow::saveWithAutomaticFileName()
{
    m_snapshotPane->saveWithAutomaticFileName();
}

QString MainWindow::automaticFileName(QDir dir)
{
    return m_snapshotPane->automaticFileName(dir);
}

void MainWindow::updateAutomaticFileNameDisplay()
{
    m_snapshotPane->updateAutomaticFileNameDisplay();
}

void MainWindow::on_automaticFileNameGroupBox_toggled(bool on)
{
    Q_UNUSED(on)
    m_snapshotPane->updateAutomaticFileNameDisplay();
}

void MainWindow::on_selectOutputFolderButton_clicked()
{
    m_snapshotPane->chooseOutputFolder();
}

void MainWindow::setupFileDialogs()
{
    m_snapshotPane->setupFileDialogs();
}

void MainWindow::showSaveDialog()
{
    m_snapshotPane->showSaveDialog();
}

void MainWindow::on_actionCopy_Snapshot_triggered()
{
    m_snapshotPane->copySnapshot();
}

void MainWindow::on_actionCopy_Full_Frame_triggered()
{
    m_snapshotPane->copyFullFrame();
}

void MainWindow::loadImageProfileComboBox()
{
    m_snapshotPane->loadImageProfileComboBox();
}

void MainWindow::loadFileNameProfileComboBox()
{
    m_snapshotPane->loadFileNameProfileComboBox();
}

void MainWindow::on_imageProfileComboBox_activated(int index)
{
    Q_UNUSED(index)
    m_snapshotPane->chooseImageProfile();
}

void MainWindow::on_originalSizeButton_clicked()
{
    m_snapshotPane->chooseOriginalSize();
}

void MainWindow::on_filenameProfileComboBox_activated(int index)
{
    Q_UNUSED(index)
    m_snapshotPane->chooseFileNameProfile();
}
