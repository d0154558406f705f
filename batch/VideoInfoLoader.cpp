#include "batch/VideoInfoLoader.h"

#include "batch/BatchWorkerConfig.h"

#include <QMetaObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <system_error>

namespace {

/// Maximum time to wait for a cancelled read. Most notice sooner; in some files FFmpeg reads
/// gigabytes before it polls for an interrupt.
constexpr std::chrono::milliseconds longestWait{250};

/// How often to try to start the thread while the system provides no more.
constexpr std::chrono::milliseconds startInterval{500};

} // namespace

/// The videos to read, and the results. Owned by both threads, so that it lasts as long as an
/// abandoned thread needs it.
class VideoInfoLoader::Reader
{
public:
    explicit Reader(VideoInfoLoader& loader)
        : m_loader(loader)
    {}

    /// Appends a video.
    void add(const QString& path);

    /// The facts of the first video whose facts were not taken yet; nothing while it is being read.
    std::optional<VideoFacts> takeFacts();

    /// Reads until end(), and invokes the loader's takeFacts() after each video.
    void run();

    /// Drops all work and stops the notifications. Returns false if run() does not return in time.
    [[nodiscard]] bool end();

private:
    VideoFacts read(const QString& path) const;

    VideoInfoLoader& m_loader; ///< may be dangling after end()
    std::atomic<bool> m_ends{false};

    std::mutex m_mutex;
    // Guarded by m_mutex.
    std::condition_variable m_changed;
    std::deque<QString> m_paths;
    std::deque<VideoFacts> m_facts;
    bool m_hasEnded = false;
};

void VideoInfoLoader::Reader::add(const QString& path)
{
    const std::lock_guard lock(m_mutex);
    m_paths.push_back(path);
    m_changed.notify_all();
}

std::optional<VideoFacts> VideoInfoLoader::Reader::takeFacts()
{
    const std::lock_guard lock(m_mutex);
    if (m_facts.empty()) {
        return std::nullopt;
    }
    const VideoFacts facts = m_facts.front();
    m_facts.pop_front();
    return facts;
}

void VideoInfoLoader::Reader::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_ends) {
        if (m_paths.empty()) {
            m_changed.wait(lock);
            continue;
        }
        const QString path = m_paths.front();
        m_paths.pop_front();
        lock.unlock();
        const VideoFacts facts = read(path);
        lock.lock();
        // Under the lock, since the loader exists until end() has held it.
        if (!m_ends) {
            m_facts.push_back(facts);
            QMetaObject::invokeMethod(&m_loader, &VideoInfoLoader::takeFacts, Qt::QueuedConnection);
        }
    }
    m_hasEnded = true;
    m_changed.notify_all();
}

VideoFacts VideoInfoLoader::Reader::read(const QString& path) const
{
    VideoInfo info;
    info.setInterrupt([this] { return m_ends.load(); });
    info.loadFromVideo(path);
    return info.facts();
}

bool VideoInfoLoader::Reader::end()
{
    std::unique_lock lock(m_mutex);
    m_ends = true;
    m_changed.notify_all();
    return m_changed.wait_for(lock, longestWait, [this] { return m_hasEnded; });
}

VideoInfoLoader::VideoInfoLoader(QObject* parent)
    : QObject(parent)
{
    m_nextStart.setSingleShot(true);
    m_nextStart.setInterval(startInterval);
    connect(&m_nextStart, &QTimer::timeout, this, &VideoInfoLoader::startThread);
}

VideoInfoLoader::~VideoInfoLoader()
{
    stop();
}

void VideoInfoLoader::load(const QList<BatchWorkerConfig*>& jobs)
{
    if (jobs.isEmpty()) {
        return;
    }
    if (!m_reader) {
        start();
    }
    m_waiting += jobs;
    for (const BatchWorkerConfig* const job : jobs) {
        m_reader->add(job->source());
    }
}

QList<BatchWorkerConfig*> VideoInfoLoader::cancel()
{
    QList<BatchWorkerConfig*> dropped;
    dropped.swap(m_waiting);
    stop();
    if (!dropped.isEmpty()) {
        Q_EMIT finished();
    }
    return dropped;
}

void VideoInfoLoader::start()
{
    m_loadedCount = 0;
    m_reader = std::make_shared<Reader>(*this);
    startThread();
}

/// Reading in this thread instead would block it, and without threads no file can be opened.
void VideoInfoLoader::startThread()
{
    try {
        m_thread = std::thread([reader = m_reader] { reader->run(); });
    } catch (const std::system_error&) {
        m_nextStart.start();
    }
}

void VideoInfoLoader::stop()
{
    if (!m_reader) {
        return;
    }
    m_nextStart.stop();
    if (!m_thread.joinable()) {
        m_reader.reset();
        return;
    }
    if (m_reader->end()) {
        m_thread.join();
    } else {
        m_thread.detach();
    }
    m_reader.reset();
}

/// Takes one video at a time, since a slot may cancel or run an event loop.
void VideoInfoLoader::takeFacts()
{
    while (m_reader) {
        const std::optional<VideoFacts> facts = m_reader->takeFacts();
        if (!facts) {
            return;
        }
        BatchWorkerConfig* const job = m_waiting.takeFirst();
        job->setVideoFacts(*facts);
        ++m_loadedCount;
        const bool isLast = m_waiting.isEmpty();
        if (isLast) {
            stop();
        }
        Q_EMIT loaded(job);
        if (isLast && !isLoading()) {
            Q_EMIT finished();
        }
    }
}
