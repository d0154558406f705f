#include "batch/BatchThread.h"

#include "batch/BatchWorker.h"
#include "batch/BatchWorkerConfig.h"
#include "tests/batch/ThreadEvents.h"
#include "tests/batch/WorkerEvents.h"
#include "tests/support/Patience.h"
#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QPointer>
#include <QTest>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

using testsupport::patienceMs;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

/// Makes the test program add a worker to a running thread.
const char* const addLate = "--add-a-worker-after-start";

/// A worker that does what the test specifies, in the thread that runs it.
class ScriptedWorker : public BatchWorker
{
public:
    using Script = std::function<void(ScriptedWorker&)>;
    explicit ScriptedWorker(Script script = {})
        : m_script(std::move(script))
    {}
    void run() override
    {
        if (m_script) {
            m_script(*this);
        }
    }

private:
    Script m_script;
};

/// What the command of the test program does.
int addWorkerAfterStart()
{
    BatchThread thread;
    std::atomic<bool> isRunning{false};
    thread.addWorker(new ScriptedWorker([&isRunning](const ScriptedWorker& worker) {
        isRunning = true;
        while (!worker.isInterruptionRequested()) {
            QThread::msleep(1);
        }
    }));
    thread.start();
    while (!isRunning) {
        QThread::msleep(1);
    }
    thread.addWorker(new ScriptedWorker);
    return 0;
}

/// The debug lines of all threads, in the order in which they were written.
class DebugLines
{
public:
    DebugLines()
        : m_previous(qInstallMessageHandler(&DebugLines::keep))
    {
        const std::lock_guard<std::mutex> lock(s_mutex);
        s_lines.clear();
    }
    ~DebugLines() { qInstallMessageHandler(m_previous); }
    DebugLines(const DebugLines&) = delete;
    DebugLines& operator=(const DebugLines&) = delete;

    static QStringList lines()
    {
        const std::lock_guard<std::mutex> lock(s_mutex);
        return s_lines;
    }

private:
    static void keep(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
    {
        const std::lock_guard<std::mutex> lock(s_mutex);
        if (type == QtDebugMsg) {
            s_lines += text;
        }
    }

    static inline std::mutex s_mutex;
    static inline QStringList s_lines;
    QtMessageHandler m_previous;
};

} // namespace

class BatchThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyThread_isDoneAtOnce_withoutProgress();
    void jobs_runInTheirOrder_outsideTheOwnersThread();
    void progress_countsFinishedJobs_andTheRunningOne();
    void progress_countsForItsOwnJob_whenItArrivesLate();
    void progress_staysWithinItsBounds();
    void updateProgress_countsForTheRunningJob();
    void debugLines_tellOfEachStep();
    void workers_belongToTheThread_andAreGoneAfterTheirRun();
    void lastImages_areSavedAndTold_howeverBusyTheirThreadIs();
    void workers_outliveTheNewsOfThem();
    void failedJob_doesNotStopTheOthers();
    void interruption_stopsTheRunningJob_andThoseToCome();
    void interruption_beforeTheStart_runsNothing();
    void interruption_isNotForgotten();
    void thread_canEnd_whileItRuns();
    void thread_canBeStartedAndCancelled_manyTimes();
    void addWorker_endsTheProgram_afterStart();
};

void BatchThreadTest::emptyThread_isDoneAtOnce_withoutProgress()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    thread.start();
    QVERIFY(events.waitForEnd());
    QCOMPARE(events.all, QStringList{QStringLiteral("done")});
}

void BatchThreadTest::jobs_runInTheirOrder_outsideTheOwnersThread()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    std::mutex mutex;
    QStringList order;
    std::atomic<bool> isElsewhere{true};
    for (const char* const name : {"one", "two", "three"}) {
        thread.addWorker(new ScriptedWorker([&, name](const ScriptedWorker& worker) {
            isElsewhere = isElsewhere && QThread::currentThread() != worker.thread();
            const std::lock_guard<std::mutex> lock(mutex);
            order.append(QString::fromLatin1(name));
        }));
    }
    thread.start();
    QVERIFY(events.waitForEnd());
    const std::lock_guard<std::mutex> lock(mutex);
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("one two three"));
    QVERIFY(isElsewhere);
    QVERIFY(events.isHere);
}

void BatchThreadTest::progress_countsFinishedJobs_andTheRunningOne()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    thread.addWorker(new ScriptedWorker);
    thread.addWorker(new ScriptedWorker([](ScriptedWorker& worker) { worker.setProgress(0.5F); }));
    thread.addWorker(new ScriptedWorker);
    thread.start();
    QVERIFY(events.waitForEnd());
    const QStringList expected{QStringLiteral("0.3333 1.0000"), QStringLiteral("0.5000 0.5000"),
                               QStringLiteral("0.6667 1.0000"), QStringLiteral("1.0000 1.0000"),
                               QStringLiteral("done")};
    QCOMPARE(events.all, expected);
}

/// Nothing arrives while the owner's thread is busy.
void BatchThreadTest::progress_countsForItsOwnJob_whenItArrivesLate()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    thread.addWorker(new ScriptedWorker([](ScriptedWorker& worker) { worker.setProgress(0.5F); }));
    thread.addWorker(new ScriptedWorker([](ScriptedWorker& worker) { worker.setProgress(0.5F); }));
    thread.start();
    QVERIFY(thread.wait(patienceMs));
    QVERIFY(events.waitForEnd());
    QCOMPARE(events.all.filter(QStringLiteral(" 0.5000")),
             (QStringList{QStringLiteral("0.2500 0.5000"), QStringLiteral("0.7500 0.5000")}));
}

void BatchThreadTest::progress_staysWithinItsBounds()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    thread.addWorker(new ScriptedWorker([](ScriptedWorker& worker) {
        worker.setProgress(1.5F);
        worker.setProgress(-0.5F);
    }));
    thread.start();
    QVERIFY(events.waitForEnd());
    QCOMPARE(events.all.mid(0, 2),
             (QStringList{QStringLiteral("1.0000 1.5000"), QStringLiteral("0.0000 -0.5000")}));
}

void BatchThreadTest::updateProgress_countsForTheRunningJob()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    thread.addWorker(new ScriptedWorker);
    thread.addWorker(new ScriptedWorker([&thread](const ScriptedWorker&) {
        thread.updateProgress(0.5F);
        thread.requestInterruption();
        thread.updateProgress(0.75F);
    }));
    thread.start();
    QVERIFY(events.waitForEnd());
    const QStringList expected{QStringLiteral("0.5000 1.0000"), QStringLiteral("0.7500 0.5000"),
                               QStringLiteral("done")};
    QCOMPARE(events.all, expected);
}

void BatchThreadTest::debugLines_tellOfEachStep()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    thread.addWorker(new ScriptedWorker);
    thread.addWorker(
        new ScriptedWorker([&thread](const ScriptedWorker&) { thread.requestInterruption(); }));
    thread.addWorker(new ScriptedWorker);
    const DebugLines debug;
    thread.start();
    QVERIFY(events.waitForEnd());
    const QStringList start{QStringLiteral("Running a worker"), QStringLiteral("wut wut"),
                            QStringLiteral("Connecting signals"), QStringLiteral("Running")};
    const QStringList expected = QStringList{QStringLiteral("BatchThread::run() 0")} + start +
                                 QStringList{QStringLiteral("Ran")} + start +
                                 QStringList{QStringLiteral("BatchThread::requestInterruption()"),
                                             QStringLiteral("Worker::requestInterruption()"),
                                             QStringLiteral("Worker::requestInterruption()")};
    QCOMPARE(DebugLines::lines(), expected);
}

void BatchThreadTest::workers_belongToTheThread_andAreGoneAfterTheirRun()
{
    auto thread = std::make_unique<BatchThread>();
    const ThreadEvents events(*thread);
    const QPointer<BatchWorker> first(new ScriptedWorker);
    const QPointer<BatchWorker> second(
        new ScriptedWorker([&thread](const ScriptedWorker&) { thread->requestInterruption(); }));
    for (BatchWorker* const worker : {first.data(), second.data()}) {
        thread->addWorker(worker);
        QCOMPARE(worker->parent(), thread.get());
    }
    thread->start();
    QVERIFY(events.waitForEnd());
    QTRY_VERIFY(first.isNull());
    QVERIFY(!second.isNull());
    thread.reset();
    QVERIFY(second.isNull());
}

void BatchThreadTest::lastImages_areSavedAndTold_howeverBusyTheirThreadIs()
{
    const TestDir dir;
    BatchWorkerConfig config;
    config.setSource(samplePath(QStringLiteral("h264_bframes.mp4")));
    config.setFileOutputPath(dir.path());
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    config.setIntervalImages(2);
    BatchThread thread;
    const ThreadEvents events(thread);
    auto* const worker = new BatchWorker;
    worker->setConfig(&config);
    const WorkerEvents workerEvents(*worker);
    thread.addWorker(worker);
    thread.start();
    QVERIFY(thread.wait(patienceMs));
    QVERIFY(QDir(dir.path()).isEmpty());
    QVERIFY(events.waitForEnd());
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), 2);
    QCOMPARE(workerEvents.of(QStringLiteral("image")).size(), 2);
}

/// Deletions can be processed before older events, for example by Qt Test's own waiting.
void BatchThreadTest::workers_outliveTheNewsOfThem()
{
    BatchThread thread;
    const QPointer<BatchWorker> worker(new ScriptedWorker([](ScriptedWorker& self) {
        Q_EMIT self.statusUpdate(&self, QStringLiteral("last words"), BatchWorker::Error);
    }));
    bool wasAlive = false;
    connect(worker, &BatchWorker::statusUpdate, this,
            [&wasAlive, &worker] { wasAlive = !worker.isNull(); });
    thread.addWorker(worker);
    thread.start();
    QVERIFY(thread.wait(patienceMs));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(wasAlive);
}

void BatchThreadTest::failedJob_doesNotStopTheOthers()
{
    const TestDir dir;
    BatchWorkerConfig missing;
    missing.setSource(dir.filePath(QStringLiteral("missing.mp4")));
    BatchWorkerConfig good;
    good.setSource(samplePath(QStringLiteral("h264_bframes.mp4")));
    good.setFileOutputPath(dir.path());
    good.setIntervalType(BatchWorkerConfig::SingleShot);
    BatchThread thread;
    const ThreadEvents events(thread);
    for (BatchWorkerConfig* const config : {&missing, &good}) {
        auto* const worker = new BatchWorker;
        worker->setConfig(config);
        thread.addWorker(worker);
    }
    thread.start();
    QVERIFY(events.waitForEnd());
    QVERIFY(events.all.contains(QStringLiteral("0.5000 1.0000")));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files),
             QStringList{QStringLiteral("h264_bframes-.jpeg")});
}

void BatchThreadTest::interruption_stopsTheRunningJob_andThoseToCome()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    std::atomic<bool> secondRuns{false};
    std::atomic<bool> thirdRan{false};
    thread.addWorker(new ScriptedWorker);
    thread.addWorker(new ScriptedWorker([&secondRuns](ScriptedWorker& worker) {
        secondRuns = true;
        while (!worker.isInterruptionRequested()) {
            QThread::msleep(1);
        }
        worker.setProgress(0.5F);
    }));
    thread.addWorker(new ScriptedWorker([&thirdRan](const ScriptedWorker&) { thirdRan = true; }));
    thread.start();
    QVERIFY(QTest::qWaitFor([&secondRuns] { return secondRuns.load(); }, patienceMs));
    thread.requestInterruption();
    QVERIFY(events.waitForEnd());
    QCOMPARE(events.all, (QStringList{QStringLiteral("0.3333 1.0000"), QStringLiteral("done")}));
    QVERIFY(!thirdRan);
}

void BatchThreadTest::interruption_beforeTheStart_runsNothing()
{
    BatchThread thread;
    const ThreadEvents events(thread);
    std::atomic<bool> ran{false};
    thread.addWorker(new ScriptedWorker([&ran](const ScriptedWorker&) { ran = true; }));
    thread.requestInterruption();
    thread.start();
    QVERIFY(events.waitForEnd());
    QCOMPARE(events.all, QStringList{QStringLiteral("done")});
    QVERIFY(!ran);
}

void BatchThreadTest::interruption_isNotForgotten()
{
    BatchThread thread;
    QVERIFY(!thread.isInterruptionRequested());
    thread.requestInterruption();
    QVERIFY(thread.isInterruptionRequested());
    thread.start();
    QVERIFY(thread.wait(patienceMs));
    QVERIFY(thread.isInterruptionRequested());
}

void BatchThreadTest::thread_canEnd_whileItRuns()
{
    std::atomic<bool> isRunning{false};
    std::atomic<bool> wasInterrupted{false};
    auto thread = std::make_unique<BatchThread>();
    thread->addWorker(new ScriptedWorker([&](const ScriptedWorker& worker) {
        isRunning = true;
        while (!worker.isInterruptionRequested()) {
            QThread::msleep(1);
        }
        wasInterrupted = true;
    }));
    thread->start();
    QVERIFY(QTest::qWaitFor([&isRunning] { return isRunning.load(); }, patienceMs));
    thread.reset();
    QVERIFY(wasInterrupted);
}

/// Real jobs, cancelled at various points between the start and the second job. The sanitizers
/// check that nothing is used after its end, and nothing by two threads at a time.
void BatchThreadTest::thread_canBeStartedAndCancelled_manyTimes()
{
    const TestDir dir;
    BatchWorkerConfig config;
    config.setSource(samplePath(QStringLiteral("h264_bframes.mp4")));
    config.setFileOutputPath(dir.path());
    config.setIntervalType(BatchWorkerConfig::SingleShot);
    config.imageProfile()->setImageWidth(32);
    for (int round = 0; round < 200; ++round) {
        BatchThread thread;
        const ThreadEvents events(thread);
        for (int i = 0; i < 3; ++i) {
            auto* const worker = new BatchWorker;
            worker->setConfig(&config);
            thread.addWorker(worker);
        }
        thread.start();
        if (round % 2 == 0) {
            QTest::qWait(round);
        }
        thread.requestInterruption();
        if (round % 4 < 2) {
            QVERIFY(events.waitForEnd());
        }
    }
}

void BatchThreadTest::addWorker_endsTheProgram_afterStart()
{
    const ProgramResult result = testsupport::runProgram(QCoreApplication::applicationFilePath(),
                                                         {QString::fromLatin1(addLate)});
    QCOMPARE(result.end, ProgramResult::End::Crashed);
    QVERIFY2(result.standardError.contains("You can't add workers after calling start"),
             result.standardError.constData());
}

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    if (QCoreApplication::arguments().contains(QString::fromLatin1(addLate))) {
        return addWorkerAfterStart();
    }
    BatchThreadTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "BatchThreadTest.moc"
