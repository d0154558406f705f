#include "utils/CallQueue.h"

#include "tests/support/Patience.h"

#include <QEventLoop>
#include <QTest>
#include <QThread>
#include <QVector>

#include <functional>
#include <future>
#include <memory>
#include <numeric>
#include <thread>

using testsupport::patienceMs;

namespace {

void runElsewhere(const std::function<void()>& work)
{
    std::thread(work).join();
}

} // namespace

class CallQueueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void functions_areCalledInTheOwnersThread_inTheirOrder();
    void ownPost_isNotCalledAtOnce();
    void laterFunction_isCalled_whileAnEarlierOneWaits();
    void functionsAfterTheEnd_areDropped();
    void function_canDestroyTheQueue();
    void queue_canEnd_afterAThreadOfQt();
};

void CallQueueTest::functions_areCalledInTheOwnersThread_inTheirOrder()
{
    constexpr int count = 100;
    CallQueue queue;
    QVector<int> order;
    QVector<QThread*> threads;
    const auto poster = std::async(std::launch::async, [&queue, &order, &threads] {
        for (int i = 0; i < count; ++i) {
            queue.post([&order, &threads, numbers = QVector<int>{i}] {
                order += numbers;
                threads.append(QThread::currentThread());
            });
        }
    });
    QTRY_COMPARE_WITH_TIMEOUT(order.size(), count, patienceMs);
    QVector<int> expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    QCOMPARE(order, expected);
    QCOMPARE(threads.count(thread()), count);
}

void CallQueueTest::ownPost_isNotCalledAtOnce()
{
    CallQueue queue;
    bool wasCalled = false;
    queue.post([&] { wasCalled = true; });
    QVERIFY(!wasCalled);
    QTRY_VERIFY_WITH_TIMEOUT(wasCalled, patienceMs);
}

void CallQueueTest::laterFunction_isCalled_whileAnEarlierOneWaits()
{
    CallQueue queue;
    QVector<int> order;
    queue.post([&] {
        order.append(1);
        QEventLoop waiting;
        std::thread poster([&] {
            queue.post([&] {
                order.append(2);
                waiting.quit();
            });
        });
        waiting.exec();
        poster.join();
        order.append(3);
    });
    QTRY_COMPARE_WITH_TIMEOUT(order, (QVector<int>{1, 2, 3}), patienceMs);
}

void CallQueueTest::functionsAfterTheEnd_areDropped()
{
    const auto held = std::make_shared<int>(0);
    {
        CallQueue queue;
        runElsewhere([&] { queue.post([held] { ++*held; }); });
        QCOMPARE(held.use_count(), 2L);
    }
    QCOMPARE(held.use_count(), 1L);
    QCoreApplication::processEvents();
    QCOMPARE(*held, 0);
}

void CallQueueTest::function_canDestroyTheQueue()
{
    auto queue = std::make_unique<CallQueue>();
    runElsewhere([&] { queue->post([&] { queue.reset(); }); });
    QTRY_VERIFY_WITH_TIMEOUT(queue == nullptr, patienceMs);
}

void CallQueueTest::queue_canEnd_afterAThreadOfQt()
{
    for (int i = 0; i < 50; ++i) {
        auto queue = std::make_unique<CallQueue>();
        const std::unique_ptr<QThread> poster(
            QThread::create([posted = queue.get()] { posted->post([] {}); }));
        poster->start();
        QVERIFY(poster->wait(patienceMs));
        queue.reset();
    }
}

QTEST_GUILESS_MAIN(CallQueueTest)
#include "CallQueueTest.moc"
