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
constexpr qint64 FramesBeforeTarget = 8;

/// Filling begins when frames before the focus take less than this part of the cache, and adds the
/// other part: together less than what eviction leaves them, or filling would never end.
constexpr int PartBehind = 3;
constexpr int PartFilled = 2;

/// A cache of more than these frames, or of more than these bytes where frames are small, would
/// hardly make stepping faster: what it can fill up meanwhile, and what it is asked for, are in
/// balance already.
constexpr qint64 UsefulFrames = 16;
constexpr qint64 UsefulBytes = qint64(64) << 20;

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
    m_path = path;
    m_cache = FrameCache(cacheBytes);
    if (!m_ahead.open(path, error))
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
    m_ahead.close();
    m_behind.close();
    m_aheadFrame = VideoFrame();
    m_cache.clear();
    m_lastTime.reset();
    m_filledUpTo.reset();
    m_longestGapMs = UsualGapMs;
    m_focus = 0.0;
}

int FrameSource::frameInterval() const
{
    const VideoCodecContext* context = m_ahead.demuxer().videoCodecContext();
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
void FrameSource::keep(const VideoCursor::Step& step, const VideoCursor& cursor)
{
    const double time = step.frame.timestamp();
    if (step.isFirstOfVideo)
        m_cache.setFirst(time);
    if (step.predecessor)
        m_longestGapMs = std::max(m_longestGapMs, toMilliseconds(time - *step.predecessor));
    if (toMilliseconds(time) >= cursor.completeFrom())
        m_cache.insert(step.frame, step.predecessor);
}

FrameSource::Found FrameSource::frameAt(qint64 ms, const IsCancelled& isCancelled)
{
    if (m_lastTime)
        ms = std::min(ms, toMilliseconds(*m_lastTime));
    setFocus(double(ms) / 1000.0);
    const VideoFrame cached = m_cache.atOrAfter(ms);
    if (cached.isValid())
        return {Found::Kind::Frame, cached};

    m_walk.reset();
    m_filledUpTo.reset();
    const IsReached isReached = [ms](const VideoFrame& frame) {
        return toMilliseconds(frame.timestamp()) >= ms;
    };
    const qint64 completeFrom = ms - lengthOf(FramesBeforeTarget);
    if (!m_ahead.last() || toMilliseconds(*m_ahead.last()) >= ms ||
        !isShortlyBefore(double(ms) / 1000.0))
        return walkFrom(ms, completeFrom, isReached, isCancelled);
    m_ahead.setCompleteFrom(completeFrom);
    switch (walkOn(isReached, isCancelled)) {
    case Walked::Reached:
        return {Found::Kind::Frame, m_aheadFrame};
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
    const VideoFrame cached = m_cache.after(seconds);
    if (cached.isValid())
        return {Found::Kind::Frame, cached};
    if (m_lastTime && seconds >= *m_lastTime)
        return {Found::Kind::None};

    const IsReached isReached = [seconds](const VideoFrame& frame) {
        return frame.timestamp() > seconds;
    };
    Walked walked = Walked::MayHaveMissed;
    if (isShortlyBefore(seconds)) {
        m_ahead.setCompleteFrom(0);
        walked = walkOn(isReached, isCancelled);
    }
    if (walked == Walked::Reached)
        return {Found::Kind::Frame, m_aheadFrame};
    if (walked == Walked::Cancelled)
        return {Found::Kind::Cancelled};
    if (walked == Walked::End)
        return {Found::Kind::None};
    const qint64 ms = toMilliseconds(seconds);
    const Found found = walkFrom(ms, ms, isReached, isCancelled);
    const bool isAfter = found.frame.isValid() && isReached(found.frame);
    return found.kind != Found::Kind::Frame || isAfter ? found : Found{Found::Kind::None};
}

/// True when m_ahead comes to a time by going on for a moment.
bool FrameSource::isShortlyBefore(double seconds) const
{
    const std::optional<double> last = m_ahead.last();
    return last && *last <= seconds && seconds - *last <= NearSeconds &&
           !m_ahead.leftOutSinceLast();
}

/// The first frame that is reached when starting at the key frame before a position, or further
/// back where that would not be certain; the video's last frame when none is.
FrameSource::Found FrameSource::walkFrom(qint64 ms, qint64 completeFrom, const IsReached& isReached,
                                         const IsCancelled& isCancelled)
{
    bool leavesOut = completeFrom > 0;
    for (qint64 stepBackMs = 0;;) {
        const qint64 landing = std::max<qint64>(0, ms - stepBackMs);
        m_ahead.seek(landing);
        m_ahead.setCompleteFrom(leavesOut ? completeFrom : 0);
        const Walked walked = walkOn(isReached, isCancelled);
        if (walked == Walked::Reached)
            return {Found::Kind::Frame, m_aheadFrame};
        if (walked == Walked::Cancelled)
            return {Found::Kind::Cancelled};
        if (walked == Walked::End && m_ahead.last())
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
        const VideoCursor::Step step = m_ahead.next(isCancelled);
        if (step.kind == VideoCursor::Step::Kind::Cancelled)
            return Walked::Cancelled;
        if (step.kind == VideoCursor::Step::Kind::End) {
            noteEnd();
            return Walked::End;
        }
        keep(step, m_ahead);
        m_aheadFrame = step.frame;
        if (!isReached(step.frame))
            continue;
        const bool isKeyFrame = m_ahead.landing() && step.frame.timestamp() <= *m_ahead.landing();
        const bool isCertain = step.predecessor || step.isFirstOfVideo || isKeyFrame;
        return isCertain ? Walked::Reached : Walked::MayHaveMissed;
    }
}

void FrameSource::noteEnd()
{
    if (m_ahead.last() && !m_ahead.leftOutSinceLast())
        m_lastTime = m_ahead.last();
}

/// The video's last frame, once m_ahead has come to the end.
FrameSource::Found FrameSource::lastFrame(const IsCancelled& isCancelled)
{
    if (!m_ahead.leftOutSinceLast())
        return {Found::Kind::Frame, m_aheadFrame};
    return walkFrom(
        toMilliseconds(*m_ahead.last()), 0, [](const VideoFrame&) { return false; }, isCancelled);
}

FrameSource::Found FrameSource::before(double seconds, const IsCancelled& isCancelled)
{
    const std::optional<double> first = m_cache.first();
    if (first && seconds <= *first)
        return {Found::Kind::None};
    const VideoFrame cached = m_cache.before(seconds);
    if (cached.isValid())
        return {Found::Kind::Frame, cached};
    const bool isOnTheWay = m_walk && m_walk->target == seconds;
    if (!isOnTheWay && !startWalkBehind(seconds))
        return {Found::Kind::None};
    Filling filling = Filling::GoesOn;
    while (filling == Filling::GoesOn)
        filling = walkOnBehind(isCancelled);
    if (filling == Filling::Cancelled)
        return {Found::Kind::Cancelled};
    const VideoFrame previous = m_walk->previous;
    m_walk.reset();
    return previous.isValid() ? Found{Found::Kind::Frame, previous} : Found{Found::Kind::None};
}

bool FrameSource::startWalkBehind(double target)
{
    m_walk.reset();
    QString error;
    // The same file opened before: what fails now is that it went away meanwhile.
    if (!m_behind.isOpen() && !m_behind.open(m_path, error, &m_ahead)) {
        qWarning("Cannot step back: %s", qUtf8Printable(error));
        return false;
    }
    m_walk = WalkBehind{target};
    landBehind();
    return true;
}

void FrameSource::landBehind()
{
    const qint64 targetMs = toMilliseconds(m_walk->target);
    m_behind.seek(std::max<qint64>(0, targetMs - 1 - m_walk->stepBackMs));
    // What the cache would throw away again need not be decoded.
    const qint64 frameBytes = std::max<qint64>(1, m_aheadFrame.byteCount());
    const qint64 room = m_cache.mostBytes() / PartFilled / frameBytes;
    const qint64 frames = std::max(FramesBeforeTarget, room);
    m_behind.setCompleteFrom(m_walk->leavesOut ? targetMs - lengthOf(frames) : 0);
    m_walk->previous = VideoFrame();
}

FrameSource::Filling FrameSource::walkOnBehind(const IsCancelled& isCancelled)
{
    const VideoCursor::Step step = m_behind.next(isCancelled);
    if (step.kind == VideoCursor::Step::Kind::Cancelled)
        return Filling::Cancelled;
    const bool isFrame = step.kind == VideoCursor::Step::Kind::Frame;
    if (isFrame)
        keep(step, m_behind);
    if (isFrame && step.frame.timestamp() < m_walk->target) {
        m_walk->previous = step.frame;
        return Filling::GoesOn;
    }
    const bool isComplete = isFrame ? step.predecessor.has_value() : !m_behind.leftOutSinceLast();
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

bool FrameSource::fillBehind(const IsCancelled& isCancelled)
{
    if (!m_walk && !startFilling()) {
        restBehind();
        return false;
    }
    if (walkOnBehind(isCancelled) == Filling::Done)
        m_walk.reset();
    return true;
}

void FrameSource::restBehind()
{
    if (m_behind.isOpen())
        m_behind.rest();
}

bool FrameSource::startFilling()
{
    const std::optional<FrameCache::Run> run = m_cache.runUpTo(m_focus);
    const qint64 enough = m_cache.mostBytes() / PartBehind;
    const bool isEnough = !run || run->isAtStart || run->bytes >= enough;
    // Filling up to the same frame again would end the same.
    if (isEnough || m_filledUpTo == run->start)
        return false;
    m_filledUpTo = run->start;
    return startWalkBehind(run->start);
}

} // namespace QtAV
