#include "ui/widgets/TaskThread.h"

#include <system_error>
#include <utility>

TaskThread::~TaskThread()
{
    if (!m_thread.joinable()) {
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_hasNews.notify_one();
    m_thread.join();
}

void TaskThread::post(std::function<void()> task)
{
    if (!isStarted()) {
        task();
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    m_hasNews.notify_one();
}

bool TaskThread::isStarted()
{
    if (m_thread.joinable()) {
        return true;
    }
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

void TaskThread::run()
{
    for (;;) {
        std::function<void()> task;
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_hasNews.wait(lock, [this] { return m_isEnding || !m_tasks.empty(); });
            if (m_tasks.empty()) {
                return;
            }
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        }
        task();
    }
}
