#pragma once

#include <QList>
#include <QObject>
#include <QTimer>

#include <memory>
#include <thread>

class BatchWorkerConfig;

/// Reads the facts of batch jobs' videos in a thread of its own, one video after another.
///
/// A large damaged video takes minutes to read, and a disk may not answer at all. So the owner
/// never waits for a video: a read that does not end soon after its cancellation is abandoned
/// together with its thread, which ends with the read. While the system provides no more threads,
/// the jobs wait.
///
/// Belongs to the user-interface thread, where its signals are emitted from the event loop.
/// Connected slots may load more or cancel, but must not delete it.
class VideoInfoLoader : public QObject
{
    Q_OBJECT

public:
    explicit VideoInfoLoader(QObject* parent = nullptr);
    /// Cancels without emitting signals.
    ~VideoInfoLoader() override;

    /// Appends jobs for reading, and returns at once. The jobs are not owned and must live until
    /// loaded() has reported them or cancel() has returned them.
    void load(const QList<BatchWorkerConfig*>& jobs);

    /// Drops the jobs whose videos have not been read, and returns them in order. Waits briefly for
    /// the running read.
    QList<BatchWorkerConfig*> cancel();

    /// True from load() until the last job is loaded or dropped.
    bool isLoading() const { return !m_waiting.isEmpty(); }

    /// Number of loaded jobs, and of all jobs including waiting ones, both since the wait queue was
    /// last empty.
    int loadedCount() const { return m_loadedCount; }
    int jobCount() const { return m_loadedCount + m_waiting.size(); }

    /// The jobs whose videos have not been read, in their order.
    const QList<BatchWorkerConfig*>& waitingJobs() const { return m_waiting; }

    /// The job whose video is being read; null if there is none.
    BatchWorkerConfig* currentJob() const { return m_waiting.value(0); }

Q_SIGNALS:
    /// The job's videoInfo() holds the result, which is empty for an unreadable video. Jobs are
    /// reported in the order of load().
    void loaded(BatchWorkerConfig* job);
    /// No job waits any more: all are loaded or dropped.
    void finished();

private:
    class Reader;

    void start();
    void startThread();
    void stop();
    void takeFacts();

    /// The jobs to read; the first one is being read.
    QList<BatchWorkerConfig*> m_waiting;
    int m_loadedCount = 0;
    /// Shared with the thread; null while nothing is being read.
    std::shared_ptr<Reader> m_reader;
    std::thread m_thread; ///< not started while m_nextStart runs
    QTimer m_nextStart;
};
