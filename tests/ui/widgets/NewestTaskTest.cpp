#include "ui/widgets/NewestTask.h"

#include "tests/support/Patience.h"

#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <utility>

using testsupport::patienceMs;

class NewestTaskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void task_runsInAnotherThread();
    void newerTask_cancelsTheRunningOne_andReplacesTheWaitingOne();
    void cancel_returnsAtOnce_whileTheTaskRunsOn();
    void cancel_dropsAtOnce_whatAWaitingTaskHolds();
    void end_waitsForTheTask();
};

void NewestTaskTest::task_runsInAnotherThread()
{
    QSemaphore done;
    std::thread::id runner;
    NewestTask tasks;
    tasks.start([&](const NewestTask::IsCancelled&) {
        runner = std::this_thread::get_id();
        done.release();
    });
    QVERIFY(done.tryAcquire(1, patienceMs));
    QVERIFY(runner != std::this_thread::get_id());
}

void NewestTaskTest::newerTask_cancelsTheRunningOne_andReplacesTheWaitingOne()
{
    QSemaphore begun;
    QSemaphore mayEnd;
    QSemaphore done;
    std::atomic<bool> firstWasCancelled{false};
    std::atomic<bool> secondRan{false};
    NewestTask tasks;
    tasks.start([&](const NewestTask::IsCancelled& isCancelled) {
        begun.release();
        mayEnd.tryAcquire(1, patienceMs);
        firstWasCancelled = isCancelled();
    });
    QVERIFY(begun.tryAcquire(1, patienceMs));
    tasks.start([&](const NewestTask::IsCancelled&) { secondRan = true; });
    tasks.start([&](const NewestTask::IsCancelled& isCancelled) {
        if (!isCancelled()) {
            done.release();
        }
    });
    mayEnd.release();
    QVERIFY(done.tryAcquire(1, patienceMs));
    QVERIFY(firstWasCancelled);
    QVERIFY(!secondRan);
}

void NewestTaskTest::cancel_returnsAtOnce_whileTheTaskRunsOn()
{
    QSemaphore begun;
    QSemaphore mayEnd;
    std::atomic<bool> wasCancelled{false};
    {
        NewestTask tasks;
        tasks.start([&](const NewestTask::IsCancelled& isCancelled) {
            begun.release();
            mayEnd.tryAcquire(1, patienceMs);
            wasCancelled = isCancelled();
        });
        QVERIFY(begun.tryAcquire(1, patienceMs));
        // This would never return if it waited for the task.
        tasks.cancel();
        QVERIFY(!wasCancelled);
        mayEnd.release();
    }
    QVERIFY(wasCancelled);
}

/// Such tasks hold large pictures.
void NewestTaskTest::cancel_dropsAtOnce_whatAWaitingTaskHolds()
{
    QSemaphore begun;
    QSemaphore mayEnd;
    NewestTask tasks;
    tasks.start([&](const NewestTask::IsCancelled&) {
        begun.release();
        mayEnd.tryAcquire(1, patienceMs);
    });
    QVERIFY(begun.tryAcquire(1, patienceMs));
    auto picture = std::make_shared<int>(0);
    const std::weak_ptr<int> held = picture;
    tasks.start([picture = std::move(picture)](const NewestTask::IsCancelled&) {});
    QVERIFY(!held.expired());
    tasks.cancel();
    QVERIFY(held.expired());
    mayEnd.release();
}

void NewestTaskTest::end_waitsForTheTask()
{
    std::atomic<bool> isOver{false};
    QSemaphore begun;
    {
        NewestTask tasks;
        tasks.start([&](const NewestTask::IsCancelled& isCancelled) {
            begun.release();
            while (!isCancelled()) {
                std::this_thread::yield();
            }
            isOver = true;
        });
        QVERIFY(begun.tryAcquire(1, patienceMs));
    }
    QVERIFY(isOver);
}

QTEST_GUILESS_MAIN(NewestTaskTest)
#include "NewestTaskTest.moc"
