#include "ui/batch/BatchModeDialog.h"

#include "profiles/ProfileManager.h"
#include "tests/support/Samples.h"
#include "tests/ui/batch/ModeDialog.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "ui/batch/BatchProcessingDialog.h"
#include "ui/dialogs/FileNameProfileDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/widgets/SmartFileDialog.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QTextEdit>
#include <QUrl>

using testsupport::child;
using testsupport::endBatch;
using testsupport::ModalScript;
using testsupport::ModeDialog;
using testsupport::multiple;
using testsupport::samplePath;

namespace {

void makeFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("cannot make a file");
    }
}

const char* const folderField = "fileOutputFolderTextEdit";

void emptyFolder(const ModeDialog& mode)
{
    auto& field = mode.find<QLineEdit>(folderField);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
}

/// Chooses files of one folder and accepts, as their user would.
void chooseFiles(SmartFileDialog& dialog, const QString& folder, const QStringList& names)
{
    dialog.setDirectory(folder);
    child<QLineEdit>(dialog, "fileNameEdit")
        .setText(QLatin1Char('"') + names.join(QStringLiteral("\" \"")) + QLatin1Char('"'));
    static_cast<QDialog&>(dialog).accept();
}

/// Drags files over the list, which passes them on to the dialog. Returns whether it takes them.
bool drag(const ModeDialog& mode, QMimeData& data, const QList<QUrl>& urls,
          Qt::DropActions possible)
{
    data.setUrls(urls);
    QWidget* const viewport = mode.table().viewport();
    QDragEnterEvent enter({5, 5}, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
    enter.ignore();
    QCoreApplication::sendEvent(viewport->window(), &enter);
    return !viewport->acceptDrops() && enter.isAccepted() && enter.dropAction() == Qt::CopyAction;
}

/// Drops files on the list. Returns what the other program is told: nothing if they are refused.
Qt::DropAction drop(const ModeDialog& mode, const QList<QUrl>& urls,
                    Qt::DropActions possible = Qt::CopyAction)
{
    QMimeData data;
    if (!drag(mode, data, urls, possible)) {
        return Qt::IgnoreAction;
    }
    QDropEvent event({5, 5}, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
    event.ignore();
    QCoreApplication::sendEvent(mode.table().viewport()->window(), &event);
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
}

} // namespace

/// Batch mode and what it opens: files, folders, profiles, batches.
class BatchModeDialogFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void loadedVideos_areSelectedAlone();
    void loadedVideo_isProbed();
    void cancelledLoading_addsNothing();
    void droppedFiles_areLoaded_andFoldersAreNot();
    void droppedFiles_areNeverMoved();
    void draggedFiles_areNotLookedAt_beforeTheyAreDropped();
    void removal_takesTheSelectedOnes_data();
    void removal_takesTheSelectedOnes();
    void jobs_surviveTheirRemoval();
    void chosenFolder_goesIntoTheSelectedJobs();
    void emptiedFolder_becomesThatOfEachVideo_onceItIsLeft();
    void folderOfSeveral_isLeftAlone_whenItIsOnlyPassed();
    void relativeFolder_isTakenBack_data();
    void relativeFolder_isTakenBack();
    void relativeFolder_isTakenBack_whereJobsDiffer();
    void folderDialog_startsWhereItShould_data();
    void folderDialog_startsWhereItShould();
    void savedNameProfile_goesIntoTheSelectedJobs();
    void cancelledNameProfile_changesNothing();
    void savedImageProfile_goesIntoTheSelectedJobs();
    void cancelledImageProfile_changesNothing_whereJobsDiffer();
    void start_runsAllJobs_andKeepsTheList();
    void start_showsIntervalsThatWereCorrected();
    void cancel_closesTheDialog();
};

void BatchModeDialogFilesTest::initTestCase()
{
    // The platform's native file dialogs cannot be driven.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void BatchModeDialogFilesTest::loadedVideos_areSelectedAlone()
{
    ModeDialog mode;
    mode.load(2);
    QStringList names;
    for (const char* const name : {"x.mov", "y.mov", "z.mov"}) {
        names.append(QLatin1String(name));
        makeFile(mode.dir().filePath(names.last()));
    }
    ModalScript script;
    script.expect<SmartFileDialog>([&](SmartFileDialog& dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFiles);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QVERIFY(dialog.nameFilters().first().contains(QStringLiteral("*.mov")));
        chooseFiles(dialog, mode.dir().path(), names);
    });
    mode.click("loadVideoButton");
    QVERIFY(script.isDone());
    mode.waitUntilLoaded();
    QCOMPARE(mode.model().rowCount(), 5);
    QCOMPARE(mode.selectedRows(), (QList<int>{2, 3, 4}));
    QCOMPARE(mode.job(4).source(), mode.dir().filePath(QStringLiteral("z.mov")));
    QCOMPARE(mode.labelText("selectedVideoFileNameLabel"), QStringLiteral("[Multiple]"));
    QCOMPARE(mode.table().selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(QSettings().contains(QStringLiteral("openDialog_dialogPath")));
}

void BatchModeDialogFilesTest::loadedVideo_isProbed()
{
    ModeDialog mode;
    mode.load({samplePath(QStringLiteral("h264_gop250.mp4"))});
    QCOMPARE(mode.job(0).videoInfo().duration, 20800);
}

void BatchModeDialogFilesTest::cancelledLoading_addsNothing()
{
    ModeDialog mode;
    mode.load(1);
    ModalScript script;
    script.expect<SmartFileDialog>(
        [](SmartFileDialog& dialog) { static_cast<QDialog&>(dialog).reject(); });
    mode.click("loadVideoButton");
    QVERIFY(script.isDone());
    QCOMPARE(mode.model().rowCount(), 1);
    QCOMPARE(mode.selectedRows(), QList<int>{0});
}

void BatchModeDialogFilesTest::droppedFiles_areLoaded_andFoldersAreNot()
{
    ModeDialog mode;
    const QString path = mode.dir().filePath(QStringLiteral("dropped.mov"));
    makeFile(path);
    QCOMPARE(drop(mode, {QUrl::fromLocalFile(mode.dir().path())}), Qt::IgnoreAction);
    QCOMPARE(drop(mode, {QUrl(QStringLiteral("https://morvantile.example/video.mov"))}),
             Qt::IgnoreAction);
    QCOMPARE(mode.model().rowCount(), 0);
    QCOMPARE(drop(mode, {QUrl::fromLocalFile(path), QUrl::fromLocalFile(mode.dir().path())}),
             Qt::CopyAction);
    mode.waitUntilLoaded();
    QCOMPARE(mode.model().rowCount(), 1);
    QCOMPARE(mode.job(0).source(), path);
    QCOMPARE(mode.selectedRows(), QList<int>{0});
}

/// The other program would delete them after that.
void BatchModeDialogFilesTest::droppedFiles_areNeverMoved()
{
    ModeDialog mode;
    const QString path = mode.dir().filePath(QStringLiteral("dropped.mov"));
    makeFile(path);
    QCOMPARE(drop(mode, {QUrl::fromLocalFile(path)}, Qt::CopyAction | Qt::MoveAction),
             Qt::CopyAction);
    mode.waitUntilLoaded();
    QCOMPARE(mode.model().rowCount(), 1);
}

/// Their disk may be slow.
void BatchModeDialogFilesTest::draggedFiles_areNotLookedAt_beforeTheyAreDropped()
{
    ModeDialog mode;
    const QList<QUrl> missing{
        QUrl::fromLocalFile(mode.dir().filePath(QStringLiteral("missing.mov")))};
    QMimeData data;
    QVERIFY(drag(mode, data, missing, Qt::CopyAction));
    QCOMPARE(drop(mode, missing), Qt::IgnoreAction);
    QCOMPARE(mode.model().rowCount(), 0);
}

void BatchModeDialogFilesTest::removal_takesTheSelectedOnes_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << "button";
    QTest::newRow("delete") << "delete";
}

void BatchModeDialogFilesTest::removal_takesTheSelectedOnes()
{
    QFETCH(const QString, way);
    ModeDialog mode;
    mode.load(4);
    mode.select({2, 0});
    if (way == QLatin1String("button")) {
        mode.click("removeVideoButton");
    } else {
        QVERIFY(testsupport::showActive(mode.dialog()));
        mode.table().setFocus();
        QTest::keyClick(&mode.table(), Qt::Key_Delete);
    }
    QCOMPARE(mode.model().rowCount(), 2);
    QCOMPARE(mode.job(0).sourceFileName(), QStringLiteral("b"));
    QCOMPARE(mode.job(1).sourceFileName(), QStringLiteral("d"));
    QVERIFY(mode.find<QPushButton>("startButton").isEnabled());
}

void BatchModeDialogFilesTest::jobs_surviveTheirRemoval()
{
    ModeDialog mode;
    mode.load(1);
    const BatchWorkerConfig& job = mode.job(0);
    mode.click("removeVideoButton");
    QCOMPARE(job.sourceFileName(), QStringLiteral("a"));
}

void BatchModeDialogFilesTest::chosenFolder_goesIntoTheSelectedJobs()
{
    ModeDialog mode;
    mode.load(2);
    QVERIFY(QDir(mode.dir().path()).mkdir(QStringLiteral("images")));
    const QString folder = mode.dir().filePath(QStringLiteral("images"));
    ModalScript script;
    script.expect<SmartFileDialog>([&folder](SmartFileDialog& dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::Directory);
        QVERIFY(dialog.testOption(QFileDialog::ShowDirsOnly));
        child<QLineEdit>(dialog, "fileNameEdit").setText(folder);
        static_cast<QDialog&>(dialog).accept();
    });
    mode.click("fileOutputFolderSelectButton");
    QVERIFY(script.isDone());
    QCOMPARE(mode.text("fileOutputFolderTextEdit"), folder);
    QCOMPARE(mode.job(0).fileOutputPath(), folder);
    QCOMPARE(mode.job(1).fileOutputPath(), folder);
    QVERIFY(QSettings().contains(QStringLiteral("batchOutputFolder_dialogPath")));
}

void BatchModeDialogFilesTest::emptiedFolder_becomesThatOfEachVideo_onceItIsLeft()
{
    ModeDialog mode;
    const QString other = mode.dir().filePath(QStringLiteral("other"));
    QVERIFY(QDir().mkpath(other));
    const QStringList videos{mode.dir().filePath(QStringLiteral("a.mov")),
                             other + QStringLiteral("/b.mov")};
    for (const QString& video : videos) {
        makeFile(video);
    }
    mode.load(videos);
    mode.enter(folderField, QStringLiteral("/tmp"));
    QCOMPARE(mode.job(1).fileOutputPath(), QStringLiteral("/tmp"));
    emptyFolder(mode);
    // More may be typed.
    QCOMPARE(mode.job(1).fileOutputPath(), QStringLiteral("/tmp"));
    QTest::keyClick(&mode.find<QLineEdit>(folderField), Qt::Key_Return);
    QCOMPARE(mode.job(0).fileOutputPath(), mode.dir().path());
    QCOMPARE(mode.job(1).fileOutputPath(), other);
    QCOMPARE(mode.text(folderField), QString());
    QCOMPARE(mode.placeholder(folderField), multiple);
    mode.select({1});
    QCOMPARE(mode.text(folderField), other);
}

void BatchModeDialogFilesTest::folderOfSeveral_isLeftAlone_whenItIsOnlyPassed()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(0).setFileOutputPath(QStringLiteral("/tmp"));
    mode.select({0, 1});
    QTest::keyClick(&mode.find<QLineEdit>(folderField), Qt::Key_Return);
    QCOMPARE(mode.job(0).fileOutputPath(), QStringLiteral("/tmp"));
    QCOMPARE(mode.placeholder(folderField), multiple);
}

void BatchModeDialogFilesTest::relativeFolder_isTakenBack_data()
{
    QTest::addColumn<QString>("typed");
    for (const char* const typed : {"pictures", "./pictures", "../pictures", "~/pictures", " "}) {
        QTest::newRow(typed) << QString::fromLatin1(typed);
    }
}

void BatchModeDialogFilesTest::relativeFolder_isTakenBack()
{
    QFETCH(const QString, typed);
    ModeDialog mode;
    mode.load(1);
    mode.enter(folderField, QStringLiteral("/tmp"));
    mode.type(folderField, typed);
    QCOMPARE(mode.job(0).fileOutputPath(), QStringLiteral("/tmp"));
    mode.enter(folderField, typed);
    QCOMPARE(mode.text(folderField), QStringLiteral("/tmp"));
    emptyFolder(mode);
    mode.enter(folderField, typed);
    QCOMPARE(mode.text(folderField), QStringLiteral("/tmp"));
    QCOMPARE(mode.job(0).fileOutputPath(), QStringLiteral("/tmp"));
}

void BatchModeDialogFilesTest::relativeFolder_isTakenBack_whereJobsDiffer()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(0).setFileOutputPath(QStringLiteral("/tmp"));
    mode.select({0, 1});
    mode.enter(folderField, QStringLiteral("pictures"));
    QCOMPARE(mode.text(folderField), QString());
    QCOMPARE(mode.placeholder(folderField), multiple);
    QCOMPARE(mode.job(0).fileOutputPath(), QStringLiteral("/tmp"));
    QCOMPARE(mode.job(1).fileOutputPath(), mode.dir().path());
}

void BatchModeDialogFilesTest::folderDialog_startsWhereItShould_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("existing folder") << "/usr/share" << true;
    QTest::newRow("missing folder") << "/nowhere/to/be/found" << false;
    QTest::newRow("nothing typed") << "" << false;
}

void BatchModeDialogFilesTest::folderDialog_startsWhereItShould()
{
    QFETCH(const QString, typed);
    QFETCH(const bool, isThere);
    ModeDialog mode;
    mode.load(1);
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(typed);
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QVERIFY(QDir().mkpath(desktop));
    ModalScript script;
    script.expect<SmartFileDialog>([&](SmartFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), isThere ? typed : desktop);
        static_cast<QDialog&>(dialog).reject();
    });
    mode.click("fileOutputFolderSelectButton");
    QVERIFY(script.isDone());
    QCOMPARE(mode.text("fileOutputFolderTextEdit"), typed);
}

void BatchModeDialogFilesTest::savedNameProfile_goesIntoTheSelectedJobs()
{
    ModeDialog mode;
    mode.load(3);
    mode.select({0, 1});
    const int profiles = FileNameProfile::profileManager()->profiles().size();
    ModalScript script;
    script.expect<FileNameProfileDialog>([](FileNameProfileDialog& dialog) {
        QCOMPARE(dialog.selectedProfile()->name(), QStringLiteral("One"));
        testsupport::typeProfileName(dialog, QStringLiteral("Made"));
        child<QLineEdit>(dialog, "formatPrefixLineEdit").setText(QStringLiteral("shot_"));
        child<QPushButton>(dialog, "saveButton").click();
    });
    mode.click("filenameProfileEditButton");
    QVERIFY(script.isDone());
    QCOMPARE(FileNameProfile::profileManager()->profiles().size(), profiles + 1);
    QCOMPARE(mode.job(0).filenameProfile()->name(), QStringLiteral("Made"));
    QCOMPARE(mode.job(1).filenameForCounter(1), QStringLiteral("shot_b-00001.jpeg"));
    QCOMPARE(mode.job(2).filenameProfile()->name(), QStringLiteral("One"));
    QCOMPARE(mode.comboText("filenameProfileComboBox"), QStringLiteral("Made"));
    QVERIFY(mode.find<QPushButton>("filenameProfileEditButton").isEnabled());
}

void BatchModeDialogFilesTest::cancelledNameProfile_changesNothing()
{
    ModeDialog mode;
    mode.load(2);
    ModalScript script;
    script.expect<FileNameProfileDialog>([](FileNameProfileDialog& dialog) { dialog.reject(); });
    mode.click("filenameProfileEditButton");
    QVERIFY(script.isDone());
    QCOMPARE(mode.job(0).filenameProfile()->name(), QStringLiteral("One"));
    QCOMPARE(mode.comboText("filenameProfileComboBox"), QStringLiteral("One"));
    QCOMPARE(mode.selectedRows(), (QList<int>{0, 1}));
}

void BatchModeDialogFilesTest::savedImageProfile_goesIntoTheSelectedJobs()
{
    ModeDialog mode;
    mode.load(3);
    mode.select({0, 1});
    const int profiles = ImageProfile::profileManager()->profiles().size();
    ModalScript script;
    script.expect<ImageProfileDialog>([](ImageProfileDialog& dialog) {
        QCOMPARE(dialog.selectedProfile()->name(), QStringLiteral("One"));
        testsupport::typeProfileName(dialog, QStringLiteral("Small"));
        child<QLineEdit>(dialog, "imageWidthLineEdit").setText(QStringLiteral("64"));
        child<QPushButton>(dialog, "saveButton").click();
    });
    mode.click("imageProfileEditButton");
    QVERIFY(script.isDone());
    QCOMPARE(ImageProfile::profileManager()->profiles().size(), profiles + 1);
    QCOMPARE(mode.job(0).imageProfile()->name(), QStringLiteral("Small"));
    QCOMPARE(mode.job(1).imageProfile()->imageWidth(), 64);
    QCOMPARE(mode.job(2).imageProfile()->name(), QStringLiteral("One"));
    QCOMPARE(mode.comboText("imageProfileComboBox"), QStringLiteral("Small"));
}

/// The button requires a common profile, so this bypasses it.
void BatchModeDialogFilesTest::cancelledImageProfile_changesNothing_whereJobsDiffer()
{
    ModeDialog mode;
    mode.load(2);
    mode.select({1});
    mode.choose("imageProfileComboBox", 2);
    mode.select({0, 1});
    ModalScript script;
    script.expect<ImageProfileDialog>([](ImageProfileDialog& dialog) {
        QVERIFY(dialog.selectedProfile() == nullptr);
        dialog.reject();
    });
    QVERIFY(QMetaObject::invokeMethod(&mode.dialog(), "on_imageProfileEditButton_clicked"));
    QVERIFY(script.isDone());
    QCOMPARE(mode.job(0).imageProfile()->name(), QStringLiteral("One"));
    QCOMPARE(mode.job(1).imageProfile()->name(), QStringLiteral("Two"));
    QCOMPARE(mode.comboText("imageProfileComboBox"), QStringLiteral("[Multiple]"));
}

void BatchModeDialogFilesTest::start_runsAllJobs_andKeepsTheList()
{
    ModeDialog mode;
    mode.load(
        {samplePath(QStringLiteral("mpeg4.mp4")), samplePath(QStringLiteral("h264_bframes.mp4"))});
    mode.load(1);
    mode.click("selectAllVideoButton");
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(mode.dir().path());
    mode.click("intervalSingleShotRadioButton");
    mode.select({0});
    QString log;
    ModalScript script;
    script.expect<BatchProcessingDialog>([&](BatchProcessingDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), &mode.dialog());
        endBatch(dialog);
        log = child<QTextEdit>(dialog, "logTextEdit").toPlainText();
    });
    mode.click("startButton");
    QVERIFY(script.isDone());
    QCOMPARE(QDir(mode.dir().path()).entryList({QStringLiteral("*.jpeg")}),
             (QStringList{QStringLiteral("h264_bframes-.jpeg"), QStringLiteral("mpeg4-.jpeg")}));
    QCOMPARE(log, mode.file(2) +
                      QStringLiteral(": Could not open file\nFinished: 2 images, 1 failed\n"));
    QCOMPARE(mode.model().rowCount(), 3);
    QCOMPARE(mode.selectedRows(), QList<int>{0});
}

/// One image of many is a single shot, and the worker converts it.
void BatchModeDialogFilesTest::start_showsIntervalsThatWereCorrected()
{
    ModeDialog mode;
    mode.load({samplePath(QStringLiteral("mpeg4.mp4"))});
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(mode.dir().path());
    mode.enter("intervalImagesTextEdit", QStringLiteral("1"));
    ModalScript script;
    script.expect<BatchProcessingDialog>(endBatch);
    mode.click("startButton");
    QVERIFY(script.isDone());
    QVERIFY(mode.isChecked("intervalSingleShotRadioButton"));
    QCOMPARE(mode.text("intervalImagesTextEdit"), QStringLiteral("10"));
}

void BatchModeDialogFilesTest::cancel_closesTheDialog()
{
    ModeDialog mode;
    QVERIFY(testsupport::showActive(mode.dialog()));
    mode.click("cancelButton");
    QVERIFY(!mode.dialog().isVisible());
}

QTEST_MAIN(BatchModeDialogFilesTest)
#include "BatchModeDialogFilesTest.moc"
