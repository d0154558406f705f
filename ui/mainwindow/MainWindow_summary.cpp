// What will be saved: the line under the snapshot, and the button for the video's own size.

#include "ui/mainwindow/MainWindow.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/ReadyProfiles.h"
#include "ui/mainwindow/SaveDialog.h"
#include "ui/mainwindow/SnapshotSummary.h"
#include "ui_MainWindow.h"

/// The selection also updates the snapshot, because what is shown is what is saved.
void MainWindow::selectImageProfile(ImageProfile& profile)
{
    m_imageProfile = &profile;
    followImageProfile();
    imageProfileUpdated(m_imageProfile);
}

void MainWindow::on_originalSizeButton_clicked()
{
    ProfileManager& manager = *ImageProfile::profileManager();
    manager.setLastUsedProfile(ReadyProfiles::inOriginalSize(*m_imageProfile, manager));
    loadImageProfileComboBox();
    imageProfileUpdated(m_imageProfile);
    m_ui->videoFrame->setFocus();
}

/// The suffix of the next saved file, as far as it is known before a name is chosen.
QString MainWindow::typeToSave() const
{
    if (m_ui->automaticFileNameGroupBox->isChecked()) {
        return m_fileNameProfile->fileOutputType();
    }
    return m_saveDialog->type();
}

void MainWindow::showSnapshotSummary()
{
    const bool isShown = !m_snapshotImage.isNull();
    const bool hasOtherSize = m_snapshotImage.size() != m_captured.image.size();
    // The button is only disabled, so that the picture above keeps its size.
    m_ui->originalSizeButton->setEnabled(isShown && hasOtherSize);
    m_ui->snapshotImageView->setAccessibleDescription(isShown ? m_capturedPlace : QString());
    m_ui->snapshotSummaryLabel->setText(
        isShown ? SnapshotSummary::text(m_snapshotImage.size(), m_captured.image.size(),
                                        typeToSave(), m_snapshotRecipe)
                : QString());
    m_ui->originalSizeButton->fit();
}
