#include "qtav/player/FrameCache.h"

#include "qtav/src/Times.h"

#include <iterator>

namespace QtAV {

namespace {

/// Frames behind the focus go this much sooner than those before it: decoding gets to the next
/// frame at once, but to the one before only from its key frame.
constexpr double WeightBehind = 2.0;

} // namespace

FrameCache::FrameCache(qint64 mostBytes)
    : m_mostBytes(mostBytes)
{}

void FrameCache::insert(const VideoFrame& frame, std::optional<double> predecessor)
{
    Entry& entry = m_frames[frame.timestamp()];
    if (predecessor)
        entry.predecessor = predecessor;
    if (entry.frame.isValid())
        return;
    entry.frame = frame;
    m_bytes += frame.byteCount();
    shrink();
}

void FrameCache::setFocus(double seconds)
{
    m_focus = seconds;
}

void FrameCache::setMostBytes(qint64 bytes)
{
    m_mostBytes = bytes;
    shrink();
}

void FrameCache::clear()
{
    m_frames.clear();
    m_bytes = 0;
    m_focus = 0.0;
    m_first.reset();
}

/// One frame stays however large it is.
void FrameCache::shrink()
{
    while (m_bytes > m_mostBytes && m_frames.size() > 1) {
        const auto first = m_frames.begin();
        const auto last = std::prev(m_frames.end());
        const bool firstIsFurther = m_focus - first->first > WeightBehind * (last->first - m_focus);
        const auto furthest = firstIsFurther ? first : last;
        m_bytes -= furthest->second.frame.byteCount();
        m_frames.erase(furthest);
    }
}

VideoFrame FrameCache::at(double seconds) const
{
    const auto found = m_frames.find(seconds);
    return found != m_frames.end() ? found->second.frame : VideoFrame();
}

VideoFrame FrameCache::before(double seconds) const
{
    const auto found = m_frames.find(seconds);
    if (found == m_frames.end() || !found->second.predecessor)
        return {};
    return at(*found->second.predecessor);
}

VideoFrame FrameCache::after(double seconds) const
{
    const auto next = m_frames.upper_bound(seconds);
    if (next == m_frames.end() || next->second.predecessor != seconds)
        return {};
    return next->second.frame;
}

VideoFrame FrameCache::atOrAfter(qint64 ms) const
{
    // Half a millisecond less, so that rounding hides no frame.
    auto next = m_frames.lower_bound((double(ms) - 0.5) / 1000.0);
    while (next != m_frames.end() && toMilliseconds(next->first) < ms)
        ++next;
    if (next == m_frames.end())
        return {};
    const std::optional<double>& predecessor = next->second.predecessor;
    const bool isTheFirstSuch =
        m_first == next->first || (predecessor && toMilliseconds(*predecessor) < ms);
    return isTheFirstSuch ? next->second.frame : VideoFrame();
}

std::optional<FrameCache::Run> FrameCache::runAround(double seconds) const
{
    const auto given = m_frames.find(seconds);
    if (given == m_frames.end())
        return std::nullopt;
    Run run{seconds, seconds, 0, 0, false};
    for (auto next = std::next(given); next != m_frames.end(); ++next) {
        if (next->second.predecessor != run.end)
            break;
        run.end = next->first;
    }
    for (auto entry = given; entry != m_frames.begin();) {
        const auto before = std::prev(entry);
        if (entry->second.predecessor != before->first)
            break;
        entry = before;
        run.start = entry->first;
        ++run.framesBefore;
        run.bytesBefore += entry->second.frame.byteCount();
    }
    run.isAtStart = m_first == run.start;
    return run;
}

} // namespace QtAV
