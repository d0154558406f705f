// Files from outside, and closing without losing anything: dropped and passed videos, the end.

#include "ui/mainwindow/MainWindow.h"

#include "ui/batch/BatchModeDialog.h"
#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/DropZone.h"
#include "ui/mainwindow/FolderSteps.h"
#include "ui/mainwindow/RecentMenu.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/widgets/PlainText.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>

namespace {

/// Maximum time for writing when the session ends; it ends in any case.
constexpr qint64 longestWaitMs = 10000;

} // namespace

/// Asks about a snapshot that would be lost with its video. Returns false if it must stay.
bool MainWindow::maySnapshotGo()
{
    if (!snapshotPane()->isAtRisk()) {
        return true;
    }
    switch (askAboutSnapshots(1)) {
    case QMessageBox::Save:
        snapshotPane()->save();
        return snapshotPane()->isKept();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

/// Asks about all snapshots that closing would lose. Returns false if the window must stay.
bool MainWindow::mayAllGo()
{
    const int count = snapshotsAtRisk();
    if (count == 0) {
        return true;
    }
    const bool isShownOne = count == 1 && !snapshotPane()->isKept();
    switch (askAboutSnapshots(count)) {
    case QMessageBox::Save:
        if (isShownOne || snapshotPane()->isAtRisk()) {
            snapshotPane()->save();
        }
        if (isShownOne || snapshotPane()->isAtRisk()) {
            return snapshotPane()->isKept();
        }
        // The window closes when these are written, or another question follows.
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
    openWhenSafe(path);
}

void MainWindow::openWhenSafe(const QString& path)
{
    leaveWhenCaptured([this, path] {
        if (maySnapshotGo()) {
            openVideo(path);
        }
    });
}

void MainWindow::setupFileMenu()
{
    m_recentMenu = new RecentMenu(m_settings, this);
    const QList<QAction*> actions = m_ui->menuFile->actions();
    m_ui->menuFile->insertMenu(actions.value(actions.indexOf(m_ui->actionOpen) + 1), m_recentMenu);
    connect(m_recentMenu, &RecentMenu::chosen, this, &MainWindow::openFromOutside);
    m_folderSteps = new FolderSteps(*m_ui->actionNextVideo, *m_ui->actionPreviousVideo, this);
    connect(m_folderSteps, &FolderSteps::chosen, this, &MainWindow::openFromOutside);
}

void MainWindow::setupDrops()
{
    m_dropZone = new DropZone(*this);
    connect(m_dropZone, &DropZone::dropped, this, &MainWindow::openDropped);
    connect(m_dropZone, &DropZone::nothingFound, this,
            [this] { showMessage(tr("No video was dropped.")); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    m_dropZone->enter(*event);
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent* event)
{
    Q_UNUSED(event)
    m_dropZone->leave();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    m_dropZone->drop(*event);
}

/// A single video is opened. With several, the user may want pictures without opening them.
void MainWindow::openDropped(const QStringList& videos)
{
    if (videos.size() == 1) {
        openFromOutside(videos.first());
        return;
    }
    retakeFocusAfterDialog();
    pause();
    QMessageBox box(QMessageBox::Question, tr("Several Videos"),
                    tr("%n video(s) were dropped.", nullptr, videos.size()), QMessageBox::Cancel,
                    this);
    box.setObjectName(QStringLiteral("severalVideosBox"));
    box.setInformativeText(
        asPlainText(tr("Open the first one, %1, or put all of them into the list of batch mode?")
                        .arg(QFileInfo(videos.first()).fileName())));
    QPushButton* const open = box.addButton(tr("Open"), QMessageBox::AcceptRole);
    QPushButton* const batch = box.addButton(tr("Batch"), QMessageBox::AcceptRole);
    box.setDefaultButton(open);
    box.exec();
    if (box.clickedButton() == open) {
        openFromOutside(videos.first());
    } else if (box.clickedButton() == batch) {
        runBatchMode(videos);
    }
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

void MainWindow::showWaiting(bool on)
{
    const QString text = tr("Waiting until snapshots are written\u2026");
    if (on) {
        statusBar()->showMessage(text);
    } else if (statusBar()->currentMessage() == text) {
        statusBar()->clearMessage();
    }
}

/// Waits for pending captures and writes; the window stays responsive meanwhile.
void MainWindow::endWhenSafe()
{
    m_leaving = nullptr;
    if (!areCapturesDone() || !m_filmstrip->shelf().isSettled()) {
        m_isEnding = true;
        showWaiting(true);
        return;
    }
    showWaiting(false);
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
    const auto isReady = [this] { return areCapturesDone() && m_filmstrip->shelf().isSettled(); };
    while (!isReady() && !waited.hasExpired(longestWaitMs)) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 50);
    }
    return !mayAsk || mayAllGo();
}

void MainWindow::quit()
{
    saveLayout();
    playerPane()->releaseVideo();
    // Not quit(), which in Qt 6 closes the windows first: they would ask once more, or refuse.
    QCoreApplication::exit(0);
}
