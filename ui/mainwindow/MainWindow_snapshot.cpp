#include "ui/mainwindow/MainWindow.h"

#include "imaging/FilePublisher.h"
#include "imaging/ImageProcessingManager.h"
#include "imaging/Rendering.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/PlayerSteering.h"
#include "ui/mainwindow/SavePath.h"
#include "ui/mainwindow/SpokenEvents.h"
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
        box.addItem(profile->name(), profile->id());
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
    if (!m_captures.answer()) {
        return;
    }
    const bool isToBeSaved = takeSaving();
    m_captured = CapturedPicture();
    m_captured.image = image.copy();
    m_captured.frame = m_player->videoCapture()->capturedFrame();
    m_captured.source = sourceOfCapture(image);
    const QString error = makeSnapshot(nullptr);
    m_isSnapshotKept = m_snapshotImage.isNull();
    addToFilmstrip();
    // Without a snapshot as well: the profile may be to blame, and is edited there.
    setSnapshotControlsEnabled(true);
    if (!error.isEmpty()) {
        warnOfCapture(error);
        return;
    }
    m_spoken->tell(tr("Snapshot taken: %1").arg(m_capturedPlace));
    if (isToBeSaved) {
        saveWithAutomaticFileName();
    }
}

/// What matters of the captures is of the video that is open.
PictureSource MainWindow::sourceOfCapture(const QImage& image) const
{
    if (!isVideoLoaded()) {
        return {};
    }
    const QtAV::MediaFacts facts = m_player->facts();
    const PictureSource video =
        PictureSource::of(m_player->file(), facts.tags, facts.tickNumerator, facts.tickDenominator);
    return video.at(m_captured.frame.timestamp(), image.size());
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
    const QString error = makeSnapshot(profile);
    if (!error.isEmpty() && !m_captured.image.isNull()) {
        statusBar()->showMessage(tr("No image of %1: %2").arg(m_capturedPlace, error), messageMs);
    }
}

/// Makes the snapshot from the full frame, and shows it. Gives the reason where there is none.
QString MainWindow::makeSnapshot(ImageProfile* profile)
{
    m_snapshotRecipe = recipes::of(profile == nullptr ? *m_imageProfile : *profile);
    const imaging::Rendering made = imaging::render(m_captured.image, m_snapshotRecipe);
    m_snapshotImage = made.image;
    m_ui->snapshotImageView->setImage(m_snapshotImage);
    showSnapshotSummary();
    return made.error;
}

void MainWindow::imageProfileUpdated(ImageProfile* profile)
{
    if (!m_captured.image.isNull()) {
        processFullFrameImage(profile);
    }
}

void MainWindow::resetSnapshot()
{
    m_captured = CapturedPicture();
    m_snapshotImage = QImage();
    m_isSnapshotKept = true;
    m_shownSnapshot.clear();
    m_wantedSnapshot.clear();
    m_filmstrip->setCurrent({});
    m_ui->snapshotImageView->setImage(m_snapshotImage);
    showSnapshotSummary();
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

/// What belongs to the file, and not to the picture, is up to the profile that is chosen now.
WriteResult MainWindow::writeSnapshot(const QString& path, ExistingFile existing)
{
    const ImageRecipe chosen = recipes::of(*m_imageProfile);
    ImageRecipe recipe = m_snapshotRecipe;
    recipe.jpegQuality = chosen.jpegQuality;
    recipe.metadata = chosen.metadata;
    recipe.keepsDeepColours = chosen.keepsDeepColours;
    recipe.keepsHdr = chosen.keepsHdr;
    recipe = forType(recipe, QFileInfo(path).suffix());
    // The file may hold more than the screen.
    const QImage image = imaging::wantsMore(m_captured, recipe)
                             ? imaging::render(imaging::pictureOf(m_captured, recipe), recipe).image
                             : m_snapshotImage;
    FilePublisher::sweep(QFileInfo(path).absolutePath());
    return imaging::save(path, image, recipe, m_fileNameProfile->fileOutputType(),
                         m_captured.source, existing);
}

bool MainWindow::saveSnapshot(QString path)
{
    const bool success = writeSnapshot(path, ExistingFile::Replace) == WriteResult::Written;
    reportSaving(path, success);
    return success;
}

/// The same, but never in place of another file.
WriteResult MainWindow::saveNewSnapshot(const QString& path)
{
    const WriteResult result = writeSnapshot(path, ExistingFile::Keep);
    reportSaving(path, result == WriteResult::Written);
    return result;
}

void MainWindow::reportSaving(const QString& path, bool success)
{
    qDebug() << (success ? "Save success" : "Save failure") << path;
    m_isSnapshotKept = m_isSnapshotKept || success;
    const QString shownPath = QDir::toNativeSeparators(path);
    if (success) {
        m_filmstrip->shelf().markSaved(m_shownSnapshot);
        m_lastSavedFile = QFileInfo(path).absoluteFilePath();
        offerToShowSavedFile();
    }
    const QString text = success ? tr("Saved %1") : tr("Could not save %1");
    statusBar()->showMessage(text.arg(shownPath), messageMs);
}

void MainWindow::saveWithAutomaticFileName()
{
    const QDir folder = folderIn(*m_ui->outputFolderLineEdit);
    if (!isOutputFolderUsable(folder)) {
        return;
    }
    auto result = WriteResult::AlreadyExists;
    while (result == WriteResult::AlreadyExists) {
        result = saveNewSnapshot(folder.absoluteFilePath(automaticFileName(folder)));
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
            tr("Please enter a valid output folder in the Automatic FileName section."),
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
    if (!m_snapshotImage.isNull()) {
        ImageProcessingManager::instance()->setToClipboard(m_snapshotImage.copy());
        m_isSnapshotKept = true;
    }
}

void MainWindow::on_actionCopy_Full_Frame_triggered()
{
    if (!m_captured.image.isNull()) {
        ImageProcessingManager::instance()->setToClipboard(m_captured.image.copy());
        m_isSnapshotKept = true;
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
