#include "ui/widgets/ResponsiveWait.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QTest>
#include <QTimer>

#include <thread>

class ResponsiveWaitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void work_isDoneInAnotherThread_whenItReturns();
    void events_arrive_whileItWaits();
    void work_isFinished_inAnApplicationThatQuits();
};

void ResponsiveWaitTest::work_isDoneInAnotherThread_whenItReturns()
{
    std::thread::id worker;
    ResponsiveWait::run([&worker] { worker = std::this_thread::get_id(); });
    QVERIFY(worker != std::thread::id());
    QVERIFY(worker != std::this_thread::get_id());
}

void ResponsiveWaitTest::events_arrive_whileItWaits()
{
    constexpr int limitMs = 10000;
    QSemaphore arrived;
    bool hasArrived = false;
    QTimer::singleShot(0, this, [&arrived] { arrived.release(); });
    ResponsiveWait::run([&] { hasArrived = arrived.tryAcquire(1, limitMs); });
    QVERIFY(hasArrived);
}

void ResponsiveWaitTest::work_isFinished_inAnApplicationThatQuits()
{
    bool isDone = false;
    QTimer::singleShot(0, this, [&isDone] {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        ResponsiveWait::run([&isDone] {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            isDone = true;
        });
        QVERIFY(isDone);
    });
    QCoreApplication::exec();
    QVERIFY(isDone);
}

QTEST_GUILESS_MAIN(ResponsiveWaitTest)
#include "ResponsiveWaitTest.moc"
