// The actions of batch mode: choosing folders, editing profiles, running batches.

#include "ui/batch/BatchModeDialog.h"

#include "batch/BatchModeListModel.h"
#include "batch/BatchWorkerConfig.h"
#include "profiles/ProfileManager.h"
#include "ui/dialogs/FileNameProfileDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/widgets/SmartFileDialog.h"
#include "ui_BatchModeDialog.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

/// The profile that all jobs share; null if they differ.
template <typename Getter>
auto common(const QList<BatchWorkerConfig*>& configs, Getter profileOf)
{
    auto* const first = configs.isEmpty() ? nullptr : profileOf(*configs.first());
    const bool isCommon =
        std::all_of(configs.cbegin(), configs.cend(),
                    [&](const BatchWorkerConfig* config) { return profileOf(*config) == first; });
    return isCommon ? first : nullptr;
}

} // namespace

void BatchModeDialog::on_removeVideoButton_clicked()
{
    QItemSelectionModel& selection = *m_ui->filesTableView->selectionModel();
    const QModelIndexList rows = selection.selectedRows(0);
    // Otherwise each removal would refill the form.
    selection.clearSelection();
    m_model->removeRows(rows);
    updateFieldsEnabled();
}

void BatchModeDialog::on_selectAllVideoButton_clicked()
{
    m_ui->filesTableView->selectAll();
    m_ui->filesTableView->setFocus();
}

void BatchModeDialog::on_fileOutputFolderSelectButton_clicked()
{
    SmartFileDialog dialog(this, QStringLiteral("batchOutputFolder"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    const QString typed = m_ui->fileOutputFolderTextEdit->text();
    const bool canStartThere = !typed.isEmpty() && QDir(typed).exists();
    dialog.setDirectory(
        canStartThere ? typed : QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    if (dialog.exec() == QDialog::Accepted) {
        const QDir chosen(dialog.selectedFiles().value(0));
        m_ui->fileOutputFolderTextEdit->setText(QDir::toNativeSeparators(chosen.absolutePath()));
    }
}

void BatchModeDialog::on_imageProfileComboBox_currentIndexChanged(int index)
{
    m_ui->imageProfileEditButton->setEnabled(index != 0);
}

void BatchModeDialog::on_filenameProfileComboBox_currentIndexChanged(int index)
{
    m_ui->filenameProfileEditButton->setEnabled(index != 0);
}

void BatchModeDialog::on_filenameProfileComboBox_activated(QString const& /*text*/)
{
    loadFormValues();
}

void BatchModeDialog::on_imageProfileEditButton_clicked()
{
    const QList<BatchWorkerConfig*> configs = getSelectedConfigs();
    ImageProfileDialog dialog(this);
    dialog.setSelectedProfile(
        common(configs, [](const BatchWorkerConfig& config) { return config.imageProfile(); }));
    dialog.exec();
    for (BatchWorkerConfig* const config : configs) {
        // Null, if there was no common profile and none was saved, has no effect.
        config->setImageProfile(dialog.selectedProfile());
    }
    loadProfileComboBox(m_ui->imageProfileComboBox, ImageProfile::profileManager());
    showJobsAnew();
}

void BatchModeDialog::on_filenameProfileEditButton_clicked()
{
    const QList<BatchWorkerConfig*> configs = getSelectedConfigs();
    FileNameProfileDialog dialog(this);
    dialog.setSelectedProfile(
        common(configs, [](const BatchWorkerConfig& config) { return config.filenameProfile(); }));
    if (!configs.isEmpty()) {
        dialog.setExampleFileName(QFileInfo(configs.first()->source()).fileName());
    }
    dialog.exec();
    for (BatchWorkerConfig* const config : configs) {
        config->setFileNameProfile(dialog.selectedProfile());
    }
    loadProfileComboBox(m_ui->filenameProfileComboBox, FileNameProfile::profileManager());
    showJobsAnew();
}

/// For changes made elsewhere, which may affect jobs that are not selected. The last used profile
/// replaces a deleted one.
void BatchModeDialog::showJobsAnew()
{
    ProfileManager& images = *ImageProfile::profileManager();
    ProfileManager& names = *FileNameProfile::profileManager();
    const QList<BatchWorkerConfig*> configs = m_model->getConfigs();
    for (BatchWorkerConfig* const config : configs) {
        if (images.profileForId(config->imageProfileId()) == nullptr) {
            config->setImageProfile(qobject_cast<ImageProfile*>(images.lastUsedProfile()));
        }
        if (names.profileForId(config->filenameProfileId()) == nullptr) {
            config->setFileNameProfile(qobject_cast<FileNameProfile*>(names.lastUsedProfile()));
        }
        m_model->configUpdated(config);
    }
    loadFormValues();
}

void BatchModeDialog::saveBatchWorkerConfigDefault()
{
    QList<BatchWorkerConfig*> configs = getSelectedConfigs();
    if (configs.isEmpty()) {
        configs = m_model->getConfigs();
    }
    if (!configs.isEmpty()) {
        configs.last()->saveAsDefault();
    }
}

void BatchModeDialog::on_cancelButton_clicked()
{
    close();
}
