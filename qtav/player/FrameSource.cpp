#include "qtav/player/FrameSource.h"

#include "qtav/player/Times.h"
#include "qtav/src/StreamParameters.h"

#include <QCoreApplication>

#include <algorithm>

namespace QtAV {

namespace {

constexpr qint64 SmallestStepBackMs = 500;

/// To a frame not further ahead than this, decoding on is cheaper than starting at a key frame.
constexpr double NearSeconds = 1.0;

/// So many frames before a target are decoded with it, for the steps back that often follow. Each
/// costs a part of the seek's time; those before them are decoded behind the seek's back.
constexpr qint64 FramesBeforeTarget = 7;

/// Filling begins when fewer frames than this are left before the focus, or fewer than this for
/// each step back that was just made. A seek brings more: filling right after it would keep the
/// decoder from a step forward.
constexpr qint64 FewFrames = 4;
constexpr qint64 FramesForStepBack = 2;

/// It does not begin when the frames before the focus take this part of the cache, and adds as
/// much.
constexpr int PartBehind = 2;

/// A cache of more than these bytes, or of more than these frames where frames are large, would
/// hardly make stepping faster: what it can fill up meanwhile, and what it is asked for, are in
/// balance already. A seek fills it with the frames before its target.
constexpr qint64 UsefulFrames = FramesBeforeTarget + 1;
constexpr qint64 UsefulBytes = qint64(32) << 20;

constexpr int UsualGapMs = 40;

qint64 furtherBack(qint64 stepBackMs)
{
    return std::max(SmallestStepBackMs, 2 * stepBackMs);
}

} // namespace

bool FrameSource::open(const QString& path, qint64 cacheBytes, const IsCancelled& isCancelled,
                       QString& error)
{
    close();
    m_cache = FrameCache(cacheBytes);
    if (!m_cursor.open(path, error))
        return false;
    const Found first = frameAt(0, isCancelled);
    if (first.kind == Found::Kind::Frame) {
        const qint64 useful = std::max(UsefulBytes, UsefulFrames * first.frame.byteCount());
        m_cache.setMostBytes(std::min(cacheBytes, useful));
        return true;
    }
    if (first.kind == Found::Kind::None)
        error = QCoreApplication::translate("QtAV::AVPlayer", "The video cannot be decoded.");
    close();
    return false;
}

void FrameSource::close()
{
    m_walk.reset();
    m_cursor.close();
    m_cursorFrame = VideoFrame();
    m_cache.clear();
    m_lastTime.reset();
    m_filledUpTo.reset();
    m_longestGapMs = UsualGapMs;
    m_focus = 0.0;
    m_stepsBack = 0;
}

int FrameSource::frameInterval() const
{
    const VideoCodecContext* context = m_cursor.demuxer().videoCodecContext();
    const AVRational rate = context ? context->parameters()->frameRate : AVRational{0, 1};
    if (rate.num <= 0 || rate.den <= 0)
        return UsualGapMs;
    return std::max(1, qRound(1000.0 * rate.den / rate.num));
}

void FrameSource::setFocus(double seconds)
{
    m_focus = seconds;
    m_cache.setFocus(seconds);
}

/// Frames with others left out between them answer no question: they would only take the memory of
/// those that do.
void FrameSource::keep(const VideoCursor::Step& step)
{
    const double time = step.frame.timestamp();
    if (step.isFirstOfVideo)
        m_cache.setFirst(time);
    if (step.predecessor)
        m_longestGapMs = std::max(m_longestGapMs, toMilliseconds(time - *step.predecessor));
    if (toMilliseconds(time) >= m_cursor.completeFrom())
        m_cache.insert(step.frame, step.predecessor);
}

VideoCursor::Step FrameSource::advance(const IsCancelled& isCancelled)
{
    const VideoCursor::Step step = m_cursor.next(isCancelled);
    if (step.kind == VideoCursor::Step::Kind::Frame) {
        keep(step);
        m_cursorFrame = step.frame;
    }
    return step;
}

FrameSource::Found FrameSource::frameAt(qint64 ms, const IsCancelled& isCancelled)
{
    if (m_lastTime)
        ms = std::min(ms, toMilliseconds(*m_lastTime));
    setFocus(double(ms) / 1000.0);
    m_stepsBack = 0;
    const VideoFrame cached = m_cache.atOrAfter(ms);
    if (cached.isValid())
        return {Found::Kind::Frame, cached};

    leaveWalkBehind();
    const IsReached isReached = [ms](const VideoFrame& frame) {
        return toMilliseconds(frame.timestamp()) >= ms;
    };
    const qint64 completeFrom = ms - lengthOf(FramesBeforeTarget);
    if (!m_cursor.last() || toMilliseconds(*m_cursor.last()) >= ms ||
        !isShortlyBefore(double(ms) / 1000.0))
        return walkFrom(ms, completeFrom, isReached, isCancelled);
    m_cursor.setCompleteFrom(completeFrom);
    switch (walkOn(isReached, isCancelled)) {
    case Walked::Reached:
        return {Found::Kind::Frame, m_cursorFrame};
    case Walked::Cancelled:
        return {Found::Kind::Cancelled};
    case Walked::MayHaveMissed:
        return walkFrom(ms, 0, isReached, isCancelled);
    case Walked::End:
        break;
    }
    return lastFrame(isCancelled);
}

FrameSource::Found FrameSource::after(double seconds, const IsCancelled& isCancelled)
{
    m_stepsBack = 0;
    const VideoFrame cached = m_cache.after(seconds);
    if (cached.isValid())
        return {Found::Kind::Frame, cached};
    if (m_lastTime && seconds >= *m_lastTime)
        return {Found::Kind::None};

    if (isOnTheWay(seconds) && finishWalkBehind(isCancelled) == Filling::Cancelled)
        return {Found::Kind::Cancelled};
    leaveWalkBehind();
    const IsReached isReached = [seconds](const VideoFrame& frame) {
        return frame.timestamp() > seconds;
    };
    const qint64 ms = toMilliseconds(seconds);
    Walked walked = Walked::MayHaveMissed;
    if (isShortlyBefore(seconds)) {
        m_cursor.setCompleteFrom(ms);
        walked = walkOn(isReached, isCancelled);
    }
    if (walked == Walked::Reached)
        return {Found::Kind::Frame, m_cursorFrame};
    if (walked == Walked::Cancelled)
        return {Found::Kind::Cancelled};
    if (walked == Walked::End)
        return {Found::Kind::None};
    const Found found = walkFrom(ms, ms, isReached, isCancelled);
    const bool isAfter = found.frame.isValid() && isReached(found.frame);
    return found.kind != Found::Kind::Frame || isAfter ? found : Found{Found::Kind::None};
}

/// True when m_cursor comes to a time by going on for a moment, and misses nothing from there on.
bool FrameSource::isShortlyBefore(double seconds) const
{
    const std::optional<double> last = m_cursor.last();
    return last && *last <= seconds && seconds - *last <= NearSeconds &&
           m_cursor.isCompleteFrom(seconds);
}

/// The first frame that is reached when starting at the key frame before a position, or further
/// back where that would not be certain; the video's last frame when none is.
FrameSource::Found FrameSource::walkFrom(qint64 ms, qint64 completeFrom, const IsReached& isReached,
                                         const IsCancelled& isCancelled)
{
    bool leavesOut = completeFrom > 0;
    for (qint64 stepBackMs = 0;;) {
        const qint64 landing = std::max<qint64>(0, ms - stepBackMs);
        m_cursor.seek(landing);
        m_cursor.setCompleteFrom(leavesOut ? completeFrom : 0);
        const Walked walked = walkOn(isReached, isCancelled);
        if (walked == Walked::Reached)
            return {Found::Kind::Frame, m_cursorFrame};
        if (walked == Walked::Cancelled)
            return {Found::Kind::Cancelled};
        if (walked == Walked::End && m_cursor.last())
            return lastFrame(isCancelled);
        if (walked == Walked::End && landing == 0 && !leavesOut)
            return {Found::Kind::None};
        if (!leavesOut)
            stepBackMs = furtherBack(stepBackMs);
        leavesOut = false;
    }
}

FrameSource::Walked FrameSource::walkOn(const IsReached& isReached, const IsCancelled& isCancelled)
{
    for (;;) {
        const VideoCursor::Step step = advance(isCancelled);
        if (step.kind == VideoCursor::Step::Kind::Cancelled)
            return Walked::Cancelled;
        if (step.kind == VideoCursor::Step::Kind::End) {
            noteEnd();
            return Walked::End;
        }
        if (!isReached(step.frame))
            continue;
        const bool isKeyFrame = m_cursor.landing() && step.frame.timestamp() <= *m_cursor.landing();
        const bool isCertain = step.predecessor || step.isFirstOfVideo || isKeyFrame;
        return isCertain ? Walked::Reached : Walked::MayHaveMissed;
    }
}

void FrameSource::noteEnd()
{
    if (m_cursor.last() && !m_cursor.leftOutSinceLast())
        m_lastTime = m_cursor.last();
}

/// The video's last frame, once m_cursor has come to the end.
FrameSource::Found FrameSource::lastFrame(const IsCancelled& isCancelled)
{
    if (!m_cursor.leftOutSinceLast())
        return {Found::Kind::Frame, m_cursorFrame};
    return walkFrom(
        toMilliseconds(*m_cursor.last()), 0, [](const VideoFrame&) { return false; }, isCancelled);
}

FrameSource::Found FrameSource::before(double seconds, const IsCancelled& isCancelled)
{
    ++m_stepsBack;
    const std::optional<double> first = m_cache.first();
    if (first && seconds <= *first)
        return {Found::Kind::None};
    const VideoFrame cached = m_cache.before(seconds);
    if (cached.isValid())
        return {Found::Kind::Frame, cached};
    if (!m_walk || m_walk->target != seconds)
        startWalkBehind(seconds);
    if (finishWalkBehind(isCancelled) == Filling::Cancelled)
        return {Found::Kind::Cancelled};
    const VideoFrame previous = m_walk->previous;
    m_walk.reset();
    return previous.isValid() ? Found{Found::Kind::Frame, previous} : Found{Found::Kind::None};
}

void FrameSource::startWalkBehind(double target)
{
    m_walk = WalkBehind{target, m_cursor.landing()};
    landBehind();
}

void FrameSource::landBehind()
{
    const qint64 targetMs = toMilliseconds(m_walk->target);
    m_cursor.seek(std::max<qint64>(0, targetMs - 1 - m_walk->stepBackMs));
    // What the cache would throw away again need not be decoded.
    const qint64 frameBytes = std::max<qint64>(1, m_cursorFrame.byteCount());
    const qint64 room = m_cache.mostBytes() / PartBehind / frameBytes;
    const qint64 frames = std::max(FramesBeforeTarget, room);
    m_cursor.setCompleteFrom(m_walk->leavesOut ? targetMs - lengthOf(frames) : 0);
    m_walk->previous = VideoFrame();
}

FrameSource::Filling FrameSource::walkOnBehind(const IsCancelled& isCancelled)
{
    const VideoCursor::Step step = advance(isCancelled);
    if (step.kind == VideoCursor::Step::Kind::Cancelled)
        return Filling::Cancelled;
    const bool isFrame = step.kind == VideoCursor::Step::Kind::Frame;
    if (isFrame && step.frame.timestamp() < m_walk->target) {
        m_walk->previous = step.frame;
        return Filling::GoesOn;
    }
    const bool isComplete = isFrame ? step.predecessor.has_value() : !m_cursor.leftOutSinceLast();
    const bool isCertain = m_walk->previous.isValid() && isComplete;
    const bool isAtStart = m_walk->stepBackMs >= toMilliseconds(m_walk->target);
    if (isCertain || step.isFirstOfVideo || (isAtStart && !m_walk->leavesOut))
        return Filling::Done;
    if (!m_walk->leavesOut)
        m_walk->stepBackMs = furtherBack(m_walk->stepBackMs);
    m_walk->leavesOut = false;
    landBehind();
    return Filling::GoesOn;
}

FrameSource::Filling FrameSource::finishWalkBehind(const IsCancelled& isCancelled)
{
    Filling filling = Filling::GoesOn;
    while (filling == Filling::GoesOn)
        filling = walkOnBehind(isCancelled);
    return filling;
}

/// True when finishing the walk is the shortest way to what follows a time: another one would lead
/// over the same frames.
bool FrameSource::isOnTheWay(double seconds) const
{
    return m_walk && m_walk->target <= seconds && seconds - m_walk->target <= NearSeconds &&
           (!m_walk->wayBack || *m_walk->wayBack < m_walk->target);
}

/// What the walk was for may be wanted again.
void FrameSource::leaveWalkBehind()
{
    m_walk.reset();
    m_filledUpTo.reset();
}

bool FrameSource::fillBehind(const IsCancelled& isCancelled)
{
    if (!m_walk && !startFilling())
        return catchUp(isCancelled);
    if (walkOnBehind(isCancelled) == Filling::Done)
        m_walk.reset();
    return true;
}

bool FrameSource::startFilling()
{
    const std::optional<FrameCache::Run> run = m_cache.runAround(m_focus);
    if (!run || run->isAtStart)
        return false;
    const qint64 enough = std::max(FewFrames, FramesForStepBack * m_stepsBack);
    const bool isEnough =
        run->framesBefore >= enough || run->bytesBefore >= m_cache.mostBytes() / PartBehind;
    // Filling up to the same frame again would end the same.
    if (isEnough || m_filledUpTo == run->start)
        return false;
    m_filledUpTo = run->start;
    startWalkBehind(run->start);
    return true;
}

/// Goes to the last of the cached frames around the focus.
bool FrameSource::catchUp(const IsCancelled& isCancelled)
{
    const std::optional<FrameCache::Run> run = m_cache.runAround(m_focus);
    const bool isAhead = !run || run->end == m_lastTime || m_cursor.last() == run->end;
    if (isAhead || !isShortlyBefore(run->end))
        return false;
    m_cursor.setCompleteFrom(toMilliseconds(run->end));
    return advance(isCancelled).kind != VideoCursor::Step::Kind::End;
}

} // namespace QtAV
