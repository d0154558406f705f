#include "video/FrameCounter.h"

#include <QtAV/FrameReader.h>

#include <QThread>

#include <algorithm>
#include <utility>

namespace {

/// Nothing if not all of them could be read.
QVector<qint64> readTimes(const QString& path, const QtAV::IsCancelled& isCancelled)
{
    QtAV::FrameReader reader;
    reader.setThreads(1);
    QString error;
    if (!reader.open(path, isCancelled, error)) {
        return {};
    }
    const QVector<qint64> times = reader.readFrameTimes(isCancelled);
    return isCancelled() ? QVector<qint64>() : times;
}

} // namespace

FrameCounter::FrameCounter(QObject* parent)
    : QObject(parent)
{}

FrameCounter::~FrameCounter()
{
    drop();
    for (const std::unique_ptr<QThread>& thread : m_ending) {
        thread->wait();
    }
}

void FrameCounter::setSource(const QString& path)
{
    drop();
    m_times.clear();
    m_path = path;
}

void FrameCounter::drop()
{
    ++m_run;
    const auto hasEnded = [](const std::unique_ptr<QThread>& thread) {
        return thread->isFinished();
    };
    m_ending.erase(std::remove_if(m_ending.begin(), m_ending.end(), hasEnded), m_ending.end());
    if (m_thread != nullptr) {
        *m_isCancelled = true;
        m_ending.push_back(std::move(m_thread));
    }
}

void FrameCounter::count()
{
    if (isCounted() || isCounting() || m_path.isEmpty()) {
        return;
    }
    m_isCancelled = std::make_shared<std::atomic<bool>>(false);
    const auto work = [this, run = m_run, path = m_path, cancelled = m_isCancelled] {
        auto times = readTimes(path, [cancelled] { return cancelled->load(); });
        m_results.post([this, run, times = std::move(times)] { take(run, times); });
    };
    m_thread.reset(QThread::create(work));
    m_thread->start(QThread::IdlePriority);
}

void FrameCounter::take(int run, const QVector<qint64>& times)
{
    if (run != m_run) {
        return;
    }
    m_times = times;
    drop();
    Q_EMIT finished();
}

std::optional<int> FrameCounter::numberAt(qint64 ms) const
{
    const auto after = std::upper_bound(m_times.cbegin(), m_times.cend(), ms);
    if (m_times.isEmpty()) {
        return std::nullopt;
    }
    return std::max(0, static_cast<int>(after - m_times.cbegin()) - 1);
}

std::optional<qint64> FrameCounter::timeOf(qint64 number) const
{
    if (number < 0 || number >= m_times.size()) {
        return std::nullopt;
    }
    return m_times.at(static_cast<int>(number));
}
