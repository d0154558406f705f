// State that is stored for the next window.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/FullScreen.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui_MainWindow.h"

namespace {

const QString geometryKey = QStringLiteral("windowGeometry");
const QString splitterKey = QStringLiteral("splitterState");
// The key of the dialog for videos: see SmartFileDialog.
const QString openFolderKey = QStringLiteral("openDialog_dialogPath");

} // namespace

void MainWindow::restoreLayout()
{
    restoreGeometry(m_settings.value(geometryKey).toByteArray());
    m_ui->splitter->restoreState(m_settings.value(splitterKey).toByteArray());
    m_snapshotPane->restoreState();
}

void MainWindow::saveLayout()
{
    if (m_fullScreen != nullptr) {
        m_fullScreen->setOn(false);
    }
    m_settings.setValue(geometryKey, saveGeometry());
    m_settings.setValue(splitterKey, m_ui->splitter->saveState());
    m_snapshotPane->storeState();
}

void MainWindow::noteOpenFolder(const QFileInfo& video)
{
    m_settings.setValue(openFolderKey, video.absolutePath());
}
