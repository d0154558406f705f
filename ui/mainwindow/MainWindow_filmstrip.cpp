// The snapshots that were taken before: the strip of them, the way back to their frames, and what
// the end of the window would lose.

#include "ui/mainwindow/MainWindow.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/SnapshotMaker.h"
#include "ui/mainwindow/SnapshotSaver.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace {

/// Of the same file, as far as their paths tell.
bool isSameFile(const QString& a, const QString& b)
{
    return !a.isEmpty() && QFileInfo(a).absoluteFilePath() == QFileInfo(b).absoluteFilePath();
}

} // namespace

void MainWindow::setupFilmstrip()
{
    m_filmstrip = new Filmstrip(m_ui->playerPane);
    m_ui->playerLayout->addWidget(m_filmstrip);
    m_filmstrip->comeAfter(*m_ui->snapshotButton);
    SnapshotShelf& shelf = m_filmstrip->shelf();
    m_snapshotSaver = new SnapshotSaver(shelf, m_filmstrip);
    m_snapshotMaker = new SnapshotMaker(this);
    connect(m_snapshotMaker, &SnapshotMaker::captured, this, &MainWindow::takeCapture);
    connect(m_snapshotMaker, &SnapshotMaker::remade, this, &MainWindow::takeRemade);

    QAction* const first = m_ui->menuEdit->actions().value(0);
    m_ui->menuEdit->insertAction(first, m_filmstrip->undoAction());
    m_ui->menuEdit->insertAction(first, m_filmstrip->redoAction());
    m_ui->menuEdit->insertAction(first, m_filmstrip->deleteAction());
    m_ui->menuEdit->insertSeparator(first);

    connect(m_filmstrip, &Filmstrip::chosen, this, &MainWindow::returnToSnapshot);
    connect(m_filmstrip, &Filmstrip::saveRequested, this, &MainWindow::saveSnapshots);
    connect(m_filmstrip, &Filmstrip::contentChanged, this, &MainWindow::followShownSnapshot);
    connect(&shelf, &SnapshotShelf::loaded, this, &MainWindow::showKeptSnapshot);
    connect(&shelf, &SnapshotShelf::loadFailed, this, [this] {
        statusBar()->showMessage(tr("The picture of this snapshot cannot be read any more."),
                                 messageMs);
    });
    connect(&shelf, &SnapshotShelf::noticed, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
    connect(&shelf, &SnapshotShelf::settled, this, [this] {
        if (m_isEnding) {
            endWhenSafe();
        }
    });
    connect(m_snapshotSaver, &SnapshotSaver::progressed, this, [this](int done, int all) {
        statusBar()->showMessage(tr("Saved %1 of %2").arg(done).arg(all));
    });
    connect(m_snapshotSaver, &SnapshotSaver::finished, this, &MainWindow::reportSavedSnapshots);
}

void MainWindow::keepSnapshots(const QString& folder)
{
    m_filmstrip->shelf().keepIn(folder);
}

void MainWindow::addToFilmstrip()
{
    m_wantedSnapshot.clear();
    m_shownSnapshot.clear();
    if (m_isSnapshotKept) {
        return;
    }
    m_shownSnapshot =
        m_filmstrip->shelf().add(m_captured, m_imageProfile->id(), m_imageProfile->name());
    m_filmstrip->setCurrent(m_shownSnapshot);
    if (m_shownSnapshot.isEmpty()) {
        statusBar()->showMessage(tr("The filmstrip is full: save or delete some of its snapshots."),
                                 messageMs);
    }
}

/// The frame and the picture come as soon as they can, each by itself.
void MainWindow::returnToSnapshot(const QString& id)
{
    const std::optional<KeptSnapshot> snapshot = m_filmstrip->shelf().snapshot(id);
    if (!snapshot || (id != m_shownSnapshot && !maySnapshotGo())) {
        return;
    }
    returnToFrame(snapshot->source);
    m_wantedSnapshot = id;
    m_filmstrip->shelf().load(id);
}

void MainWindow::returnToFrame(const PictureSource& source)
{
    if (!isSameFile(source.video, m_currentVideoPath) || !isVideoShown()) {
        if (!QFileInfo::exists(source.video)) {
            statusBar()->showMessage(tr("%1 is not there any more; this is its snapshot.")
                                         .arg(QDir::toNativeSeparators(source.video)),
                                     messageMs);
            return;
        }
        openVideo(source.video);
    }
    m_player->pause();
    m_player->setPosition(source.positionMs());
}

void MainWindow::showKeptSnapshot(const QString& id, const CapturedPicture& picture)
{
    const std::optional<KeptSnapshot> snapshot = m_filmstrip->shelf().snapshot(id);
    if (id != m_wantedSnapshot || !snapshot) {
        return;
    }
    m_wantedSnapshot.clear();
    // Before the profile is chosen, which would be noted for the one shown till now.
    m_shownSnapshot.clear();
    ProfileManager& profiles = *ImageProfile::profileManager();
    BaseProfile* const profile = profiles.profileForId(snapshot->profileId);
    if (profile != nullptr && profile != m_imageProfile) {
        profiles.setLastUsedProfile(profile);
        loadImageProfileComboBox();
    }
    m_captured = picture;
    m_capturedPlace =
        tr("%1 at %2")
            .arg(QFileInfo(picture.source.video).fileName(),
                 m_filmstrip->shelf().indexOf(id).data(SnapshotShelf::TimeRole).toString());
    m_isSnapshotKept = snapshot->isSaved;
    m_shownSnapshot = id;
    m_ui->savedNotice->clear();
    processFullFrameImage(nullptr);
    showWhatIsNext();
    m_filmstrip->setCurrent(id);
    setSnapshotControlsEnabled(true);
}

/// Something in the strip has changed: the shown snapshot may have been saved there, or deleted, or
/// come back.
void MainWindow::followShownSnapshot()
{
    const std::optional<KeptSnapshot> shown = m_filmstrip->shelf().snapshot(m_shownSnapshot);
    m_isSnapshotKept = m_isSnapshotKept || (shown && shown->isSaved);
    if (!shown && !m_shownSnapshot.isEmpty()) {
        // Deleted on purpose, so that nobody wants to be asked about it.
        m_shownSnapshot.clear();
        m_isSnapshotKept = true;
    }
    showWhatIsNext();
    tellSnapshotTimes();
}

void MainWindow::noteProfileOfSnapshot()
{
    if (!m_shownSnapshot.isEmpty()) {
        m_filmstrip->shelf().setProfile(m_shownSnapshot, m_imageProfile->id(),
                                        m_imageProfile->name());
    }
}

QVector<qint64> MainWindow::snapshotTimes() const
{
    return isVideoLoaded()
               ? m_filmstrip->shelf().timesIn(QFileInfo(m_currentVideoPath).absoluteFilePath())
               : QVector<qint64>();
}

void MainWindow::tellSnapshotTimes()
{
    const QVector<qint64> times = snapshotTimes();
    if (times != m_toldSnapshotTimes) {
        m_toldSnapshotTimes = times;
        Q_EMIT snapshotTimesChanged(times);
    }
}

/// Another video, or another snapshot, would lose the one that is shown.
bool MainWindow::isSnapshotAtRisk() const
{
    return !m_isSnapshotKept && m_shownSnapshot.isEmpty();
}

/// How many snapshots the end of the window would lose.
int MainWindow::snapshotsAtRisk() const
{
    const SnapshotShelf& shelf = m_filmstrip->shelf();
    // One that was copied is in the user's hands.
    const bool isCopied =
        m_isSnapshotKept && !m_shownSnapshot.isEmpty() && !shelf.isSafe(m_shownSnapshot);
    return shelf.unsafeCount() - (isCopied ? 1 : 0) + (isSnapshotAtRisk() ? 1 : 0);
}

/// The folder of the automatic names, or one that the user chooses; empty for none.
QString MainWindow::folderForSnapshots()
{
    const QDir automatic(m_ui->outputFolderLineEdit->text());
    if (m_ui->automaticFileNameGroupBox->isChecked() && automatic.isAbsolute()) {
        return isOutputFolderUsable(automatic) ? automatic.absolutePath() : QString();
    }
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Save Snapshots"), m_saveDialogDir.absolutePath(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    retakeFocusAfterDialog();
    return folder;
}

/// Under automatic names, each with the profile that it was taken with.
void MainWindow::saveSnapshots(const QStringList& ids)
{
    const QString folder = ids.isEmpty() ? QString() : folderForSnapshots();
    if (folder.isEmpty()) {
        m_isEnding = false;
        return;
    }
    const ProfileManager& profiles = *ImageProfile::profileManager();
    QVector<SnapshotSaver::Job> jobs;
    for (const QString& id : ids) {
        const std::optional<KeptSnapshot> snapshot = m_filmstrip->shelf().snapshot(id);
        if (!snapshot) {
            continue;
        }
        const BaseProfile* const own = profiles.profileForId(snapshot->profileId);
        const auto* const profile =
            own == nullptr ? m_imageProfile : static_cast<const ImageProfile*>(own);
        jobs.append({id, QFileInfo(snapshot->source.video).baseName(), recipes::of(*profile)});
    }
    m_snapshotSaver->start(jobs, folder, m_fileNameProfile->naming());
}

void MainWindow::reportSavedSnapshots(int saved, int failed, const QString& lastFile)
{
    // An end that waited for them should not go on without them.
    m_isEnding = m_isEnding && failed == 0;
    const QString count =
        saved == 1 ? tr("Saved 1 snapshot") : tr("Saved %n snapshots", nullptr, saved);
    const QString text =
        failed == 0 ? count : tr("%1, %n could not be saved", nullptr, failed).arg(count);
    const QString& cause = m_snapshotSaver->failure();
    if (!lastFile.isEmpty()) {
        m_lastSavedFile = QFileInfo(lastFile).absoluteFilePath();
        offerToShowSavedFile(text);
        updateAutomaticFileNameDisplay();
    } else {
        m_ui->savedNotice->tellFailed(text, cause);
    }
    statusBar()->showMessage(cause.isEmpty() ? text : tr("%1: %2").arg(text, cause), messageMs);
}
