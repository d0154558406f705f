#pragma once

#include <QThread>

#include <atomic>
#include <cstddef>
#include <mutex>
#include <vector>

class BatchWorker;

/// Runs the workers of one batch one after another, and reports the progress of the whole batch.
///
/// A thread runs once: add the workers, start it, wait for threadDone(). Workers that fail do not
/// stop the batch.
///
/// Threads: the object and its workers belong to the thread that created them; only run(), and what
/// the workers do in it, happens elsewhere. Signals are emitted in either thread; receivers in the
/// creating thread get them through its event loop. The destructor waits for the thread, which
/// takes as long as the running worker needs for its next step.
class BatchThread : public QThread
{
    Q_OBJECT

public:
    explicit BatchThread(QObject* parent = nullptr);
    ~BatchThread() override;

    /// Appends a worker to the queue and takes ownership: it is deleted soon after its run,
    /// otherwise with this object. Calling this while the thread runs ends the program.
    void addWorker(BatchWorker* worker);

    /// Whether the batch should end early. From any thread. Not QThread's own flag, which is reset
    /// when the thread ends.
    bool isInterruptionRequested() const { return m_interruption != 0; }

    /// Makes the running worker stop at its next step and prevents the others from starting;
    /// returns at once. From any thread.
    void requestInterruption();

    /// Reports the batch's progress from that of the running job, 0 to 1. Does nothing once
    /// interrupted.
    void updateProgress(float progress);

    /// Runs the queue to its end or to an interruption. Called by start().
    void run() override;

Q_SIGNALS:
    /// Progress of the batch and of the running job, both from 0 to 1.
    void progressUpdate(float overall, float current);
    /// The last signal: nothing runs any more. Emitted once, also after an interruption.
    void threadDone();

protected Q_SLOTS:
    /// Like updateProgress(), for the job of that worker, which may have ended meanwhile.
    void workerProgressUpdate(BatchWorker* worker, float progress);

private:
    void runWorkers();
    void runWorker(BatchWorker& worker);
    void release(BatchWorker& worker);
    BatchWorker* nextWorker() const;
    float overallProgress(float progress, const BatchWorker* worker = nullptr) const;

    std::atomic<int> m_interruption{0};

    mutable std::mutex m_mutex;
    /// All workers added. Guarded by m_mutex, like all that follows. The first m_finished pointers
    /// are dangling and serve only for comparison.
    std::vector<BatchWorker*> m_workers;
    std::size_t m_finished = 0;
    /// How many workers there were when run() began.
    std::size_t m_total = 0;
};
