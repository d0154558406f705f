#include "bench/support/EventTimes.h"

#include <QAbstractEventDispatcher>
#include <QEvent>
#include <QMetaEnum>
#include <QThread>

#include <algorithm>
#include <ctime>
#include <utility>

namespace bench {

namespace {

constexpr int mostKept = 5;

/// Processor time of the calling thread so far.
double processorMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

std::string described(const QObject& receiver, const QEvent& event)
{
    const QMetaEnum types = QMetaEnum::fromType<QEvent::Type>();
    const char* const type = types.valueToKey(event.type());
    std::string text = receiver.metaObject()->className();
    const QString name = receiver.objectName();
    if (!name.isEmpty()) {
        text += " " + name.toStdString();
    }
    return text + ": " + (type == nullptr ? std::to_string(event.type()) : type);
}

} // namespace

EventTimes::EventTimes(int& argc, char** argv)
    : QApplication(argc, argv)
{
    QAbstractEventDispatcher& dispatcher = *QAbstractEventDispatcher::instance();
    connect(&dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { end(); });
}

bool EventTimes::notify(QObject* receiver, QEvent* event)
{
    const int level = QThread::currentThread()->loopLevel();
    const bool isOurs = QThread::currentThread() == thread();
    const bool isSent = !m_what.empty() && level <= m_loopLevel;
    // Events sent by the running event are part of it.
    if (!isOurs || isSent) {
        return QApplication::notify(receiver, event);
    }
    const int outerLevel = std::exchange(m_loopLevel, level);
    const std::string outer = m_what;
    end();
    begin(described(*receiver, *event));
    const bool isAccepted = QApplication::notify(receiver, event);
    end();
    m_loopLevel = outerLevel;
    m_what = outer;
    if (!outer.empty()) {
        // Its loop may be about to end.
        begin(outer);
    }
    return isAccepted;
}

void EventTimes::begin(const std::string& what)
{
    m_what = what;
    m_isWorking = true;
    m_timer.start();
    m_processorMs = processorMs();
}

void EventTimes::end()
{
    if (!std::exchange(m_isWorking, false)) {
        return;
    }
    const double ms = static_cast<double>(m_timer.nsecsElapsed()) / 1e6;
    ++m_summary.events;
    m_summary.above += ms > limitMs ? 1 : 0;
    QVector<Work>& longest = m_summary.longest;
    const auto isLonger = [](const Work& a, const Work& b) { return a.ms > b.ms; };
    const Work work{ms, processorMs() - m_processorMs, m_what};
    longest.insert(std::lower_bound(longest.begin(), longest.end(), work, isLonger), work);
    if (longest.size() > mostKept) {
        longest.removeLast();
    }
}

EventTimes::Summary EventTimes::take()
{
    return std::exchange(m_summary, {});
}

} // namespace bench
