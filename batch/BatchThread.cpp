#include "batch/BatchThread.h"

#include "batch/BatchWorker.h"

#include <QDebug>

#include <algorithm>

namespace {

/// Gives the receivers of the signals some time between two jobs.
constexpr unsigned long pauseBetweenJobsMilliseconds = 200;

} // namespace

BatchThread::BatchThread(QObject* parent)
    : QThread(parent)
{}

BatchThread::~BatchThread()
{
    if (isRunning()) {
        requestInterruption();
    }
    wait();
    // Waits until run() has released the mutex.
    const std::lock_guard<std::mutex> lock(m_mutex);
}

void BatchThread::addWorker(BatchWorker* worker)
{
    worker->setParent(this);
    if (isRunning()) {
        qFatal("You can't add workers after calling start");
    }
    worker->prepare();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_workers.push_back(worker);
}

void BatchThread::requestInterruption()
{
    qDebug("BatchThread::requestInterruption()");
    int running = 0;
    m_interruption.compare_exchange_strong(running, 1);
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (std::size_t i = m_finished; i < m_workers.size(); ++i) {
        m_workers[i]->requestInterruption();
    }
}

void BatchThread::updateProgress(float progress)
{
    workerProgressUpdate(nullptr, progress);
}

void BatchThread::workerProgressUpdate(BatchWorker* worker, float progress)
{
    if (!isInterruptionRequested()) {
        Q_EMIT progressUpdate(overallProgress(progress, worker), progress);
    }
}

void BatchThread::run()
{
    qDebug("BatchThread::run() %d", m_interruption.load());
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_total = m_workers.size();
    }
    runWorkers();
    Q_EMIT threadDone();
    // Synchronises with the destructor in a way that thread sanitizer sees, unlike wait().
    const std::lock_guard<std::mutex> lock(m_mutex);
}

void BatchThread::runWorkers()
{
    while (BatchWorker* const worker = nextWorker()) {
        runWorker(*worker);
        if (!isInterruptionRequested()) {
            qDebug("Ran");
            Q_EMIT progressUpdate(overallProgress(1.0F), 1.0F);
            release(*worker);
            msleep(pauseBetweenJobsMilliseconds);
        }
    }
}

void BatchThread::runWorker(BatchWorker& worker)
{
    qDebug("Running a worker");
    qDebug("wut wut");
    qDebug("Connecting signals");
    connect(&worker, &BatchWorker::progressUpdate, this, &BatchThread::workerProgressUpdate);
    qDebug("Running");
    worker.run();
}

/// Removes the worker from the queue and schedules its deletion.
///
/// Frames may still be queued for it in its own thread, and its signals for receivers there. All of
/// them are delivered before its deletion, so that the images are saved and reported; until then it
/// keeps its connections. A bare deleteLater() might overtake them, because it can be processed
/// separately from other events.
void BatchThread::release(BatchWorker& worker)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_finished;
    QMetaObject::invokeMethod(&worker, &QObject::deleteLater, Qt::QueuedConnection);
}

/// The first worker that has not finished; null if all have, or after an interruption.
BatchWorker* BatchThread::nextWorker() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool isOver = isInterruptionRequested() || m_finished == m_workers.size();
    return isOver ? nullptr : m_workers[m_finished];
}

/// The batch's progress when this fraction of the worker's job is done; without a worker, of the
/// running one. A worker's report may arrive after its end: it counts for its own place in the
/// queue.
float BatchThread::overallProgress(float progress, const BatchWorker* worker) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto finishedOnes = m_workers.cbegin() + std::ptrdiff_t(m_finished);
    const auto place = std::find(m_workers.cbegin(), finishedOnes, worker) - m_workers.cbegin();
    const float done = (static_cast<float>(place) + progress) / static_cast<float>(m_total);
    return std::max(0.0F, std::min(1.0F, done));
}
