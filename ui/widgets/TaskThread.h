#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// A thread that carries out one task after another, in the order in which they were given.
///
/// It belongs to the thread that made it, and starts with the first task. Its end waits until all
/// tasks are done. A task must not throw.
class TaskThread
{
public:
    TaskThread() = default;
    ~TaskThread();
    TaskThread(const TaskThread&) = delete;
    TaskThread& operator=(const TaskThread&) = delete;

    /// Where the system gives no thread, the task is carried out at once, in the calling one.
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
