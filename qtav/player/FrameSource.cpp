#include "qtav/player/FrameSource.h"

#include "qtav/src/StreamParameters.h"
#include "qtav/src/Times.h"

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
    if (!m_reader.open(path, isCancelled, error))
        return false;
    const FrameResult first = frameAt(0, isCancelled);
    if (first.answer == FrameAnswer::Frame) {
        const qint64 useful = std::max(UsefulBytes, UsefulFrames * first.frame.byteCount());
        m_cache.setMostBytes(std::min(cacheBytes, useful));
        return true;
    }
    if (first.answer == FrameAnswer::Failed)
        error = first.error;
    else if (first.answer == FrameAnswer::End)
        error = QCoreApplication::translate("QtAV::AVPlayer", "The video cannot be decoded.");
    close();
    return false;
}

void FrameSource::close()
{
    m_walk.reset();
    m_reader.close();
    m_cache.clear();
    m_lastTime.reset();
    m_latestMs = 0;
    m_filledUpTo.reset();
    m_longestGapMs = UsualGapMs;
    m_focus = 0.0;
    m_stepsBack = 0;
}

qint64 FrameSource::duration() const
{
    return std::max(m_reader.demuxer().duration(), m_latestMs);
}

int FrameSource::frameInterval() const
{
    const VideoCodecContext* context = m_reader.demuxer().videoCodecContext();
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
void FrameSource::keep()
{
    const VideoFrame& frame = m_reader.lastFrame();
    const double time = frame.timestamp();
    const std::optional<double> predecessor = m_reader.predecessor();
    m_latestMs = std::max(m_latestMs, toMilliseconds(time));
    if (m_reader.isAtFirstOfVideo())
        m_cache.setFirst(time);
    if (predecessor)
        m_longestGapMs = std::max(m_longestGapMs, toMilliseconds(time - *predecessor));
    if (toMilliseconds(time) >= m_reader.completeFrom())
        m_cache.insert(frame, predecessor);
}

FrameResult FrameSource::advance(const IsCancelled& isCancelled)
{
    FrameResult step = m_reader.next(isCancelled);
    if (step.answer == FrameAnswer::Frame)
        keep();
    return step;
}

FrameResult FrameSource::frameAt(qint64 ms, const IsCancelled& isCancelled)
{
    if (m_lastTime)
        ms = std::min(ms, toMilliseconds(*m_lastTime));
    setFocus(double(ms) / 1000.0);
    m_stepsBack = 0;
    const VideoFrame cached = m_cache.atOrAfter(ms);
    if (cached.isValid())
        return {FrameAnswer::Frame, cached};

    leaveWalkBehind();
    const auto isReached = [ms](const VideoFrame& frame) {
        return toMilliseconds(frame.timestamp()) >= ms;
    };
    const qint64 completeFrom = ms - lengthOf(FramesBeforeTarget);
    const bool goesOn = m_reader.last() && toMilliseconds(*m_reader.last()) < ms &&
                        isShortlyBefore(double(ms) / 1000.0);
    return look(goesOn, searchFor(ms, completeFrom, isReached), isCancelled);
}

FrameResult FrameSource::after(double seconds, const IsCancelled& isCancelled)
{
    m_stepsBack = 0;
    const VideoFrame cached = m_cache.after(seconds);
    if (cached.isValid())
        return {FrameAnswer::Frame, cached};
    if (m_lastTime && seconds >= *m_lastTime)
        return {FrameAnswer::End};

    if (isOnTheWay(seconds)) {
        const FrameResult finished = finishWalkBehind(isCancelled);
        if (finished.answer == FrameAnswer::Cancelled)
            return finished;
    }
    leaveWalkBehind();
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
    leaveWalkBehind();
    const auto isReached = [seconds](const VideoFrame& frame) {
        return frame.timestamp() >= seconds;
    };
    const qint64 ms = toMilliseconds(seconds);
    FrameResult found = look(false, searchFor(ms, ms, isReached), isCancelled);
    const bool isOther = found.answer == FrameAnswer::Frame && found.frame.timestamp() != seconds;
    if (isOther || found.answer == FrameAnswer::End)
        return {
            FrameAnswer::Failed,
            {},
            QCoreApplication::translate("QtAV::AVPlayer", "The frame cannot be read any more.")};
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
    FrameResult found =
        goesOn ? m_reader.findOn(search, isCancelled) : m_reader.find(search, isCancelled);
    const bool isLast = found.answer == FrameAnswer::Frame && !search.isReached(found.frame);
    if (isLast)
        m_lastTime = found.frame.timestamp();
    return found;
}

/// True when m_reader comes to a time by going on for a moment, and misses nothing from there on.
bool FrameSource::isShortlyBefore(double seconds) const
{
    const std::optional<double> last = m_reader.last();
    return last && *last <= seconds && seconds - *last <= NearSeconds &&
           m_reader.isCompleteFrom(seconds);
}

FrameResult FrameSource::before(double seconds, const IsCancelled& isCancelled)
{
    ++m_stepsBack;
    const std::optional<double> first = m_cache.first();
    if (first && seconds <= *first)
        return {FrameAnswer::End};
    const VideoFrame cached = m_cache.before(seconds);
    if (cached.isValid())
        return {FrameAnswer::Frame, cached};
    if (!m_walk || m_walk->target != seconds)
        startWalkBehind(seconds);
    FrameResult finished = finishWalkBehind(isCancelled);
    if (finished.answer == FrameAnswer::Cancelled)
        return finished;
    const VideoFrame previous = m_walk->previous;
    m_walk.reset();
    if (!previous.isValid())
        return finished;
    return {FrameAnswer::Frame, previous};
}

void FrameSource::startWalkBehind(double target)
{
    m_walk = WalkBehind{target, m_reader.landing()};
    landBehind();
}

void FrameSource::landBehind()
{
    const qint64 targetMs = toMilliseconds(m_walk->target);
    m_reader.seek(std::max<qint64>(0, targetMs - 1 - m_walk->stepBackMs));
    // What the cache would throw away again need not be decoded.
    const qint64 frameBytes = std::max<qint64>(1, m_reader.lastFrame().byteCount());
    const qint64 room = m_cache.mostBytes() / PartBehind / frameBytes;
    const qint64 frames = std::max(FramesBeforeTarget, room);
    m_reader.setCompleteFrom(m_walk->skips ? targetMs - lengthOf(frames) : 0);
    m_walk->previous = VideoFrame();
}

FrameSource::Filling FrameSource::walkOnBehind(const IsCancelled& isCancelled)
{
    FrameResult step = advance(isCancelled);
    if (step.answer == FrameAnswer::Cancelled)
        return {true, std::move(step)};
    const bool isFailed = step.answer == FrameAnswer::Failed;
    if (isFailed && m_reader.canGoOn())
        return {false};
    if (isFailed) {
        m_walk->previous = VideoFrame();
        return {true, std::move(step)};
    }
    const bool isFrame = step.answer == FrameAnswer::Frame;
    if (isFrame && step.frame.timestamp() < m_walk->target) {
        m_walk->previous = step.frame;
        return {false};
    }
    const bool isComplete =
        isFrame ? m_reader.predecessor().has_value() : !m_reader.skippedSinceLast();
    const bool isCertain = m_walk->previous.isValid() && isComplete;
    const bool isAtStart = m_walk->stepBackMs >= toMilliseconds(m_walk->target);
    const bool isFirst = isFrame && m_reader.isAtFirstOfVideo();
    if (isCertain || isFirst || (isAtStart && !m_walk->skips))
        return {true};
    if (!m_walk->skips)
        m_walk->stepBackMs = furtherBack(m_walk->stepBackMs);
    m_walk->skips = false;
    landBehind();
    return {false};
}

FrameResult FrameSource::finishWalkBehind(const IsCancelled& isCancelled)
{
    Filling filling;
    while (!filling.isOver)
        filling = walkOnBehind(isCancelled);
    return filling.result;
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
    const Filling filling = walkOnBehind(isCancelled);
    if (filling.isOver && filling.result.answer != FrameAnswer::Cancelled)
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
    const bool isAhead = !run || run->end == m_lastTime || m_reader.last() == run->end;
    if (isAhead || !isShortlyBefore(run->end))
        return false;
    m_reader.setCompleteFrom(toMilliseconds(run->end));
    return advance(isCancelled).answer == FrameAnswer::Frame;
}

} // namespace QtAV
