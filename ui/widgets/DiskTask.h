#pragma once

#include <functional>
#include <memory>

/// Asks the disk something in another thread. Only the newest question matters: a new one cancels
/// those before.
///
/// Unlike NewestTask, nothing waits for the end of a task, because a disk may not answer at all.
/// The destructor waits a moment, so that usual tasks do not outlive the application. A task that
/// takes longer is abandoned with its thread.
///
/// Belongs to the thread that created it.
class DiskTask
{
public:
    /// A running task's view of itself. Can be used for as long as the task runs.
    class Run
    {
    public:
        [[nodiscard]] bool isCancelled() const;
        /// Calls the function, unless the task was cancelled: then, what belongs to the owner of
        /// the DiskTask may be gone. It should do no more than post the answer, since cancelling
        /// waits for it.
        void answer(const std::function<void()>& post) const;

    private:
        friend class DiskTask;
        struct State;
        explicit Run(std::shared_ptr<State> state);

        std::shared_ptr<State> m_state;
    };

    /// Must not throw, and should poll for cancellation. It may use only what it owns, except in
    /// Run::answer().
    using Task = std::function<void(const Run&)>;

    /// Runs a function in another thread, and returns whether it ended within a moment. If not, it
    /// is abandoned, so it may use only what it owns. While one is abandoned, no other is run, so
    /// that a disk that does not answer costs its moment once. It must not throw. May be called in
    /// any thread.
    [[nodiscard]] static bool endsSoon(const std::function<void()>& question);

    DiskTask() = default;
    /// Cancels.
    ~DiskTask();
    DiskTask(const DiskTask&) = delete;
    DiskTask& operator=(const DiskTask&) = delete;

    /// If the system provides no thread, the task runs at once in the calling one.
    void start(Task task);
    /// The task gives no answer any more.
    void cancel();

private:
    std::shared_ptr<Run::State> m_newest; ///< null once it is cancelled
    struct Threads;
    std::shared_ptr<Threads> m_threads; ///< null before the first task
};
