#include "ui/batch/BatchProcessingDialog.h"

#include "batch/BatchThread.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/ui/batch/ModeDialog.h"
#include "tests/ui/batch/RunningBatch.h"
#include "tests/ui/support/NextBox.h"
#include "tests/ui/support/Painting.h"
#include "ui/widgets/ImageView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QTextEdit>

using testsupport::answerNextBox;
using testsupport::filesIn;
using testsupport::goodVideo;
using testsupport::RunningBatch;
using testsupport::samplePath;
using testsupport::SeenBox;
using testsupport::TestDir;

namespace {

QString finished(const QString& images)
{
    return QStringLiteral("Finished: ") + images;
}

/// 20.8 seconds: one image per quarter of a second makes a job that does not end soon.
BatchWorkerConfig& addLongJob(RunningBatch& batch, const QString& folder)
{
    BatchWorkerConfig& config = batch.addJob(samplePath(QStringLiteral("h264_gop250.mp4")), folder);
    config.setIntervalType(BatchWorkerConfig::EveryMilliseconds);
    config.setIntervalMilliseconds(250);
    return config;
}

} // namespace

class BatchProcessingDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_isReadyForABatch();
    void batch_endsComplete_withItsImagesAndItsBarsFull();
    void emptyBatch_isCompleteAtOnce();
    void video_isNamed_beforeItsFirstImage();
    void status_isShown_andOnlyErrorsAreLogged();
    void failedJob_isLoggedWithItsVideo();
    void failuresOfOneCause_shareALine_withTheirCount();
    void errors_keepTheirPlaceBehindOthers_whereverTheCursorIs();
    void lastImage_isShown();
    void progress_isShownInWholePercent_data();
    void progress_isShownInWholePercent();
    void cancelling_isAskedFor_andNoChangesNothing_data();
    void cancelling_isAskedFor_andNoChangesNothing();
    void cancelling_endsTheBatch_andCountsItsImages_data();
    void cancelling_endsTheBatch_andCountsItsImages();
    void returnKey_closesWhatIsDone_andCancelsNothing();
    void batch_isStopped_whenTheDialogEnds();
    void largeFonts_areNotCutOff();
};

void BatchProcessingDialogTest::form_isReadyForABatch()
{
    const RunningBatch batch;
    const auto& dialog = batch.find<QPushButton>("doneButton").window();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Batch Processing"));
    QCOMPARE(dialog->windowModality(), Qt::ApplicationModal);
    QCOMPARE(dialog->size(), QSize(322, 443));
    QVERIFY(!dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(batch.button().text(), QStringLiteral("Cancel"));
    QCOMPARE(batch.labelText("currentVideoLabel"), QStringLiteral("TextLabel"));
    QCOMPARE(batch.labelText("statusLabel"), QStringLiteral("Status"));
    // A name would be read out instead of the text.
    for (const char* const name : {"currentVideoLabel", "statusLabel"}) {
        QVERIFY(batch.find<QLabel>(name).accessibleName().isEmpty());
        QVERIFY(!batch.find<QLabel>(name).accessibleDescription().isEmpty());
    }
    for (const char* const name : {"progressBarCurrent", "progressBarTotal"}) {
        const auto& bar = batch.find<QProgressBar>(name);
        QCOMPARE(bar.minimum(), 0);
        QCOMPARE(bar.maximum(), 100);
        QCOMPARE(bar.value(), 0);
        QVERIFY(!bar.accessibleName().isEmpty());
    }
    QVERIFY(batch.find<QTextEdit>("logTextEdit").isReadOnly());
    QCOMPARE(batch.find<QTextEdit>("logTextEdit").maximumHeight(), 100);
    QCOMPARE(batch.find<ImageView>("previewImageView").minimumSize(), QSize(200, 200));
}

void BatchProcessingDialogTest::batch_endsComplete_withItsImagesAndItsBarsFull()
{
    const TestDir dir;
    RunningBatch batch;
    batch.addJob(goodVideo(), dir.path());
    batch.addJob(samplePath(QStringLiteral("mjpeg.avi")), dir.path());
    QVERIFY(batch.execToItsEnd());
    QCOMPARE(filesIn(dir.path()),
             (QStringList{QStringLiteral("h264_bframes-.jpeg"), QStringLiteral("mjpeg-.jpeg")}));
    const QString outcome = finished(QStringLiteral("2 images"));
    QCOMPARE(batch.log(), outcome + QLatin1Char('\n'));
    QCOMPARE(batch.labelText("currentVideoLabel"), QString());
    QCOMPARE(batch.labelText("statusLabel"), outcome);
    QVERIFY(batch.dialog().report().failedJobs().isEmpty());
    QCOMPARE(batch.percent("progressBarCurrent"), 100);
    QCOMPARE(batch.percent("progressBarTotal"), 100);
    QVERIFY(!batch.dialog().isVisible());
}

void BatchProcessingDialogTest::emptyBatch_isCompleteAtOnce()
{
    RunningBatch batch;
    QVERIFY(batch.execToItsEnd());
    QCOMPARE(batch.log(), finished(QStringLiteral("0 images\n")));
    QCOMPARE(batch.percent("progressBarTotal"), 0);
}

void BatchProcessingDialogTest::video_isNamed_beforeItsFirstImage()
{
    const TestDir dir;
    RunningBatch batch;
    addLongJob(batch, dir.path());
    const auto& label = batch.find<QLabel>("currentVideoLabel");
    QString first;
    QString statusThen;
    connect(batch.thread().findChild<BatchWorker*>(), &BatchWorker::progressUpdate, &label,
            [&](BatchWorker*, float progress) {
                if (progress == 0.0F) {
                    first = label.text();
                    statusThen = batch.labelText("statusLabel");
                }
            });
    batch.exec([&] { QTRY_VERIFY(!first.isEmpty()); });
    QCOMPARE(first, QDir::toNativeSeparators(samplePath(QStringLiteral("h264_gop250.mp4"))));
    QCOMPARE(statusThen, QString());
}

void BatchProcessingDialogTest::status_isShown_andOnlyErrorsAreLogged()
{
    const TestDir dir;
    RunningBatch batch;
    const QString path = dir.filePath(QStringLiteral("one.mp4"));
    batch.addJob(path, dir.path());
    auto* const worker = batch.thread().findChild<BatchWorker*>();
    Q_EMIT worker->statusUpdate(worker, QStringLiteral("going on"));
    QCOMPARE(batch.labelText("currentVideoLabel"), path);
    QCOMPARE(batch.labelText("statusLabel"), QStringLiteral("going on"));
    QCOMPARE(batch.log(), QString());
    Q_EMIT worker->statusUpdate(worker, QStringLiteral("<b>broken</b>"), BatchWorker::Error);
    QCOMPARE(batch.labelText("statusLabel"), QStringLiteral("<b>broken</b>"));
    QCOMPARE(batch.log(), path + QStringLiteral(": <b>broken</b>\n"));
}

void BatchProcessingDialogTest::failedJob_isLoggedWithItsVideo()
{
    const TestDir dir;
    RunningBatch batch;
    const QString missing = dir.filePath(QStringLiteral("missing.mp4"));
    BatchWorkerConfig& job = batch.addJob(missing, dir.path());
    QVERIFY(batch.execToItsEnd());
    QCOMPARE(batch.log(), missing + QStringLiteral(": Could not open file\n") +
                              finished(QStringLiteral("0 images, 1 failed\n")));
    QCOMPARE(batch.dialog().report().failedJobs(), QList<BatchWorkerConfig*>{&job});
    QCOMPARE(batch.percent("progressBarTotal"), 100);
    QVERIFY(filesIn(dir.path()).isEmpty());
}

void BatchProcessingDialogTest::failuresOfOneCause_shareALine_withTheirCount()
{
    const TestDir dir;
    RunningBatch batch;
    const QString folder = dir.filePath(QStringLiteral("not a folder"));
    QFile file(folder);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString missing = dir.filePath(QStringLiteral("missing.mp4"));
    batch.addJob(missing, dir.path());
    BatchWorkerConfig& job = batch.addJob(goodVideo(), folder);
    job.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.setIntervalImages(5);
    QVERIFY(batch.execToItsEnd());
    const QString image = QDir(folder).filePath(QStringLiteral("h264_bframes-00001.jpeg"));
    QCOMPARE(batch.logLines(),
             QStringList({missing + QStringLiteral(": Could not open file"),
                          goodVideo() + QStringLiteral(": Could not save ") + image +
                              QStringLiteral(" (and 4 more of this kind)"),
                          finished(QStringLiteral("0 images, 6 failed"))}));
    QCOMPARE(batch.dialog().report().failedJobs().size(), 2);
}

void BatchProcessingDialogTest::errors_keepTheirPlaceBehindOthers_whereverTheCursorIs()
{
    RunningBatch batch;
    batch.dialog().logMessage(QStringLiteral("one"), nullptr);
    batch.find<QTextEdit>("logTextEdit").selectAll();
    batch.dialog().logMessage(QStringLiteral("two"), nullptr);
    batch.find<QTextEdit>("logTextEdit").moveCursor(QTextCursor::Start);
    batch.dialog().logMessage(QStringLiteral("three"), nullptr);
    QCOMPARE(batch.log(), QStringLiteral("one\ntwo\nthree\n"));
}

void BatchProcessingDialogTest::lastImage_isShown()
{
    const TestDir dir;
    RunningBatch batch;
    batch.addJob(goodVideo(), dir.path());
    auto& view = batch.find<ImageView>("previewImageView");
    batch.exec([&] {
        QVERIFY(testsupport::paintedBounds(testsupport::paintedBy(view)).isEmpty());
        QVERIFY(batch.waitForEnd());
        QVERIFY(!testsupport::paintedBounds(testsupport::paintedBy(view)).isEmpty());
    });
}

void BatchProcessingDialogTest::progress_isShownInWholePercent_data()
{
    QTest::addColumn<float>("progress");
    QTest::addColumn<int>("shown");
    QTest::newRow("nothing") << 0.0F << 0;
    QTest::newRow("a third") << 1.0F / 3.0F << 33;
    QTest::newRow("nearly all") << 0.999F << 99;
    QTest::newRow("all") << 1.0F << 100;
}

void BatchProcessingDialogTest::progress_isShownInWholePercent()
{
    QFETCH(const float, progress);
    QFETCH(const int, shown);
    const RunningBatch batch;
    Q_EMIT batch.thread().progressUpdate(progress, 0.5F);
    QCOMPARE(batch.percent("progressBarTotal"), shown);
    QCOMPARE(batch.percent("progressBarCurrent"), 50);
    Q_EMIT batch.thread().progressUpdate(0.5F, progress);
    QCOMPARE(batch.percent("progressBarCurrent"), shown);
    QCOMPARE(batch.percent("progressBarTotal"), 50);
}

void BatchProcessingDialogTest::cancelling_isAskedFor_andNoChangesNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << "button";
    QTest::newRow("closing") << "closing";
    QTest::newRow("escape") << "escape";
}

void BatchProcessingDialogTest::cancelling_isAskedFor_andNoChangesNothing()
{
    QFETCH(const QString, way);
    const TestDir dir;
    RunningBatch batch;
    addLongJob(batch, dir.path());
    batch.exec([&] {
        SeenBox box;
        answerNextBox(QMessageBox::No, box);
        if (way == QLatin1String("button")) {
            QTest::mouseClick(&batch.button(), Qt::LeftButton);
        } else if (way == QLatin1String("closing")) {
            QVERIFY(!batch.dialog().close());
        } else {
            QTest::keyClick(&batch.dialog(), Qt::Key_Escape);
        }
        QCOMPARE(box.title, QStringLiteral("Cancel Batch Processing"));
        QCOMPARE(box.text, QStringLiteral("Are you sure you want to cancel batch processing?\n"));
        QCOMPARE(int(box.buttons), int(QMessageBox::Yes | QMessageBox::No));
        QCOMPARE(box.defaultButton, QMessageBox::Yes);
        QCOMPARE(box.parent, &batch.dialog());
        QVERIFY(batch.dialog().isVisible());
        QVERIFY(batch.thread().isRunning());
        QVERIFY(!batch.thread().isInterruptionRequested());
        QCOMPARE(batch.button().text(), QStringLiteral("Cancel"));
    });
}

void BatchProcessingDialogTest::cancelling_endsTheBatch_andCountsItsImages_data()
{
    QTest::addColumn<bool>("exact");
    QTest::newRow("one after another") << false;
    QTest::newRow("on all cores") << true;
}

void BatchProcessingDialogTest::cancelling_endsTheBatch_andCountsItsImages()
{
    QFETCH(const bool, exact);
    const TestDir dir;
    RunningBatch batch;
    BatchWorkerConfig& job = addLongJob(batch, dir.path());
    job.setExactFrames(exact);
    job.setIntervalMilliseconds(exact ? 40 : 250);
    job.imageProfile()->setImageWidth(exact ? 1600 : 160);
    job.imageProfile()->setImageHeight(exact ? 1200 : 120);
    batch.thread().findChild<BatchWorker*>()->prepare();
    batch.addJob(goodVideo(), dir.path());
    batch.exec([&] {
        QTRY_VERIFY_WITH_TIMEOUT(!filesIn(dir.path()).isEmpty(), 60000);
        SeenBox box;
        answerNextBox(QMessageBox::Yes, box);
        batch.button().click();
        QVERIFY(batch.thread().isInterruptionRequested());
        QVERIFY(batch.dialog().isVisible());
        QCOMPARE(batch.button().text(), QStringLiteral("Stopping…"));
        QVERIFY(!batch.button().isEnabled());
        // Closing it again neither asks nor closes.
        QVERIFY(!batch.dialog().close());
        QVERIFY(batch.waitForEnd());
        QVERIFY(batch.button().isEnabled());
        QVERIFY(batch.dialog().isVisible());
        const int images = filesIn(dir.path()).size();
        const QString outcome = QStringLiteral("Cancelled after %1 image%2")
                                    .arg(images)
                                    .arg(images == 1 ? QString() : QStringLiteral("s"));
        QCOMPARE(batch.log(), outcome + QLatin1Char('\n'));
        QCOMPARE(batch.labelText("statusLabel"), outcome);
        QVERIFY(batch.percent("progressBarTotal") < 50);
        batch.button().click();
        QVERIFY(!batch.dialog().isVisible());
    });
    QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("h264_bframes-.jpeg"))));
}

void BatchProcessingDialogTest::returnKey_closesWhatIsDone_andCancelsNothing()
{
    const TestDir dir;
    RunningBatch batch;
    addLongJob(batch, dir.path()).setIntervalMilliseconds(10000);
    batch.exec([&] {
        QTest::keyClick(&batch.dialog(), Qt::Key_Return);
        QTest::keyClick(&batch.button(), Qt::Key_Return);
        QVERIFY(!batch.thread().isInterruptionRequested());
        QVERIFY(batch.waitForEnd());
        QTest::keyClick(&batch.dialog(), Qt::Key_Return);
        QVERIFY(!batch.dialog().isVisible());
    });
}

void BatchProcessingDialogTest::batch_isStopped_whenTheDialogEnds()
{
    const TestDir dir;
    BatchWorkerConfig config;
    config.setSource(samplePath(QStringLiteral("h264_gop250.mp4")));
    config.setFileOutputPath(dir.path());
    config.setIntervalMilliseconds(250);
    auto dialog = std::make_unique<BatchProcessingDialog>();
    dialog->addWorkerWithConfig(&config);
    dialog->findChild<BatchThread*>()->start();
    QTRY_VERIFY(!filesIn(dir.path()).isEmpty());
    dialog.reset();
    const QStringList files = filesIn(dir.path());
    QCoreApplication::processEvents();
    QCOMPARE(filesIn(dir.path()), files);
}

/// With the program's style sheet.
void BatchProcessingDialogTest::largeFonts_areNotCutOff()
{
    QFile styles(QStringLiteral(":/Styles.qss"));
    QVERIFY(styles.open(QIODevice::ReadOnly));
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 1.5);
    QApplication::setFont(large);
    {
        RunningBatch batch;
        batch.dialog().setStyleSheet(QString::fromLatin1(styles.readAll()));
        batch.dialog().show();
        for (const char* const name : {"progressBarCurrent", "progressBarTotal", "statusLabel",
                                       "currentVideoLabel", "doneButton"}) {
            const auto& widget = batch.find<QWidget>(name);
            QVERIFY2(widget.height() >= widget.fontMetrics().height(), name);
        }
        QVERIFY(batch.button().width() >= batch.button().sizeHint().width());
        batch.dialog().hide();
    }
    QApplication::setFont(before);
}

QTEST_MAIN(BatchProcessingDialogTest)
#include "BatchProcessingDialogTest.moc"
