#include "batch/BatchThread.h"

#include "batch/BatchWorker.h"

#include <QDebug>

#include <algorithm>

namespace {

/// Leaves the receivers of the signals some time between two jobs.
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
    // run() has held it last.
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
    // Lets the destructor know in a way that thread sanitizer sees, as it does not see wait().
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

/// Takes the worker out of the queue and has it deleted.
///
/// Frames may still wait for it in its own thread, and news of it for others there. They all come
/// before its deletion, so that the images are saved and told of; until then it keeps its
/// connections. A bare deleteLater() might overtake them: it can be served apart from other events.
void BatchThread::release(BatchWorker& worker)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_finished;
    QMetaObject::invokeMethod(&worker, &QObject::deleteLater, Qt::QueuedConnection);
}

/// The first worker that has not finished; null when all have, or when they shall not.
BatchWorker* BatchThread::nextWorker() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool isOver = isInterruptionRequested() || m_finished == m_workers.size();
    return isOver ? nullptr : m_workers[m_finished];
}

/// The batch's progress when so much of the worker's job is done; without a worker, of the one that
/// runs. What a worker reported may arrive after its end: it counts for its own place in the queue.
float BatchThread::overallProgress(float progress, const BatchWorker* worker) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto finishedOnes = m_workers.cbegin() + std::ptrdiff_t(m_finished);
    const auto place = std::find(m_workers.cbegin(), finishedOnes, worker) - m_workers.cbegin();
    const float done = (static_cast<float>(place) + progress) / static_cast<float>(m_total);
    return std::max(0.0F, std::min(1.0F, done));
}
