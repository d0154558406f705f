// Key frames and scenes, which are looked for in parts of a video. Targets are in SeriesLane.cpp.

#include "series/SeriesLane.h"

#include "series/SceneDetector.h"

#include <QtAV/Times.h>

#include <algorithm>
#include <utility>

using QtAV::FrameAnswer;
using QtAV::FrameResult;
using QtAV::toMilliseconds;

namespace {

/// So much before a part of a video is decoded, so that its first frame has one to compare with.
constexpr qint64 beforeScenesMs = 2000;

} // namespace

/// Delivers the wanted ones of the frames that `next` gives in a part of the video. An error text
/// where the video cannot be read on.
template <typename Next, typename IsWanted>
QString SeriesLane::walkPart(const Task& task, const SeriesPlan::Stretch& part, const Next& next,
                             const IsWanted& isWanted)
{
    for (;;) {
        beginPosition();
        const FrameResult found = inTime(next());
        if (m_overdue > 0) {
            return found.error;
        }
        if (found.answer == FrameAnswer::Failed && m_reader.canGoOn()) {
            continue;
        }
        if (found.answer != FrameAnswer::Frame) {
            return found.error;
        }
        const qint64 ms = toMilliseconds(found.frame.timestamp());
        if (ms >= part.toMs) {
            return {};
        }
        if (isWanted(found.frame, ms) && !deliver(task, deliveryFor(task), found)) {
            return {};
        }
    }
}

QString SeriesLane::walkKeyFrames(const Task& task)
{
    const SeriesPlan::Stretch part = m_board.stretch(task.video, task.stretch);
    m_reader.seek(part.fromMs);
    m_reader.setKeyFrameAtOnce(true);
    return walkPart(
        task, part, [&] { return nextKeyFrame(part.toMs); },
        [&part](const QtAV::VideoFrame&, qint64 ms) { return ms >= part.fromMs; });
}

/// The picture that any other way to the frame gives, too.
FrameResult SeriesLane::nextKeyFrame(qint64 beforeMs)
{
    FrameResult found = m_reader.nextKeyFrame(beforeMs, m_isCancelledOrLate);
    if (found.answer != FrameAnswer::Frame || !m_reader.wantsNeighbours()) {
        return found;
    }
    FrameResult again = findAgain(found.frame);
    const bool isFailed = again.answer == FrameAnswer::Failed || again.answer == FrameAnswer::End;
    return isFailed ? found : again;
}

/// By a reader of its own, so that the first one stays where it is.
FrameResult SeriesLane::findAgain(const QtAV::VideoFrame& frame)
{
    if (!m_second) {
        auto second = std::make_unique<QtAV::FrameReader>();
        second->setPictureMemory(m_options.pictureBytes);
        second->setDeadline(m_deadline);
        second->setThreads(1);
        const SeriesJob& job = m_jobs.at(m_video);
        second->setDeinterlacing(QtAV::deinterlacingNamed(job.recipe.deinterlacing));
        QString error;
        if (!second->open(job.video, m_isCancelledOrLate, error)) {
            const bool isOver = m_isCancelledOrLate();
            return {isOver ? FrameAnswer::Cancelled : FrameAnswer::Failed, {}, error};
        }
        m_second = std::move(second);
    }
    const double seconds = frame.timestamp();
    QtAV::FrameReader::Search search;
    search.ms = toMilliseconds(seconds);
    search.completeFrom = search.ms;
    search.isReached = [seconds](const QtAV::VideoFrame& other) {
        return other.timestamp() >= seconds;
    };
    return m_second->find(search, m_isCancelledOrLate);
}

/// The first frame of the video, and each that differs from the one before it like another scene.
QString SeriesLane::walkScenes(const Task& task)
{
    const SeriesPlan::Stretch part = m_board.stretch(task.video, task.stretch);
    const double threshold = m_jobs.at(task.video).positions.sceneThreshold;
    const qint64 start = std::max<qint64>(0, part.fromMs - beforeScenesMs);
    m_reader.setKeyFrameAtOnce(false);
    m_reader.seek(start);
    m_reader.setCompleteFrom(start);
    SceneDetector detector;
    bool isFirst = task.stretch == 0;
    const auto isScene = [&](const QtAV::VideoFrame& frame, qint64 ms) {
        if (ms < start) {
            return false;
        }
        const double score =
            detector.add(frame.toImage(QImage::Format_Grayscale8, SceneDetector::pictureSize));
        return ms >= part.fromMs && (std::exchange(isFirst, false) || score >= threshold);
    };
    const auto next = [this] { return m_reader.next(m_isCancelledOrLate); };
    return walkPart(task, part, next, isScene);
}
