#include "video/Thumbnails.h"

#include <QtAV/FrameReader.h>
#include <QtAV/Times.h>

#include <QThread>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace {

/// Enough for some hundred pictures.
constexpr int mostBytes = 8 * 1024 * 1024;

/// A newer request interrupts the work on an older one only after this time, so that some pictures
/// are finished while the pointer moves on.
constexpr std::chrono::milliseconds patience{150};

QImage smallPicture(const QtAV::VideoFrame& frame)
{
    const QSize whole = frame.displaySize();
    const QSize size = whole.scaled(Thumbnails::largest, Qt::KeepAspectRatio)
                           .boundedTo(whole)
                           .expandedTo(QSize(1, 1));
    return frame.scaledDown(size).toImage(QImage::Format_RGB32, size);
}

} // namespace

/// The thread. Calls by its owner wait at most for the copy of a text.
class Thumbnails::Maker
{
public:
    using Deliver = std::function<void(int source, qint64 ms, QImage)>;

    /// @param deliver  called on the thread.
    explicit Maker(Deliver deliver)
        : m_deliver(std::move(deliver))
        , m_thread(QThread::create([this] { run(); }))
    {
        m_thread->start(QThread::IdlePriority);
    }

    ~Maker()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_quits = true;
            m_isOutdated = true;
        }
        m_changed.notify_one();
        m_thread->wait();
        // Thread sanitizer does not see Qt's wait, but it sees that the thread has released the
        // lock.
        const std::lock_guard lock(m_mutex);
    }

    Maker(const Maker&) = delete;
    Maker& operator=(const Maker&) = delete;

    void setSource(const QString& path, int source)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_path = path;
            m_source = source;
            m_wanted.reset();
            m_isOutdated = true;
        }
        m_changed.notify_one();
    }

    void request(qint64 ms)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_wanted = ms;
            m_hasNewer = true;
        }
        m_changed.notify_one();
    }

    void cancel()
    {
        const std::lock_guard lock(m_mutex);
        m_wanted.reset();
        m_isOutdated = true;
    }

private:
    void run()
    {
        std::unique_lock lock(m_mutex);
        while (!m_quits) {
            if (m_source != m_openSource) {
                useSource(lock);
            } else if (m_wanted) {
                make(lock);
            } else {
                m_changed.wait(lock);
            }
        }
    }

    /// Closes the old file; the new one is opened on the first request.
    void useSource(std::unique_lock<std::mutex>& lock)
    {
        m_openSource = m_source;
        m_openPath = m_path;
        lock.unlock();
        m_reader.close();
        m_isUnreadable = m_openPath.isEmpty();
        lock.lock();
    }

    void make(std::unique_lock<std::mutex>& lock)
    {
        const qint64 ms = *std::exchange(m_wanted, std::nullopt);
        m_isOutdated = false;
        m_hasNewer = false;
        lock.unlock();
        const auto started = std::chrono::steady_clock::now();
        const QtAV::IsCancelled isCancelled = [this, started] {
            return m_isOutdated ||
                   (m_hasNewer && std::chrono::steady_clock::now() - started > patience);
        };
        QImage picture = pictureAt(ms, isCancelled);
        if (!picture.isNull()) {
            m_deliver(m_openSource, ms, std::move(picture));
        }
        lock.lock();
    }

    QImage pictureAt(qint64 ms, const QtAV::IsCancelled& isCancelled)
    {
        if (!open(isCancelled)) {
            return {};
        }
        QtAV::FrameReader::Search search;
        search.ms = ms;
        search.completeFrom = ms;
        search.isReached = [ms](const QtAV::VideoFrame& frame) {
            return QtAV::toMilliseconds(frame.timestamp()) >= ms;
        };
        const QtAV::FrameResult found = m_reader.find(search, isCancelled);
        return found.answer == QtAV::FrameAnswer::Frame ? smallPicture(found.frame) : QImage();
    }

    bool open(const QtAV::IsCancelled& isCancelled)
    {
        if (m_reader.isOpen() || m_isUnreadable) {
            return m_reader.isOpen();
        }
        // The decoder's own threads would not have this thread's idle priority.
        m_reader.setThreads(1);
        QString error;
        const bool isOpen = m_reader.open(m_openPath, isCancelled, error);
        if (!isOpen) {
            m_reader.close();
            m_isUnreadable = !isCancelled();
        }
        return isOpen;
    }

    const Deliver m_deliver;
    std::mutex m_mutex;
    // Guarded by m_mutex, down to m_quits.
    std::condition_variable m_changed;
    QString m_path;
    int m_source = 0;
    std::optional<qint64> m_wanted;
    bool m_quits = false;

    std::atomic<bool> m_isOutdated{false}; ///< the picture in progress is no longer wanted
    std::atomic<bool> m_hasNewer{false};   ///< another picture is wanted more

    // Used only by the thread.
    int m_openSource = 0;
    QString m_openPath;
    bool m_isUnreadable = true;
    QtAV::FrameReader m_reader;

    const std::unique_ptr<QThread> m_thread; ///< last, so that all other members exist when it
                                             ///< starts
};

Thumbnails::Thumbnails(QObject* parent)
    : QObject(parent)
    , m_pictures(mostBytes)
{
    const auto deliver = [this](int source, qint64 ms, QImage picture) {
        m_results.post(
            [this, source, ms, picture = std::move(picture)] { take(source, ms, picture); });
    };
    m_maker = std::make_unique<Maker>(deliver);
}

Thumbnails::~Thumbnails() = default;

void Thumbnails::setSource(const QString& path)
{
    m_pictures.clear();
    m_maker->setSource(path, ++m_source);
}

QImage Thumbnails::at(qint64 ms) const
{
    const QImage* const picture = m_pictures.object(ms);
    return picture == nullptr ? QImage() : *picture;
}

void Thumbnails::request(qint64 ms)
{
    if (!m_pictures.contains(ms)) {
        m_maker->request(ms);
    }
}

void Thumbnails::cancel()
{
    m_maker->cancel();
}

void Thumbnails::take(int source, qint64 ms, const QImage& picture)
{
    // The video may have changed while the picture was in transit.
    if (source != m_source) {
        return;
    }
    m_pictures.insert(ms, new QImage(picture), static_cast<int>(picture.sizeInBytes()));
    Q_EMIT made(ms);
}
