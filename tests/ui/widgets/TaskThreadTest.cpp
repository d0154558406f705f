#include "ui/widgets/TaskThread.h"

#include "tests/support/Patience.h"

#include <QSemaphore>
#include <QTest>
#include <QVector>

#include <numeric>
#include <thread>

using testsupport::patienceMs;

class TaskThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tasks_runInOneOtherThread_inTheirOrder();
    void post_returnsAtOnce_whileATaskRuns();
    void end_waitsForAllTasks();
};

void TaskThreadTest::tasks_runInOneOtherThread_inTheirOrder()
{
    constexpr int count = 100;
    QVector<int> order;
    QVector<std::thread::id> threads;
    {
        TaskThread tasks;
        for (int i = 0; i < count; ++i) {
            tasks.post([&order, &threads, i] {
                order.append(i);
                threads.append(std::this_thread::get_id());
            });
        }
    }
    QVector<int> expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    QCOMPARE(order, expected);
    QCOMPARE(threads.count(threads.first()), count);
    QVERIFY(threads.first() != std::this_thread::get_id());
}

void TaskThreadTest::post_returnsAtOnce_whileATaskRuns()
{
    QSemaphore mayEnd;
    bool wasFreed = false;
    bool secondRan = false;
    {
        TaskThread tasks;
        tasks.post([&] { wasFreed = mayEnd.tryAcquire(1, patienceMs); });
        // Would wait for the limit if it waited for the first.
        tasks.post([&] { secondRan = true; });
        mayEnd.release();
    }
    QVERIFY(wasFreed);
    QVERIFY(secondRan);
}

void TaskThreadTest::end_waitsForAllTasks()
{
    QSemaphore begun;
    int done = 0;
    {
        TaskThread tasks;
        tasks.post([&] {
            begun.release();
            ++done;
        });
        tasks.post([&] { ++done; });
        QVERIFY(begun.tryAcquire(1, patienceMs));
    }
    QCOMPARE(done, 2);
}

QTEST_GUILESS_MAIN(TaskThreadTest)
#include "TaskThreadTest.moc"
