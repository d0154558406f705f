#include "batch/BatchWorker.h"

#include "batch/BatchWorkerConfig.h"
#include "tests/batch/WorkerEvents.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/video/MakeVideo.h"
#include "video/FrameGrabber.h"

#include <QDir>
#include <QFile>
#include <QMetaType>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <thread>

using testsupport::samplePath;
using testsupport::TestDir;

namespace {

#if QT_VERSION_MAJOR >= 6
constexpr auto movableType = QMetaType::RelocatableType;
#else
constexpr auto movableType = QMetaType::MovableType;
#endif

/// A worker with its job and its signals.
struct Job
{
    explicit Job(const QString& video, const QString& folder)
        : worker(nullptr)
        , events(worker)
    {
        config.setSource(video);
        config.setFileOutputPath(folder);
        worker.setConfig(&config);
    }

    FrameGrabber* grabber() const { return worker.findChild<FrameGrabber*>(); }

    BatchWorkerConfig config;
    BatchWorker worker;
    WorkerEvents events;
};

/// A minute of ten frames a second, each a key frame.
QString makeMinute(const TestDir& dir)
{
    QString path = dir.filePath(QStringLiteral("minute.mov"));
    testsupport::makeVideo(path, 600, 100);
    return path;
}

/// Records the positions that the worker's grabber is sent to from now on.
std::shared_ptr<QList<qint64>> watchPositions(const Job& job)
{
    auto positions = std::make_shared<QList<qint64>>();
    FrameGrabber* const grabber = job.grabber();
    QObject::connect(grabber, &FrameGrabber::positionChanged, grabber,
                     [positions, grabber] { positions->append(grabber->getPosition()); });
    return positions;
}

QStringList debugLines;

void keepDebugLines(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtDebugMsg) {
        debugLines.append(message);
    }
}

} // namespace

class BatchWorkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void run_emitsEverythingInOrder();
    void run_writesItsDebugLinesInOrder();
    void run_countsTwoTicksAFrame();
    void run_reportsAnError_whenTheVideoCannotBeOpened_data();
    void run_reportsAnError_whenTheVideoCannotBeOpened();
    void run_takesVideos_fromHalfASecondUp();
    void run_takesPositions_everyMilliseconds();
    void run_takesPositions_ofSpreadImages();
    void run_takesASingleShot_forOneImage();
    void run_takesThePositionAtTheEnd_forASingleShotAtTheBack();
    void run_takesNothing_forAnUnknownType();
    void run_goesOn_afterAnExtractionError();
    void run_takesTheNextFrame_howeverFarAway();
    void run_cutsTheGrabberOff_atItsEnd();
    void run_stopsAtOnce_whenInterruptedBefore();
    void run_stops_whereverItIsInterrupted_data();
    void run_stops_whereverItIsInterrupted();
    void run_savesInTheWorkersThread_whenCalledInAnother();
    void run_waitsForItsImages_whenTheyFallBehind();
    void setProgress_emits_untilInterrupted();
    void frame_isIgnored_onceInterrupted();
    void error_isIgnored_onceInterrupted();
    void metaTypes_areRegistered();
};

void BatchWorkerTest::run_emitsEverythingInOrder()
{
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("video.mov"));
    testsupport::makeVideo(video, 50, 100);
    Job job(video, dir.path());
    job.config.setIntervalMilliseconds(500);
    job.worker.run();
    const QString saving = QStringLiteral("status Saving: ") + dir.path();
    const QStringList expected{
        QStringLiteral("progress 0.0000"), QStringLiteral("progress 0.0100"),
        QStringLiteral("progress 0.1750"), saving + QStringLiteral("/video-00001.jpeg"),
        QStringLiteral("image 640x480"),   QStringLiteral("progress 0.3400"),
        QStringLiteral("progress 0.5050"), saving + QStringLiteral("/video-00002.jpeg"),
        QStringLiteral("image 640x480"),   QStringLiteral("progress 0.6700")};
    QCOMPARE(job.events.all, expected);
}

void BatchWorkerTest::run_writesItsDebugLinesInOrder()
{
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("video.mov"));
    testsupport::makeVideo(video, 50, 100);
    Job job(video, dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(1);
    debugLines.clear();
    const QtMessageHandler previous = qInstallMessageHandler(keepDebugLines);
    job.worker.run();
    qInstallMessageHandler(previous);

    const QStringList expected{QStringLiteral("BatchWorker::run"),
                               QStringLiteral("Before progress"),
                               QStringLiteral("Worker loading file"),
                               QStringLiteral("Batch m_intervalImages was 1"),
                               QStringLiteral("skipAmount: -1"),
                               QStringLiteral("Frame"),
                               QStringLiteral("Steps taken: 1 stepCount: 2"),
                               QStringLiteral("Saving image ") +
                                   dir.filePath(QStringLiteral("video-.jpeg")),
                               QStringLiteral("Steps taken: 2 stepCount: 2")};
    QStringList found;
    for (const QString& line : qAsConst(debugLines)) {
        if (expected.contains(line)) {
            found.append(line);
        }
    }
    QCOMPARE(found, expected);
}

void BatchWorkerTest::run_countsTwoTicksAFrame()
{
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("video.mov"));
    testsupport::makeVideo(video, 50, 100);
    Job job(video, dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(2);
    job.worker.run();
    const QStringList expected{QStringLiteral("0.0000"), QStringLiteral("0.0100"),
                               QStringLiteral("0.2575"), QStringLiteral("0.5050"),
                               QStringLiteral("0.7525"), QStringLiteral("1.0000")};
    QCOMPARE(job.events.of(QStringLiteral("progress")), expected);
}

void BatchWorkerTest::run_reportsAnError_whenTheVideoCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing.mov";
    QTest::newRow("text") << "text.mov";
    QTest::newRow("folder") << ".";
    QTest::newRow("499 ms") << "short.mov";
}

void BatchWorkerTest::run_reportsAnError_whenTheVideoCannotBeOpened()
{
    QFETCH(const QString, name);
    const TestDir dir;
    const TestDir output;
    QFile text(dir.filePath(QStringLiteral("text.mov")));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no video") > 0);
    text.close();
    testsupport::makeVideo(dir.filePath(QStringLiteral("short.mov")), 499, 1);

    Job job(dir.filePath(name), output.path());
    job.config.setSkipFront(0);
    job.config.setSkipBack(0);
    job.worker.run();
    const QStringList expected{QStringLiteral("progress 0.0000"), QStringLiteral("progress 0.0100"),
                               QStringLiteral("error Could not open file")};
    QCOMPARE(job.events.all, expected);
    QVERIFY(QDir(output.path()).isEmpty());
}

void BatchWorkerTest::run_takesVideos_fromHalfASecondUp()
{
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("video.mov"));
    testsupport::makeVideo(video, 500, 1);
    Job job(video, dir.path());
    job.config.setSkipFront(0);
    job.config.setSkipBack(0);
    job.worker.run();
    QVERIFY(job.events.of(QStringLiteral("error")).isEmpty());
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 1);
}

void BatchWorkerTest::run_takesPositions_everyMilliseconds()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    const auto positions = watchPositions(job);
    job.worker.run();
    const QList<qint64> expected{2000,  7000,  12000, 17000, 22000, 27000,
                                 32000, 37000, 42000, 47000, 52000, 57000};
    QCOMPARE(*positions, expected);
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 12);
    QCOMPARE(job.events.all.last(), QStringLiteral("progress 1.0000"));
}

void BatchWorkerTest::run_takesPositions_ofSpreadImages()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    const auto positions = watchPositions(job);
    job.worker.run();
    const QList<qint64> expected{2000,  7599,  13198, 18797, 24396,
                                 29995, 35594, 41193, 46792, 52391};
    QCOMPARE(*positions, expected);
}

void BatchWorkerTest::run_takesASingleShot_forOneImage()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(1);
    const auto positions = watchPositions(job);
    job.worker.run();
    QCOMPARE(*positions, QList<qint64>{28000});
    QCOMPARE(job.config.intervalType(), 2);
    QCOMPARE(job.config.intervalImages(), 10);
    QVERIFY(QFile::exists(dir.filePath(QStringLiteral("minute-.jpeg"))));
}

void BatchWorkerTest::run_takesThePositionAtTheEnd_forASingleShotAtTheBack()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SingleShot);
    job.config.setIntervalSingleShot(BatchWorkerConfig::Back);
    job.config.setSkipBack(0);
    const auto positions = watchPositions(job);
    job.worker.run();
    QCOMPARE(*positions, QList<qint64>{60000});
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 1);
}

void BatchWorkerTest::run_takesNothing_forAnUnknownType()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    job.config.setIntervalType(3);
    job.worker.run();
    const QStringList expected{QStringLiteral("progress 0.0000"),
                               QStringLiteral("progress 0.0100")};
    QCOMPARE(job.events.all, expected);
}

/// A recording restarts under the name of the video while that is being processed.
void BatchWorkerTest::run_goesOn_afterAnExtractionError()
{
    const TestDir dir;
    const QString video = makeMinute(dir);
    Job job(video, dir.path());
    job.config.setIntervalMilliseconds(10000);
    job.config.setIntervalType(BatchWorkerConfig::EveryMilliseconds);
    const auto positions = watchPositions(job);
    QObject::connect(job.grabber(), &FrameGrabber::positionChanged, job.grabber(), [=] {
        if (positions->size() == 3) {
            QVERIFY(QFile::resize(video, 0));
        }
    });
    job.worker.run();
    const int images = job.events.of(QStringLiteral("image")).size();
    const QStringList errors = job.events.of(QStringLiteral("error"));
    QCOMPARE(images, 2);
    QVERIFY(errors.size() > 1);
    QCOMPARE(images + errors.size(), positions->size());
    QVERIFY(errors.first().startsWith(
        QStringLiteral("Frame extraction error Cannot extract frame at position ")));
}

/// One frame a second leaves positions half a second before the next frame.
void BatchWorkerTest::run_takesTheNextFrame_howeverFarAway()
{
    const TestDir dir;
    Job job(samplePath(QStringLiteral("h264_1fps.mp4")), dir.path());
    job.config.setSkipFront(6499);
    job.config.setSkipBack(0);
    job.config.setIntervalMilliseconds(3501);
    job.config.setIntervalType(BatchWorkerConfig::EveryMilliseconds);
    job.worker.run();
    QCOMPARE(job.events.of(QStringLiteral("error")), QStringList());
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 4);
    QCOMPARE(job.events.all.last(), QStringLiteral("progress 1.0000"));
}

void BatchWorkerTest::run_cutsTheGrabberOff_atItsEnd()
{
    const TestDir dir;
    Job job(dir.filePath(QStringLiteral("missing.mov")), dir.path());
    job.worker.run();
    job.events.all.clear();
    Q_EMIT job.grabber()->error(QStringLiteral("late"));
    QVERIFY(job.events.all.isEmpty());
}

void BatchWorkerTest::run_stopsAtOnce_whenInterruptedBefore()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    job.worker.requestInterruption();
    job.worker.run();
    QVERIFY(job.events.all.isEmpty());
    QCOMPARE(job.grabber()->getSource(), job.config.source());
}

void BatchWorkerTest::run_stops_whereverItIsInterrupted_data()
{
    QTest::addColumn<QString>("event");
    for (const char* const event : {"progress 0.0000", "progress 0.0100", "progress 0.1750",
                                    "image 640x480", "progress 0.3400", "progress 0.5050"}) {
        QTest::newRow(event) << QString::fromLatin1(event);
    }
}

void BatchWorkerTest::run_stops_whereverItIsInterrupted()
{
    QFETCH(const QString, event);
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("video.mov"));
    testsupport::makeVideo(video, 50, 100);
    Job job(video, dir.path());
    job.config.setIntervalMilliseconds(500);
    QObject::connect(&job.events, &WorkerEvents::added, &job.worker, [&](const QString& added) {
        if (added == event) {
            job.worker.requestInterruption();
        }
    });
    job.worker.run();
    QCOMPARE(job.events.all.last(), event);
    QCOMPARE(job.events.all.count(event), 1);
}

void BatchWorkerTest::run_savesInTheWorkersThread_whenCalledInAnother()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(3);
    bool isElsewhere = false;
    QObject::connect(
        &job.worker, &BatchWorker::imageReady, &job.worker,
        [&](BatchWorker*, const QImage&) {
            isElsewhere = isElsewhere || QThread::currentThread() != job.worker.thread();
        },
        Qt::DirectConnection);
    // Not a QThread, because thread sanitizer sees the end of a std::thread.
    std::thread thread([&job] { job.worker.run(); });
    const auto isDone = [&job] {
        return job.events.of(QStringLiteral("image")).size() == 3 &&
               job.events.of(QStringLiteral("progress")).size() == 8;
    };
    const bool ended = QTest::qWaitFor(isDone, 30000);
    thread.join();
    QVERIFY(ended);
    QVERIFY(!isElsewhere);
    QCOMPARE(QDir(dir.path()).entryList({QStringLiteral("*.jpeg")}).size(), 3);
}

/// In a second, ten frames could pile up.
void BatchWorkerTest::run_waitsForItsImages_whenTheyFallBehind()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(12);
    std::atomic<int> positions{0};
    QObject::connect(
        job.grabber(), &FrameGrabber::positionChanged, job.grabber(), [&positions] { ++positions; },
        Qt::DirectConnection);
    std::thread thread([&job] { job.worker.run(); });
    QThread::msleep(1500);
    const int takenUnheard = positions;
    const bool ended = QTest::qWaitFor(
        [&job] { return job.events.of(QStringLiteral("image")).size() == 12; }, 60000);
    thread.join();
    QVERIFY2(takenUnheard <= 4, qPrintable(QString::number(takenUnheard)));
    QVERIFY(ended);
}

void BatchWorkerTest::setProgress_emits_untilInterrupted()
{
    BatchWorker worker;
    const WorkerEvents events(worker);
    worker.setProgress(0.25F);
    worker.requestInterruption();
    worker.setProgress(0.5F);
    QCOMPARE(events.all, QStringList{QStringLiteral("progress 0.2500")});
}

void BatchWorkerTest::frame_isIgnored_onceInterrupted()
{
    const TestDir dir;
    Job job(makeMinute(dir), dir.path());
    QtAV::VideoFrame frame;
    FrameGrabber other;
    connect(&other, &FrameGrabber::frameExtracted, this,
            [&frame](const QtAV::VideoFrame& extracted) { frame = extracted; });
    other.setSource(job.config.source());
    other.extractInternal(0);
    QVERIFY(frame.isValid());

    Q_EMIT job.grabber()->frameExtracted(frame);
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 1);
    job.worker.requestInterruption();
    Q_EMIT job.grabber()->frameExtracted(frame);
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 1);
}

void BatchWorkerTest::error_isIgnored_onceInterrupted()
{
    const TestDir dir;
    Job job(dir.filePath(QStringLiteral("video.mov")), dir.path());
    Q_EMIT job.grabber()->error(QStringLiteral("first"));
    job.worker.requestInterruption();
    Q_EMIT job.grabber()->error(QStringLiteral("second"));
    QCOMPARE(job.events.all, QStringList{QStringLiteral("error Frame extraction error first")});
}

void BatchWorkerTest::metaTypes_areRegistered()
{
    BatchWorker::registerMetaTypes();
    const int type = QMetaType::type("BatchWorker::BatchStatusMessageType");
    QVERIFY(type != QMetaType::UnknownType);
    QCOMPARE(QMetaType::sizeOf(type), 4);
    QVERIFY(QMetaType::typeFlags(type).testFlag(QMetaType::IsEnumeration));
    QVERIFY(QMetaType::typeFlags(type).testFlag(movableType));
    QVERIFY(QMetaType::metaObjectForType(type) == nullptr);
    QVERIFY(QMetaType::type("QtAV::VideoFrame") != QMetaType::UnknownType);
}

QTEST_MAIN(BatchWorkerTest)
#include "BatchWorkerTest.moc"
