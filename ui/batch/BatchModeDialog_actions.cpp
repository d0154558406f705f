// What batch mode opens: videos, folders, profiles and batches.

#include "ui/batch/BatchModeDialog.h"

#include "batch/BatchModeListModel.h"
#include "batch/BatchWorkerConfig.h"
#include "profiles/ProfileManager.h"
#include "ui/batch/BatchProcessingDialog.h"
#include "ui/dialogs/FileNameProfileDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/widgets/SmartFileDialog.h"
#include "ui_BatchModeDialog.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace {

/// Shows the cursor that asks for patience while it lives.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

QStringList localFiles(const QMimeData& data)
{
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

/// What all the jobs have for a profile; null where they differ.
template <typename Getter>
auto common(const QList<BatchWorkerConfig*>& configs, Getter profileOf)
{
    auto* const first = configs.isEmpty() ? nullptr : profileOf(*configs.first());
    const bool isCommon =
        std::all_of(configs.cbegin(), configs.cend(),
                    [&](const BatchWorkerConfig* config) { return profileOf(*config) == first; });
    return isCommon ? first : nullptr;
}

/// The profile of the combo box's item; null for none.
BaseProfile* profileAt(const QComboBox& comboBox, int index, const ProfileManager& manager)
{
    return index > 0 ? manager.profileForId(comboBox.itemData(index).toString()) : nullptr;
}

} // namespace

void BatchModeDialog::on_loadVideoButton_clicked()
{
    saveBatchWorkerConfigDefault();
    SmartFileDialog dialog(this, QStringLiteral("openDialog"));
    dialog.setFiltersToVideo();
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (dialog.exec() == QDialog::Accepted) {
        addVideos(dialog.selectedFiles());
    }
}

void BatchModeDialog::loadVideos(const QStringList& files)
{
    saveBatchWorkerConfigDefault();
    addVideos(files);
}

void BatchModeDialog::addVideos(const QStringList& files)
{
    if (files.isEmpty()) {
        return;
    }
    const int first = m_model->rowCount();
    {
        const WaitCursor waitCursor;
        for (const QString& file : files) {
            auto* const config = new BatchWorkerConfig(this);
            config->loadFromLastUsed();
            config->setSource(file);
            config->loadVideoInfo();
            m_model->addConfig(config);
        }
    }
    const QItemSelection rows(m_model->index(first, 0), m_model->index(m_model->rowCount() - 1, 0));
    QItemSelectionModel& selection = *m_ui->filesTableView->selectionModel();
    selection.setCurrentIndex(m_model->index(first, 0), QItemSelectionModel::NoUpdate);
    // In one go: the form is filled anew with each change.
    selection.select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void BatchModeDialog::on_removeVideoButton_clicked()
{
    QItemSelectionModel& selection = *m_ui->filesTableView->selectionModel();
    const QModelIndexList rows = selection.selectedRows(0);
    // Or else the form would be filled anew with each removal.
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
    ProfileManager& manager = *ImageProfile::profileManager();
    if (auto* const profile = profileAt(*m_ui->imageProfileComboBox, index, manager)) {
        manager.setLastUsedProfile(profile);
    }
}

void BatchModeDialog::on_filenameProfileComboBox_currentIndexChanged(int index)
{
    m_ui->filenameProfileEditButton->setEnabled(index != 0);
    ProfileManager& manager = *FileNameProfile::profileManager();
    if (auto* const profile = profileAt(*m_ui->filenameProfileComboBox, index, manager)) {
        manager.setLastUsedProfile(profile);
    }
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
        // Null, when there was no common one and none was saved, changes nothing.
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

/// For changes that come from elsewhere, and may concern jobs that are not selected.
void BatchModeDialog::showJobsAnew()
{
    const QList<BatchWorkerConfig*> configs = m_model->getConfigs();
    for (BatchWorkerConfig* const config : configs) {
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

void BatchModeDialog::on_startButton_clicked()
{
    saveBatchWorkerConfigDefault();
    BatchProcessingDialog dialog(this);
    const QList<BatchWorkerConfig*> configs = m_model->getConfigs();
    for (BatchWorkerConfig* const config : configs) {
        dialog.addWorkerWithConfig(config);
    }
    dialog.exec();
    // The workers may have corrected intervals.
    showJobsAnew();
}

void BatchModeDialog::on_cancelButton_clicked()
{
    close();
}

void BatchModeDialog::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void BatchModeDialog::dropEvent(QDropEvent* event)
{
    loadVideos(localFiles(*event->mimeData()));
    event->acceptProposedAction();
}
