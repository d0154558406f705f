#include "tests/ui/batch/ModeDialog.h"

#include "profiles/ProfileManager.h"
#include "tests/support/Patience.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "ui/batch/BatchProcessingDialog.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QFile>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>

namespace testsupport {

namespace {

constexpr int longestLoadingMs = 30000;

/// The managers live as long as the program; every case finds these profiles, with the first one
/// last used.
template <typename Profile>
void useTwoProfiles()
{
    ProfileManager& manager = *Profile::profileManager();
    while (manager.profiles().size() < 2) {
        manager.addProfile(manager.createProfile());
    }
    manager.profiles().at(0)->setName(QStringLiteral("One"));
    manager.profiles().at(1)->setName(QStringLiteral("Two"));
    manager.setLastUsedProfile(manager.profiles().at(0));
}

} // namespace

ModeDialog::Profiles::Profiles(const TestDir& dir)
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir.filePath(QStringLiteral("config"))));
    useTwoProfiles<ImageProfile>();
    useTwoProfiles<FileNameProfile>();
}

void endBatch(BatchProcessingDialog& dialog)
{
    auto& button = child<QPushButton>(dialog, "doneButton");
    QTRY_COMPARE_WITH_TIMEOUT(button.text(), QStringLiteral("Done"), patienceMs);
    button.click();
}

ModeDialog::ModeDialog()
    : m_profiles(m_settings.dir())
{}

BatchModeListModel& ModeDialog::model() const
{
    return *static_cast<BatchModeListModel*>(table().model());
}

QString ModeDialog::file(int row) const
{
    return dir().filePath(QString(QLatin1Char(static_cast<char>('a' + row % 26))) +
                          QString(row / 26, QLatin1Char('x')) + QStringLiteral(".mov"));
}

void ModeDialog::load(int count)
{
    QStringList files;
    for (int row = model().rowCount(); files.size() < count; ++row) {
        QFile made(file(row));
        if (!made.open(QIODevice::WriteOnly)) {
            qFatal("cannot make a file");
        }
        files.append(made.fileName());
    }
    load(files);
}

void ModeDialog::load(const QStringList& files)
{
    m_dialog.loadVideos(files);
    waitUntilLoaded();
}

void ModeDialog::waitUntilLoaded()
{
    if (!QTest::qWaitFor([this] { return !m_dialog.isLoading(); }, longestLoadingMs)) {
        qFatal("the videos are still being read");
    }
}

void ModeDialog::select(const QList<int>& rows) const
{
    QItemSelectionModel& selection = *table().selectionModel();
    selection.clearSelection();
    for (const int row : rows) {
        selection.select(model().index(row, 0),
                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

QList<int> ModeDialog::selectedRows() const
{
    QList<int> rows;
    const QModelIndexList indexes = table().selectionModel()->selectedRows(0);
    for (const QModelIndex& index : indexes) {
        rows.append(index.row());
    }
    return rows;
}

void ModeDialog::type(const char* edit, const QString& text) const
{
    auto& line = find<QLineEdit>(edit);
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, text);
}

void ModeDialog::enter(const char* edit, const QString& text) const
{
    type(edit, text);
    QTest::keyClick(&find<QLineEdit>(edit), Qt::Key_Return);
}

QString ModeDialog::text(const char* edit) const
{
    return find<QLineEdit>(edit).text();
}

QString ModeDialog::placeholder(const char* edit) const
{
    return find<QLineEdit>(edit).placeholderText();
}

QString ModeDialog::comboText(const char* name) const
{
    return find<QComboBox>(name).currentText();
}

void ModeDialog::choose(const char* comboBox, int index) const
{
    auto& box = find<QComboBox>(comboBox);
    box.showPopup();
    box.view()->setCurrentIndex(box.model()->index(index, box.modelColumn()));
    QTest::keyClick(box.view(), Qt::Key_Return);
}

bool ModeDialog::isChecked(const char* radioButton) const
{
    return find<QRadioButton>(radioButton).isChecked();
}

void ModeDialog::click(const char* button) const
{
    find<QAbstractButton>(button).click();
}

QStringList ModeDialog::enabledOnes() const
{
    QStringList enabled;
    for (const char* const name :
         {"removeVideoButton", "selectedVideoGroupBox", "imageProfileGroupBox", "intervalGroupBox",
          "skipGroupBox", "fileOutputGroupBox", "imageProfileComboBox", "fileOutputFolderTextEdit",
          "filenameProfileComboBox", "intervalMillisecondsRadioButton", "intervalImagesRadioButton",
          "intervalSingleShotRadioButton", "intervalMillisecondsTextEdit", "intervalImagesTextEdit",
          "intervalSingleShotComboBox", "skipFrontTextEdit", "skipBackTextEdit"}) {
        if (find<QWidget>(name).isEnabled()) {
            enabled.append(QLatin1String(name));
        }
    }
    return enabled;
}

QVariantMap ModeDialog::defaults() const
{
    const QSettings settings(
        ProfileManager::getSettingsPath(QStringLiteral("batchModeDefaults.ini")),
        QSettings::IniFormat);
    QVariantMap values;
    const QStringList keys = settings.allKeys();
    for (const QString& key : keys) {
        values.insert(key, settings.value(key));
    }
    return values;
}

} // namespace testsupport
