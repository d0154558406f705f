// Files: saving, their names and their folder.

#include "ui/mainwindow/SnapshotPane.h"

#include "imaging/FilePublisher.h"
#include "imaging/ImageProcessingManager.h"
#include "imaging/Rendering.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "ui/mainwindow/FileManager.h"
#include "ui/mainwindow/FolderSweeper.h"
#include "ui/widgets/ResponsiveWait.h"
#include "ui_SnapshotPane.h"

#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>

#include <algorithm>

namespace {

const QString outputFolderKey = QStringLiteral("outputFolder");

QDir folderIn(const QLineEdit& edit)
{
    return QDir(edit.text());
}

} // namespace

void SnapshotPane::save()
{
    if (m_ui->automaticFileNameGroupBox->isChecked()) {
        saveWithAutomaticFileName();
    } else {
        showSaveDialog();
    }
}

/// The parameters of a save, which stay fixed while it is written, whatever is shown by then.
struct SnapshotPane::Saving
{
    CapturedPicture captured;
    QImage shown;
    ImageRecipe recipe;
    QString type; ///< for file names without a suffix
    QString id;   ///< its name among the owner's snapshots
};

/// Settings of the file, not of the picture, are taken from the profile that is selected now.
SnapshotPane::Saving SnapshotPane::savingNow()
{
    m_maker->finishRemaking();
    const ImageRecipe chosen = recipes::of(*m_imageProfile);
    Saving saving{m_captured, m_image, m_recipe, m_fileNameProfile->fileOutputType(), m_id};
    saving.recipe.jpegQuality = chosen.jpegQuality;
    saving.recipe.metadata = chosen.metadata;
    saving.recipe.keepsDeepColours = chosen.keepsDeepColours;
    saving.recipe.keepsHdr = chosen.keepsHdr;
    return saving;
}

WriteResult SnapshotPane::write(const Saving& saving, const QString& path, ExistingFile existing,
                                WriteFailure& failure)
{
    m_sweeper->sweep(QFileInfo(path).absolutePath());
    auto result = WriteResult::Failed;
    ResponsiveWait::run([&] {
        const ImageRecipe recipe = forType(saving.recipe, QFileInfo(path).suffix());
        const CapturedPicture& captured = saving.captured;
        // The file may hold more than the screen shows.
        const QImage image =
            imaging::wantsMore(captured, recipe)
                ? imaging::render(imaging::pictureOf(captured, recipe), recipe).image
                : saving.shown;
        result =
            imaging::save(path, image, recipe, saving.type, captured.source, existing, &failure);
    });
    return result;
}

WriteResult SnapshotPane::save(const Saving& saving, const QString& path, ExistingFile existing)
{
    WriteFailure failure;
    const WriteResult result = write(saving, path, existing, failure);
    if (result == WriteResult::Written) {
        Q_EMIT saved(saving.id);
        // Another snapshot may be shown by now.
        const bool isShown = saving.captured.image.cacheKey() == m_captured.image.cacheKey();
        m_isKept = m_isKept || isShown;
        reportSaved(path);
    } else {
        reportUnsaved(path, failure);
    }
    return result;
}

bool SnapshotPane::saveSnapshot(const QString& path)
{
    return save(savingNow(), path, ExistingFile::Replace) == WriteResult::Written;
}

void SnapshotPane::reportSaved(const QString& path)
{
    qDebug() << "Save success" << path;
    tellSaved(tr("Saved %1").arg(QFileInfo(path).fileName()), path);
    showWhatIsNext();
    Q_EMIT message(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
}

/// The cause names the file with its folder, unless a file of that name came in between.
void SnapshotPane::reportUnsaved(const QString& path, const WriteFailure& failure)
{
    qDebug() << "Save failure" << path;
    const QString text = tr("Could not save %1").arg(QFileInfo(path).fileName());
    const QString cause = failure.path.isEmpty() ? QString() : failure.text();
    tellFailed(text, cause);
    showWhatIsNext();
    const QString shown = cause.isEmpty()
                              ? tr("Could not save %1").arg(QDir::toNativeSeparators(path))
                              : tr("%1: %2").arg(text, cause);
    Q_EMIT message(shown);
}

void SnapshotPane::saveWithAutomaticFileName()
{
    const QDir folder = folderIn(*m_ui->outputFolderLineEdit);
    if (!isOutputFolderUsable(folder)) {
        return;
    }
    const Saving saving = savingNow();
    const QString video = videoForNames();
    int counter = m_fileCounter;
    auto result = WriteResult::AlreadyExists;
    while (result == WriteResult::AlreadyExists) {
        const QString path = folder.absoluteFilePath(freeName(video, folder, counter));
        result = save(saving, path, ExistingFile::Keep);
        // The number is used up, even if another program created the file.
        if (result != WriteResult::Failed) {
            ++counter;
        }
    }
    // Another snapshot may be shown by now.
    if (video == m_namesVideo) {
        m_fileCounter = std::max(m_fileCounter, counter);
    }
    updateAutomaticFileNameDisplay();
}

/// Asks whether to create a missing folder. If that fails, saving fails.
bool SnapshotPane::isOutputFolderUsable(const QDir& folder)
{
    if (folder.isRelative()) {
        QMessageBox::warning(
            window(), tr("Unknown Folder"),
            tr("Please enter a valid output folder in the Automatic File Name section."),
            QMessageBox::Ok);
        m_ui->outputFolderLineEdit->setFocus();
        return false;
    }
    if (folder.exists()) {
        return true;
    }
    const QString question = tr("Create folder?") + QLatin1String("\r\n") +
                             QDir::toNativeSeparators(folder.absolutePath());
    if (QMessageBox::question(window(), tr("Folder does not exist"), question,
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes) {
        return false;
    }
    folder.mkpath(QStringLiteral("."));
    return true;
}

/// An absolute path; empty where nothing can be saved.
QString SnapshotPane::videoForNames() const
{
    if (m_captured.source.isKnown()) {
        return m_captured.source.video;
    }
    return m_video.isEmpty() ? QString() : QFileInfo(m_video).absoluteFilePath();
}

/// The numbers start over with each video. While none is open, its folder is used, too.
void SnapshotPane::followVideoForNames()
{
    const QString path = videoForNames();
    if (path == m_namesVideo) {
        return;
    }
    noteTypedFolder();
    m_namesVideo = path;
    m_fileCounter = 1;
    const QFileInfo video(path);
    if (!path.isEmpty()) {
        m_saveDialog.followName(video);
    }
    if (!path.isEmpty() && m_video.isEmpty()) {
        const bool isThere = video.absoluteDir().exists();
        if (isThere) {
            m_saveDialog.followFolder(video);
        }
        showOutputFolder(isThere ? video.absolutePath() : QString());
    }
    updateAutomaticFileNameDisplay();
}

/// The first name from the counter on that the folder does not have; the counter is set to its
/// number.
QString SnapshotPane::freeName(const QString& video, const QDir& dir, int& counter) const
{
    const QString baseName = QFileInfo(video).baseName();
    for (;; ++counter) {
        const QString name = m_fileNameProfile->generateFileName(baseName, counter);
        if (!QFileInfo::exists(dir.absoluteFilePath(name))) {
            return name;
        }
    }
}

QString SnapshotPane::automaticFileName(const QDir& dir)
{
    return freeName(videoForNames(), dir, m_fileCounter);
}

void SnapshotPane::updateAutomaticFileNameDisplay()
{
    const bool isShown = !m_namesVideo.isEmpty() && m_ui->automaticFileNameGroupBox->isChecked();
    m_ui->nextFileNameLabel->setVisible(isShown);
    m_ui->nextFileNameDescriptionLabel->setVisible(isShown);
    if (isShown) {
        m_ui->nextFileNameLabel->setText(automaticFileName(folderIn(*m_ui->outputFolderLineEdit)));
    }
    showSummary();
}

void SnapshotPane::chooseOutputFolder()
{
    const QDir current = folderIn(*m_ui->outputFolderLineEdit);
    const bool isKnown = !m_ui->outputFolderLineEdit->text().isEmpty() && current.exists();
    const QString folder = QFileDialog::getExistingDirectory(
        window(), tr("Open Directory"), isKnown ? current.absolutePath() : QString(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!folder.isEmpty() && QDir(folder).exists()) {
        m_ui->outputFolderLineEdit->setText(QDir::toNativeSeparators(folder));
        noteOutputFolder();
        updateAutomaticFileNameDisplay();
    }
}

void SnapshotPane::showSaveDialog()
{
    const QString path = m_saveDialog.ask(QFileInfo(m_namesVideo));
    if (!path.isEmpty() && saveSnapshot(path)) {
        m_saveDialog.noteSaved(path);
        showSummary();
    }
    Q_EMIT dialogClosed();
}

QString SnapshotPane::folderForSnapshots()
{
    const QDir automatic = folderIn(*m_ui->outputFolderLineEdit);
    if (m_ui->automaticFileNameGroupBox->isChecked() && automatic.isAbsolute()) {
        return isOutputFolderUsable(automatic) ? automatic.absolutePath() : QString();
    }
    const QString folder = QFileDialog::getExistingDirectory(
        window(), tr("Save Snapshots"), m_saveDialog.folder(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    Q_EMIT dialogClosed();
    return folder;
}

void SnapshotPane::restoreOutputFolder()
{
    m_outputFolder = m_settings.value(outputFolderKey).toString();
    m_saveDialog.restoreFolder();
}

/// Uses the usual folder, unless the user chose one that still exists.
void SnapshotPane::showOutputFolder(const QString& usual)
{
    const bool isChosen = !m_outputFolder.isEmpty() && QDir(m_outputFolder).exists();
    fillOutputFolder(QDir::toNativeSeparators(isChosen ? m_outputFolder : usual));
}

void SnapshotPane::fillOutputFolder(const QString& text)
{
    m_ui->outputFolderLineEdit->setText(text);
    m_notedFolder = text;
}

/// Leaves a text alone that the user did not change: the choice may be another one.
void SnapshotPane::noteTypedFolder()
{
    if (m_ui->outputFolderLineEdit->text() != m_notedFolder) {
        noteOutputFolder();
    }
}

/// An empty field, or the video's own folder, clears the choice.
void SnapshotPane::noteOutputFolder()
{
    const QString typed = m_ui->outputFolderLineEdit->text();
    m_notedFolder = typed;
    const QFileInfo video(m_video.isEmpty() ? m_namesVideo : m_video);
    const bool isChosen = QDir::isAbsolutePath(typed) && QDir(typed) != video.absoluteDir();
    m_outputFolder = isChosen ? QDir(typed).absolutePath() : QString();
    m_settings.setValue(outputFolderKey, m_outputFolder);
}

void SnapshotPane::tellSaved(const QString& text, const QString& file)
{
    m_lastSavedFile = QFileInfo(file).absoluteFilePath();
    m_ui->savedNotice->tellSaved(text);
    Q_EMIT savedFileChanged();
}

void SnapshotPane::tellFailed(const QString& text, const QString& cause)
{
    m_ui->savedNotice->tellFailed(text, cause);
}

void SnapshotPane::showSavedFile()
{
    FileManager::show(m_lastSavedFile);
}
