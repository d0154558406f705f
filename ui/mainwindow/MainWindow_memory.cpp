// State that is stored for the next window.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/FullScreen.h"
#include "ui/mainwindow/SaveDialog.h"
#include "ui_MainWindow.h"

namespace {

const QString geometryKey = QStringLiteral("windowGeometry");
const QString splitterKey = QStringLiteral("splitterState");
const QString automaticKey = QStringLiteral("automaticFileName");
const QString outputFolderKey = QStringLiteral("outputFolder");
// The key of the dialog for videos: see SmartFileDialog.
const QString openFolderKey = QStringLiteral("openDialog_dialogPath");

} // namespace

void MainWindow::restoreLayout()
{
    restoreGeometry(m_settings.value(geometryKey).toByteArray());
    m_ui->splitter->restoreState(m_settings.value(splitterKey).toByteArray());
    m_ui->automaticFileNameGroupBox->setChecked(m_settings.value(automaticKey).toBool());
    m_outputFolder = m_settings.value(outputFolderKey).toString();
    m_saveDialog->restoreFolder();
}

void MainWindow::saveLayout()
{
    if (m_fullScreen != nullptr) {
        m_fullScreen->setOn(false);
    }
    m_settings.setValue(geometryKey, saveGeometry());
    m_settings.setValue(splitterKey, m_ui->splitter->saveState());
    m_settings.setValue(automaticKey, m_ui->automaticFileNameGroupBox->isChecked());
}

/// Uses the video's folder, unless the user chose one that still exists.
void MainWindow::showOutputFolder(const QFileInfo& video)
{
    const bool isChosen = !m_outputFolder.isEmpty() && QDir(m_outputFolder).exists();
    m_ui->outputFolderLineEdit->setText(
        QDir::toNativeSeparators(isChosen ? m_outputFolder : video.absolutePath()));
}

/// An empty field, or the video's own folder, clears the choice.
void MainWindow::noteOutputFolder()
{
    const QString typed = m_ui->outputFolderLineEdit->text();
    const QString videoFolder = QFileInfo(m_currentVideoPath).absolutePath();
    const bool isChosen =
        QDir::isAbsolutePath(typed) && QDir(typed) != QDir(videoFolder) && isVideoLoaded();
    m_outputFolder = isChosen ? QDir(typed).absolutePath() : QString();
    m_settings.setValue(outputFolderKey, m_outputFolder);
}

void MainWindow::noteOpenFolder(const QFileInfo& video)
{
    m_settings.setValue(openFolderKey, video.absolutePath());
}
