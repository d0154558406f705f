#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// A thread that carries out tasks one after another, in the order in which they were posted.
///
/// Belongs to the thread that created it, and starts with the first task. The destructor waits
/// until all tasks are done. A task must not throw.
class TaskThread
{
public:
    TaskThread() = default;
    ~TaskThread();
    TaskThread(const TaskThread&) = delete;
    TaskThread& operator=(const TaskThread&) = delete;

    /// If the system provides no thread, the task runs at once in the calling one.
    void post(std::function<void()> task);

private:
    [[nodiscard]] bool isStarted();
    void run();

    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_hasNews;
    std::deque<std::function<void()>> m_tasks; ///< guarded by m_mutex
    bool m_isEnding = false;                   ///< likewise
};
