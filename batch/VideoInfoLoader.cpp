#include "batch/VideoInfoLoader.h"

#include "batch/BatchWorkerConfig.h"

#include <QMetaObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

namespace {

/// How long a cancelled read is waited for. Most notice sooner; in some files FFmpeg searches
/// gigabytes before it asks whether it should go on.
constexpr std::chrono::milliseconds longestWait{250};

} // namespace

/// What is to be read and what was found. Owned by both threads, so that it lasts as long as the
/// one that was left behind needs it.
class VideoInfoLoader::Reader
{
public:
    explicit Reader(VideoInfoLoader& loader)
        : m_loader(loader)
    {}

    /// Appends a video.
    void add(const QString& path);

    /// The facts of the first video whose facts were not taken yet; none while it is being read.
    std::optional<VideoFacts> takeFacts();

    /// Reads until end(), and has the loader's takeFacts() called after each video.
    void run();

    /// Drops everything and has nothing called any more. False when run() does not return in time.
    [[nodiscard]] bool end();

private:
    VideoFacts read(const QString& path) const;

    VideoInfoLoader& m_loader; ///< it may be gone after end()
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
        // Within the lock: the loader is there until end() has had it.
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
{}

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
    m_thread = std::thread([reader = m_reader] { reader->run(); });
}

void VideoInfoLoader::stop()
{
    if (!m_reader) {
        return;
    }
    if (m_reader->end()) {
        m_thread.join();
    } else {
        m_thread.detach();
    }
    m_reader.reset();
}

/// One video at a time is taken out, since a slot may cancel, or let the event loop run.
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
