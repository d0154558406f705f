#pragma once

#include <QThread>

#include <atomic>
#include <cstddef>
#include <mutex>
#include <vector>

class BatchWorker;

/// Runs the workers of one batch one after another, and tells how far the whole batch is.
///
/// A thread runs once: add the workers, start it, wait for threadDone(). Workers that fail do not
/// stop the batch.
///
/// Threads: the object and its workers belong to the thread that created them, only run() and what
/// the workers do in theirs are elsewhere. Signals come from either thread; receivers in the
/// creating one get them in its event loop. The end of the object waits for its thread, which
/// takes as long as the running worker needs to its next step.
class BatchThread : public QThread
{
    Q_OBJECT

public:
    explicit BatchThread(QObject* parent = nullptr);
    ~BatchThread() override;

    /// Appends a worker to the queue and becomes its owner: it is gone soon after its run, or else
    /// with the thread. Once the thread runs, this ends the program.
    void addWorker(BatchWorker* worker);

    /// Whether the batch is to end early. From any thread. Not the flag of QThread, which is
    /// forgotten when the thread ends.
    bool isInterruptionRequested() const { return m_interruption != 0; }

    /// Asks the running worker to stop at its next step and keeps the others from starting; returns
    /// at once. From any thread.
    void requestInterruption();

    /// Reports the batch's progress with the running job so far, from 0 to 1; nothing once
    /// interrupted.
    void updateProgress(float progress);

    /// Runs the queue to its end or to an interruption. Called by start().
    void run() override;

Q_SIGNALS:
    /// How much of the batch and of the running job is done, both from 0 to 1.
    void progressUpdate(float overall, float current);
    /// The last signal: nothing runs any more. Emitted once, after an interruption too.
    void threadDone();

protected Q_SLOTS:
    /// The same as updateProgress() for the job of that worker, which may have ended meanwhile.
    void workerProgressUpdate(BatchWorker* worker, float progress);

private:
    void runWorkers();
    void runWorker(BatchWorker& worker);
    void release(BatchWorker& worker);
    BatchWorker* nextWorker() const;
    float overallProgress(float progress, const BatchWorker* worker = nullptr) const;

    std::atomic<int> m_interruption{0};

    mutable std::mutex m_mutex;
    /// Every worker added. Guarded by m_mutex, like all that follows. The first m_finished ones are
    /// gone and serve only to be told apart.
    std::vector<BatchWorker*> m_workers;
    std::size_t m_finished = 0;
    /// How many workers there were when run() began.
    std::size_t m_total = 0;
};
