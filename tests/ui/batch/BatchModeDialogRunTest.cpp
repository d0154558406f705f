#include "ui/batch/BatchModeDialog.h"

#include "tests/support/GrowingVideo.h"
#include "tests/support/Samples.h"
#include "tests/ui/batch/ModeDialog.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/ui/support/ShownText.h"
#include "ui/batch/BatchProcessingDialog.h"

#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTextEdit>

using testsupport::child;
using testsupport::endBatch;
using testsupport::ModalScript;
using testsupport::ModeDialog;
using testsupport::samplePath;
using testsupport::shownText;
using testsupport::writeGrowingVideo;

/// Before and after a batch: the questions asked, and what remains.
class BatchModeDialogRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void images_areEstimated_inTheListAndInSum();
    void manyImages_areAskedAbout();
    void missingFolder_isMade_whenWanted();
    void missingFolder_keepsTheBatchFromStarting_whenNotWanted();
    void folderLikeMarkup_isNamedAsItIs();
    void failureWithANameLikeMarkup_isShownAsItIs();
    void failedJobs_areMarked_andCanBeRetriedAlone();
    void retry_makesFailedPositionsAlone_data();
    void retry_makesFailedPositionsAlone();
    void outputExample_hasNoNumber_ofASingleShot();
    void editedJob_isNoDefault_untilItIsSaidSo();
    void list_comesBack_alsoWhatWasNotRead();
    void list_comesBack_whenTheDialogWasNotClosed();
    void list_isNotStoredAgain_onceTheDialogWasClosed();
    void list_isNotKept_unlessAsked();
};

namespace {

const QString clip = QStringLiteral("h264_bframes.mp4"); // 4 seconds

QString cell(const ModeDialog& mode, int row, int column)
{
    return mode.model().index(row, column).data().toString();
}

bool isMarked(const ModeDialog& mode, int row)
{
    return mode.model().index(row, 0).data(Qt::AccessibleDescriptionRole).toString() ==
           QLatin1String("Failed");
}

/// The videos of the listed jobs.
QStringList sources(const BatchModeDialog& dialog)
{
    const auto& model = *static_cast<const BatchModeListModel*>(
        testsupport::child<QTableView>(dialog, "filesTableView").model());
    QStringList videos;
    for (int row = 0; row < model.rowCount(); ++row) {
        videos.append(model.getConfig(row)->source());
    }
    return videos;
}

/// Expects a question, and stores its text when it is answered.
void answer(ModalScript& script, QMessageBox::StandardButton button, QString& said)
{
    script.expect<QMessageBox>([button, &said](QMessageBox& box) {
        said = shownText(box.text()) + QLatin1Char('\n') + shownText(box.informativeText());
        box.button(button)->click();
    });
}

} // namespace

void BatchModeDialogRunTest::images_areEstimated_inTheListAndInSum()
{
    ModeDialog mode;
    QCOMPARE(mode.labelText("imageSumLabel"), QString());
    mode.load({samplePath(clip)});
    mode.enter("skipFrontTextEdit", QStringLiteral("0.5"));
    mode.enter("skipBackTextEdit", QStringLiteral("0.5"));
    mode.enter("intervalMillisecondsTextEdit", QStringLiteral("1"));
    QCOMPARE(cell(mode, 0, 4), QStringLiteral("3"));
    QCOMPARE(mode.labelText("imageSumLabel"), QStringLiteral("About 3 images of 1 video"));
    mode.load(1);
    QCOMPARE(cell(mode, 1, 4), QStringLiteral("?"));
    mode.load({samplePath(QStringLiteral("mpeg4.mp4"))});
    mode.enter("intervalImagesTextEdit", QStringLiteral("7"));
    QCOMPARE(cell(mode, 2, 4), QStringLiteral("7"));
    QCOMPARE(mode.labelText("imageSumLabel"), QStringLiteral("About 10 images of 3 videos"));
    mode.click("intervalSingleShotRadioButton");
    QCOMPARE(cell(mode, 2, 4), QStringLiteral("1"));
}

void BatchModeDialogRunTest::manyImages_areAskedAbout()
{
    ModeDialog mode;
    mode.load({samplePath(clip)});
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(mode.dir().path());
    mode.enter("intervalImagesTextEdit", QStringLiteral("2001"));
    QString said;
    ModalScript script;
    answer(script, QMessageBox::No, said);
    mode.click("startButton");
    QVERIFY(script.isDone());
    QVERIFY2(said.contains(QStringLiteral("about 2,001 images")), qPrintable(said));
    QVERIFY(QDir(mode.dir().path()).entryList({QStringLiteral("*.jpeg")}).isEmpty());
}

void BatchModeDialogRunTest::missingFolder_isMade_whenWanted()
{
    ModeDialog mode;
    mode.load({samplePath(clip)});
    const QString folder = mode.dir().filePath(QStringLiteral("new/deep"));
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(folder);
    mode.click("intervalSingleShotRadioButton");
    QString said;
    ModalScript script;
    answer(script, QMessageBox::Yes, said);
    script.expect<BatchProcessingDialog>(endBatch);
    mode.click("startButton");
    QVERIFY(script.isDone());
    QVERIFY2(said.contains(folder), qPrintable(said));
    QCOMPARE(QDir(folder).entryList(QDir::Files),
             QStringList(QStringLiteral("h264_bframes-.jpeg")));
}

void BatchModeDialogRunTest::missingFolder_keepsTheBatchFromStarting_whenNotWanted()
{
    ModeDialog mode;
    mode.load({samplePath(clip)});
    const QString folder = mode.dir().filePath(QStringLiteral("new"));
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(folder);
    QString said;
    {
        ModalScript script;
        answer(script, QMessageBox::No, said);
        mode.click("startButton");
        QVERIFY(script.isDone());
        QVERIFY(!QDir(folder).exists());
    }
    // A folder that cannot be created is reported instead of hundreds of failures.
    QFile file(folder);
    QVERIFY(file.open(QIODevice::WriteOnly));
    ModalScript script;
    answer(script, QMessageBox::Yes, said);
    answer(script, QMessageBox::Ok, said);
    mode.click("startButton");
    QVERIFY(script.isDone());
    QVERIFY2(said.contains(QStringLiteral("could not be created")), qPrintable(said));
}

void BatchModeDialogRunTest::folderLikeMarkup_isNamedAsItIs()
{
    ModeDialog mode;
    mode.load({samplePath(clip)});
    const QString folder =
        mode.dir().makeFile(QStringLiteral("no folder<b>")) + QStringLiteral("/new");
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(folder);
    QString question;
    QString failure;
    ModalScript script;
    answer(script, QMessageBox::Yes, question);
    answer(script, QMessageBox::Ok, failure);
    mode.click("startButton");
    QVERIFY(script.isDone());
    QVERIFY2(question.contains(folder), qPrintable(question));
    QVERIFY2(failure.contains(folder), qPrintable(failure));
}

void BatchModeDialogRunTest::failureWithANameLikeMarkup_isShownAsItIs()
{
    ModeDialog mode;
    // Its images would have names that are too long.
    const QString name = QStringLiteral("a<b>") + QString(246, QLatin1Char('x'));
    const QString video = mode.dir().filePath(name + QStringLiteral(".mp4"));
    QVERIFY(QFile::copy(samplePath(clip), video));
    mode.load({video});
    mode.click("intervalSingleShotRadioButton");
    ModalScript script;
    script.expect<BatchProcessingDialog>(endBatch);
    mode.click("startButton");
    QVERIFY(script.isDone());
    const QString tip = shownText(mode.model().index(0, 0).data(Qt::ToolTipRole).toString());
    QVERIFY2(tip.contains(name), qPrintable(tip));
}

void BatchModeDialogRunTest::failedJobs_areMarked_andCanBeRetriedAlone()
{
    ModeDialog mode;
    mode.load({samplePath(clip)});
    mode.load(1);
    mode.click("selectAllVideoButton");
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(mode.dir().path());
    mode.click("intervalSingleShotRadioButton");
    QVERIFY(!mode.find<QPushButton>("retryFailedButton").isVisibleTo(&mode.dialog()));
    const auto runBy = [&mode](const char* button) {
        QString log;
        ModalScript script;
        script.expect<BatchProcessingDialog>([&log](BatchProcessingDialog& dialog) {
            endBatch(dialog);
            log = child<QTextEdit>(dialog, "logTextEdit").toPlainText();
        });
        mode.click(button);
        return script.isDone() ? log : QStringLiteral("no batch");
    };
    QVERIFY(runBy("startButton").endsWith(QStringLiteral("Finished: 1 image, 1 failed\n")));
    QVERIFY(!isMarked(mode, 0));
    QVERIFY(isMarked(mode, 1));
    const QModelIndex failed = mode.model().index(1, 2);
    QVERIFY(
        failed.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Could not open file")));
    QVERIFY(mode.find<QPushButton>("retryFailedButton").isVisibleTo(&mode.dialog()));

    QVERIFY(QFile::remove(mode.job(1).source()));
    QVERIFY(QFile::copy(samplePath(clip), mode.job(1).source()));
    QCOMPARE(runBy("retryFailedButton"), QStringLiteral("Finished: 1 image\n"));
    QVERIFY(!isMarked(mode, 1));
    QVERIFY(!mode.find<QPushButton>("retryFailedButton").isVisibleTo(&mode.dialog()));
    QCOMPARE(QDir(mode.dir().path()).entryList({QStringLiteral("*.jpeg")}),
             (QStringList{QStringLiteral("b-.jpeg"), QStringLiteral("h264_bframes-.jpeg")}));
}

/// Existing images are not made again.
void BatchModeDialogRunTest::retry_makesFailedPositionsAlone_data()
{
    QTest::addColumn<bool>("isExact");
    QTest::newRow("exact") << true;
    QTest::newRow("one after another") << false;
}

void BatchModeDialogRunTest::retry_makesFailedPositionsAlone()
{
    QFETCH(bool, isExact);
    ModeDialog mode;
    QSettings().setValue(QStringLiteral("limits/pictureMemoryMiB"), 1);
    const QString video = mode.dir().filePath(QStringLiteral("video.avi"));
    const QString folder = mode.dir().filePath(QStringLiteral("images"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(writeGrowingVideo(20, video));
    mode.load({video});
    mode.click("selectAllVideoButton");
    mode.job(0).setOutputDir(QDir(folder));
    mode.job(0).setExactFrames(isExact);
    mode.job(0).setIntervalType(BatchWorkerConfig::SpreadImages);
    mode.job(0).setIntervalImages(4);
    mode.job(0).setSkipFront(0);
    mode.job(0).setSkipBack(0);
    ModalScript script;
    script.expect<BatchProcessingDialog>(endBatch);
    mode.click("startButton");
    QVERIFY(script.isDone());
    const auto images = [&folder] { return QDir(folder).entryList(QDir::Files).size(); };
    QCOMPARE(images(), 2);
    QVERIFY(isMarked(mode, 0));

    QVERIFY(QFile::remove(video));
    QVERIFY(QFile::copy(samplePath(QStringLiteral("mjpeg.avi")), video));
    script.expect<BatchProcessingDialog>(endBatch);
    mode.click("retryFailedButton");
    QVERIFY(script.isDone());
    QCOMPARE(images(), 4);
    QVERIFY(!isMarked(mode, 0));
}

void BatchModeDialogRunTest::outputExample_hasNoNumber_ofASingleShot()
{
    ModeDialog mode;
    mode.load(1);
    QCOMPARE(cell(mode, 0, 3), QStringLiteral("a-00001.jpeg"));
    mode.click("intervalSingleShotRadioButton");
    QCOMPARE(cell(mode, 0, 3), QStringLiteral("a-.jpeg"));
    QCOMPARE(mode.labelText("filenameOutputExampleLabel"), QStringLiteral("a-.jpeg"));
    mode.enter("intervalImagesTextEdit", QStringLiteral("2"));
    QCOMPARE(mode.labelText("filenameOutputExampleLabel"), QStringLiteral("a-00001.jpeg"));
}

void BatchModeDialogRunTest::editedJob_isNoDefault_untilItIsSaidSo()
{
    ModeDialog mode;
    mode.load(3);
    mode.select({0, 1});
    mode.enter("skipFrontTextEdit", QStringLiteral("0.123"));
    mode.click("intervalSingleShotRadioButton");
    mode.choose("imageProfileComboBox", 2);
    mode.load(1);
    QCOMPARE(mode.job(3).skipFront(), 2000);
    QCOMPARE(mode.job(3).intervalType(), 0);
    QCOMPARE(mode.job(3).imageProfile()->name(), QStringLiteral("One"));
    mode.select({1});
    mode.click("useForNewVideosButton");
    QVERIFY(!mode.defaults().contains(QStringLiteral("source")));
    mode.load(1);
    QCOMPARE(mode.job(4).skipFront(), 123);
    QCOMPARE(mode.job(4).intervalType(), 2);
    QCOMPARE(mode.job(4).imageProfile()->name(), QStringLiteral("Two"));
    QCOMPARE(mode.job(4).fileOutputPath(), mode.dir().path());
    mode.select({});
    QVERIFY(!mode.find<QPushButton>("useForNewVideosButton").isEnabled());
}

void BatchModeDialogRunTest::list_comesBack_alsoWhatWasNotRead()
{
    ModeDialog mode;
    mode.dialog().keepList();
    mode.load({samplePath(clip)});
    mode.load(2);
    mode.select({1});
    mode.enter("skipFrontTextEdit", QStringLiteral("0.123"));
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(QStringLiteral("/some/where"));
    mode.choose("imageProfileComboBox", 2);
    const QString unread = samplePath(QStringLiteral("mpeg4.mp4"));
    mode.dialog().loadVideos({unread});
    mode.dialog().done(QDialog::Rejected);

    BatchModeDialog next;
    next.keepList();
    QTRY_VERIFY(!next.isLoading());
    const auto& model = *static_cast<const BatchModeListModel*>(
        next.findChild<QTableView*>(QStringLiteral("filesTableView"))->model());
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.getConfig(0)->source(), samplePath(clip));
    QCOMPARE(model.getConfig(0)->videoInfo().duration, 4000);
    QCOMPARE(model.getConfig(1)->skipFront(), 123);
    QCOMPARE(model.getConfig(1)->fileOutputPath(), QStringLiteral("/some/where"));
    QCOMPARE(model.getConfig(1)->imageProfile()->name(), QStringLiteral("Two"));
    QCOMPARE(model.getConfig(2)->skipFront(), 2000);
    QCOMPARE(model.getConfig(3)->source(), unread);
}

/// As when the event loop ends under the dialog.
void BatchModeDialogRunTest::list_comesBack_whenTheDialogWasNotClosed()
{
    const ModeDialog mode;
    const QString unread = samplePath(QStringLiteral("mpeg4.mp4"));
    {
        BatchModeDialog ended;
        ended.keepList();
        ended.loadVideos({samplePath(clip)});
        QTRY_VERIFY(!ended.isLoading());
        ended.loadVideos({unread});
    }
    BatchModeDialog next;
    next.keepList();
    QTRY_VERIFY(!next.isLoading());
    QCOMPARE(sources(next), (QStringList{samplePath(clip), unread}));
}

void BatchModeDialogRunTest::list_isNotStoredAgain_onceTheDialogWasClosed()
{
    const ModeDialog mode;
    {
        BatchModeDialog closed;
        closed.keepList();
        closed.loadVideos({samplePath(clip)});
        QTRY_VERIFY(!closed.isLoading());
        closed.done(QDialog::Rejected);
        BatchModeDialog other;
        other.keepList();
        other.loadVideos({samplePath(clip)});
        QTRY_VERIFY(!other.isLoading());
        other.done(QDialog::Rejected);
    }
    BatchModeDialog next;
    next.keepList();
    QTRY_VERIFY(!next.isLoading());
    QCOMPARE(sources(next), (QStringList{samplePath(clip), samplePath(clip)}));
}

void BatchModeDialogRunTest::list_isNotKept_unlessAsked()
{
    ModeDialog mode;
    mode.load(1);
    mode.dialog().done(QDialog::Rejected);
    BatchModeDialog next;
    next.keepList();
    QVERIFY(!next.isLoading());
}

QTEST_MAIN(BatchModeDialogRunTest)
#include "BatchModeDialogRunTest.moc"
