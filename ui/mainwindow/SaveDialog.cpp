#include "ui/mainwindow/SaveDialog.h"

#include "imaging/ImageFormats.h"
#include "ui/mainwindow/SavePath.h"
#include "ui/widgets/DiskTask.h"
#include "ui/widgets/PlainText.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>

#include <atomic>
#include <memory>

namespace {

const QString videoFolderKey = QStringLiteral("lastOpenDir");
const QString folderKey = QStringLiteral("lastSaveDir");

/// Whether the folder exists, and is not the other one. If the disk does not tell within a moment,
/// it counts as that, so that the user's choice stays.
bool isThereBeside(const QDir& other, const QString& folder)
{
    const auto answer = std::make_shared<std::atomic<bool>>(true);
    // Paths, because objects of Qt's folders share what they know.
    const auto ask = [other = other.path(), folder, answer] {
        *answer = QDir(folder).exists() && QDir(folder) != QDir(other);
    };
    static_cast<void>(DiskTask::endsSoon(ask));
    return *answer;
}

} // namespace

SaveDialog::SaveDialog(QSettings& settings)
    : m_settings(settings)
    , m_videoFolder(settings.value(videoFolderKey, QDir::homePath()).toString())
    , m_folder(m_videoFolder)
{}

void SaveDialog::makeIn(QWidget& window)
{
    m_window = &window;
}

/// Not made before it is needed: Qt's dialog goes to its own last folder at once, whose disk may
/// not answer.
void SaveDialog::prepareDialog()
{
    if (m_dialog != nullptr) {
        return;
    }
    m_dialog = new QFileDialog(m_window);
    m_dialog->setObjectName(QStringLiteral("saveDialog"));
    m_dialog->setNameFilters(SavePath::nameFilters());
    m_dialog->setAcceptMode(QFileDialog::AcceptSave);
}

void SaveDialog::restoreFolder()
{
    const QString stored = m_settings.value(folderKey).toString();
    if (!stored.isEmpty() && isThereBeside(m_videoFolder, stored)) {
        m_folder = QDir(stored);
    }
}

void SaveDialog::followName(const QFileInfo& video)
{
    const QString suffix = QFileInfo(m_fileName).suffix();
    m_fileName = video.completeBaseName();
    if (!suffix.isEmpty()) {
        m_fileName += QLatin1Char('.') + suffix;
    }
}

void SaveDialog::followFolder(const QFileInfo& video)
{
    if (isThereBeside(m_videoFolder, m_folder.path())) {
        return;
    }
    m_videoFolder = video.absoluteDir();
    m_folder = m_videoFolder;
    m_settings.setValue(videoFolderKey, m_videoFolder.absolutePath());
    storeFolder();
}

QString SaveDialog::ask(const QFileInfo& video)
{
    prepareDialog();
    m_dialog->setDirectory(m_folder);
    if (!m_nameFilter.isEmpty()) {
        m_dialog->selectNameFilter(m_nameFilter);
    }
    m_dialog->selectFile(SavePath::nextFree(m_folder, m_fileName, m_dialog->selectedNameFilter(),
                                            video.completeBaseName()));
    if (m_dialog->exec() != QDialog::Accepted) {
        return {};
    }
    const QString chosen = m_dialog->selectedFiles().value(0);
    const QString path = SavePath::completed(chosen, m_dialog->selectedNameFilter());
    // The dialog asked about replacing the file of the name as it was typed.
    const bool isUnasked = path != chosen && QFileInfo::exists(path);
    return isUnasked && !isReplacingWanted(path) ? QString() : path;
}

bool SaveDialog::isReplacingWanted(const QString& path) const
{
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("MainWindow", text);
    };
    const QString question =
        translated(
            QT_TRANSLATE_NOOP("MainWindow", "%1 already exists.\nDo you want to replace it?"))
            .arg(QFileInfo(path).fileName());
    return QMessageBox::question(m_window,
                                 translated(QT_TRANSLATE_NOOP("MainWindow", "Save Snapshot")),
                                 asPlainText(question), QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

void SaveDialog::noteSaved(const QString& path)
{
    // Not the one that the dialog shows: the name may have been typed with another.
    m_folder = QFileInfo(path).absoluteDir();
    m_fileName = QFileInfo(path).fileName();
    m_nameFilter = m_dialog->selectedNameFilter();
    storeFolder();
}

void SaveDialog::storeFolder()
{
    const bool isChosen = m_folder != m_videoFolder;
    m_settings.setValue(folderKey, isChosen ? m_folder.absolutePath() : QString());
}

QString SaveDialog::folder() const
{
    return m_folder.absolutePath();
}

QString SaveDialog::type() const
{
    const QString suffix = QFileInfo(m_fileName).suffix();
    if (ImageFormats::canWrite(suffix)) {
        return suffix;
    }
    const QString filter =
        m_nameFilter.isEmpty() ? SavePath::nameFilters().constFirst() : m_nameFilter;
    return QFileInfo(SavePath::completed(QStringLiteral("a"), filter)).suffix();
}
