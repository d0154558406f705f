// What comes from outside, and what must not be lost: dropped and passed videos, the end.

#include "ui/mainwindow/MainWindow.h"

#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/DroppedVideo.h"
#include "ui/mainwindow/FileManager.h"
#include "ui_MainWindow.h"

#include <QtAV/VideoOutput.h>

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>

namespace {

/// What is written when the session ends; then it ends all the same.
constexpr qint64 longestWaitMs = 10000;

} // namespace

/// Asks about a snapshot that would be lost with its video. False where it must stay.
bool MainWindow::maySnapshotGo()
{
    if (!isSnapshotAtRisk()) {
        return true;
    }
    switch (askAboutSnapshots(1)) {
    case QMessageBox::Save:
        saveButtonPressed();
        return m_isSnapshotKept;
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

/// Asks about all snapshots that the end would lose. False where it must wait.
bool MainWindow::mayAllGo()
{
    const int count = snapshotsAtRisk();
    if (count == 0) {
        return true;
    }
    const bool isShownOne = count == 1 && !m_isSnapshotKept;
    switch (askAboutSnapshots(count)) {
    case QMessageBox::Save:
        if (isShownOne || isSnapshotAtRisk()) {
            saveButtonPressed();
        }
        if (isShownOne || isSnapshotAtRisk()) {
            return m_isSnapshotKept;
        }
        // The end comes when these are written, or there is another question.
        m_isEnding = true;
        saveSnapshots(m_filmstrip->shelf().unsaved());
        return false;
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

int MainWindow::askAboutSnapshots(int count)
{
    pause();
    QMessageBox box(QMessageBox::Question, tr("Unsaved Snapshot"),
                    count == 1 ? tr("The snapshot has not been saved.")
                               : tr("%n snapshots have not been saved.", nullptr, count),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setInformativeText(count == 1 ? tr("It will be lost unless you save it.")
                                      : tr("They will be lost unless you save them."));
    box.setDefaultButton(QMessageBox::Save);
    return box.exec();
}

void MainWindow::comeToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    retakeFocusAfterDialog();
    if (QWidget* const dialog = QApplication::activeModalWidget()) {
        dialog->raise();
        dialog->activateWindow();
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
    if (!isSnapshotAtRisk()) {
        openFromOutside(path);
        return;
    }
    // The program where the file comes from waits for the end of the drop, not for an answer here.
    const auto open = [this, path] { openFromOutside(path); };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

void MainWindow::on_actionExit_triggered()
{
    endWhenSafe();
}

void MainWindow::confirmQuit()
{
    quit();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    endWhenSafe();
}

/// What is being written is waited for; the window stays alive meanwhile.
void MainWindow::endWhenSafe()
{
    if (!m_filmstrip->shelf().isSettled()) {
        m_isEnding = true;
        statusBar()->showMessage(tr("Waiting until snapshots are written\u2026"));
        return;
    }
    m_isEnding = false;
    if (m_endsUnasked || mayAllGo()) {
        quit();
    }
}

void MainWindow::quitWhenKept()
{
    m_endsUnasked = true;
    endWhenSafe();
}

bool MainWindow::prepareForSessionEnd(bool mayAsk)
{
    saveLayout();
    QElapsedTimer waited;
    waited.start();
    while (!m_filmstrip->shelf().isSettled() && !waited.hasExpired(longestWaitMs)) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 50);
    }
    return !mayAsk || mayAllGo();
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
