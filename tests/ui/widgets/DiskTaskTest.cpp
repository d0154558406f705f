#include "ui/widgets/DiskTask.h"

#include "tests/support/Patience.h"

#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>

using testsupport::patienceMs;

class DiskTaskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void task_runsInAnotherThread_andAnswers();
    void newerTask_runsAtOnce_andSilencesTheOlderOne();
    void cancelledTask_noticesIt_andGivesNoAnswer();
    void end_waitsForATaskThatEndsSoon();
    void end_abandonsATaskThatHangs();
    void question_isWaitedFor_whileItEndsSoon();
    void question_thatHangs_isAbandoned_andAloneUntilItEnds();
};

namespace {

/// What a task that hangs owns together with its case.
struct Hang
{
    QSemaphore hasBegun;
    QSemaphore mayEnd;
    QSemaphore hasEnded;
    std::atomic<bool> wasCancelled{false};
    std::atomic<bool> hasAnswered{false};
};

DiskTask::Task hanging(const std::shared_ptr<Hang>& hang)
{
    return [hang](const DiskTask::Run& run) {
        hang->hasBegun.release();
        hang->mayEnd.tryAcquire(1, patienceMs);
        hang->wasCancelled = run.isCancelled();
        run.answer([&] { hang->hasAnswered = true; });
        hang->hasEnded.release();
    };
}

} // namespace

void DiskTaskTest::task_runsInAnotherThread_andAnswers()
{
    QSemaphore done;
    std::thread::id runner;
    DiskTask task;
    task.start([&](const DiskTask::Run& run) {
        run.answer([&] {
            runner = std::this_thread::get_id();
            done.release();
        });
    });
    QVERIFY(done.tryAcquire(1, patienceMs));
    QVERIFY(runner != std::this_thread::get_id());
}

void DiskTaskTest::newerTask_runsAtOnce_andSilencesTheOlderOne()
{
    const auto hang = std::make_shared<Hang>();
    QSemaphore done;
    DiskTask task;
    task.start(hanging(hang));
    QVERIFY(hang->hasBegun.tryAcquire(1, patienceMs));
    task.start([&done](const DiskTask::Run& run) { run.answer([&done] { done.release(); }); });
    QVERIFY(done.tryAcquire(1, patienceMs));
    hang->mayEnd.release();
    QVERIFY(hang->hasEnded.tryAcquire(1, patienceMs));
    QVERIFY(!hang->hasAnswered);
}

void DiskTaskTest::cancelledTask_noticesIt_andGivesNoAnswer()
{
    const auto hang = std::make_shared<Hang>();
    DiskTask task;
    task.start(hanging(hang));
    QVERIFY(hang->hasBegun.tryAcquire(1, patienceMs));
    task.cancel();
    QVERIFY(!hang->wasCancelled);
    hang->mayEnd.release();
    QVERIFY(hang->hasEnded.tryAcquire(1, patienceMs));
    QVERIFY(hang->wasCancelled);
    QVERIFY(!hang->hasAnswered);
}

void DiskTaskTest::end_waitsForATaskThatEndsSoon()
{
    const auto hang = std::make_shared<Hang>();
    {
        DiskTask task;
        task.start(hanging(hang));
        QVERIFY(hang->hasBegun.tryAcquire(1, patienceMs));
        hang->mayEnd.release();
    }
    QVERIFY(hang->hasEnded.tryAcquire());
}

void DiskTaskTest::end_abandonsATaskThatHangs()
{
    const auto hang = std::make_shared<Hang>();
    {
        DiskTask task;
        task.start(hanging(hang));
        QVERIFY(hang->hasBegun.tryAcquire(1, patienceMs));
    }
    // Otherwise the end would have waited for it.
    QVERIFY(!hang->hasEnded.tryAcquire());
    hang->mayEnd.release();
    QVERIFY(hang->hasEnded.tryAcquire(1, patienceMs));
    QVERIFY(hang->wasCancelled);
    QVERIFY(!hang->hasAnswered);
}

void DiskTaskTest::question_isWaitedFor_whileItEndsSoon()
{
    std::thread::id runner;
    QVERIFY(DiskTask::endsSoon([&runner] { runner = std::this_thread::get_id(); }));
    QVERIFY(runner != std::this_thread::get_id());
}

void DiskTaskTest::question_thatHangs_isAbandoned_andAloneUntilItEnds()
{
    const auto hang = std::make_shared<Hang>();
    QVERIFY(!DiskTask::endsSoon([hang] { hang->mayEnd.tryAcquire(1, patienceMs); }));
    bool hasRun = false;
    QVERIFY(!DiskTask::endsSoon([&hasRun] { hasRun = true; }));
    QVERIFY(!hasRun);
    hang->mayEnd.release();
    QTRY_VERIFY_WITH_TIMEOUT(DiskTask::endsSoon([] {}), patienceMs);
}

QTEST_GUILESS_MAIN(DiskTaskTest)
#include "DiskTaskTest.moc"
