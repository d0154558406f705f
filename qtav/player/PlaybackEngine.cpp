#include "qtav/player/PlaybackEngine.h"

#include "qtav/src/Times.h"

#include <utility>

namespace QtAV {

namespace {

/// Further behind than this, decoding leaves frames out to catch up with the sound.
constexpr double MostLagSeconds = 0.5;

} // namespace

PlaybackEngine::PlaybackEngine(std::function<void()> wake)
    : m_wake(std::move(wake))
    , m_thread([this] { run(); })
{}

PlaybackEngine::~PlaybackEngine()
{
    {
        const std::lock_guard lock(m_mutex);
        m_quits = true;
        leaveFile();
        m_commandWaits = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

/// Called with the mutex held, as are all below that touch what it guards.
quint64 PlaybackEngine::post()
{
    m_commandWaits = true;
    m_changed.notify_one();
    return ++m_serial;
}

void PlaybackEngine::dropPending()
{
    m_seek.reset();
    m_steps.clear();
    forgetQueue();
    m_replacementWaits = true;
}

void PlaybackEngine::forgetQueue()
{
    m_queue.clear();
    m_ended = false;
    ++m_queueGeneration;
}

void PlaybackEngine::leaveFile()
{
    dropPending();
    m_open.reset();
    m_current = VideoFrame();
    m_otherFileWaits = true;
}

quint64 PlaybackEngine::open(const QString& path, qint64 cacheBytes)
{
    const std::lock_guard lock(m_mutex);
    leaveFile();
    const quint64 serial = post();
    m_open = OpenRequest{path, cacheBytes, serial};
    return serial;
}

quint64 PlaybackEngine::close()
{
    const std::lock_guard lock(m_mutex);
    leaveFile();
    m_closes = true;
    m_playing = false;
    return post();
}

quint64 PlaybackEngine::seek(qint64 ms)
{
    const std::lock_guard lock(m_mutex);
    dropPending();
    const quint64 serial = post();
    m_seek = SeekRequest{ms, serial};
    return serial;
}

quint64 PlaybackEngine::step(Direction direction)
{
    const std::lock_guard lock(m_mutex);
    const quint64 serial = post();
    m_steps.push_back({direction, serial});
    return serial;
}

void PlaybackEngine::setPlaying(bool playing)
{
    const std::lock_guard lock(m_mutex);
    m_playing = playing;
    m_mayFillBehind = true;
    m_catchUpTo = 0.0;
    m_changed.notify_one();
}

std::vector<PlaybackEngine::Answer> PlaybackEngine::takeAnswers()
{
    const std::lock_guard lock(m_mutex);
    m_ownerIsWoken = false;
    return std::exchange(m_answers, {});
}

PlaybackEngine::Due PlaybackEngine::takeDue(double seconds, CatchUp catchUp)
{
    const std::lock_guard lock(m_mutex);
    Due due;
    while (!m_queue.empty() && m_queue.front().timestamp() <= seconds) {
        if (due.frame.isValid())
            ++due.dropped;
        due.frame = m_queue.front();
        m_queue.pop_front();
    }
    if (due.frame.isValid())
        m_current = due.frame;
    if (!m_queue.empty())
        due.next = m_queue.front().timestamp();
    due.isEnded = m_ended && m_queue.empty();
    m_catchUpTo = catchUp == CatchUp::Yes ? seconds : 0.0;
    m_ownerWaitsForFrames = m_queue.empty() && !m_ended;
    m_changed.notify_one();
    return due;
}

void PlaybackEngine::answer(Answer answer)
{
    m_answers.push_back(std::move(answer));
    wakeOwner();
}

void PlaybackEngine::wakeOwner()
{
    if (!std::exchange(m_ownerIsWoken, true))
        m_wake();
}

void PlaybackEngine::run()
{
    Lock lock(m_mutex);
    while (!m_quits) {
        if (!workOnce(lock))
            m_changed.wait(lock);
    }
}

/// Does what is most urgent; false when there is nothing to do.
bool PlaybackEngine::workOnce(Lock& lock)
{
    m_otherFileWaits = false;
    m_replacementWaits = false;
    m_commandWaits = !m_steps.empty();
    if (m_closes || m_open)
        openFile(lock);
    else if (m_seek)
        carryOutSeek(lock);
    else if (!m_steps.empty())
        carryOutStep(lock);
    else if (wantsFrames())
        decodeAhead(lock);
    else if (m_mayFillBehind && !m_playing && m_current.isValid())
        decodeBehind(lock);
    else
        return false;
    return true;
}

void PlaybackEngine::openFile(Lock& lock)
{
    m_closes = false;
    const std::optional<OpenRequest> request = std::exchange(m_open, std::nullopt);
    lock.unlock();
    Answer result;
    m_source.close();
    bool succeeded = false;
    if (request)
        succeeded = m_source.open(
            request->path, request->cacheBytes, [this] { return m_otherFileWaits.load(); },
            result.error);
    FrameResult first;
    if (succeeded)
        first = m_source.frameAt(0, [] { return false; });
    lock.lock();
    if (!request || m_open || m_closes || m_quits)
        return;
    result.serial = request->serial;
    result.kind = succeeded ? Answer::Kind::Opened : Answer::Kind::OpenFailed;
    result.duration = m_source.duration();
    result.frameInterval = m_source.frameInterval();
    result.hasSound = m_source.hasSound();
    if (succeeded)
        becomeCurrent(first.frame);
    result.frame = first.frame;
    answer(std::move(result));
}

void PlaybackEngine::becomeCurrent(const VideoFrame& frame)
{
    m_current = frame;
    m_mayFillBehind = true;
    m_catchUpTo = 0.0;
    forgetQueue();
    m_source.setFocus(frame.timestamp());
    m_restsUntil = std::chrono::steady_clock::now() + RestBeforeFilling;
}

void PlaybackEngine::carryOutSeek(Lock& lock)
{
    const SeekRequest request = *std::exchange(m_seek, std::nullopt);
    if (!m_source.isOpen())
        return;
    lock.unlock();
    const FrameResult found =
        m_source.frameAt(request.ms, [this] { return m_replacementWaits.load(); });
    lock.lock();
    if (found.answer == FrameAnswer::Cancelled || m_replacementWaits)
        return;
    const bool isFound = found.answer == FrameAnswer::Frame;
    if (isFound)
        becomeCurrent(found.frame);
    Answer result;
    result.kind = isFound ? Answer::Kind::Sought : Answer::Kind::SeekFailed;
    result.serial = request.serial;
    result.frame = found.frame;
    answer(std::move(result));
}

void PlaybackEngine::carryOutStep(Lock& lock)
{
    const StepRequest request = m_steps.front();
    m_steps.pop_front();
    if (!m_source.isOpen() || !m_current.isValid())
        return;
    const double from = m_current.timestamp();
    lock.unlock();
    const IsCancelled isCancelled = [this] { return m_replacementWaits.load(); };
    const FrameResult found = request.direction == Direction::Forward
                                  ? m_source.after(from, isCancelled)
                                  : m_source.before(from, isCancelled);
    lock.lock();
    if (found.answer == FrameAnswer::Cancelled || m_replacementWaits)
        return;
    if (found.answer == FrameAnswer::Frame)
        becomeCurrent(found.frame);
    Answer result;
    result.kind = Answer::Kind::Stepped;
    result.serial = request.serial;
    result.frame = found.frame;
    answer(std::move(result));
}

bool PlaybackEngine::wantsFrames() const
{
    const bool isLarge = m_current.byteCount() >= LargeFrameBytes;
    const size_t most = isLarge ? MostQueuedLargeFrames : MostQueuedFrames;
    return m_playing && m_current.isValid() && !m_ended && m_queue.size() < most;
}

void PlaybackEngine::decodeAhead(Lock& lock)
{
    const double current = m_current.timestamp();
    const double from = m_queue.empty() ? current : m_queue.back().timestamp();
    const double catchUpTo = m_catchUpTo;
    const quint64 generation = m_queueGeneration;
    lock.unlock();
    m_source.setFocus(current);
    const IsCancelled isCancelled = [this] { return m_commandWaits.load(); };
    FrameResult found;
    if (from < catchUpTo - MostLagSeconds)
        found = m_source.frameAt(toMilliseconds(catchUpTo), isCancelled);
    else
        found = m_source.after(from, isCancelled);
    lock.lock();
    if (generation != m_queueGeneration || found.answer == FrameAnswer::Cancelled)
        return;
    // Catching up at the end of the video may give the frame that was there before.
    const bool isNew = found.answer == FrameAnswer::Frame && found.frame.timestamp() > from;
    if (isNew)
        m_queue.push_back(found.frame);
    else
        m_ended = true;
    if (std::exchange(m_ownerWaitsForFrames, false))
        wakeOwner();
}

void PlaybackEngine::decodeBehind(Lock& lock)
{
    if (std::chrono::steady_clock::now() < m_restsUntil) {
        m_changed.wait_until(lock, m_restsUntil);
        return;
    }
    m_source.setFocus(m_current.timestamp());
    lock.unlock();
    const bool goesOn = m_source.fillBehind([this] { return m_commandWaits.load(); });
    lock.lock();
    if (!goesOn)
        m_mayFillBehind = false;
}

} // namespace QtAV
