#include "ui/widgets/NewestTask.h"

#include <atomic>
#include <utility>

struct NewestTask::Job
{
    Task task; ///< taken by the thread when it begins
    std::atomic<bool> isCancelled{false};
};

NewestTask::~NewestTask()
{
    cancel();
}

void NewestTask::start(Task task)
{
    cancel();
    m_newest = std::make_shared<Job>();
    m_newest->task = std::move(task);
    // A job that is cancelled while it waits is gone at once, with all that its task holds.
    m_thread.post([waiting = std::weak_ptr<Job>(m_newest)] {
        if (const std::shared_ptr<Job> job = waiting.lock()) {
            const Task begun = std::exchange(job->task, nullptr);
            begun([job] { return job->isCancelled.load(); });
        }
    });
}

void NewestTask::cancel()
{
    if (m_newest != nullptr) {
        m_newest->isCancelled = true;
        m_newest.reset();
    }
}
