#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

/// A thread that carries out only the task that was given last: a newer one cancels the one that
/// runs, and replaces one that has not begun.
///
/// It belongs to the thread that made it, whose calls never wait; only the destructor waits until
/// the running task has seen that it is cancelled. The thread starts with the first task.
class NewestTask
{
public:
    using IsCancelled = std::function<bool()>;
    /// Must not throw, and should ask often whether it is cancelled: then nobody wants its result.
    using Task = std::function<void(const IsCancelled&)>;

    NewestTask() = default;
    ~NewestTask();
    NewestTask(const NewestTask&) = delete;
    NewestTask& operator=(const NewestTask&) = delete;

    /// Where the system gives no thread, the task is carried out at once, in the calling one.
    void start(Task task);
    /// The running task is not wanted any more, nor one that waits.
    void cancel();

private:
    [[nodiscard]] bool isStarted();
    void run();

    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_hasNews;
    // Guarded by m_mutex.
    Task m_next;
    std::shared_ptr<std::atomic<bool>> m_cancelsNext;
    std::shared_ptr<std::atomic<bool>> m_cancelsRunning;
    bool m_isEnding = false;
};
