// Videos that were opened before.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/RecentFiles.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QMenu>

void MainWindow::setupRecentFiles()
{
    m_recentMenu = new QMenu(tr("Open Recent"), this);
    m_recentMenu->setObjectName(QStringLiteral("menuOpenRecent"));
    const QList<QAction*> actions = m_ui->menuFile->actions();
    m_ui->menuFile->insertMenu(actions.value(actions.indexOf(m_ui->actionOpen) + 1), m_recentMenu);
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    m_recentMenu->setEnabled(!RecentFiles::in(m_settings).isEmpty());
}

/// Files that are gone are not offered; they may come back, as on a disk that is plugged in again.
void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList files = RecentFiles::in(m_settings);
    for (const QString& file : files) {
        if (!QFileInfo(file).isFile()) {
            continue;
        }
        QString name = QFileInfo(file).fileName();
        QAction* const action =
            m_recentMenu->addAction(name.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setToolTip(QDir::toNativeSeparators(file));
        connect(action, &QAction::triggered, this, [this, file] { openFromOutside(file); });
    }
    if (m_recentMenu->isEmpty()) {
        m_recentMenu->addAction(tr("None of them is there"))->setEnabled(false);
    }
    m_recentMenu->addSeparator();
    QAction* const clear = m_recentMenu->addAction(tr("Clear List"));
    connect(clear, &QAction::triggered, this, [this] {
        RecentFiles::clear(m_settings);
        m_recentMenu->setEnabled(false);
    });
}

void MainWindow::noteRecentFile(const QString& path)
{
    RecentFiles::add(m_settings, path);
    m_recentMenu->setEnabled(true);
}
