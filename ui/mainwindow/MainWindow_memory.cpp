// State that is stored for the next window.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/FullScreen.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui_MainWindow.h"

namespace {

const QString geometryKey = QStringLiteral("windowGeometry");
const QString splitterKey = QStringLiteral("splitterState");

} // namespace

void MainWindow::restoreLayout()
{
    restoreGeometry(m_settings.value(geometryKey).toByteArray());
    m_ui->splitter->restoreState(m_settings.value(splitterKey).toByteArray());
    snapshotPane()->restoreState();
}

void MainWindow::saveLayout()
{
    if (m_fullScreen != nullptr) {
        m_fullScreen->setOn(false);
    }
    m_settings.setValue(geometryKey, saveGeometry());
    m_settings.setValue(splitterKey, m_ui->splitter->saveState());
    snapshotPane()->storeState();
}
