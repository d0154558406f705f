// A batch on a full disk: it waits, asks, and continues or stops.

#include "batch/BatchThread.h"
#include "batch/BatchWorker.h"
#include "batch/BatchWorkerConfig.h"
#include "imaging/WriteFailure.h"
#include "tests/batch/ThreadEvents.h"
#include "tests/batch/WorkerEvents.h"
#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "tests/support/SmallDisk.h"

#include <QDir>
#include <QImage>
#include <QTest>

#include <memory>

using testsupport::patienceMs;
using testsupport::samplePath;

namespace {

/// A disk of a megabyte, almost full.
class FullDisk : public testsupport::SmallDisk
{
public:
    FullDisk() { fill(); }

    /// Number of pictures; -1 if one is incomplete, or something else is there.
    [[nodiscard]] int pictures() const
    {
        const QStringList names = QDir(path()).entryList(QDir::Files | QDir::Hidden);
        int count = 0;
        for (const QString& name : names) {
            if (name == fillerName()) {
                continue;
            }
            if (QImage(path(name)).isNull()) {
                return -1;
            }
            ++count;
        }
        return count;
    }
};

/// A batch of one job of six images.
struct Batch
{
    Batch(const FullDisk& disk, bool isExact)
        : worker(new BatchWorker)
        , events(*worker)
    {
        config.setSource(samplePath(QStringLiteral("h264_gop250.mp4")));
        config.setFileOutputPath(disk.path());
        config.setExactFrames(isExact);
        config.setIntervalType(BatchWorkerConfig::SpreadImages);
        config.setIntervalImages(6);
        worker->setConfig(&config);
    }

    void run()
    {
        const ThreadEvents threadEvents(thread);
        thread.addWorker(worker);
        thread.start();
        QVERIFY(threadEvents.waitForEnd());
        QVERIFY(thread.wait(patienceMs));
        QCoreApplication::processEvents();
    }

    BatchWorkerConfig config;
    BatchThread thread;
    BatchWorker* worker; ///< owned by the thread once added
    WorkerEvents events;
};

} // namespace

class BatchRoomTest : public QObject
{
    Q_OBJECT

private:
    static void addBothWays()
    {
        QTest::addColumn<bool>("isExact");
        QTest::newRow("exact frames") << true;
        QTest::newRow("key frames") << false;
    }

private Q_SLOTS:
    void fullDisk_isAskedAbout_andTheImageSavedAfterwards_data() { addBothWays(); }
    void fullDisk_isAskedAbout_andTheImageSavedAfterwards()
    {
        QFETCH(const bool, isExact);
        const FullDisk disk;
        if (!disk.isThere()) {
            QSKIP("Mounting a small disk needs root's rights.");
        }
        Batch batch(disk, isExact);
        int questions = 0;
        bool isInOwnThread = true;
        qint64 missing = 0;
        batch.worker->setRoomQuestion([&](const WriteFailure& failure) {
            ++questions;
            isInOwnThread = isInOwnThread && QThread::currentThread() == thread();
            missing = failure.missing;
            // As a dialog does while the user frees some space.
            QTest::qWait(300);
            if (questions == 2) {
                disk.makeRoom();
            }
            if (questions > 2) {
                batch.thread.requestInterruption();
            }
            return questions <= 2;
        });
        batch.run();
        QCOMPARE(questions, 2);
        QVERIFY(isInOwnThread);
        QVERIFY(missing > 0);
        QCOMPARE(disk.pictures(), 6);
        QCOMPARE(batch.events.of(QStringLiteral("error")), QStringList());
        QCOMPARE(batch.events.of(QStringLiteral("image")).size(), 6);
    }

    void stopping_endsTheBatch_withWholeImages_data() { addBothWays(); }
    void stopping_endsTheBatch_withWholeImages()
    {
        QFETCH(const bool, isExact);
        const FullDisk disk;
        if (!disk.isThere()) {
            QSKIP("Mounting a small disk needs root's rights.");
        }
        Batch batch(disk, isExact);
        int questions = 0;
        batch.worker->setRoomQuestion([&](const WriteFailure&) {
            ++questions;
            QTest::qWait(100);
            batch.thread.requestInterruption();
            return false;
        });
        batch.run();
        QCOMPARE(questions, 1);
        QVERIFY(disk.pictures() >= 0);
        QVERIFY(disk.pictures() < 6);
    }

    void withoutAQuestion_eachImageIsAnError()
    {
        const FullDisk disk;
        if (!disk.isThere()) {
            QSKIP("Mounting a small disk needs root's rights.");
        }
        Batch batch(disk, true);
        batch.run();
        const int saved = disk.pictures();
        QVERIFY(saved >= 0);
        QCOMPARE(batch.events.of(QStringLiteral("error")).size(), 6 - saved);
    }
};

QTEST_GUILESS_MAIN(BatchRoomTest)

#include "BatchRoomTest.moc"
