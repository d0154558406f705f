#include "batch/Worker.h"

#include <QTest>

namespace {

class IdleWorker : public Worker
{
public:
    void run() override {}
};

} // namespace

class WorkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void worker_isNotInterrupted_whenNew();
    void worker_staysInterrupted_onceAsked();
    void worker_isNotDeletedByAPool();
};

void WorkerTest::worker_isNotInterrupted_whenNew()
{
    const IdleWorker worker;
    QVERIFY(!worker.isInterruptionRequested());
}

void WorkerTest::worker_staysInterrupted_onceAsked()
{
    IdleWorker worker;
    for (int i = 0; i < 2; ++i) {
        QTest::ignoreMessage(QtDebugMsg, "Worker::requestInterruption()");
        worker.requestInterruption();
        QVERIFY(worker.isInterruptionRequested());
    }
}

void WorkerTest::worker_isNotDeletedByAPool()
{
    const IdleWorker worker;
    QVERIFY(!worker.autoDelete());
}

QTEST_GUILESS_MAIN(WorkerTest)
#include "WorkerTest.moc"
