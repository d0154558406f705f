#pragma once

#include "ui/widgets/TaskThread.h"

#include <functional>
#include <memory>

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
    struct Job;

    std::shared_ptr<Job> m_newest; ///< null once it is cancelled
    TaskThread m_thread;
};
