#include "batch/BatchThread.h"
#include "batch/BatchWorker.h"
#include "batch/BatchWorkerConfig.h"
#include "tests/batch/ThreadEvents.h"
#include "tests/batch/WorkerEvents.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using testsupport::samplePath;
using testsupport::TestDir;

namespace {

/// 520 frames, 25 a second, a key frame every ten seconds.
const QString exactBase = QStringLiteral("h264_gop250");

struct ExactJob
{
    explicit ExactJob(const QString& folder)
        : events(worker)
    {
        config.setSource(samplePath(exactBase + QStringLiteral(".mp4")));
        config.setFileOutputPath(folder);
        config.setExactFrames(true);
        config.setSkipFront(0);
        config.setSkipBack(0);
        config.imageProfile()->setSameSizeAsVideo(true);
        worker.setConfig(&config);
    }

    BatchWorkerConfig config;
    BatchWorker worker;
    WorkerEvents events;
};

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

/// The numbers in the images of a folder, in the order of their names.
QList<int> framesIn(const QString& folder)
{
    QList<int> frames;
    const QStringList names = namesIn(folder);
    for (const QString& name : names) {
        frames.append(testsupport::frameNumber(QImage(QDir(folder).filePath(name))).value_or(-1));
    }
    return frames;
}

} // namespace

class BatchWorkerExactTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void images_areTheFramesAtTheirPositions_everySoOften();
    void images_areTheMiddlesOfEqualParts_whenSpread();
    void singleShots_areAtTheirPlaces_data();
    void singleShots_areAtTheirPlaces();
    void skips_areKept();
    void densePositions_giveEachFrameOnce();
    void signals_comeInOrder_likeThoseOfOtherJobs();
    void images_areToldInTheWorkersThread();
    void existingFiles_areKept();
    void failedSaves_areErrors();
    void missingVideo_isAnError();
    void profiles_areThoseOfTheStart();
    void interruption_endsTheJob();
    void unknownInterval_takesNothing();
    void whatIsNotShown_isSaidOnce_inBothWays();
};

void BatchWorkerExactTest::images_areTheFramesAtTheirPositions_everySoOften()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalMilliseconds(4300);
    job.worker.run();
    QCOMPARE(framesIn(dir.path()), QList<int>({0, 108, 215, 323, 430}));
    QCOMPARE(namesIn(dir.path()).first(), exactBase + QStringLiteral("-00001.jpeg"));
}

void BatchWorkerExactTest::images_areTheMiddlesOfEqualParts_whenSpread()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(4);
    job.worker.run();
    QCOMPARE(framesIn(dir.path()), QList<int>({65, 195, 325, 455}));
}

void BatchWorkerExactTest::singleShots_areAtTheirPlaces_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("frame");
    QTest::newRow("front") << int(BatchWorkerConfig::Front) << 50;
    QTest::newRow("middle") << int(BatchWorkerConfig::Middle) << 273;
    QTest::newRow("back") << int(BatchWorkerConfig::Back) << 495;
}

void BatchWorkerExactTest::singleShots_areAtTheirPlaces()
{
    QFETCH(int, place);
    QFETCH(int, frame);
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SingleShot);
    job.config.setIntervalSingleShot(place);
    job.config.setSkipFront(2000);
    job.config.setSkipBack(1000);
    job.worker.run();
    QCOMPARE(framesIn(dir.path()), QList<int>({frame}));
    QCOMPARE(namesIn(dir.path()), QStringList{exactBase + QStringLiteral("-.jpeg")});
}

void BatchWorkerExactTest::skips_areKept()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalMilliseconds(1000);
    job.config.setSkipFront(17010);
    job.config.setSkipBack(1790);
    job.worker.run();
    QCOMPARE(framesIn(dir.path()), QList<int>({426, 451}));
}

void BatchWorkerExactTest::densePositions_giveEachFrameOnce()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalMilliseconds(7);
    job.config.setSkipFront(9000);
    job.config.setSkipBack(10800);
    job.worker.run();
    QList<int> frames;
    for (int frame = 225; frame <= 250; ++frame) {
        frames.append(frame);
    }
    QCOMPARE(framesIn(dir.path()), frames);
    QCOMPARE(namesIn(dir.path()).last(), exactBase + QStringLiteral("-00026.jpeg"));
}

void BatchWorkerExactTest::signals_comeInOrder_likeThoseOfOtherJobs()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(3);
    job.worker.run();
    QCoreApplication::processEvents();
    const QString path = dir.filePath(exactBase + QStringLiteral("-0000%1.jpeg"));
    const QString saving = QStringLiteral("Saving: ");
    QCOMPARE(job.events.of(QStringLiteral("status")),
             QStringList({saving + path.arg(1), saving + path.arg(2), saving + path.arg(3)}));
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 3);
    QVERIFY(job.events.of(QStringLiteral("error")).isEmpty());
    QCOMPARE(
        job.events.of(QStringLiteral("progress")),
        QStringList({QStringLiteral("0.0000"), QStringLiteral("0.0100"), QStringLiteral("0.1750"),
                     QStringLiteral("0.3400"), QStringLiteral("0.5050"), QStringLiteral("0.6700"),
                     QStringLiteral("0.8350"), QStringLiteral("1.0000")}));
}

void BatchWorkerExactTest::images_areToldInTheWorkersThread()
{
    const TestDir dir;
    BatchWorkerConfig config;
    config.setSource(samplePath(exactBase + QStringLiteral(".mp4")));
    config.setFileOutputPath(dir.path());
    config.setExactFrames(true);
    config.setIntervalMilliseconds(1000);
    BatchThread thread;
    auto* const worker = new BatchWorker;
    worker->setConfig(&config);
    int images = 0;
    bool isHere = true;
    connect(worker, &BatchWorker::imageReady, this, [&](BatchWorker*, const QImage& image) {
        ++images;
        isHere = isHere && QThread::currentThread() == this->thread() && !image.isNull();
    });
    thread.addWorker(worker);
    const ThreadEvents events(thread);
    thread.start();
    QVERIFY(events.waitForEnd());
    QTRY_COMPARE(images, 17);
    QVERIFY(isHere);
    QCOMPARE(namesIn(dir.path()).size(), 17);
}

void BatchWorkerExactTest::existingFiles_areKept()
{
    const TestDir dir;
    const QString taken = dir.filePath(exactBase + QStringLiteral("-00002.jpeg"));
    QFile file(taken);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("mine"), 4);
    file.close();
    ExactJob job(dir.path());
    job.config.setIntervalMilliseconds(8000);
    job.worker.run();
    QCOMPARE(framesIn(dir.path()), QList<int>({0, -1, 200, 400}));
    QCOMPARE(QFileInfo(taken).size(), 4);
}

void BatchWorkerExactTest::failedSaves_areErrors()
{
    const TestDir dir;
    ExactJob job(dir.filePath(QStringLiteral("gone")));
    job.config.setIntervalMilliseconds(15000);
    job.worker.run();
    QCoreApplication::processEvents();
    QCOMPARE(job.events.of(QStringLiteral("error")).size(), 2);
    QVERIFY(job.events.of(QStringLiteral("error"))
                .first()
                .startsWith(QStringLiteral("Could not save ")));
    QVERIFY(job.events.of(QStringLiteral("image")).isEmpty());
}

void BatchWorkerExactTest::missingVideo_isAnError()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setSource(dir.filePath(QStringLiteral("gone.mp4")));
    job.worker.run();
    QCoreApplication::processEvents();
    QCOMPARE(job.events.of(QStringLiteral("error")),
             QStringList{QStringLiteral("Could not open file")});
}

void BatchWorkerExactTest::profiles_areThoseOfTheStart()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalMilliseconds(3000);
    connect(&job.worker, &BatchWorker::progressUpdate, this,
            [&job] { job.config.filenameProfile()->setFileOutputPrefix(QStringLiteral("other")); });
    job.worker.run();
    QVERIFY(namesIn(dir.path()).filter(QStringLiteral("other")).isEmpty());
    QCOMPARE(namesIn(dir.path()).size(), 7);
}

void BatchWorkerExactTest::interruption_endsTheJob()
{
    const TestDir dir;
    BatchWorkerConfig config;
    config.setSource(samplePath(exactBase + QStringLiteral(".mp4")));
    config.setFileOutputPath(dir.path());
    config.setExactFrames(true);
    config.setIntervalMilliseconds(1);
    auto thread = std::make_unique<BatchThread>();
    auto* const worker = new BatchWorker;
    worker->setConfig(&config);
    connect(worker, &BatchWorker::imageReady, this, [&thread] { thread->requestInterruption(); });
    thread->addWorker(worker);
    const ThreadEvents events(*thread);
    thread->start();
    QVERIFY(events.waitForEnd());
    thread.reset();
    const QStringList names = namesIn(dir.path());
    QVERIFY(!names.isEmpty());
    QVERIFY(names.size() < 200);
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(names.at(i),
                 QStringLiteral("%1-%2.jpeg").arg(exactBase).arg(i + 1, 5, 10, QLatin1Char('0')));
    }
}

void BatchWorkerExactTest::unknownInterval_takesNothing()
{
    const TestDir dir;
    ExactJob job(dir.path());
    job.config.setIntervalType(17);
    job.worker.run();
    QVERIFY(namesIn(dir.path()).isEmpty());
}

void BatchWorkerExactTest::whatIsNotShown_isSaidOnce_inBothWays()
{
    // Batch jobs take no video of less than half a second.
    const TestDir videos;
    const QString video = videos.filePath(QStringLiteral("longer.mkv"));
    QVERIFY(testsupport::runProgram(QStringLiteral("ffmpeg"),
                                    {QStringLiteral("-v"), QStringLiteral("error"),
                                     QStringLiteral("-stream_loop"), QStringLiteral("4"),
                                     QStringLiteral("-i"),
                                     samplePath(QStringLiteral("colour_hdr10_plus.mkv")),
                                     QStringLiteral("-c"), QStringLiteral("copy"), video})
                .succeeded());
    for (const bool isExact : {true, false}) {
        const TestDir dir;
        ExactJob job(dir.path());
        job.config.setSource(video);
        job.config.setFileOutputPath(dir.path());
        job.config.setExactFrames(isExact);
        job.config.setIntervalMilliseconds(200);
        job.worker.run();
        QVERIFY(namesIn(dir.path()).size() > 1);
        const QStringList told =
            job.events.of(QStringLiteral("status")).filter(QStringLiteral("HDR10+"));
        QCOMPARE(told.size(), 1);
    }
}

QTEST_MAIN(BatchWorkerExactTest)
#include "BatchWorkerExactTest.moc"
