// What comes from outside, and what must not be lost: dropped and passed videos, the end.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/DroppedVideo.h"
#include "ui/mainwindow/FileManager.h"
#include "ui_MainWindow.h"

#include <QtAV/VideoOutput.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>

/// Asks about a snapshot that was neither saved nor copied. False where it must stay.
bool MainWindow::maySnapshotGo()
{
    if (m_isSnapshotKept) {
        return true;
    }
    pause();
    QMessageBox box(QMessageBox::Question, tr("Unsaved Snapshot"),
                    tr("The snapshot has not been saved."),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setInformativeText(tr("It will be lost unless you save it."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        saveButtonPressed();
        return m_isSnapshotKept;
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void MainWindow::openFromOutside(const QString& path)
{
    retakeFocusAfterDialog();
    if (maySnapshotGo()) {
        openVideo(path);
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!DroppedVideo::pathIn(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = DroppedVideo::pathIn(*event->mimeData());
    if (path.isEmpty()) {
        return;
    }
    // Never a move: the program where the file comes from would delete it.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (m_isSnapshotKept) {
        openFromOutside(path);
        return;
    }
    // The program where the file comes from waits for the end of the drop, not for an answer here.
    const auto open = [this, path] { openFromOutside(path); };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

void MainWindow::on_actionExit_triggered()
{
    if (maySnapshotGo()) {
        quit();
    }
}

void MainWindow::confirmQuit()
{
    quit();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (maySnapshotGo()) {
        quit();
    }
}

void MainWindow::quit()
{
    saveLayout();
    if (m_videoOutput != nullptr) {
        m_videoOutput->deleteLater();
    }
    QCoreApplication::quit();
}

/// Beside the message on what was saved, and there after it is gone.
void MainWindow::setupShowInFolder()
{
    m_showInFolderButton = new QPushButton(tr("Show in Folder"), this);
    m_showInFolderButton->setObjectName(QStringLiteral("showInFolderButton"));
    m_showInFolderButton->setToolTip(tr("Show the file that was saved last in its folder"));
    m_showInFolderButton->setFocusPolicy(Qt::TabFocus);
    m_showInFolderButton->hide();
    statusBar()->addPermanentWidget(m_showInFolderButton);
    m_ui->actionShow_in_Folder->setEnabled(false);
    connect(m_showInFolderButton, &QPushButton::clicked, this,
            &MainWindow::on_actionShow_in_Folder_triggered);
}

void MainWindow::offerToShowSavedFile()
{
    m_showInFolderButton->show();
    m_ui->actionShow_in_Folder->setEnabled(true);
}

void MainWindow::on_actionShow_in_Folder_triggered()
{
    FileManager::show(m_lastSavedFile);
}
