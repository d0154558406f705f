#include "batch/BatchThread.h"
#include "tests/support/ColourSamples.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestDir.h"
#include "tests/ui/batch/RunningBatch.h"
#include "video/FrameGrabber.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <memory>

using testsupport::filesIn;
using testsupport::RunningBatch;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

/// A folder within `dir` for each job, since many samples share their base names.
QString makeFolder(const TestDir& dir, const QString& name)
{
    if (!QDir(dir.path()).mkpath(name)) {
        qFatal("cannot make a folder");
    }
    return dir.filePath(name);
}

QString copySample(const QString& sample, const TestDir& dir, const QString& name)
{
    QString path = dir.filePath(name);
    if (!QFile::copy(samplePath(sample), path)) {
        qFatal("cannot copy %s", qPrintable(sample));
    }
    return path;
}

QStringList allSampleFiles()
{
    QStringList files;
    for (const QList<Sample>& list :
         {testsupport::videoSamplesToRepeat(), testsupport::noVideoSamples(),
          testsupport::brokenSamples()}) {
        for (const Sample& sample : list) {
            files.append(sample.file);
        }
    }
    for (const testsupport::ColourSample& sample : testsupport::colourSamples()) {
        files.append(sample.file);
    }
    return files;
}

/// Whether a single frame can be taken from the middle; not for videos below half a second.
bool givesAnImage(const Sample& sample)
{
    return testsupport::frameTimeMs(sample, sample.frames - 1) > 450;
}

/// The large sample repeated, since it is too short for a batch.
QString makeLongLargeVideo(const TestDir& dir, const QString& sample)
{
    QString path = dir.filePath(sample);
    const bool isMade =
        testsupport::runProgram(QStringLiteral("ffmpeg"),
                                {QStringLiteral("-v"), QStringLiteral("error"),
                                 QStringLiteral("-stream_loop"), QStringLiteral("7"),
                                 QStringLiteral("-i"), samplePath(sample), QStringLiteral("-c"),
                                 QStringLiteral("copy"), path})
            .succeeded();
    return isMade ? path : QString();
}

/// Counts how often the only job of the batch has gone to a position.
std::shared_ptr<std::atomic<int>> countPositions(const RunningBatch& batch)
{
    auto count = std::make_shared<std::atomic<int>>(0);
    auto* const grabber = batch.thread().findChild<BatchWorker*>()->findChild<FrameGrabber*>();
    QObject::connect(
        grabber, &FrameGrabber::positionChanged, grabber, [count] { ++*count; },
        Qt::DirectConnection);
    return count;
}

BatchWorkerConfig& addSpreadJob(RunningBatch& batch, const QString& video, const QString& folder,
                                int images)
{
    BatchWorkerConfig& config = batch.addJob(video, folder);
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    config.setIntervalImages(images);
    return config;
}

/// How long this thread has been ready to run while no processor was free; 0 if the system does not
/// tell.
qint64 processorWaitMs()
{
    QFile file(QStringLiteral("/proc/thread-self/schedstat"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return file.readAll().split(' ').value(1).toLongLong() / 1'000'000;
}

/// Measures the longest time that an event had to wait during its lifetime, without the time for
/// which other programs had the processors.
class Heartbeat : public QObject
{
public:
    Heartbeat()
    {
        connect(&m_timer, &QTimer::timeout, this, &Heartbeat::beat);
        m_clock.start();
        m_timer.start(5);
    }
    qint64 longestMs() const { return m_longestMs; }

private:
    void beat()
    {
        const qint64 processorWait = processorWaitMs();
        const qint64 ms = m_clock.restart() - (processorWait - m_processorWaitMs);
        m_processorWaitMs = processorWait;
        m_longestMs = qMax(m_longestMs, ms);
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_processorWaitMs = processorWaitMs();
    qint64 m_longestMs = 0;
};

/// Maximum wait that a user does not perceive as a hanging window.
constexpr qint64 longestWaitMs = testsupport::isSanitized ? 2000 : 200;

/// The longest wait for an event while images are taken from a video; -1 if some are missing.
qint64 longestWaitDuring(const QString& video)
{
    const TestDir images;
    RunningBatch batch;
    addSpreadJob(batch, video, images.path(), 12);
    const Heartbeat heartbeat;
    const bool hasEnded = batch.execToItsEnd();
    return hasEnded && filesIn(images.path()).size() == 12 ? heartbeat.longestMs() : -1;
}

} // namespace

class BatchProcessingVideosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySample_givesItsImageOrALogLine();
    void cancelling_leavesWholeImages_andNoMorePositions();
    void window_staysResponsive_duringLargeVideos_data();
    void window_staysResponsive_duringLargeVideos();
    void deletedVideo_isLogged_andTheOthersGoOn();
    void videoDeletedWhileItRuns_doesNotStopTheBatch();
    void vanishedFolder_isLogged_andTheOthersGoOn();
    void readOnlyFolder_isLogged();
};

void BatchProcessingVideosTest::everySample_givesItsImageOrALogLine()
{
    const TestDir dir;
    RunningBatch batch;
    const QStringList files = allSampleFiles();
    for (int i = 0; i < files.size(); ++i) {
        batch.addJob(samplePath(files.at(i)), makeFolder(dir, QString::number(i)));
    }
    QVERIFY(batch.execToItsEnd());
    const QStringList lines = batch.logLines();
    QVERIFY2(lines.last().startsWith(QStringLiteral("Finished: ")), qPrintable(lines.last()));
    int failures = 0;
    for (int i = 0; i < files.size(); ++i) {
        const QString& file = files.at(i);
        const QString folder = dir.filePath(QString::number(i));
        const QStringList images = filesIn(folder);
        const int errors = lines.filter(samplePath(file) + QStringLiteral(": ")).size();
        QVERIFY2(images.size() + errors == 1, qPrintable(file));
        for (const QString& image : images) {
            QVERIFY2(!QImage(QDir(folder).filePath(image)).isNull(), qPrintable(file));
        }
        failures += errors;
    }
    QCOMPARE(lines.size(), failures + 1);

    const QList<Sample>& goodOnes = testsupport::videoSamplesToRepeat();
    for (int i = 0; i < goodOnes.size(); ++i) {
        const QString folder = dir.filePath(QString::number(i));
        const QStringList images = filesIn(folder);
        QVERIFY2(images.isEmpty() != givesAnImage(goodOnes.at(i)), qPrintable(files.at(i)));
        for (const QString& image : images) {
            const QImage picture(QDir(folder).filePath(image));
            QVERIFY2(testsupport::frameNumber(picture).has_value(), qPrintable(files.at(i)));
        }
    }
}

/// Large images take long to write, so that most cancellations happen during writing.
void BatchProcessingVideosTest::cancelling_leavesWholeImages_andNoMorePositions()
{
    const TestDir dir;
    const QString video = makeLongLargeVideo(dir, QStringLiteral("h264_2160p.mp4"));
    QVERIFY(!video.isEmpty());
    const QString folder = makeFolder(dir, QStringLiteral("images"));
    RunningBatch batch;
    BatchWorkerConfig& config = addSpreadJob(batch, video, folder, 1000);
    config.imageProfile()->setSameSizeAsVideo(true);
    config.filenameProfile()->setFileOutputType(QStringLiteral("png"));
    const auto positions = countPositions(batch);
    int before = 0;
    QStringList images;
    batch.exec([&] {
        QVERIFY(QTest::qWaitFor([&folder] { return filesIn(folder).size() > 1; }, 60000));
        batch.dialog().abort();
        before = *positions;
        images = filesIn(folder);
        QVERIFY(batch.waitForEnd());
    });
    QVERIFY(*positions - before <= 1);
    QCOMPARE(filesIn(folder), images);
    for (const QString& image : qAsConst(images)) {
        QCOMPARE(QImage(QDir(folder).filePath(image)).size(), QSize(3840, 2160));
    }
    QCOMPARE(batch.logLines(),
             QStringList{QStringLiteral("Cancelled after %1 images").arg(images.size())});
}

void BatchProcessingVideosTest::window_staysResponsive_duringLargeVideos_data()
{
    QTest::addColumn<QString>("sample");
    QTest::newRow("H.264") << "h264_2160p.mp4";
    QTest::newRow("HEVC") << "hevc_2160p.mp4";
}

/// A busy machine may delay one run; a delay in all of them is our own.
void BatchProcessingVideosTest::window_staysResponsive_duringLargeVideos()
{
    QFETCH(const QString, sample);
    const TestDir dir;
    const QString video = makeLongLargeVideo(dir, sample);
    QVERIFY(!video.isEmpty());
    qint64 wait = longestWaitMs + 1;
    for (int attempt = 0; attempt < 5 && wait > longestWaitMs; ++attempt) {
        wait = longestWaitDuring(video);
        QVERIFY(wait >= 0);
    }
    QVERIFY2(wait <= longestWaitMs, qPrintable(QString::number(wait)));
}

void BatchProcessingVideosTest::deletedVideo_isLogged_andTheOthersGoOn()
{
    const TestDir dir;
    const QString doomed =
        copySample(QStringLiteral("h264_bframes.mp4"), dir, QStringLiteral("doomed.mp4"));
    const QString folder = makeFolder(dir, QStringLiteral("images"));
    RunningBatch batch;
    addSpreadJob(batch, samplePath(QStringLiteral("mjpeg.avi")), folder, 4);
    batch.addJob(doomed, folder);
    batch.addJob(samplePath(QStringLiteral("mpeg4.mp4")), folder);
    batch.exec([&] {
        QVERIFY(QTest::qWaitFor([&folder] { return !filesIn(folder).isEmpty(); }, 60000));
        QVERIFY(QFile::remove(doomed));
        QVERIFY(batch.waitForEnd());
    });
    QCOMPARE(batch.logLines(), (QStringList{doomed + QStringLiteral(": Could not open file"),
                                            QStringLiteral("Finished: 5 images, 1 failed")}));
    QCOMPARE(filesIn(folder).size(), 5);
}

/// On systems where an open file can be deleted, it can still be read.
void BatchProcessingVideosTest::videoDeletedWhileItRuns_doesNotStopTheBatch()
{
    const TestDir dir;
    const QString doomed =
        copySample(QStringLiteral("h264_gop250.mp4"), dir, QStringLiteral("doomed.mp4"));
    const QString folder = makeFolder(dir, QStringLiteral("images"));
    RunningBatch batch;
    addSpreadJob(batch, doomed, folder, 6);
    batch.exec([&] {
        QVERIFY(QTest::qWaitFor([&folder] { return !filesIn(folder).isEmpty(); }, 60000));
        QVERIFY(QFile::remove(doomed));
        QVERIFY(batch.waitForEnd());
    });
    const QStringList lines = batch.logLines();
    QVERIFY2(lines.last().startsWith(QStringLiteral("Finished: ")), qPrintable(lines.last()));
    const int images = filesIn(folder).size();
    QCOMPARE(lines.filter(doomed + QStringLiteral(": Frame extraction error ")).size(),
             images < 6 ? 1 : 0);
    QVERIFY2(lines.last().startsWith(QStringLiteral("Finished: %1 image").arg(images)),
             qPrintable(lines.last()));
}

void BatchProcessingVideosTest::vanishedFolder_isLogged_andTheOthersGoOn()
{
    const TestDir dir;
    const QString video = samplePath(QStringLiteral("h264_gop250.mp4"));
    const QString doomed = makeFolder(dir, QStringLiteral("doomed"));
    const QString folder = makeFolder(dir, QStringLiteral("images"));
    RunningBatch batch;
    addSpreadJob(batch, video, doomed, 6);
    batch.addJob(samplePath(QStringLiteral("mpeg4.mp4")), folder);
    int saved = 0;
    batch.exec([&] {
        QVERIFY(QTest::qWaitFor([&doomed] { return !filesIn(doomed).isEmpty(); }, 60000));
        saved = filesIn(doomed).size();
        QVERIFY(QDir(doomed).removeRecursively());
        QVERIFY(batch.waitForEnd());
    });
    const QStringList lines = batch.logLines();
    const QString head = video + QStringLiteral(": Could not save ") + doomed;
    // One line for all missing images, with their number.
    QCOMPARE(lines.filter(head).size(), saved < 6 ? 1 : 0);
    QCOMPARE(lines.last(),
             QStringLiteral("Finished: %1 images, %2 failed").arg(saved + 1).arg(6 - saved));
    QVERIFY(!QFile::exists(doomed));
    QCOMPARE(filesIn(folder).size(), 1);
}

void BatchProcessingVideosTest::readOnlyFolder_isLogged()
{
    const TestDir dir;
    QString folder = makeFolder(dir, QStringLiteral("images"));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    if (QFileInfo(folder).isWritable()) {
        // Permissions do not stop the superuser, but nobody can create files here.
        folder = QStringLiteral("/proc");
    }
    const QString video = samplePath(QStringLiteral("mpeg4.mp4"));
    RunningBatch batch;
    batch.addJob(video, folder);
    QVERIFY(batch.execToItsEnd());
    QCOMPARE(batch.logLines(),
             (QStringList{video + QStringLiteral(": Could not save ") +
                              QDir(folder).filePath(QStringLiteral("mpeg4-.jpeg")),
                          QStringLiteral("Finished: 0 images, 1 failed")}));
}

QTEST_MAIN(BatchProcessingVideosTest)
#include "BatchProcessingVideosTest.moc"
