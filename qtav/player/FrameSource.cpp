#include "qtav/player/FrameSource.h"

#include <QtAV/QtAV_Global.h>
#include <QtAV/Times.h>

#include "qtav/src/StreamParameters.h"

#include <QCoreApplication>

#include <algorithm>

namespace QtAV {

namespace {

/// Number of frames before a target that are decoded with it, for the steps back that often follow.
/// Each makes the seek slower; those before them are decoded in the background.
constexpr qint64 framesBeforeTarget = 7;

/// Number of frames after the focus that are decoded before the reader leaves, so that steps
/// forward find some until it returns.
constexpr qint64 framesAhead = 12;

/// How long the user rests before likely frames are decoded. At first the processor is needed to
/// show the picture, or to carry out the next step.
constexpr FrameSource::Rest beforeFilling{25};
/// Returning to the end of the cached frames would be in vain while steps back follow.
constexpr FrameSource::Rest beforeReturning{300};
/// A user who went forward will more likely continue forward.
constexpr FrameSource::Rest beforeTurningBack{1000};

constexpr int usualGapMs = 40;

/// Files state rates of less than a frame in a thousand years.
constexpr double longestIntervalMs = 24.0 * 3600.0 * 1000.0;

} // namespace

FrameSource::FrameSource()
    : m_fill(m_reader, [this] { keep(); })
{}

bool FrameSource::open(const QString& path, qint64 cacheBytes, const IsCancelled& isCancelled,
                       QString& error)
{
    close();
    m_cache.setMostBytes(cacheBytes);
    if (!m_reader.open(path, isCancelled, error)) {
        return false;
    }
    const FrameResult first = frameAt(0, isCancelled);
    if (first.answer == FrameAnswer::Frame) {
        return true;
    }
    if (first.answer == FrameAnswer::Failed) {
        error = first.error;
    } else if (first.answer == FrameAnswer::End) {
        error = QCoreApplication::translate("QtAV::AVPlayer", "The video cannot be decoded.");
    }
    close();
    return false;
}

void FrameSource::close()
{
    const bool hadFrames = m_cache.frameCount() > 0;
    m_fill.reset();
    m_reader.close();
    m_cache.clear();
    if (hadFrames) {
        trimFreedMemory();
    }
    m_lastTime.reset();
    m_latestMs = 0;
    m_longestGapMs = usualGapMs;
    m_focus = 0.0;
    m_move = Move::Seek;
    m_returnsTo.reset();
    m_returnedTo.reset();
}

qint64 FrameSource::duration() const
{
    return std::max(m_reader.demuxer().duration(), m_latestMs);
}

int FrameSource::frameInterval() const
{
    const VideoCodecContext* context = m_reader.demuxer().videoCodecContext();
    const AVRational rate = context ? context->parameters()->frameRate : AVRational{0, 1};
    if (rate.num <= 0 || rate.den <= 0) {
        return usualGapMs;
    }
    return qRound(std::clamp(1000.0 * rate.den / rate.num, 1.0, longestIntervalMs));
}

void FrameSource::setFocus(double seconds)
{
    if (seconds != m_focus) {
        m_returnedTo.reset();
    }
    m_focus = seconds;
    m_cache.setFocus(seconds);
}

void FrameSource::setDeinterlacing(Deinterlacing deinterlacing)
{
    if (deinterlacing == m_deinterlacing) {
        return;
    }
    m_deinterlacing = deinterlacing;
    m_reader.setDeinterlacing(deinterlacing);
    // The reader must not continue with frames of the old setting either.
    leaveBackgroundWork();
    m_reader.seek(toMilliseconds(m_focus));
    m_cache.clear();
    m_cache.setFocus(m_focus);
}

/// Frames with gaps between them cannot answer any request and would only take up memory.
void FrameSource::keep()
{
    const VideoFrame& frame = m_reader.lastFrame();
    const double time = frame.timestamp();
    const std::optional<double> predecessor = m_reader.predecessor();
    m_latestMs = std::max(m_latestMs, toMilliseconds(time));
    if (m_reader.isAtFirstOfVideo()) {
        m_cache.setFirst(time);
    }
    if (predecessor) {
        const qint64 gapMs = std::min(toMilliseconds(time - *predecessor), Timeline::longestMs);
        m_longestGapMs = std::max(m_longestGapMs, gapMs);
    }
    if (toMilliseconds(time) >= m_reader.completeFrom() && m_reader.looksAsEver()) {
        m_cache.insert(frame, predecessor);
    }
}

FrameResult FrameSource::advance(const IsCancelled& isCancelled)
{
    FrameResult step = m_reader.next(isCancelled);
    if (step.answer == FrameAnswer::Frame) {
        keep();
    }
    return step;
}

FrameResult FrameSource::frameAt(qint64 ms, const IsCancelled& isCancelled)
{
    if (m_lastTime) {
        ms = std::min(ms, toMilliseconds(*m_lastTime));
    }
    setFocus(double(ms) / 1000.0);
    m_move = Move::Seek;
    const VideoFrame cached = m_cache.atOrAfter(ms);
    if (cached.isValid()) {
        return {FrameAnswer::Frame, cached};
    }

    const auto isReached = [ms](const VideoFrame& frame) {
        return toMilliseconds(frame.timestamp()) >= ms;
    };
    const qint64 completeFrom = ms - lengthOf(framesBeforeTarget);
    const bool goesOn = m_reader.last() && toMilliseconds(*m_reader.last()) < ms &&
                        isShortlyBefore(double(ms) / 1000.0);
    return look(goesOn, searchFor(ms, completeFrom, isReached), isCancelled);
}

FrameResult FrameSource::after(double seconds, const IsCancelled& isCancelled)
{
    m_move = Move::Forward;
    const VideoFrame cached = m_cache.after(seconds);
    if (cached.isValid()) {
        return {FrameAnswer::Frame, cached};
    }
    if (m_lastTime && seconds >= *m_lastTime) {
        return {FrameAnswer::End};
    }

    if (m_fill.isOnTheWayTo(seconds)) {
        FrameResult finished = m_fill.finish(isCancelled);
        if (finished.answer == FrameAnswer::Cancelled) {
            return finished;
        }
    }
    const auto isReached = [seconds](const VideoFrame& frame) {
        return frame.timestamp() > seconds;
    };
    const qint64 ms = toMilliseconds(seconds);
    FrameResult found = look(isShortlyBefore(seconds), searchFor(ms, ms, isReached), isCancelled);
    const bool isNone = found.answer == FrameAnswer::Frame && !isReached(found.frame);
    return isNone ? FrameResult{FrameAnswer::End} : found;
}

FrameResult FrameSource::decodeAnew(double seconds, const IsCancelled& isCancelled)
{
    const auto isReached = [seconds](const VideoFrame& frame) {
        return frame.timestamp() >= seconds;
    };
    const qint64 ms = toMilliseconds(seconds);
    FrameResult found = look(false, searchFor(ms, ms, isReached), isCancelled);
    const bool isOther = found.answer == FrameAnswer::Frame && found.frame.timestamp() != seconds;
    if (isOther || found.answer == FrameAnswer::End) {
        return {
            FrameAnswer::Failed,
            {},
            QCoreApplication::translate("QtAV::AVPlayer", "The frame cannot be read any more.")};
    }
    return found;
}

FrameReader::Search FrameSource::searchFor(qint64 ms, qint64 completeFrom,
                                           std::function<bool(const VideoFrame&)> isReached)
{
    return {ms, completeFrom, std::move(isReached), [this](const VideoFrame&) { keep(); }};
}

FrameResult FrameSource::look(bool goesOn, const FrameReader::Search& search,
                              const IsCancelled& isCancelled)
{
    leaveBackgroundWork();
    const auto begin = std::chrono::steady_clock::now();
    FrameResult found =
        goesOn ? m_reader.findOn(search, isCancelled) : m_reader.find(search, isCancelled);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    const bool isLast = found.answer == FrameAnswer::Frame && !search.isReached(found.frame);
    if (isLast) {
        m_lastTime = found.frame.timestamp();
    }
    if (!goesOn && found.answer == FrameAnswer::Frame && m_reader.landing()) {
        m_fill.noteDecoded(*m_reader.landing(), found.frame.timestamp(), took.count());
    }
    return found;
}

/// True if m_reader reaches a time sooner by continuing than from the key frame before it, and
/// misses nothing from there on.
bool FrameSource::isShortlyBefore(double seconds) const
{
    const std::optional<double> last = m_reader.last();
    const bool isOnTheWayBack = m_returnsTo && seconds <= *m_returnsTo;
    return last && *last <= seconds &&
           (isOnTheWayBack || seconds - *last <= FrameReader::nearSeconds) &&
           m_reader.isCompleteFrom(seconds);
}

/// Call before the reader goes elsewhere.
void FrameSource::leaveBackgroundWork()
{
    m_fill.leave();
    m_returnsTo.reset();
    m_returnedTo.reset();
}

FrameResult FrameSource::before(double seconds, const IsCancelled& isCancelled)
{
    m_move = Move::Backward;
    const std::optional<double> first = m_cache.first();
    if (first && seconds <= *first) {
        return {FrameAnswer::End};
    }
    const VideoFrame cached = m_cache.before(seconds);
    if (cached.isValid()) {
        return {FrameAnswer::Frame, cached};
    }
    if (!m_fill.isUnderWay() || m_fill.target() != seconds) {
        leaveBackgroundWork();
        m_fill.start(seconds, toMilliseconds(seconds) -
                                  lengthOf(std::max(m_cache.roomBefore(), framesBeforeTarget)));
    }
    return m_fill.finish(isCancelled);
}

std::optional<FrameSource::Rest> FrameSource::nextRest(Rest rest)
{
    for (const Rest next : {beforeFilling, beforeReturning, beforeTurningBack}) {
        if (next > rest) {
            return next;
        }
    }
    return std::nullopt;
}

bool FrameSource::prepare(Rest rest, const IsCancelled& isCancelled)
{
    const std::optional<FrameCache::Run> run = m_cache.runAround(m_focus);
    if (!run) {
        return false;
    }
    const bool goesForward = m_move == Move::Forward && rest < beforeTurningBack;
    if (goesForward && m_fill.isUnderWay() && !m_fill.isOnTheWayTo(run->end)) {
        m_fill.leave();
    }
    if (goesForward && !m_fill.isUnderWay()) {
        return returnToEnd(*run, isCancelled) || decodeAhead(*run, isCancelled);
    }
    if (rest < beforeFilling) {
        return false;
    }
    if (m_move != Move::Backward && !m_fill.isUnderWay() && decodeAhead(*run, isCancelled)) {
        return true;
    }
    if (fillsBehind(*run)) {
        return fillBehind(isCancelled);
    }
    return rest >= beforeReturning && returnToEnd(*run, isCancelled);
}

FrameSource::Supply FrameSource::supplyBehind()
{
    const std::optional<FrameCache::Run> run = m_cache.runAround(m_focus);
    if (!run) {
        return {};
    }
    const bool isComing = fillsBehind(*run) && m_fill.target() == run->start;
    return {run->framesBefore, isComing ? m_fill.remainingSeconds() : std::nullopt};
}

/// Whether a pass back is in progress; begins one if needed.
bool FrameSource::fillsBehind(const FrameCache::Run& run)
{
    if (m_fill.isUnderWay()) {
        return true;
    }
    if (!m_fill.startIfNeeded(run, m_cache.roomBefore(), m_longestGapMs)) {
        return false;
    }
    m_returnsTo.reset();
    m_returnedTo.reset();
    return true;
}

bool FrameSource::fillBehind(const IsCancelled& isCancelled)
{
    if (!m_fill.isUnderWay()) {
        return false;
    }
    const std::optional<FrameResult> result = m_fill.advance(isCancelled);
    return !result || result->answer != FrameAnswer::Failed;
}

/// Decodes one of the frames after the focus if the reader is positioned there.
bool FrameSource::decodeAhead(const FrameCache::Run& run, const IsCancelled& isCancelled)
{
    const bool isEnough = run.framesAfter >= framesAhead || run.end == m_lastTime;
    if (isEnough || m_reader.last() != run.end || !m_reader.isCompleteFrom(run.end)) {
        return false;
    }
    m_reader.setCompleteFrom(toMilliseconds(run.end));
    const FrameResult next = advance(isCancelled);
    if (next.answer == FrameAnswer::End && !m_reader.skippedSinceLast()) {
        m_lastTime = run.end;
    }
    return next.answer == FrameAnswer::Frame;
}

/// Moves to the last cached frame of the run around the focus. Passes the focus if the cache does
/// not hold that in full size.
bool FrameSource::returnToEnd(const FrameCache::Run& run, const IsCancelled& isCancelled)
{
    const bool wantsFocus = m_cache.at(m_focus).isScaledDown();
    const bool isAtEnd = run.end == m_lastTime || m_reader.last() == run.end;
    if (isAtEnd && !wantsFocus) {
        return false;
    }
    const double target = wantsFocus ? m_focus : run.end;
    const std::optional<double> last = m_reader.last();
    const bool isOnTheWay = m_returnsTo && (!last || *last < target);
    const bool isBefore = last && *last < target && isShortlyBefore(target);
    if (!isOnTheWay && !isBefore && !startReturn(target, run.end)) {
        return false;
    }
    const FrameResult next = advance(isCancelled);
    const bool goesOn = next.answer == FrameAnswer::Frame ||
                        (next.answer == FrameAnswer::Failed && m_reader.canGoOn());
    if (!goesOn && next.answer != FrameAnswer::Cancelled) {
        m_returnsTo.reset();
    }
    return goesOn;
}

/// Returns false if the same was tried in vain before.
bool FrameSource::startReturn(double target, double end)
{
    if (m_returnedTo == m_focus) {
        return false;
    }
    m_returnedTo = m_focus;
    m_returnsTo = end;
    const qint64 ms = toMilliseconds(target);
    m_reader.seek(ms);
    m_reader.setCompleteFrom(toMilliseconds(m_focus) - lengthOf(framesBeforeTarget));
    return true;
}

} // namespace QtAV
