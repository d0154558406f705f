#pragma once

#include "ui/widgets/TaskThread.h"

#include <functional>
#include <memory>

/// A thread that carries out only the newest task: a new one cancels the running task, and replaces
/// one that waits.
///
/// Belongs to the thread that created it, whose calls never wait; only the destructor waits until
/// the running task has noticed its cancellation. The thread starts with the first task.
class NewestTask
{
public:
    using IsCancelled = std::function<bool()>;
    /// Must not throw, and should poll often for cancellation, after which its result is not
    /// wanted.
    using Task = std::function<void(const IsCancelled&)>;

    NewestTask() = default;
    ~NewestTask();
    NewestTask(const NewestTask&) = delete;
    NewestTask& operator=(const NewestTask&) = delete;

    /// If the system provides no thread, the task runs at once in the calling one.
    void start(Task task);
    /// Cancels the running task and drops a waiting one.
    void cancel();

private:
    struct Job;

    std::shared_ptr<Job> m_newest; ///< null once it is cancelled
    TaskThread m_thread;
};
