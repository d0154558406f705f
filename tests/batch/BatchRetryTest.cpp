#include "batch/BatchWorker.h"
#include "batch/BatchWorkerConfig.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <memory>

using testsupport::samplePath;
using testsupport::TestDir;

/// What a worker reports as missed, and another worker that makes exactly that.
class BatchRetryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatCouldNotBeSaved_isMissed_andMadeAlone_data();
    void whatCouldNotBeSaved_isMissed_andMadeAlone();
    void whatWasNotReached_isMissed_whenTheJobIsInterrupted_data();
    void whatWasNotReached_isMissed_whenTheJobIsInterrupted();
    void nothingIsMissed_whenAllIsWell();
    void positions_areUnknown_whenTheVideoCannotBeOpened();
};

namespace {

/// 520 frames, 25 per second.
const QString clip = QStringLiteral("h264_gop250.mp4");

/// Images every 4.3 seconds: five.
constexpr int imageCount = 5;

QString imagesIn(const TestDir& dir)
{
    return dir.filePath(QStringLiteral("images"));
}

/// A job into a folder of the case, which can be run repeatedly.
class RetryJob
{
public:
    RetryJob(const TestDir& dir, bool isExact)
        : m_folder(imagesIn(dir))
    {
        m_config.setSource(samplePath(clip));
        m_config.setOutputDir(QDir(m_folder));
        m_config.setExactFrames(isExact);
        m_config.setSkipFront(0);
        m_config.setSkipBack(0);
        m_config.setIntervalMilliseconds(4300);
        if (!QDir().mkpath(m_folder)) {
            qFatal("no folder");
        }
        renew();
    }

    BatchWorker& worker() { return *m_worker; }
    BatchWorkerConfig& config() { return m_config; }

    /// The next worker of the job.
    void renew()
    {
        m_worker = std::make_unique<BatchWorker>();
        m_worker->setConfig(&m_config);
    }

    /// Makes the folder vanish after the first image.
    void failAfterTheFirst()
    {
        QObject::connect(m_worker.get(), &BatchWorker::imageReady, m_worker.get(),
                         [this] { static_cast<void>(QDir().rename(m_folder, hidden())); });
    }
    [[nodiscard]] bool repair() const { return QDir().rename(hidden(), m_folder); }

    /// The numbers in the images, in rising order.
    [[nodiscard]] QList<int> frames() const
    {
        QList<int> numbers;
        const QStringList names = QDir(m_folder).entryList(QDir::Files);
        for (const QString& name : names) {
            const QImage image(QDir(m_folder).filePath(name));
            numbers.append(testsupport::frameNumber(image).value_or(-1));
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

private:
    [[nodiscard]] QString hidden() const { return m_folder + QStringLiteral("-gone"); }

    BatchWorkerConfig m_config;
    std::unique_ptr<BatchWorker> m_worker;
    const QString m_folder;
};

void addKinds()
{
    QTest::addColumn<bool>("isExact");
    QTest::newRow("exact") << true;
    QTest::newRow("one after another") << false;
}

/// The result of the job without interruption.
QList<int> framesOfAll(bool isExact)
{
    const TestDir dir;
    RetryJob job(dir, isExact);
    job.worker().run();
    return job.frames();
}

} // namespace

void BatchRetryTest::whatCouldNotBeSaved_isMissed_andMadeAlone_data()
{
    addKinds();
}

void BatchRetryTest::whatCouldNotBeSaved_isMissed_andMadeAlone()
{
    QFETCH(bool, isExact);
    const QList<int> all = framesOfAll(isExact);
    QCOMPARE(all.size(), imageCount);
    const TestDir dir;
    RetryJob job(dir, isExact);
    job.failAfterTheFirst();
    job.worker().run();
    const auto missed = job.worker().missedPositions();
    QVERIFY(missed && !missed->isEmpty() && missed->size() < imageCount);
    QVERIFY(job.repair());
    QCOMPARE(job.frames().size() + missed->size(), imageCount);
    job.renew();
    job.worker().setPositions(*missed);
    job.worker().run();
    QCOMPARE(job.frames(), all);
    QVERIFY(!job.worker().missedPositions());
}

void BatchRetryTest::whatWasNotReached_isMissed_whenTheJobIsInterrupted_data()
{
    addKinds();
}

void BatchRetryTest::whatWasNotReached_isMissed_whenTheJobIsInterrupted()
{
    QFETCH(bool, isExact);
    const QList<int> all = framesOfAll(isExact);
    const TestDir dir;
    RetryJob job(dir, isExact);
    connect(&job.worker(), &BatchWorker::imageReady, &job.worker(),
            [&job] { job.worker().requestInterruption(); });
    job.worker().run();
    QCoreApplication::processEvents();
    const auto missed = job.worker().missedPositions().value_or(QVector<qint64>());
    QCOMPARE(job.frames().size() + missed.size(), imageCount);
    job.renew();
    job.worker().setPositions(missed);
    if (!missed.isEmpty()) {
        job.worker().run();
    }
    QCOMPARE(job.frames(), all);
}

void BatchRetryTest::nothingIsMissed_whenAllIsWell()
{
    const TestDir dir;
    RetryJob job(dir, true);
    int done = 0;
    connect(&job.worker(), &BatchWorker::jobDone, &job.worker(), [&done] { ++done; });
    job.worker().run();
    QCoreApplication::processEvents();
    QVERIFY(!job.worker().missedPositions());
    QCOMPARE(done, 1);
}

void BatchRetryTest::positions_areUnknown_whenTheVideoCannotBeOpened()
{
    for (const bool isExact : {true, false}) {
        const TestDir dir;
        RetryJob job(dir, isExact);
        job.config().setSource(samplePath(QStringLiteral("random_bytes.mp4")));
        job.worker().run();
        QVERIFY(!job.worker().missedPositions());
    }
}

QTEST_GUILESS_MAIN(BatchRetryTest)
#include "BatchRetryTest.moc"
