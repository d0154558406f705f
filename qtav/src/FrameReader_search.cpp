#include <QtAV/FrameReader.h>
#include <QtAV/Times.h>

#include <algorithm>
#include <utility>

namespace QtAV {

/// True if no frame can be missing directly before last(), except skipped ones. Once a frame has
/// been decoded, all that follow are.
bool FrameReader::isCertain() const
{
    return m_isInSequence || m_isAtFirst || (m_landing && *m_last <= *m_landing);
}

bool FrameReader::looksAsEver() const
{
    return m_predecessor || m_isAtFirst || !wantsNeighbours(m_lastFrame);
}

FrameReader::Way FrameReader::walk(const Search& search, const IsCancelled& isCancelled)
{
    if (m_last && search.isReached(m_lastFrame)) {
        return {{FrameAnswer::Frame, m_lastFrame}, isCertain() && looksAsEver()};
    }
    for (;;) {
        FrameResult step = next(isCancelled);
        if (step.answer == FrameAnswer::Failed && search.damage == Damage::Skip && canGoOn()) {
            continue;
        }
        if (step.answer != FrameAnswer::Frame) {
            return {std::move(step)};
        }
        if (search.onFrame) {
            search.onFrame(step.frame);
        }
        if (search.isReached(step.frame)) {
            return {std::move(step), isCertain() && looksAsEver()};
        }
    }
}

FrameResult FrameReader::find(const Search& search, const IsCancelled& isCancelled)
{
    return findFrom(search, isCancelled);
}

FrameResult FrameReader::findOn(const Search& search, const IsCancelled& isCancelled)
{
    setCompleteFrom(search.completeFrom);
    Way way = walk(search, isCancelled);
    if (way.result.answer == FrameAnswer::Frame && !way.isCertain) {
        Search complete = search;
        complete.completeFrom = 0;
        return findFrom(complete, isCancelled);
    }
    return way.result.answer == FrameAnswer::End && m_last ? lastOfVideo(search, isCancelled)
                                                           : std::move(way.result);
}

FrameResult FrameReader::findFrom(Search search, const IsCancelled& isCancelled)
{
    for (qint64 stepBackMs = wantsPredecessors() ? neighbourMs : 0;;) {
        const qint64 landing = std::max<qint64>(0, search.ms - stepBackMs);
        seek(landing);
        setCompleteFrom(search.completeFrom);
        Way way = walk(search, isCancelled);
        const bool isEnd = way.result.answer == FrameAnswer::End;
        const bool isAll = landing == 0 && search.completeFrom <= 0;
        if (isEnd && m_last) {
            if (isAll || isWholeLast()) {
                return {FrameAnswer::Frame, m_lastFrame};
            }
            search.ms = std::min(search.ms, toMilliseconds(*m_last));
        } else if (isEnd ? isAll : way.isCertain) {
            return std::move(way.result);
        }
        if (search.completeFrom <= 0) {
            stepBackMs = std::max(smallestStepBackMs, 2 * stepBackMs);
        }
        search.completeFrom = 0;
    }
}

/// Whether last() is the video's last frame and looksAsEver(), once the reader is at the end.
bool FrameReader::isWholeLast() const
{
    return !skippedSinceLast() && looksAsEver();
}

/// The video's last frame, once the reader has reached the end.
FrameResult FrameReader::lastOfVideo(const Search& search, const IsCancelled& isCancelled)
{
    if (isWholeLast()) {
        return {FrameAnswer::Frame, m_lastFrame};
    }
    Search complete = search;
    complete.ms = toMilliseconds(*m_last);
    complete.completeFrom = 0;
    return findFrom(complete, isCancelled);
}

} // namespace QtAV
