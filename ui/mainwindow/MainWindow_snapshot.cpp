#include "ui/mainwindow/MainWindow.h"

#include "imaging/FilePublisher.h"
#include "imaging/ImageProcessingManager.h"
#include "imaging/Rendering.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/FolderSweeper.h"
#include "ui/mainwindow/PlayerSteering.h"
#include "ui/mainwindow/SavePath.h"
#include "ui/mainwindow/SnapshotMaker.h"
#include "ui/mainwindow/SpokenEvents.h"
#include "ui/widgets/ResponsiveWait.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/Times.h>

#include <QDebug>
#include <QFileDialog>
#include <QMessageBox>

namespace {

/// Fills the box with the manager's profiles and makes the one used last current. Gives that
/// profile: the first, where the one used last is unknown.
BaseProfile* fillProfiles(QComboBox& box, const ProfileManager& manager)
{
    box.clear();
    const QList<BaseProfile*> profiles = manager.profiles();
    for (const BaseProfile* const profile : profiles) {
        box.addItem(profile->shownName(), profile->id());
    }
    BaseProfile* const lastUsed = manager.lastUsedProfile();
    if (lastUsed == nullptr) {
        return profiles.value(0);
    }
    box.setCurrentIndex(box.findData(lastUsed->id()));
    return lastUsed;
}

/// The profile that the user chose in the box, which is then the one used last. Null for none.
BaseProfile* chooseProfile(const QComboBox& box, ProfileManager& manager)
{
    BaseProfile* const profile = manager.profileForId(box.currentData().toString());
    if (profile != nullptr) {
        manager.setLastUsedProfile(profile);
    }
    return profile;
}

QDir folderIn(const QLineEdit& edit)
{
    return QDir(edit.text());
}

} // namespace

void MainWindow::snapshotButtonPressed()
{
    capture();
}

void MainWindow::on_actionTake_Snapshot_triggered()
{
    capture();
}

void MainWindow::capture(bool isToBeSaved)
{
    if (!maySnapshotGo()) {
        return;
    }
    m_captures.ask();
    m_savesCapture.push_back(isToBeSaved);
    m_capturedPlace = isVideoLoaded()
                          ? tr("%1 at %2").arg(currentVideoFileName(), m_ui->timecodeField->time())
                          : QString();
    m_player->videoCapture()->capture();
}

void MainWindow::takeAndSave()
{
    capture(true);
}

/// Whether the capture that has just been answered is to be saved at once.
bool MainWindow::takeSaving()
{
    if (m_savesCapture.empty()) {
        return false;
    }
    const bool saves = m_savesCapture.front();
    m_savesCapture.pop_front();
    return saves;
}

void MainWindow::snapshotCaptured(const QImage& image)
{
    CapturedPicture picture;
    picture.image = image;
    picture.frame = m_player->videoCapture()->capturedFrame();
    picture.source = sourceOfCapture(picture);
    m_snapshotMaker->capture(picture, recipes::of(*m_imageProfile));
}

/// The video may have been closed since.
void MainWindow::takeCapture(const MadeSnapshot& made)
{
    if (!m_captures.answer()) {
        return;
    }
    const bool isToBeSaved = takeSaving();
    m_captured = made.picture;
    showSnapshot(made);
    m_isSnapshotKept = m_snapshotImage.isNull();
    m_ui->savedNotice->clear();
    showWhatIsNext();
    addToFilmstrip();
    // Without a snapshot as well: the profile may be to blame, and is edited there.
    setSnapshotControlsEnabled(true);
    if (!made.rendering.error.isEmpty()) {
        warnOfCapture(made.rendering.error);
        return;
    }
    m_spoken->tell(tr("Snapshot taken: %1").arg(m_capturedPlace));
    if (isToBeSaved) {
        saveWithAutomaticFileName();
    }
}

/// What matters of the captures is of the video that is open.
PictureSource MainWindow::sourceOfCapture(const CapturedPicture& picture) const
{
    if (!isVideoLoaded()) {
        return {};
    }
    const QtAV::MediaFacts facts = m_player->facts();
    const PictureSource video =
        PictureSource::of(m_player->file(), facts.tags, facts.tickNumerator, facts.tickDenominator);
    return video.at(picture.frame.timestamp(), picture.image.size());
}

void MainWindow::onCaptureError()
{
    if (m_captures.answer()) {
        (void)takeSaving();
        warnOfCapture(QString());
    }
}

/// Says what could not be captured and, where that is known, why not.
void MainWindow::warnOfCapture(const QString& reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Morvantile video capture"),
                    tr("Failed to capture video frame"), QMessageBox::Ok);
    QStringList details{m_capturedPlace.toHtmlEscaped(), reason.toHtmlEscaped()};
    details.removeAll(QString());
    if (!details.isEmpty()) {
        // Said to be mark-up, or the box would guess from the file's name whether it is.
        box.setInformativeText(
            QStringLiteral("<qt>%1</qt>").arg(details.join(QStringLiteral("<br>"))));
    }
    box.exec();
}

void MainWindow::processFullFrameImage(ImageProfile* profile)
{
    m_snapshotMaker->remake(m_captured,
                            recipes::of(profile == nullptr ? *m_imageProfile : *profile));
}

void MainWindow::takeRemade(const MadeSnapshot& made)
{
    showSnapshot(made);
    if (!made.rendering.error.isEmpty() && !m_captured.image.isNull()) {
        statusBar()->showMessage(
            tr("No image of %1: %2").arg(m_capturedPlace, made.rendering.error), messageMs);
    }
}

void MainWindow::showSnapshot(const MadeSnapshot& made)
{
    m_snapshotRecipe = made.recipe;
    m_snapshotImage = made.rendering.image;
    m_ui->snapshotImageView->setImage(m_snapshotImage);
    showSnapshotSummary();
}

void MainWindow::imageProfileUpdated(ImageProfile* profile)
{
    if (!m_captured.image.isNull()) {
        processFullFrameImage(profile);
    }
}

void MainWindow::resetSnapshot()
{
    m_snapshotMaker->forgetRemaking();
    m_captured = CapturedPicture();
    m_snapshotImage = QImage();
    m_isSnapshotKept = true;
    m_shownSnapshot.clear();
    m_wantedSnapshot.clear();
    m_filmstrip->setCurrent({});
    m_ui->snapshotImageView->setImage(m_snapshotImage);
    m_ui->savedNotice->clear();
    showSnapshotSummary();
    showWhatIsNext();
}

void MainWindow::setSnapshotControlsEnabled(bool on)
{
    m_ui->actionCopy_Full_Frame->setEnabled(on);
    m_ui->actionCopy_Snapshot->setEnabled(on);
    m_ui->actionSaveSnapshot->setEnabled(on);
    m_ui->snapshotControlsFrame->setEnabled(on);
    if (!on) {
        m_ui->outputFolderLineEdit->clear();
    }
    updateAutomaticFileNameDisplay();
}

void MainWindow::saveButtonPressed()
{
    if (m_ui->automaticFileNameGroupBox->isChecked()) {
        saveWithAutomaticFileName();
    } else {
        showSaveDialog();
    }
}

void MainWindow::on_actionSaveSnapshot_triggered()
{
    saveButtonPressed();
}

/// What is saved stays the same while it is written, whatever is shown by then.
struct MainWindow::Saving
{
    CapturedPicture captured;
    QImage shown;
    ImageRecipe recipe;
    QString type; ///< of files whose names have none
    QString id;   ///< in the filmstrip
};

/// What belongs to the file, and not to the picture, is up to the profile that is chosen now.
MainWindow::Saving MainWindow::savingNow()
{
    m_snapshotMaker->finishRemaking();
    const ImageRecipe chosen = recipes::of(*m_imageProfile);
    Saving saving{m_captured, m_snapshotImage, m_snapshotRecipe,
                  m_fileNameProfile->fileOutputType(), m_shownSnapshot};
    saving.recipe.jpegQuality = chosen.jpegQuality;
    saving.recipe.metadata = chosen.metadata;
    saving.recipe.keepsDeepColours = chosen.keepsDeepColours;
    saving.recipe.keepsHdr = chosen.keepsHdr;
    return saving;
}

WriteResult MainWindow::write(const Saving& saving, const QString& path, ExistingFile existing,
                              WriteFailure& failure)
{
    m_sweeper->sweep(QFileInfo(path).absolutePath());
    auto result = WriteResult::Failed;
    ResponsiveWait::run([&] {
        const ImageRecipe recipe = forType(saving.recipe, QFileInfo(path).suffix());
        const CapturedPicture& captured = saving.captured;
        // The file may hold more than the screen.
        const QImage image =
            imaging::wantsMore(captured, recipe)
                ? imaging::render(imaging::pictureOf(captured, recipe), recipe).image
                : saving.shown;
        result =
            imaging::save(path, image, recipe, saving.type, captured.source, existing, &failure);
    });
    return result;
}

WriteResult MainWindow::save(const Saving& saving, const QString& path, ExistingFile existing)
{
    WriteFailure failure;
    const WriteResult result = write(saving, path, existing, failure);
    if (result == WriteResult::Written) {
        m_filmstrip->shelf().markSaved(saving.id);
        // Another one may be shown by now.
        const bool isShown = saving.captured.image.cacheKey() == m_captured.image.cacheKey();
        m_isSnapshotKept = m_isSnapshotKept || isShown;
    }
    if (result == WriteResult::Written) {
        reportSaved(path);
    } else {
        reportUnsaved(path, failure);
    }
    return result;
}

bool MainWindow::saveSnapshot(QString path)
{
    return save(savingNow(), path, ExistingFile::Replace) == WriteResult::Written;
}

void MainWindow::reportSaved(const QString& path)
{
    qDebug() << "Save success" << path;
    m_lastSavedFile = QFileInfo(path).absoluteFilePath();
    offerToShowSavedFile(tr("Saved %1").arg(QFileInfo(path).fileName()));
    showWhatIsNext();
    statusBar()->showMessage(tr("Saved %1").arg(QDir::toNativeSeparators(path)), messageMs);
}

/// The cause names the file with its folder, unless a file of that name came in between.
void MainWindow::reportUnsaved(const QString& path, const WriteFailure& failure)
{
    qDebug() << "Save failure" << path;
    const QString text = tr("Could not save %1").arg(QFileInfo(path).fileName());
    const QString cause = failure.path.isEmpty() ? QString() : failure.text();
    m_ui->savedNotice->tellFailed(text, cause);
    showWhatIsNext();
    const QString shown = cause.isEmpty()
                              ? tr("Could not save %1").arg(QDir::toNativeSeparators(path))
                              : tr("%1: %2").arg(text, cause);
    statusBar()->showMessage(shown, messageMs);
}

void MainWindow::saveWithAutomaticFileName()
{
    const QDir folder = folderIn(*m_ui->outputFolderLineEdit);
    if (!isOutputFolderUsable(folder)) {
        return;
    }
    const Saving saving = savingNow();
    auto result = WriteResult::AlreadyExists;
    while (result == WriteResult::AlreadyExists) {
        const QString path = folder.absoluteFilePath(automaticFileName(folder));
        result = save(saving, path, ExistingFile::Keep);
        // The number is used up, also by a file that came in between.
        if (result != WriteResult::Failed) {
            ++m_fileCounter;
        }
    }
    updateAutomaticFileNameDisplay();
}

/// Asks whether to make a folder that is missing. One that cannot be made fails the saving.
bool MainWindow::isOutputFolderUsable(const QDir& folder)
{
    if (folder.isRelative()) {
        QMessageBox::warning(
            this, tr("Unknown Folder"),
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
    if (QMessageBox::question(this, tr("Folder does not exist"), question,
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes) {
        return false;
    }
    folder.mkpath(QStringLiteral("."));
    return true;
}

QString MainWindow::automaticFileName(QDir dir)
{
    const QString baseName = currentVideoFileBaseName();
    for (;; ++m_fileCounter) {
        const QString name = m_fileNameProfile->generateFileName(baseName, m_fileCounter);
        if (!QFileInfo::exists(dir.absoluteFilePath(name))) {
            return name;
        }
    }
}

void MainWindow::updateAutomaticFileNameDisplay()
{
    const bool isShown = isVideoLoaded() && m_ui->automaticFileNameGroupBox->isChecked();
    m_ui->nextFileNameLabel->setVisible(isShown);
    m_ui->nextFileNameDescriptionLabel->setVisible(isShown);
    if (isShown) {
        m_ui->nextFileNameLabel->setText(automaticFileName(folderIn(*m_ui->outputFolderLineEdit)));
    }
    showSnapshotSummary();
}

void MainWindow::on_automaticFileNameGroupBox_toggled(bool on)
{
    Q_UNUSED(on)
    updateAutomaticFileNameDisplay();
}

void MainWindow::on_selectOutputFolderButton_clicked()
{
    const QDir current = folderIn(*m_ui->outputFolderLineEdit);
    const bool isKnown = !m_ui->outputFolderLineEdit->text().isEmpty() && current.exists();
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Open Directory"), isKnown ? current.absolutePath() : QString(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!folder.isEmpty() && QDir(folder).exists()) {
        m_ui->outputFolderLineEdit->setText(QDir::toNativeSeparators(folder));
        noteOutputFolder();
        updateAutomaticFileNameDisplay();
    }
}

void MainWindow::setupFileDialogs()
{
    m_saveDialog = new QFileDialog(this);
    m_saveDialog->setObjectName(QStringLiteral("saveDialog"));
    m_saveDialog->setDirectory(m_saveDialogDir.absolutePath());
    m_saveDialog->setNameFilters(SavePath::nameFilters());
    m_saveDialog->setAcceptMode(QFileDialog::AcceptSave);
}

void MainWindow::showSaveDialog()
{
    m_saveDialog->setDirectory(m_saveDialogDir);
    if (!m_saveDialogNameFilter.isEmpty()) {
        m_saveDialog->selectNameFilter(m_saveDialogNameFilter);
    }
    m_saveDialog->selectFile(SavePath::nextFree(m_saveDialogDir, m_saveDialogFileName,
                                                m_saveDialog->selectedNameFilter(),
                                                QFileInfo(m_currentVideoPath).completeBaseName()));
    if (m_saveDialog->exec() == QDialog::Accepted) {
        saveAs(m_saveDialog->selectedFiles().value(0));
    }
    retakeFocusAfterDialog();
}

/// The dialog asked about replacing the file of the name as it was typed, not of a completed one.
void MainWindow::saveAs(const QString& chosen)
{
    const QString path = SavePath::completed(chosen, m_saveDialog->selectedNameFilter());
    if (path != chosen && QFileInfo::exists(path) && !isReplacingWanted(path)) {
        return;
    }
    if (saveSnapshot(path)) {
        // Not the one that the dialog shows: the name may have been typed with another.
        m_saveDialogDir = QFileInfo(path).absoluteDir();
        m_saveDialogFileName = QFileInfo(path).fileName();
        m_saveDialogNameFilter = m_saveDialog->selectedNameFilter();
        noteSaveFolder();
        showSnapshotSummary();
    }
}

bool MainWindow::isReplacingWanted(const QString& path)
{
    const QString question =
        tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName());
    return QMessageBox::question(this, tr("Save Snapshot"), question,
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

void MainWindow::on_actionCopy_Snapshot_triggered()
{
    m_snapshotMaker->finishRemaking();
    if (!m_snapshotImage.isNull()) {
        ImageProcessingManager::instance()->setToClipboard(m_snapshotImage.copy());
        m_isSnapshotKept = true;
        showWhatIsNext();
    }
}

void MainWindow::on_actionCopy_Full_Frame_triggered()
{
    if (!m_captured.image.isNull()) {
        ImageProcessingManager::instance()->setToClipboard(m_captured.image.copy());
        m_isSnapshotKept = true;
        showWhatIsNext();
    }
}

void MainWindow::loadImageProfileComboBox()
{
    m_imageProfile = static_cast<ImageProfile*>(
        fillProfiles(*m_ui->imageProfileComboBox, *ImageProfile::profileManager()));
    followImageProfile();
}

void MainWindow::loadFileNameProfileComboBox()
{
    m_fileNameProfile = static_cast<FileNameProfile*>(
        fillProfiles(*m_ui->filenameProfileComboBox, *FileNameProfile::profileManager()));
}

void MainWindow::on_imageProfileComboBox_activated(int index)
{
    Q_UNUSED(index)
    BaseProfile* const chosen =
        chooseProfile(*m_ui->imageProfileComboBox, *ImageProfile::profileManager());
    if (chosen != nullptr) {
        selectImageProfile(*static_cast<ImageProfile*>(chosen));
    }
}

void MainWindow::on_filenameProfileComboBox_activated(int index)
{
    Q_UNUSED(index)
    BaseProfile* const chosen =
        chooseProfile(*m_ui->filenameProfileComboBox, *FileNameProfile::profileManager());
    if (chosen != nullptr) {
        m_fileNameProfile = static_cast<FileNameProfile*>(chosen);
        updateAutomaticFileNameDisplay();
    }
}
