#include "ui/widgets/NewestTask.h"

#include <system_error>
#include <utility>

NewestTask::~NewestTask()
{
    if (!m_thread.joinable()) {
        return;
    }
    cancel();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_hasNews.notify_one();
    m_thread.join();
}

void NewestTask::start(Task task)
{
    cancel();
    if (!isStarted()) {
        task([] { return false; });
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_next = std::move(task);
        m_cancelsNext = std::make_shared<std::atomic<bool>>(false);
    }
    m_hasNews.notify_one();
}

void NewestTask::cancel()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_next = nullptr;
    if (m_cancelsRunning != nullptr) {
        *m_cancelsRunning = true;
    }
}

bool NewestTask::isStarted()
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

void NewestTask::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_hasNews.wait(lock, [this] { return m_isEnding || m_next != nullptr; });
        if (m_isEnding) {
            return;
        }
        const Task task = std::exchange(m_next, nullptr);
        const auto flag = m_cancelsNext;
        m_cancelsRunning = flag;
        lock.unlock();
        task([flag] { return flag->load(); });
        lock.lock();
        m_cancelsRunning.reset();
    }
}
