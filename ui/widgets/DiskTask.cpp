#include "ui/widgets/DiskTask.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace {

/// Maximum time to wait for threads at the end.
constexpr std::chrono::milliseconds longestWait{250};

/// Maximum time to wait for an answer: much more than a busy machine needs to start a thread.
constexpr std::chrono::milliseconds longestQuestion{500};

/// The number of questions that nobody waits for any more.
std::atomic<int> abandonedQuestions{0};

struct Question
{
    std::mutex mutex;
    std::condition_variable hasChanged;
    bool hasEnded = false;    ///< guarded by the mutex
    bool isAbandoned = false; ///< likewise
};

void run(Question& question, const std::function<void()>& function)
{
    function();
    const std::lock_guard<std::mutex> lock(question.mutex);
    question.hasEnded = true;
    if (question.isAbandoned) {
        --abandonedQuestions;
    }
    question.hasChanged.notify_all();
}

} // namespace

struct DiskTask::Run::State
{
    std::atomic<bool> isCancelled{false};
    std::mutex mutex; ///< held while the answer is posted
};

/// The number of running threads. They share it, because they may outlive the DiskTask.
struct DiskTask::Threads
{
    std::mutex mutex;
    std::condition_variable haveEnded;
    int running = 0; ///< guarded by the mutex
};

DiskTask::Run::Run(std::shared_ptr<State> state)
    : m_state(std::move(state))
{}

bool DiskTask::Run::isCancelled() const
{
    return m_state->isCancelled;
}

void DiskTask::Run::answer(const std::function<void()>& post) const
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    if (!isCancelled()) {
        post();
    }
}

bool DiskTask::endsSoon(const std::function<void()>& question)
{
    if (abandonedQuestions > 0) {
        return false;
    }
    const auto asked = std::make_shared<Question>();
    try {
        std::thread([asked, question] { run(*asked, question); }).detach();
    } catch (const std::system_error&) {
        run(*asked, question);
    }
    std::unique_lock<std::mutex> lock(asked->mutex);
    if (asked->hasChanged.wait_for(lock, longestQuestion, [&asked] { return asked->hasEnded; })) {
        return true;
    }
    asked->isAbandoned = true;
    ++abandonedQuestions;
    return false;
}

DiskTask::~DiskTask()
{
    cancel();
    if (m_threads != nullptr) {
        std::unique_lock<std::mutex> lock(m_threads->mutex);
        m_threads->haveEnded.wait_for(lock, longestWait,
                                      [this] { return m_threads->running == 0; });
    }
}

void DiskTask::start(Task task)
{
    cancel();
    m_newest = std::make_shared<Run::State>();
    if (m_threads == nullptr) {
        m_threads = std::make_shared<Threads>();
    }
    const Run run(m_newest);
    {
        const std::lock_guard<std::mutex> lock(m_threads->mutex);
        ++m_threads->running;
    }
    const auto work = [run, task = std::move(task), threads = m_threads]() mutable {
        std::exchange(task, nullptr)(run);
        const std::lock_guard<std::mutex> lock(threads->mutex);
        --threads->running;
        threads->haveEnded.notify_all();
    };
    try {
        std::thread(work).detach();
    } catch (const std::system_error&) {
        auto here = work;
        here();
    }
}

void DiskTask::cancel()
{
    if (m_newest != nullptr) {
        const std::lock_guard<std::mutex> lock(m_newest->mutex);
        m_newest->isCancelled = true;
    }
    m_newest.reset();
}
