// Earlier snapshots: their strip, returning to their frames, and what closing the window would
// lose.

#include "ui/mainwindow/MainWindow.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/SnapshotSaver.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

#include <QFileInfo>

#include <algorithm>

namespace {

/// Whether both paths name the same file.
bool isSameFile(const QString& a, const QString& b)
{
    return !a.isEmpty() && QFileInfo(a).absoluteFilePath() == QFileInfo(b).absoluteFilePath();
}

} // namespace

void MainWindow::setupFilmstrip()
{
    m_filmstrip = new Filmstrip(playerPane());
    playerPane()->addFilmstrip(*m_filmstrip);
    SnapshotShelf& shelf = m_filmstrip->shelf();
    m_snapshotSaver = new SnapshotSaver(shelf, m_filmstrip);
    connect(snapshotPane(), &SnapshotPane::saved, &shelf, &SnapshotShelf::markSaved);

    QAction* const first = m_ui->menuEdit->actions().value(0);
    m_ui->menuEdit->insertAction(first, m_filmstrip->undoAction());
    m_ui->menuEdit->insertAction(first, m_filmstrip->redoAction());
    m_ui->menuEdit->insertAction(first, m_filmstrip->deleteAction());
    m_ui->menuEdit->insertSeparator(first);

    connect(m_filmstrip, &Filmstrip::chosen, this, &MainWindow::returnToSnapshot);
    connect(m_filmstrip, &Filmstrip::saveRequested, this, &MainWindow::saveSnapshots);
    connect(m_filmstrip, &Filmstrip::contentChanged, this, &MainWindow::followShownSnapshot);
    connect(&shelf, &SnapshotShelf::loaded, this, &MainWindow::showKeptSnapshot);
    connect(&shelf, &SnapshotShelf::loadFailed, this,
            [this] { showMessage(tr("The picture of this snapshot cannot be read any more.")); });
    connect(&shelf, &SnapshotShelf::noticed, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
    connect(&shelf, &SnapshotShelf::settled, this, &MainWindow::continueLeaving);
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
    if (snapshotPane()->isKept()) {
        return;
    }
    const ImageProfile& profile = *snapshotPane()->imageProfile();
    const QString id =
        m_filmstrip->shelf().add(snapshotPane()->captured(), profile.id(), profile.name());
    snapshotPane()->setId(id);
    m_filmstrip->setCurrent(id);
    if (id.isEmpty()) {
        showMessage(tr("The filmstrip is full: save or delete some of its snapshots."));
    }
}

void MainWindow::returnToSnapshot(const QString& id)
{
    leaveWhenCaptured([this, id] { showSnapshotAgain(id); });
}

/// The frame and the picture arrive independently.
void MainWindow::showSnapshotAgain(const QString& id)
{
    const std::optional<KeptSnapshot> snapshot = m_filmstrip->shelf().snapshot(id);
    if (!snapshot || (id != snapshotPane()->id() && !maySnapshotGo())) {
        return;
    }
    returnToFrame(snapshot->source);
    m_wantedSnapshot = id;
    m_filmstrip->shelf().load(id);
}

void MainWindow::returnToFrame(const PictureSource& source)
{
    if (!isSameFile(source.video, playerPane()->video()) || !playerPane()->isVideoShown()) {
        if (!QFileInfo::exists(source.video)) {
            showMessage(tr("%1 is not there any more; this is its snapshot.")
                            .arg(QDir::toNativeSeparators(source.video)));
            return;
        }
        openVideo(source.video);
    }
    playerPane()->pause();
    playerPane()->player().setPosition(source.positionMs());
}

void MainWindow::showKeptSnapshot(const QString& id, const CapturedPicture& picture)
{
    const std::optional<KeptSnapshot> snapshot = m_filmstrip->shelf().snapshot(id);
    if (id != m_wantedSnapshot || !snapshot) {
        return;
    }
    m_wantedSnapshot.clear();
    // Cleared before the profile is chosen, which would be recorded for the snapshot shown until
    // now.
    snapshotPane()->setId({});
    ProfileManager& profiles = *ImageProfile::profileManager();
    BaseProfile* const profile = profiles.profileForId(snapshot->profileId);
    if (profile != nullptr && profile != snapshotPane()->imageProfile()) {
        profiles.setLastUsedProfile(profile);
        loadImageProfileComboBox();
    }
    const QString place =
        tr("%1 at %2")
            .arg(QFileInfo(picture.source.video).fileName(),
                 m_filmstrip->shelf().indexOf(id).data(SnapshotShelf::TimeRole).toString());
    snapshotPane()->showEarlier(picture, place, id, snapshot->isSaved);
    m_filmstrip->setCurrent(id);
    setSnapshotControlsEnabled(true);
}

/// Handles a change in the strip: the shown snapshot may have been saved there, deleted, or
/// restored.
void MainWindow::followShownSnapshot()
{
    const QString id = snapshotPane()->id();
    const std::optional<KeptSnapshot> shown = m_filmstrip->shelf().snapshot(id);
    if (shown && shown->isSaved) {
        snapshotPane()->setKept();
    }
    if (!shown && !id.isEmpty()) {
        // Deleted on purpose, so no question is needed.
        snapshotPane()->setId({});
        snapshotPane()->setKept();
    }
    tellSnapshotTimes();
}

void MainWindow::noteProfileOfSnapshot()
{
    const QString& id = snapshotPane()->id();
    if (!id.isEmpty()) {
        const ImageProfile& profile = *snapshotPane()->imageProfile();
        m_filmstrip->shelf().setProfile(id, profile.id(), profile.name());
    }
}

QVector<qint64> MainWindow::snapshotTimes() const
{
    return isVideoLoaded()
               ? m_filmstrip->shelf().timesIn(QFileInfo(playerPane()->video()).absoluteFilePath())
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

/// How many snapshots closing the window would lose.
int MainWindow::snapshotsAtRisk() const
{
    const SnapshotShelf& shelf = m_filmstrip->shelf();
    // A copied snapshot is in the user's hands.
    const QString& id = snapshotPane()->id();
    const bool isCopied = snapshotPane()->isKept() && !id.isEmpty() && !shelf.isSafe(id);
    return shelf.unsafeCount() - (isCopied ? 1 : 0) + (snapshotPane()->isAtRisk() ? 1 : 0);
}

/// Saves under automatic names, each with the profile that it was taken with.
void MainWindow::saveSnapshots(const QStringList& ids)
{
    const QString folder = ids.isEmpty() ? QString() : snapshotPane()->folderForSnapshots();
    if (folder.isEmpty()) {
        stopLeaving();
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
            own == nullptr ? snapshotPane()->imageProfile() : static_cast<const ImageProfile*>(own);
        jobs.append({id, QFileInfo(snapshot->source.video).baseName(), recipes::of(*profile)});
    }
    m_snapshotSaver->start(jobs, folder, snapshotPane()->fileNameProfile()->naming());
}

void MainWindow::reportSavedSnapshots(int saved, int failed, const QString& lastFile)
{
    if (failed > 0) {
        stopLeaving();
    }
    const QString count =
        saved == 1 ? tr("Saved 1 snapshot") : tr("Saved %n snapshots", nullptr, saved);
    const QString text =
        failed == 0 ? count : tr("%1, %n could not be saved", nullptr, failed).arg(count);
    const QString& cause = m_snapshotSaver->failure();
    if (!lastFile.isEmpty()) {
        snapshotPane()->tellSaved(text, lastFile);
        snapshotPane()->updateAutomaticFileNameDisplay();
    } else {
        snapshotPane()->tellFailed(text, cause);
    }
    showMessage(cause.isEmpty() ? text : tr("%1: %2").arg(text, cause));
}
