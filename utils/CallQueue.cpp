#include "utils/CallQueue.h"

#include <utility>

CallQueue::CallQueue(QObject* parent)
    : QObject(parent)
{}

CallQueue::~CallQueue()
{
    // Shows thread sanitizer that post() has ended, however its thread was waited for.
    const std::lock_guard<std::mutex> lock(m_mutex);
}

void CallQueue::post(std::function<void()> function)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_functions.push_back(std::move(function));
    QMetaObject::invokeMethod(this, "callNext", Qt::QueuedConnection);
}

void CallQueue::callNext()
{
    std::function<void()> next;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        next = std::move(m_functions.front());
        m_functions.pop_front();
    }
    next();
}
