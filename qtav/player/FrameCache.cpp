#include "qtav/player/FrameCache.h"

#include <QtAV/Times.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace QtAV {

namespace {

/// Frames after the focus are dropped this much earlier than those before it: the next frame is
/// decoded at once, but the previous one only from its key frame.
constexpr double weightAfter = 2.0;

/// This many bytes of decoded frames are kept unscaled, or this many frames if those are large:
/// what is captured and stepped to right after a seek.
constexpr qint64 wholeBytes = qint64(32) << 20;
constexpr qint64 wholeFrames = 6;

/// Scaling must shrink a frame at least to this fraction to be worthwhile.
constexpr qint64 worthParts = 3;
constexpr qint64 worthOf = 4;

} // namespace

FrameCache::FrameCache(qint64 mostBytes)
    : m_mostBytes(mostBytes)
{}

void FrameCache::setScreen(const QSize& size)
{
    if (!size.isEmpty()) {
        m_screen = size;
    }
}

QSize FrameCache::shownSize(const VideoFrame& frame) const
{
    return frame.displaySize().scaled(m_screen, Qt::KeepAspectRatio).expandedTo({1, 1});
}

qint64 FrameCache::bytesScaledDown(const VideoFrame& frame) const
{
    const QSize shown = shownSize(frame);
    const qint64 stored = qint64(frame.width()) * frame.height();
    return frame.byteCount() * (qint64(shown.width()) * shown.height()) /
           std::max<qint64>(1, stored);
}

qint64 FrameCache::mostWholeBytes() const
{
    return std::min(std::max(wholeBytes, wholeFrames * m_decodedBytes), m_mostBytes / 2);
}

double FrameCache::furthestWhole() const
{
    const double first = *m_whole.begin();
    const double last = *m_whole.rbegin();
    return m_focus - first > last - m_focus ? first : last;
}

bool FrameCache::isWorthReplacing(const VideoFrame& old, const VideoFrame& frame) const
{
    if (!old.isScaledDown() || frame.isScaledDown()) {
        return false;
    }
    const QSize shown = shownSize(frame);
    const bool isOtherSize = old.width() * old.height() != shown.width() * shown.height();
    const bool isRoom = m_wholeBytes + frame.byteCount() <= mostWholeBytes();
    const auto distance = [this](double time) { return std::abs(time - m_focus); };
    return isOtherSize || isRoom || m_whole.empty() ||
           distance(frame.timestamp()) < distance(furthestWhole());
}

void FrameCache::add(Entry& entry, const VideoFrame& frame)
{
    entry.frame = frame;
    const qint64 bytes = frame.byteCount();
    m_bytes += bytes;
    if (frame.isScaledDown()) {
        m_keptBytes = bytes;
        return;
    }
    m_decodedBytes = std::max(m_decodedBytes, bytes);
    const qint64 bytesWhenSmall = bytesScaledDown(frame);
    const bool isReducible = bytesWhenSmall * worthOf <= bytes * worthParts;
    if (m_keptBytes == 0) {
        m_keptBytes = isReducible ? bytesWhenSmall : bytes;
    }
    if (isReducible) {
        m_whole.insert(frame.timestamp());
        m_wholeBytes += bytes;
    } else {
        m_keptBytes = bytes;
    }
}

/// Subtracts a frame from the counts.
void FrameCache::remove(double seconds, const VideoFrame& frame)
{
    m_bytes -= frame.byteCount();
    if (m_whole.erase(seconds) > 0) {
        m_wholeBytes -= frame.byteCount();
    }
}

void FrameCache::erase(double seconds)
{
    const auto entry = m_frames.find(seconds);
    remove(seconds, entry->second.frame);
    m_frames.erase(entry);
}

void FrameCache::insert(const VideoFrame& frame, std::optional<double> predecessor)
{
    Entry& entry = m_frames[frame.timestamp()];
    if (predecessor) {
        entry.predecessor = predecessor;
    }
    if (entry.frame.isValid()) {
        if (!isWorthReplacing(entry.frame, frame)) {
            return;
        }
        remove(frame.timestamp(), entry.frame);
    }
    add(entry, frame);
    reduceFarFrames();
    shrink();
}

void FrameCache::setFocus(double seconds)
{
    m_focus = seconds;
}

void FrameCache::setMostBytes(qint64 bytes)
{
    m_mostBytes = bytes;
    reduceFarFrames();
    shrink();
}

void FrameCache::clear()
{
    m_frames.clear();
    m_bytes = 0;
    m_whole.clear();
    m_wholeBytes = 0;
    m_decodedBytes = 0;
    m_keptBytes = 0;
    m_focus = 0.0;
    m_first.reset();
}

qint64 FrameCache::roomBefore() const
{
    if (m_keptBytes == 0) {
        return 0;
    }
    const bool isScaling = !m_whole.empty() || m_keptBytes < m_decodedBytes;
    const qint64 bytes = m_mostBytes - (isScaling ? mostWholeBytes() : 0);
    return static_cast<qint64>(double(bytes / m_keptBytes) * weightAfter / (1.0 + weightAfter));
}

/// The nearest frame is never reduced, however large it is.
void FrameCache::reduceFarFrames()
{
    while (m_wholeBytes > mostWholeBytes() && m_whole.size() > 1) {
        const double furthest = furthestWhole();
        if (m_farFrames == FarFrames::Drop) {
            erase(furthest);
            continue;
        }
        Entry& entry = m_frames.at(furthest);
        const VideoFrame whole = entry.frame;
        const VideoFrame small = whole.scaledDown(shownSize(whole));
        remove(furthest, whole);
        if (small.isScaledDown()) {
            add(entry, small);
        } else {
            // Pictures that cannot be scaled down keep their size.
            m_bytes += whole.byteCount();
            m_keptBytes = whole.byteCount();
        }
    }
}

/// One frame always stays, however large it is.
void FrameCache::shrink()
{
    while (m_bytes > m_mostBytes && m_frames.size() > 1) {
        const double first = m_frames.begin()->first;
        const double last = m_frames.rbegin()->first;
        const bool firstIsFurther = m_focus - first > weightAfter * (last - m_focus);
        erase(firstIsFurther ? first : last);
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
    if (found == m_frames.end() || !found->second.predecessor) {
        return {};
    }
    return at(*found->second.predecessor);
}

VideoFrame FrameCache::after(double seconds) const
{
    const auto next = m_frames.upper_bound(seconds);
    if (next == m_frames.end() || next->second.predecessor != seconds) {
        return {};
    }
    return next->second.frame;
}

VideoFrame FrameCache::atOrAfter(qint64 ms) const
{
    // Half a millisecond less, so that rounding hides no frame.
    auto next = m_frames.lower_bound((double(ms) - 0.5) / 1000.0);
    while (next != m_frames.end() && toMilliseconds(next->first) < ms) {
        ++next;
    }
    if (next == m_frames.end()) {
        return {};
    }
    const std::optional<double>& predecessor = next->second.predecessor;
    const bool isTheFirstSuch =
        m_first == next->first || (predecessor && toMilliseconds(*predecessor) < ms);
    return isTheFirstSuch ? next->second.frame : VideoFrame();
}

std::optional<FrameCache::Run> FrameCache::runAround(double seconds) const
{
    const auto given = m_frames.find(seconds);
    if (given == m_frames.end()) {
        return std::nullopt;
    }
    Run run{seconds, seconds, 0, 0, false};
    for (auto next = std::next(given); next != m_frames.end(); ++next) {
        if (next->second.predecessor != run.end) {
            break;
        }
        run.end = next->first;
        ++run.framesAfter;
    }
    for (auto entry = given; entry != m_frames.begin();) {
        const auto before = std::prev(entry);
        if (entry->second.predecessor != before->first) {
            break;
        }
        entry = before;
        run.start = entry->first;
        ++run.framesBefore;
    }
    run.isAtStart = m_first == run.start;
    return run;
}

} // namespace QtAV
