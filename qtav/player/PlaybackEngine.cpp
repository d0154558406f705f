#include "qtav/player/PlaybackEngine.h"

#include <QtAV/Times.h>

#include "qtav/player/StepPacing.h"

#include <utility>

namespace QtAV {

namespace {

/// Further behind than this, decoding skips frames to catch up with the sound.
constexpr double mostLagSeconds = 0.5;

} // namespace

PlaybackEngine::PlaybackEngine(std::function<void()> wake)
    : m_wake(std::move(wake))
    , m_thread([this] { run(); })
{}

PlaybackEngine::~PlaybackEngine()
{
    {
        const std::lock_guard lock(m_mutex);
        m_commands.quit();
    }
    m_changed.notify_one();
    m_thread.join();
}

/// Call with the mutex held, like all functions below that access what it guards.
quint64 PlaybackEngine::posted(quint64 serial)
{
    m_changed.notify_one();
    return serial;
}

void PlaybackEngine::forgetQueue()
{
    m_queue.clear();
    m_ended = false;
    m_failure.reset();
    ++m_queueGeneration;
}

quint64 PlaybackEngine::open(const QString& path, qint64 cacheBytes)
{
    const std::lock_guard lock(m_mutex);
    forgetQueue();
    m_current = VideoFrame();
    return posted(m_commands.open(path, cacheBytes));
}

quint64 PlaybackEngine::close()
{
    const std::lock_guard lock(m_mutex);
    forgetQueue();
    m_current = VideoFrame();
    m_playing = false;
    return posted(m_commands.close());
}

quint64 PlaybackEngine::seek(qint64 ms)
{
    const std::lock_guard lock(m_mutex);
    forgetQueue();
    return posted(m_commands.seek(ms));
}

quint64 PlaybackEngine::step(Direction direction)
{
    const std::lock_guard lock(m_mutex);
    return posted(m_commands.step(direction));
}

quint64 PlaybackEngine::capture(const VideoFrame& frame)
{
    const std::lock_guard lock(m_mutex);
    const quint64 serial = m_commands.capture(frame);
    if (serial == 0) {
        answer({Answer::Kind::Captured});
    }
    return posted(serial);
}

void PlaybackEngine::setPlaying(bool playing)
{
    const std::lock_guard lock(m_mutex);
    m_playing = playing;
    m_failure.reset();
    m_mayPrepare = true;
    m_catchUpTo = 0.0;
    m_changed.notify_one();
}

void PlaybackEngine::setScreen(const QSize& size)
{
    const std::lock_guard lock(m_mutex);
    m_screen = size;
}

void PlaybackEngine::setPictureMemory(qint64 bytes)
{
    const std::lock_guard lock(m_mutex);
    m_pictureMemory = bytes;
}

void PlaybackEngine::setDeinterlacing(Deinterlacing deinterlacing)
{
    const std::lock_guard lock(m_mutex);
    if (deinterlacing == m_deinterlacing) {
        return;
    }
    m_deinterlacing = deinterlacing;
    m_isCurrentOutdated = m_current.isValid();
    forgetQueue();
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
        if (due.frame.isValid()) {
            ++due.dropped;
        }
        due.frame = m_queue.front();
        m_queue.pop_front();
    }
    if (due.frame.isValid()) {
        m_current = due.frame;
        m_isCurrentOutdated = false;
    }
    if (!m_queue.empty()) {
        due.next = m_queue.front().timestamp();
    }
    due.isEnded = m_ended && m_queue.empty();
    if (m_queue.empty()) {
        due.failure = m_failure;
    }
    due.duration = m_duration;
    m_catchUpTo = catchUp == CatchUp::Yes ? seconds : 0.0;
    m_ownerWaitsForFrames = m_queue.empty() && !m_ended && !m_failure;
    m_changed.notify_one();
    return due;
}

void PlaybackEngine::answer(Answer answer)
{
    answer.duration = m_duration;
    m_answers.push_back(std::move(answer));
    wakeOwner();
}

void PlaybackEngine::wakeOwner()
{
    if (!std::exchange(m_ownerIsWoken, true)) {
        m_wake();
    }
}

void PlaybackEngine::run()
{
    Lock lock(m_mutex);
    while (!m_commands.quits()) {
        if (!workOnce(lock)) {
            m_changed.wait(lock);
        }
    }
}

/// Does the most urgent work; returns false if there is none.
bool PlaybackEngine::workOnce(Lock& lock)
{
    m_commands.acknowledge();
    m_source.setScreen(m_screen);
    m_source.setFarFrames(m_playing ? FrameCache::FarFrames::Drop
                                    : FrameCache::FarFrames::ScaleDown);
    m_source.setDeinterlacing(m_deinterlacing);
    m_source.setPictureMemory(m_pictureMemory);
    if (m_commands.hasCapture()) {
        carryOutCapture(lock);
    } else if (m_commands.hasFile()) {
        replaceFile(lock);
    } else if (m_commands.hasSeek()) {
        carryOutSeek(lock);
    } else if (m_commands.nextStep() && isTooSoon()) {
        prepareForStep(lock);
    } else if (m_commands.nextStep()) {
        carryOutStep(lock);
    } else if (m_isCurrentOutdated && m_current.isValid()) {
        makeAnew(lock);
    } else if (wantsFrames()) {
        decodeAhead(lock);
    } else if (m_mayPrepare && !m_playing && m_current.isValid()) {
        prepare(lock);
    } else {
        return false;
    }
    return true;
}

/// Comes before all other work because the frame belongs to the file that is still open.
void PlaybackEngine::carryOutCapture(Lock& lock)
{
    PlaybackCommands::Capture capture = m_commands.takeCapture();
    lock.unlock();
    if (capture.frame.isScaledDown() && m_source.isOpen()) {
        capture.frame = m_source
                            .decodeAnew(capture.frame.timestamp(),
                                        [this] { return m_commands.isFileOutdated(); })
                            .frame;
    }
    QImage image;
    if (!capture.frame.isScaledDown()) {
        image = capture.frame.toImage(capture.frame.imageFormat());
    }
    lock.lock();
    m_mayPrepare = true;
    Answer result{Answer::Kind::Captured, capture.serial};
    result.result.frame = std::move(capture.frame);
    result.image = std::move(image);
    answer(std::move(result));
}

void PlaybackEngine::replaceFile(Lock& lock)
{
    const PlaybackCommands::File file = m_commands.takeFile();
    lock.unlock();
    const IsCancelled isCancelled = [this] { return m_commands.isFileOutdated(); };
    m_source.close();
    FrameResult first{FrameAnswer::Cancelled};
    QString error;
    if (!file.path.isEmpty()) {
        const bool succeeded = m_source.open(file.path, file.cacheBytes, isCancelled, error);
        first = succeeded ? m_source.frameAt(0, isCancelled)
                          : FrameResult{FrameAnswer::Failed, {}, error};
    }
    lock.lock();
    m_duration = m_source.duration();
    if (file.path.isEmpty() || m_commands.isFileOutdated()) {
        return;
    }
    if (first.answer == FrameAnswer::Frame) {
        becomeCurrent(first.frame, file.serial);
    }
    Answer result{Answer::Kind::Opened, file.serial, first};
    result.frameInterval = m_source.frameInterval();
    result.hasSound = m_source.hasSound();
    result.facts = m_source.facts();
    result.facts.baseLayer = first.frame.baseLayer();
    answer(std::move(result));
}

void PlaybackEngine::becomeCurrent(const VideoFrame& frame, quint64 serial)
{
    m_current = frame;
    m_isCurrentOutdated = false;
    m_currentSerial = serial;
    m_currentSince = std::chrono::steady_clock::now();
    m_noStepBackBefore = m_currentSince;
    m_mayPrepare = true;
    m_catchUpTo = 0.0;
    forgetQueue();
    m_source.setFocus(frame.timestamp());
}

void PlaybackEngine::carryOutSeek(Lock& lock)
{
    const PlaybackCommands::Seek seek = m_commands.takeSeek();
    if (!m_source.isOpen()) {
        return;
    }
    const VideoFrame current = m_current;
    lock.unlock();
    const IsCancelled isCancelled = [this] { return m_commands.isSeekOutdated(); };
    FrameResult found = m_source.frameAt(seek.ms, isCancelled);
    if (found.answer == FrameAnswer::Failed) {
        found = stayingAt(current, std::move(found), isCancelled);
    }
    lock.lock();
    m_duration = m_source.duration();
    if (found.answer == FrameAnswer::Cancelled || m_commands.isSeekOutdated()) {
        return;
    }
    if (found.answer == FrameAnswer::Frame) {
        becomeCurrent(found.frame, seek.serial);
    }
    answer({Answer::Kind::Sought, seek.serial, std::move(found)});
}

/// A place that cannot be read affects only itself: the frame on screen stays as long as the file
/// can still deliver it.
FrameResult PlaybackEngine::stayingAt(const VideoFrame& frame, FrameResult failed,
                                      const IsCancelled& isCancelled)
{
    if (!frame.isValid()) {
        return failed;
    }
    const FrameResult again = m_source.decodeAnew(frame.timestamp(), isCancelled);
    if (again.answer == FrameAnswer::Cancelled) {
        return again;
    }
    return again.answer == FrameAnswer::Frame ? again : failed;
}

void PlaybackEngine::carryOutStep(Lock& lock)
{
    const PlaybackCommands::Step step = m_commands.takeStep();
    const bool canStep = m_source.isOpen() && m_current.isValid();
    const double from = m_current.timestamp();
    lock.unlock();
    const IsCancelled isCancelled = [this] { return m_commands.isStepOutdated(); };
    FrameResult found{FrameAnswer::Cancelled};
    if (canStep) {
        found = step.direction == Direction::Forward ? m_source.after(from, isCancelled)
                                                     : m_source.before(from, isCancelled);
    }
    lock.lock();
    m_duration = m_source.duration();
    const bool isWanted = m_commands.endStep();
    if (found.answer == FrameAnswer::Cancelled || !isWanted) {
        return;
    }
    if (found.answer == FrameAnswer::Frame) {
        becomeCurrent(found.frame, step.serial);
    }
    if (step.direction == Direction::Backward) {
        const FrameSource::Supply supply = m_source.supplyBehind();
        const auto pause = StepPacing::pauseFor(supply.frames, supply.secondsToMore);
        m_noStepBackBefore += std::chrono::duration_cast<Time::duration>(pause);
    }
    answer({Answer::Kind::Stepped, step.serial, std::move(found)});
}

bool PlaybackEngine::wantsFrames() const
{
    const bool isLarge = m_current.byteCount() >= largeFrameBytes;
    const size_t most = isLarge ? mostQueuedLargeFrames : mostQueuedFrames;
    const bool canGoOn = !m_ended && !m_failure;
    return m_playing && m_current.isValid() && canGoOn && m_queue.size() < most;
}

void PlaybackEngine::decodeAhead(Lock& lock)
{
    const double current = m_current.timestamp();
    const double from = m_queue.empty() ? current : m_queue.back().timestamp();
    const double catchUpTo = m_catchUpTo;
    const quint64 generation = m_queueGeneration;
    lock.unlock();
    m_source.setFocus(current);
    const IsCancelled isCancelled = [this] { return m_commands.hasArrived(); };
    FrameResult found;
    if (from < catchUpTo - mostLagSeconds) {
        found = m_source.frameAt(toMilliseconds(catchUpTo), isCancelled);
    } else {
        found = m_source.after(from, isCancelled);
    }
    lock.lock();
    m_duration = m_source.duration();
    if (generation != m_queueGeneration || found.answer == FrameAnswer::Cancelled) {
        return;
    }
    // Catching up at the end of the video may give the same frame again.
    const bool isNew = found.answer == FrameAnswer::Frame && found.frame.timestamp() > from;
    if (isNew) {
        m_queue.push_back(found.frame);
    } else if (found.answer == FrameAnswer::Failed) {
        m_failure = found.error;
    } else {
        m_ended = true;
    }
    if (std::exchange(m_ownerWaitsForFrames, false)) {
        wakeOwner();
    }
}

/// Whether only a step back waits, and must wait longer: see StepPacing.
bool PlaybackEngine::isTooSoon() const
{
    return m_commands.nextStep() == Direction::Backward && !m_playing &&
           std::chrono::steady_clock::now() < m_noStepBackBefore;
}

/// Decodes ahead until the step is due, or the frames that it waits for are there.
void PlaybackEngine::prepareForStep(Lock& lock)
{
    const Time due = m_noStepBackBefore;
    lock.unlock();
    const bool goesOn = m_source.fillBehind(
        [this, due] { return m_commands.hasArrived() || std::chrono::steady_clock::now() >= due; });
    lock.lock();
    m_duration = m_source.duration();
    if (!goesOn) {
        m_noStepBackBefore = m_currentSince;
    }
}

void PlaybackEngine::prepare(Lock& lock)
{
    m_source.setFocus(m_current.timestamp());
    const auto rest = std::chrono::duration_cast<FrameSource::Rest>(
        std::chrono::steady_clock::now() - m_currentSince);
    const Time since = m_currentSince;
    lock.unlock();
    const bool goesOn = m_source.prepare(rest, [this] { return m_commands.hasArrived(); });
    lock.lock();
    m_duration = m_source.duration();
    refine();
    if (goesOn || m_commands.hasArrived()) {
        return;
    }
    if (const std::optional<FrameSource::Rest> next = FrameSource::nextRest(rest)) {
        m_changed.wait_until(lock, since + *next);
    } else {
        m_mayPrepare = false;
    }
}

/// Delivers the current frame again with the new deinterlacing setting.
void PlaybackEngine::makeAnew(Lock& lock)
{
    const double seconds = m_current.timestamp();
    const quint64 generation = m_queueGeneration;
    lock.unlock();
    m_source.setFocus(seconds);
    const FrameResult found =
        m_source.decodeAnew(seconds, [this] { return m_commands.hasArrived(); });
    lock.lock();
    // A command that has arrived meanwhile may have changed the frame or interrupted this.
    if (generation != m_queueGeneration || found.answer == FrameAnswer::Cancelled) {
        return;
    }
    m_isCurrentOutdated = false;
    if (found.answer != FrameAnswer::Frame) {
        return;
    }
    m_current = found.frame;
    m_mayPrepare = true;
    answer({Answer::Kind::Refined, m_currentSerial, found});
}

/// Delivers the current frame again once it is available in full size.
void PlaybackEngine::refine()
{
    if (!m_current.isScaledDown() || m_commands.hasArrived()) {
        return;
    }
    const VideoFrame whole = m_source.cache().at(m_current.timestamp());
    if (!whole.isValid() || whole.isScaledDown()) {
        return;
    }
    m_current = whole;
    answer({Answer::Kind::Refined, m_currentSerial, {FrameAnswer::Frame, whole}});
}

} // namespace QtAV
