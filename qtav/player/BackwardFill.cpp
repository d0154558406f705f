#include "qtav/player/BackwardFill.h"

#include <QtAV/Times.h>

#include <algorithm>
#include <utility>

namespace QtAV {

namespace {

/// A pass begins when less than this part of the room is filled, and decodes as many frames as then
/// fit. Earlier, most of each pass would be decoded twice; later, too few frames would be left to
/// step through while it runs.
constexpr qint64 partLeft = 2;

/// Weight of a new speed measurement relative to the earlier ones.
constexpr double newShare = 0.1;

/// Decoding up to a seek target skips some frames; a pass does not.
constexpr double speedOfPass = 0.7;

/// Longer gaps between two calls do not count as decoding.
constexpr std::chrono::milliseconds longestGap{20};

double secondsOf(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

} // namespace

BackwardFill::BackwardFill(FrameReader& reader, std::function<void()> onFrame, Clock clock)
    : m_reader(reader)
    , m_onFrame(std::move(onFrame))
    , m_clock(std::move(clock))
{}

bool BackwardFill::startIfNeeded(const FrameCache::Run& run, qint64 room, qint64 gapMs)
{
    const bool isEnough = run.isAtStart || run.framesBefore * partLeft >= room;
    // Another pass to the same frame would end in the same way.
    if (m_pass || isEnough || m_filledUpTo == run.start) {
        return m_pass.has_value();
    }
    start(run.start, toMilliseconds(run.start) - (room - run.framesBefore) * gapMs);
    m_filledUpTo = run.start;
    return true;
}

void BackwardFill::start(double target, qint64 completeFrom)
{
    m_pass = Pass{target, m_reader.landing(), completeFrom};
    land();
}

void BackwardFill::land()
{
    const qint64 targetMs = toMilliseconds(m_pass->target);
    m_reader.seek(std::max<qint64>(0, targetMs - 1 - m_pass->stepBackMs));
    m_reader.setCompleteFrom(m_pass->completeFrom);
    m_pass->previous = VideoFrame();
}

bool BackwardFill::isOnTheWayTo(double seconds) const
{
    return m_pass && m_pass->target <= seconds &&
           seconds - m_pass->target <= FrameReader::nearSeconds &&
           (!m_pass->cameFrom || *m_pass->cameFrom < m_pass->target);
}

std::optional<FrameResult> BackwardFill::advance(const IsCancelled& isCancelled)
{
    const std::optional<double> from = m_reader.last();
    // Decoding threads continue while other work is done here: that is part of a frame's cost.
    m_measuredUntil = std::max(m_measuredUntil, m_clock() - longestGap);
    std::optional<FrameResult> result = walkOn(isCancelled);
    measure(from);
    return result;
}

std::optional<FrameResult> BackwardFill::walkOn(const IsCancelled& isCancelled)
{
    FrameResult step = m_reader.next(isCancelled);
    if (step.answer == FrameAnswer::Cancelled) {
        return step;
    }
    const bool isFrame = step.answer == FrameAnswer::Frame;
    if (step.answer == FrameAnswer::Failed) {
        return m_reader.canGoOn() ? std::nullopt : std::optional(end(std::move(step)));
    }
    if (isFrame) {
        m_onFrame();
    }
    if (isFrame && step.frame.timestamp() < m_pass->target) {
        m_pass->previous = step.frame;
        m_pass->isPreviousAsEver = m_reader.looksAsEver();
        return std::nullopt;
    }
    const bool isComplete =
        isFrame ? m_reader.predecessor().has_value() : !m_reader.skippedSinceLast();
    if (m_pass->previous.isValid() && m_pass->isPreviousAsEver && isComplete) {
        return end({FrameAnswer::Frame, m_pass->previous});
    }
    const bool isAtStart = m_pass->stepBackMs >= toMilliseconds(m_pass->target);
    const bool isFirst = isFrame && m_reader.isAtFirstOfVideo();
    const bool skips = m_pass->completeFrom > 0;
    if (isFirst || (isAtStart && !skips)) {
        const VideoFrame previous = m_pass->previous;
        return end(previous.isValid() ? FrameResult{FrameAnswer::Frame, previous}
                                      : FrameResult{FrameAnswer::End});
    }
    if (!skips) {
        m_pass->stepBackMs = std::max(FrameReader::smallestStepBackMs, 2 * m_pass->stepBackMs);
    }
    m_pass->completeFrom = 0;
    land();
    return std::nullopt;
}

FrameResult BackwardFill::end(FrameResult result)
{
    if (const std::optional<double> landing = m_reader.landing()) {
        m_longestGroup = std::max(m_longestGroup, m_pass->target - *landing);
    }
    m_pass.reset();
    return result;
}

FrameResult BackwardFill::finish(const IsCancelled& isCancelled)
{
    std::optional<FrameResult> result;
    while (!result) {
        result = advance(isCancelled);
    }
    return *result;
}

void BackwardFill::leave()
{
    m_pass.reset();
    m_filledUpTo.reset();
}

void BackwardFill::reset()
{
    leave();
    m_speed = 0.0;
    m_longestGroup = 0.0;
}

/// The first frame of a pass is not measured: it also fills the decoder.
void BackwardFill::measure(std::optional<double> from)
{
    const std::optional<double> last = m_reader.last();
    if (from && from == last) {
        return;
    }
    const auto now = m_clock();
    const double took = secondsOf(now - std::exchange(m_measuredUntil, now));
    if (!from || !last || *last <= *from || took <= 0.0) {
        return;
    }
    const double speed = (*last - *from) / took;
    // Several threads deliver frames in bursts: the mean time counts, not the speed.
    m_speed = m_speed > 0.0 ? 1.0 / ((1.0 - newShare) / m_speed + newShare / speed) : speed;
}

void BackwardFill::noteDecoded(double keyFrame, double upTo, double took)
{
    m_longestGroup = std::max(m_longestGroup, upTo - keyFrame);
    if (took > 0.0 && upTo > keyFrame && m_speed <= 0.0) {
        m_speed = speedOfPass * (upTo - keyFrame) / took;
    }
}

std::optional<double> BackwardFill::remainingSeconds() const
{
    if (!m_pass || m_speed <= 0.0) {
        return std::nullopt;
    }
    double from = m_pass->target - m_longestGroup;
    if (m_reader.landing()) {
        from = *m_reader.landing();
    }
    if (m_reader.last()) {
        from = *m_reader.last();
    }
    return std::max(0.0, m_pass->target - from) / m_speed;
}

} // namespace QtAV
