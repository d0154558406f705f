#include "tests/support/Samples.h"
#include "tests/ui/batch/ModeDialog.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/video/MakeVideo.h"
#include "ui/batch/BatchProcessingDialog.h"

#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using testsupport::child;
using testsupport::goodVideo;
using testsupport::ModalScript;
using testsupport::ModeDialog;
using testsupport::samplePath;

namespace {

/// A video in the case's folder that takes longer to read than any case.
QString slowVideo(const ModeDialog& mode)
{
    const QString path = mode.dir().filePath(QStringLiteral("slow %1.mkv"));
    testsupport::makeSlowVideo(path);
    return path;
}

QStringList names(const ModeDialog& mode)
{
    QStringList listed;
    for (int row = 0; row < mode.model().rowCount(); ++row) {
        listed.append(mode.job(row).sourceFileName());
    }
    return listed;
}

/// Runs the event loop for this many events of a timer.
void turnEventLoop(int times)
{
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&turns] { ++turns; });
    timer.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(turns >= times, 60000);
}

} // namespace

/// Batch mode while it reads videos.
class BatchModeDialogLoadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_saysWhatIsRead_andStaysResponsive();
    void videos_areListedInOrder_withUnreadableOnesBetween();
    void listedVideos_canBeEdited_whileOthersAreRead();
    void stopping_keepsWhatIsRead_andSelectsIt();
    void keyboard_goesToTheList_whenStoppedByIt();
    void videosLoadedMeanwhile_comeBehind_andAreSelectedAlone();
    void removedVideo_isNotSelected_whenAllAreRead();
    void start_isDisabled_withAReason_untilAllAreRead();
    void start_readsNoVideoAgain();
    void stretch_becomesTheSkips_ofTheJobOfTheVideo();
    void stretch_isThatOfANewJob_whereTheVideoHasNone();
    void closing_stopsReading_data();
    void closing_stopsReading();
    void dialog_canBeDestroyed_whileItReads();
};

void BatchModeDialogLoadingTest::form_saysWhatIsRead_andStaysResponsive()
{
    ModeDialog mode;
    QVERIFY(testsupport::showActive(mode.dialog()));
    const auto& progress = mode.find<QWidget>("loadingWidget");
    QVERIFY(!progress.isVisible());
    mode.dialog().loadVideos({goodVideo(), slowVideo(mode), goodVideo()});
    QTRY_VERIFY_WITH_TIMEOUT(progress.isVisible(), 30000);
    QTRY_COMPARE_WITH_TIMEOUT(mode.labelText("loadingLabel"),
                              QStringLiteral("Reading video 2 of 3:"), 30000);
    QCOMPARE(mode.labelText("loadingFileLabel"), QStringLiteral("slow %1.mkv"));
    const auto& bar = mode.find<QProgressBar>("loadingProgressBar");
    QCOMPARE(bar.value(), 1);
    QCOMPARE(bar.maximum(), 3);
    turnEventLoop(20);
    QVERIFY(mode.dialog().isLoading());
    mode.click("stopLoadingButton");
    QVERIFY(!progress.isVisible());
}

void BatchModeDialogLoadingTest::videos_areListedInOrder_withUnreadableOnesBetween()
{
    ModeDialog mode;
    const QSignalSpy ends(&mode.dialog(), &BatchModeDialog::loadingFinished);
    mode.load({samplePath(QStringLiteral("h264_gop250.mp4")),
               mode.dir().filePath(QStringLiteral("missing.mp4")),
               samplePath(QStringLiteral("sound_with_cover.m4a")), goodVideo()});
    QCOMPARE(names(mode),
             (QStringList{QStringLiteral("h264_gop250"), QStringLiteral("missing"),
                          QStringLiteral("sound_with_cover"), QStringLiteral("h264_bframes")}));
    QCOMPARE(mode.selectedRows(), (QList<int>{0, 1, 2, 3}));
    QCOMPARE(mode.job(0).videoInfo().duration, 20800);
    QVERIFY(!mode.job(1).videoInfo().loaded);
    QVERIFY(!mode.job(2).videoInfo().loaded);
    QVERIFY(mode.job(3).videoInfo().loaded);
    QCOMPARE(ends.size(), 1);
}

void BatchModeDialogLoadingTest::listedVideos_canBeEdited_whileOthersAreRead()
{
    ModeDialog mode;
    mode.dialog().loadVideos({goodVideo(), goodVideo(), slowVideo(mode)});
    QTRY_COMPARE_WITH_TIMEOUT(mode.model().rowCount(), 2, 30000);
    QCOMPARE(mode.selectedRows(), QList<int>());
    mode.select({0});
    mode.enter("skipFrontTextEdit", QStringLiteral("0.077"));
    mode.click("stopLoadingButton");
    QCOMPARE(mode.selectedRows(), QList<int>{0});
    QCOMPARE(mode.text("skipFrontTextEdit"), QStringLiteral("0.077"));
    QCOMPARE(mode.job(0).skipFront(), 77);
    QCOMPARE(mode.job(1).skipFront(), 2000);
}

void BatchModeDialogLoadingTest::stopping_keepsWhatIsRead_andSelectsIt()
{
    ModeDialog mode;
    mode.load(1);
    const QSignalSpy ends(&mode.dialog(), &BatchModeDialog::loadingFinished);
    mode.dialog().loadVideos({goodVideo(), goodVideo(), slowVideo(mode), goodVideo()});
    QTRY_COMPARE_WITH_TIMEOUT(mode.model().rowCount(), 3, 30000);
    mode.click("stopLoadingButton");
    QVERIFY(!mode.dialog().isLoading());
    QCOMPARE(ends.size(), 1);
    QCOMPARE(mode.selectedRows(), (QList<int>{1, 2}));
    turnEventLoop(20);
    QCOMPARE(mode.model().rowCount(), 3);
    QVERIFY(mode.find<QPushButton>("startButton").isEnabled());
    // Once more: the cancelled read does not prevent later loading.
    mode.load({goodVideo()});
    QCOMPARE(mode.selectedRows(), QList<int>{3});
}

void BatchModeDialogLoadingTest::keyboard_goesToTheList_whenStoppedByIt()
{
    ModeDialog mode;
    QVERIFY(testsupport::showActive(mode.dialog()));
    mode.dialog().loadVideos({slowVideo(mode)});
    auto& stop = mode.find<QPushButton>("stopLoadingButton");
    QTRY_VERIFY_WITH_TIMEOUT(stop.isVisible(), 30000);
    QVERIFY(testsupport::tabOrder(mode.dialog()).contains(QStringLiteral("stopLoadingButton")));
    stop.setFocus();
    QTest::keyClick(&stop, Qt::Key_Space);
    QVERIFY(!mode.dialog().isLoading());
    QVERIFY(mode.table().hasFocus());
    QCOMPARE(mode.model().rowCount(), 0);
    QVERIFY(!mode.find<QPushButton>("startButton").isEnabled());
}

void BatchModeDialogLoadingTest::videosLoadedMeanwhile_comeBehind_andAreSelectedAlone()
{
    ModeDialog mode;
    mode.dialog().loadVideos({goodVideo(), samplePath(QStringLiteral("h264_gop250.mp4"))});
    mode.load({samplePath(QStringLiteral("mpeg4.mp4")), goodVideo()});
    QCOMPARE(names(mode),
             (QStringList{QStringLiteral("h264_bframes"), QStringLiteral("h264_gop250"),
                          QStringLiteral("mpeg4"), QStringLiteral("h264_bframes")}));
    QCOMPARE(mode.selectedRows(), (QList<int>{2, 3}));
}

void BatchModeDialogLoadingTest::removedVideo_isNotSelected_whenAllAreRead()
{
    ModeDialog mode;
    mode.dialog().loadVideos(
        {goodVideo(), samplePath(QStringLiteral("mpeg4.mp4")), slowVideo(mode)});
    QTRY_COMPARE_WITH_TIMEOUT(mode.model().rowCount(), 2, 30000);
    mode.select({0});
    mode.click("removeVideoButton");
    mode.click("stopLoadingButton");
    QCOMPARE(names(mode), QStringList{QStringLiteral("mpeg4")});
    QCOMPARE(mode.selectedRows(), QList<int>{0});
}

void BatchModeDialogLoadingTest::start_isDisabled_withAReason_untilAllAreRead()
{
    ModeDialog mode;
    const auto& start = mode.find<QPushButton>("startButton");
    mode.load({goodVideo()});
    QVERIFY(start.isEnabled());
    QCOMPARE(start.toolTip(), QString());
    mode.dialog().loadVideos({slowVideo(mode)});
    QVERIFY(!start.isEnabled());
    QCOMPARE(start.toolTip(), QStringLiteral("The batch can start when all videos have been read"));
    turnEventLoop(5);
    mode.select({0});
    QVERIFY(!start.isEnabled());
    mode.click("stopLoadingButton");
    QVERIFY(start.isEnabled());
    QCOMPARE(start.toolTip(), QString());
}

/// The earlier result is kept, even if it would turn out to be wrong.
void BatchModeDialogLoadingTest::start_readsNoVideoAgain()
{
    ModeDialog mode;
    mode.load({goodVideo()});
    mode.job(0).setVideoFacts({1, 2, 3, true});
    mode.find<QLineEdit>("fileOutputFolderTextEdit").setText(mode.dir().path());
    mode.click("intervalSingleShotRadioButton");
    ModalScript script;
    script.expect<BatchProcessingDialog>([](BatchProcessingDialog& dialog) {
        auto& button = child<QPushButton>(dialog, "doneButton");
        QTRY_COMPARE_WITH_TIMEOUT(button.text(), QStringLiteral("Done"), 60000);
        button.click();
    });
    mode.click("startButton");
    QVERIFY(script.isDone());
    QVERIFY(QFile::exists(mode.dir().filePath(QStringLiteral("h264_bframes-.jpeg"))));
    QCOMPARE(mode.job(0).videoInfo().duration, 1);
    QCOMPARE(mode.job(0).videoInfo().width, 2);
}

void BatchModeDialogLoadingTest::stretch_becomesTheSkips_ofTheJobOfTheVideo()
{
    ModeDialog mode;
    const QString other = samplePath(QStringLiteral("mpeg4.mp4"));
    mode.load({goodVideo(), other});
    mode.select({1});
    mode.dialog().loadStretch(other, 400, 1200);
    QVERIFY(!mode.dialog().isLoading());
    QCOMPARE(mode.model().rowCount(), 2);
    QCOMPARE(mode.job(0).skipFront(), 2000);
    QCOMPARE(mode.job(1).skipFront(), 400);
    QCOMPARE(mode.job(1).skipBack(), 1200);
    QCOMPARE(mode.text("skipFrontTextEdit"), QStringLiteral("0.4"));
    QCOMPARE(mode.text("skipBackTextEdit"), QStringLiteral("1.2"));
}

void BatchModeDialogLoadingTest::stretch_isThatOfANewJob_whereTheVideoHasNone()
{
    ModeDialog mode;
    mode.dialog().loadStretch(goodVideo(), 400, 1200);
    // The job exists although its video has not been read yet.
    mode.dialog().loadStretch(goodVideo(), 500, 1300);
    mode.waitUntilLoaded();
    QCOMPARE(names(mode), QStringList{QStringLiteral("h264_bframes")});
    QCOMPARE(mode.selectedRows(), QList<int>{0});
    QCOMPARE(mode.job(0).skipFront(), 500);
    QCOMPARE(mode.job(0).skipBack(), 1300);
}

void BatchModeDialogLoadingTest::closing_stopsReading_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << "button";
    QTest::newRow("Escape") << "Escape";
    QTest::newRow("window") << "window";
}

void BatchModeDialogLoadingTest::closing_stopsReading()
{
    QFETCH(const QString, way);
    ModeDialog mode;
    QVERIFY(testsupport::showActive(mode.dialog()));
    mode.dialog().loadVideos({goodVideo(), slowVideo(mode), goodVideo()});
    QTRY_COMPARE_WITH_TIMEOUT(mode.model().rowCount(), 1, 30000);
    if (way == QLatin1String("button")) {
        mode.click("cancelButton");
    } else if (way == QLatin1String("Escape")) {
        QTest::keyClick(&mode.dialog(), Qt::Key_Escape);
    } else {
        QVERIFY(mode.dialog().close());
    }
    QVERIFY(!mode.dialog().isVisible());
    QVERIFY(!mode.dialog().isLoading());
    turnEventLoop(20);
    QCOMPARE(mode.model().rowCount(), 1);
}

void BatchModeDialogLoadingTest::dialog_canBeDestroyed_whileItReads()
{
    auto mode = std::make_unique<ModeDialog>();
    const QString slow = slowVideo(*mode);
    mode->dialog().loadVideos({goodVideo(), slow, goodVideo()});
    QTRY_COMPARE_WITH_TIMEOUT(mode->model().rowCount(), 1, 30000);
    mode.reset();
    turnEventLoop(5);
    QVERIFY(!QFile::exists(slow));
}

QTEST_MAIN(BatchModeDialogLoadingTest)
#include "BatchModeDialogLoadingTest.moc"
