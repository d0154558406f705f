#include "series/SeriesBoard.h"

#include <QScopeGuard>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

/// How often a waiting lane checks for cancellation.
constexpr std::chrono::milliseconds patience{20};

/// Whether more than one lane may find work in a video.
bool canBeShared(const FramePositions& positions)
{
    switch (positions.kind) {
    case FramePositions::Kind::Spread:
        return positions.count > 1;
    case FramePositions::Kind::List:
        return positions.list.size() > 1;
    default:
        return true;
    }
}

qint64 bytesOf(const SeriesPicture& picture)
{
    return picture.content.size() + picture.image.sizeInBytes() + picture.thumbnail.sizeInBytes();
}

/// Releases a lock during its lifetime, also where an exception ends that.
class Unlocked
{
public:
    explicit Unlocked(std::unique_lock<std::mutex>& lock)
        : m_lock(lock)
    {
        m_lock.unlock();
    }
    ~Unlocked() { m_lock.lock(); }
    Unlocked(const Unlocked&) = delete;
    Unlocked& operator=(const Unlocked&) = delete;

private:
    std::unique_lock<std::mutex>& m_lock;
};

} // namespace

SeriesBoard::SeriesBoard(const QVector<SeriesJob>& jobs, SeriesOutput& output,
                         const QtAV::IsCancelled& isCancelled, const SeriesOptions& options)
    : m_jobs(jobs)
    , m_output(output)
    , m_isCancelled(isCancelled)
    , m_lanes(options.lanes)
    , m_memoryBytes(options.memoryBytes)
    , m_mostWorkingBytes(std::max(options.memoryBytes, options.pictureBytes))
    , m_videos(static_cast<size_t>(jobs.size()))
{}

SeriesBoard::Task SeriesBoard::next(int opened)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isCancelled()) {
        if (const std::optional<Task> task = claim()) {
            ++m_busy;
            return *task;
        }
        if (m_opening == 0) {
            break;
        }
        if (const std::optional<int> video = firstToShare(); video && *video != opened) {
            return {Task::Kind::Open, *video};
        }
        m_changed.wait_for(lock, patience);
    }
    return {};
}

/// In the order of the output, so that what it waits for is always in progress.
std::optional<SeriesBoard::Task> SeriesBoard::claim()
{
    const int count = static_cast<int>(m_videos.size());
    for (int video = m_firstUnclaimed; video < count; ++video) {
        VideoState& state = m_videos[static_cast<size_t>(video)];
        if (state.state == State::Unopened) {
            state.state = State::Opening;
            ++m_opening;
            return Task{Task::Kind::Plan, video};
        }
        const int stretches = static_cast<int>(state.stretches.size());
        if (state.state == State::Planned && state.firstUnclaimed < stretches) {
            return claimStretch(video);
        }
        const bool isClaimed = state.state == State::Failed || state.state == State::Planned;
        if (isClaimed && video == m_firstUnclaimed) {
            ++m_firstUnclaimed;
        }
    }
    return std::nullopt;
}

/// The first of the videos being opened that several lanes may share.
std::optional<int> SeriesBoard::firstToShare() const
{
    const int count = static_cast<int>(m_videos.size());
    for (int video = m_firstUnclaimed; video < count; ++video) {
        const State state = m_videos[static_cast<size_t>(video)].state;
        if (state == State::Opening && canBeShared(m_jobs.at(video).positions)) {
            return video;
        }
    }
    return std::nullopt;
}

SeriesBoard::Task SeriesBoard::claimStretch(int video)
{
    VideoState& state = m_videos[static_cast<size_t>(video)];
    const int stretch = state.firstUnclaimed++;
    const int stretchesLeft = static_cast<int>(state.stretches.size()) - state.firstUnclaimed;
    const int videosLeft = static_cast<int>(m_videos.size()) - video - 1;
    return {Task::Kind::Walk, video, stretch, threadsFor(stretchesLeft + videosLeft)};
}

/// One thread decodes most efficiently. With less work than lanes, cores would be idle.
int SeriesBoard::threadsFor(int unclaimed) const
{
    const int tasks = std::min(m_lanes, m_busy + 1 + unclaimed);
    return std::max(1, m_lanes / tasks);
}

SeriesBoard::Task SeriesBoard::planned(int video, SeriesPlan plan, const SeriesFacts& facts,
                                       std::deque<Delivery> failures)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    VideoState& state = m_videos[static_cast<size_t>(video)];
    for (const SeriesPlan::Stretch& part : plan.stretches) {
        StretchState stretch;
        stretch.part = part;
        stretch.next = part.begin;
        state.stretches.push_back(std::move(stretch));
    }
    const bool hasStretch = !state.stretches.empty();
    if (!failures.empty()) {
        StretchState last;
        last.part = {int(plan.targets.size()), int(plan.targets.size())};
        last.next = last.part.end;
        last.waiting = std::move(failures);
        state.stretches.push_back(std::move(last));
    }
    state.plan = std::move(plan);
    state.facts = facts;
    state.state = State::Planned;
    --m_opening;
    --m_busy;
    Task task;
    if (hasStretch) {
        task = claimStretch(video);
        ++m_busy;
    }
    m_changed.notify_all();
    drain(lock);
    return task;
}

void SeriesBoard::failed(int video, const QString& error)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    VideoState& state = m_videos[static_cast<size_t>(video)];
    state.error = error;
    state.state = State::Failed;
    --m_opening;
    --m_busy;
    m_changed.notify_all();
    drain(lock);
}

const SeriesPlan& SeriesBoard::plan(int video) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_videos[static_cast<size_t>(video)].plan;
}

SeriesPlan::Stretch SeriesBoard::stretch(int video, int stretch) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_videos[static_cast<size_t>(video)].stretches[static_cast<size_t>(stretch)].part;
}

std::optional<int> SeriesBoard::take(int video, int stretch)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    StretchState& state =
        m_videos[static_cast<size_t>(video)].stretches[static_cast<size_t>(stretch)];
    return state.next < state.part.end ? std::make_optional(state.next++) : std::nullopt;
}

void SeriesBoard::extendBack(int video, int stretch, qint64 fromMs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (stretch == 0) {
        return;
    }
    VideoState& state = m_videos[static_cast<size_t>(video)];
    StretchState& own = state.stretches[static_cast<size_t>(stretch)];
    StretchState& before = state.stretches[static_cast<size_t>(stretch) - 1];
    if (own.next != own.part.begin || before.part.end != own.part.begin) {
        return;
    }
    int begin = own.part.begin;
    while (begin > before.next && state.plan.targets.at(begin - 1).ms >= fromMs) {
        --begin;
    }
    before.part.end = begin;
    own.part.begin = begin;
    own.next = begin;
}

bool SeriesBoard::isAtHead(int video, int stretch) const
{
    return video == m_head && stretch == m_videos[static_cast<size_t>(video)].stretch;
}

bool SeriesBoard::entersNow(int video, int stretch, qint64 pictureBytes)
{
    const bool hasRoom = m_workingBytes + pictureBytes <= m_mostWorkingBytes;
    if (!hasRoom && m_workingBytes > 0 && !isAtHead(video, stretch)) {
        return false;
    }
    m_workingBytes += pictureBytes;
    return true;
}

bool SeriesBoard::enter(int video, int stretch, qint64 pictureBytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return entersNow(video, stretch, pictureBytes);
}

bool SeriesBoard::waitToEnter(int video, int stretch, qint64 pictureBytes)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isCancelled()) {
        if (entersNow(video, stretch, pictureBytes)) {
            return true;
        }
        m_changed.wait_for(lock, patience);
    }
    return false;
}

void SeriesBoard::leave(qint64 pictureBytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_workingBytes -= pictureBytes;
    m_changed.notify_all();
}

bool SeriesBoard::deliver(int video, int stretch, Delivery delivery)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (!isAtHead(video, stretch)) {
        lock.unlock();
        m_output.store(delivery.picture);
        lock.lock();
    }
    const qint64 bytes = bytesOf(delivery.picture);
    while (!isAtHead(video, stretch) && m_waitingBytes > 0 &&
           m_waitingBytes + bytes > m_memoryBytes) {
        m_changed.wait_for(lock, patience);
        if (m_isCancelled()) {
            return false;
        }
    }
    m_waitingBytes += bytes;
    VideoState& state = m_videos[static_cast<size_t>(video)];
    state.stretches[static_cast<size_t>(stretch)].waiting.push_back(std::move(delivery));
    drain(lock);
    return !m_isCancelled();
}

void SeriesBoard::finished(int video, int stretch, const QString& error)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    VideoState& state = m_videos[static_cast<size_t>(video)];
    state.stretches[static_cast<size_t>(stretch)].isFinished = true;
    if (state.error.isEmpty()) {
        state.error = error;
    }
    --m_busy;
    m_changed.notify_all();
    drain(lock);
}

/// Passes to the output everything whose turn it is. If another lane is doing so, that lane takes
/// over the new picture. If the output throws, the rest is passed on with the next picture.
void SeriesBoard::drain(std::unique_lock<std::mutex>& lock)
{
    if (std::exchange(m_isDraining, true)) {
        return;
    }
    const auto ended = qScopeGuard([this] { m_isDraining = false; });
    while (!m_isCancelled() && drainOne(lock)) {
    }
}

bool SeriesBoard::drainOne(std::unique_lock<std::mutex>& lock)
{
    if (m_head >= static_cast<int>(m_videos.size())) {
        return false;
    }
    VideoState& state = m_videos[static_cast<size_t>(m_head)];
    if (state.state != State::Planned && state.state != State::Failed) {
        return false;
    }
    if (state.state == State::Planned && !std::exchange(state.hasBegun, true)) {
        const SeriesFacts facts = state.facts;
        const Unlocked unlocked(lock);
        m_output.begin(facts);
        return true;
    }
    if (state.stretch < static_cast<int>(state.stretches.size())) {
        StretchState& stretch = state.stretches[static_cast<size_t>(state.stretch)];
        if (!stretch.waiting.empty()) {
            giveNext(lock, stretch);
            return true;
        }
        if (!stretch.isFinished) {
            return false;
        }
        ++state.stretch;
        m_changed.notify_all();
        return true;
    }
    const int video = m_head;
    const QString error = state.error;
    {
        const Unlocked unlocked(lock);
        m_output.end(video, error);
    }
    // The plan of the video is no longer needed.
    state.stretches.clear();
    state.plan = SeriesPlan();
    ++m_head;
    m_changed.notify_all();
    return true;
}

void SeriesBoard::giveNext(std::unique_lock<std::mutex>& lock, StretchState& stretch)
{
    VideoState& state = m_videos[static_cast<size_t>(m_head)];
    Delivery delivery = std::move(stretch.waiting.front());
    stretch.waiting.pop_front();
    const qint64 bytes = bytesOf(delivery.picture);
    const auto taken = qScopeGuard([this, bytes] {
        m_waitingBytes -= bytes;
        m_changed.notify_all();
    });
    const bool isRepeated = delivery.seconds && delivery.seconds == state.lastSeconds;
    if (delivery.seconds) {
        state.lastSeconds = delivery.seconds;
    }
    if (!isRepeated) {
        ++state.pictures;
        const bool hasTargets = !state.plan.targets.isEmpty();
        delivery.picture.number = hasTargets ? delivery.index + 1 : state.pictures;
        const Unlocked unlocked(lock);
        m_output.take(std::move(delivery.picture));
    }
}
