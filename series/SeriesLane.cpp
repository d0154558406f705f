#include "series/SeriesLane.h"

#include "series/BestFrames.h"
#include "series/SeriesPictures.h"

#include <QtAV/AVDemuxer.h>
#include <QtAV/Times.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

using QtAV::FrameAnswer;
using QtAV::FrameResult;
using QtAV::toMilliseconds;

namespace {

/// Up to this distance, reading on without decoding is tried before a search for the key frame,
/// which may lie before the frames that are decoded already.
constexpr qint64 longestReadAheadMs = 15000;

/// A search for a key frame reads about as much as a stretch of this length.
constexpr qint64 searchCostMs = 3000;

/// Restarting at a key frame is worthwhile if it is nearer by this much.
constexpr qint64 worthStartingMs = 200;

/// If a seek to an indexed key frame lands this far before it, the index is wrong.
constexpr qint64 indexErrorMs = 1000;

/// After this many positions of a video that took too long, the others are given up.
constexpr int mostOverdue = 3;

/// Minimum reading speed for a whole file: that of a slow network share.
constexpr qint64 slowestBytesPerMs = 1000;

QString noMemoryText()
{
    return QCoreApplication::translate("imaging", "Not enough memory");
}

QString tooMuchText()
{
    return QCoreApplication::translate("series", "More than %1 pictures would be needed.")
        .arg(mostTargets);
}

} // namespace

SeriesLane::SeriesLane(SeriesBoard& board, const QVector<SeriesJob>& jobs,
                       const SeriesOptions& options, const QtAV::IsCancelled& isCancelled)
    : m_board(board)
    , m_jobs(jobs)
    , m_options(options)
    , m_isCancelled(isCancelled)
    , m_deadline(std::make_shared<QtAV::Deadline>())
    , m_isCancelledOrLate([this] { return m_deadline->hasPassed() || m_isCancelled(); })
{
    m_reader.setPictureMemory(options.pictureBytes);
    m_reader.setDeadline(m_deadline);
}

void SeriesLane::run()
{
    for (;;) {
        Task task = m_board.next(m_readied);
        if (task.kind == Task::Kind::None) {
            return;
        }
        if (task.kind == Task::Kind::Open) {
            m_readied = task.video;
            // The lane that plans reports what cannot be opened.
            QString error;
            static_cast<void>(open(task.video, error));
        }
        if (task.kind == Task::Kind::Plan) {
            task = plan(task);
        }
        if (task.kind == Task::Kind::Walk) {
            walk(task);
        }
    }
}

bool SeriesLane::open(int video, QString& error)
{
    if (m_video == video) {
        return true;
    }
    m_video = -1;
    m_second.reset();
    // walk() sets the number for the task before it decodes.
    m_reader.setThreads(1);
    m_reader.setDeinterlacing(QtAV::deinterlacingNamed(m_jobs.at(video).recipe.deinterlacing));
    m_overdue = 0;
    beginPosition();
    try {
        if (!m_reader.open(m_jobs.at(video).video, m_isCancelledOrLate, error)) {
            error = m_deadline->hasPassed() ? overdueText() : error;
            return false;
        }
    } catch (const std::bad_alloc&) {
        error = noMemoryText();
        return false;
    }
    m_video = video;
    const QtAV::MediaFacts facts = m_reader.demuxer().facts();
    m_source = PictureSource::of(m_jobs.at(video).video, facts.tags, facts.tickNumerator,
                                 facts.tickDenominator);
    return true;
}

SeriesBoard::Task SeriesLane::plan(const Task& task)
{
    try {
        return makePlan(task);
    } catch (const std::bad_alloc&) {
        m_board.failed(task.video, noMemoryText());
        return {};
    }
}

SeriesBoard::Task SeriesLane::makePlan(const Task& task)
{
    QString error;
    if (!open(task.video, error)) {
        m_board.failed(task.video, error);
        return {};
    }
    const SeriesJob& job = m_jobs.at(task.video);
    FramePositions positions = job.positions;
    SeriesLength length;
    length.durationMs = m_reader.demuxer().duration();
    if (positions.kind == FramePositions::Kind::Best) {
        positions = bestPositions(job.positions, length.durationMs, error);
        if (!error.isEmpty()) {
            m_board.failed(task.video, error);
            return {};
        }
    }
    if (job.numbersFrames || asksForNumbers(positions)) {
        readThrough(length);
    }
    if (isGivenUp()) {
        m_board.failed(task.video, overdueText());
        return {};
    }
    QVector<qint64> keyFrames = m_reader.indexedKeyFrames();
    SeriesFacts facts{task.video, length.durationMs};
    std::deque<Delivery> failures;
    SeriesPlan plan;
    if (positions.kind == FramePositions::Kind::KeyFrames ||
        positions.kind == FramePositions::Kind::Scenes) {
        plan = planPart(msOf(positions.front, length.durationMs),
                        length.durationMs - msOf(positions.back, length.durationMs) + 1,
                        std::move(keyFrames), m_options.lanes);
    } else {
        if (isTooMuch(positions, length)) {
            m_board.failed(task.video, tooMuchText());
            return {};
        }
        QVector<SeriesTarget> targets = neededTargets(task.video, positions, length, failures);
        facts.expected = targets.size() + static_cast<int>(failures.size());
        plan = planTargets(std::move(targets), std::move(keyFrames), m_options.lanes);
    }
    plan.frameTimesMs = std::move(length.frameTimesMs);
    return m_board.planned(task.video, std::move(plan), facts, std::move(failures));
}

/// This lane examines all frames alone, with as many decoding threads as there are lanes. The time
/// limit applies to each of them.
FramePositions SeriesLane::bestPositions(const FramePositions& wanted, qint64 durationMs,
                                         QString& error)
{
    const VideoStretch stretch{msOf(wanted.front, durationMs),
                               durationMs - msOf(wanted.back, durationMs) + 1};
    m_reader.setThreads(m_options.lanes);
    FramePositions best;
    best.kind = FramePositions::Kind::List;
    beginPosition();
    const QVector<qint64> times = series::findBest(
        m_reader, stretch, wanted.count, m_isCancelledOrLate, error, [this] { beginPosition(); });
    for (const qint64 ms : times) {
        best.list.push_back({FramePosition::Kind::Milliseconds, static_cast<double>(ms)});
    }
    if (times.isEmpty() && error.isEmpty()) {
        error = m_deadline->hasPassed()
                    ? overdueText()
                    : QCoreApplication::translate("series",
                                                  "All frames are black, blurred or at a cut.");
    }
    m_deadline->start(std::chrono::milliseconds(0));
    return best;
}

/// Also adds an error for each frame number that does not exist.
QVector<SeriesTarget> SeriesLane::neededTargets(int video, const FramePositions& positions,
                                                const SeriesLength& length,
                                                std::deque<Delivery>& failures) const
{
    std::vector<FramePosition> missing;
    const QVector<SeriesTarget> all = targetsOf(positions, length, &missing);
    m_board.announce(video, all);
    QVector<SeriesTarget> needed;
    std::copy_if(
        all.cbegin(), all.cend(), std::back_inserter(needed),
        [this, video](const SeriesTarget& target) { return m_board.needs(video, target); });
    for (const FramePosition& position : missing) {
        Delivery failure;
        failure.index = needed.size() + static_cast<int>(failures.size());
        failure.picture.video = video;
        failure.picture.frame = static_cast<qint64>(position.value);
        failure.picture.error = QCoreApplication::translate("series", "The video has no frame %1.")
                                    .arg(*failure.picture.frame);
        failures.push_back(std::move(failure));
    }
    return needed;
}

/// The time limit for reading all frame times grows with the size of the file.
void SeriesLane::readThrough(SeriesLength& length)
{
    const qint64 bytes = QFileInfo(m_jobs.at(m_video).video).size();
    const std::chrono::milliseconds reading(bytes / slowestBytesPerMs);
    const auto limit = m_options.positionTimeout;
    m_deadline->start(limit.count() > 0 ? limit + reading : limit);
    length.frameTimesMs = m_reader.readFrameTimes(m_isCancelledOrLate);
    m_overdue = m_deadline->hasPassed() ? mostOverdue : m_overdue;
}

void SeriesLane::beginPosition()
{
    m_deadline->start(m_options.positionTimeout);
}

/// Reports a timeout as a failure, not as a cancellation. The deadline is then cleared until the
/// next position begins, because the decoder's threads may be ahead.
FrameResult SeriesLane::inTime(FrameResult result)
{
    m_deadline->start(std::chrono::milliseconds(0));
    if (result.answer != FrameAnswer::Cancelled || m_isCancelled()) {
        return result;
    }
    ++m_overdue;
    m_startsAnew = true;
    return {FrameAnswer::Failed, {}, overdueText()};
}

QString SeriesLane::overdueText() const
{
    const auto seconds = static_cast<double>(m_options.positionTimeout.count()) / 1000.0;
    return QCoreApplication::translate("series", "Given up after %1 seconds.").arg(seconds);
}

bool SeriesLane::isGivenUp() const
{
    return m_overdue >= mostOverdue;
}

void SeriesLane::walk(const Task& task)
{
    QString error;
    if (open(task.video, error)) {
        const qint64 pictureBytes = m_reader.pictureBytes();
        if (enter(task, pictureBytes, error)) {
            error = walkStretch(task);
            m_board.leave(pictureBytes);
        }
    }
    m_board.finished(task.video, task.stretch, error);
}

/// Waits until there is memory for pictures of that size, without those that the decoder keeps.
/// False where that was in vain.
bool SeriesLane::enter(const Task& task, qint64 pictureBytes, QString& error)
{
    if (m_board.enter(task.video, task.stretch, pictureBytes)) {
        return true;
    }
    m_video = -1;
    m_second.reset();
    m_reader.close();
    if (!m_board.waitToEnter(task.video, task.stretch, pictureBytes)) {
        return false;
    }
    const bool isOpen = open(task.video, error);
    if (!isOpen) {
        m_board.leave(pictureBytes);
    }
    return isOpen;
}

QString SeriesLane::walkStretch(const Task& task)
{
    try {
        return walkAll(task);
    } catch (const std::bad_alloc&) {
        return noMemoryText();
    }
}

QString SeriesLane::walkAll(const Task& task)
{
    beginPosition();
    m_reader.setThreads(task.threads);
    m_knowsKeyFrames = !m_board.plan(task.video).keyFramesMs.isEmpty();
    m_lastSeconds.reset();
    switch (m_jobs.at(task.video).positions.kind) {
    case FramePositions::Kind::KeyFrames:
        return walkKeyFrames(task);
    case FramePositions::Kind::Scenes:
        return walkScenes(task);
    default:
        walkTargets(task);
        return {};
    }
}

void SeriesLane::walkTargets(const Task& task)
{
    begin(task);
    while (const std::optional<int> index = m_board.take(task.video, task.stretch)) {
        if (!walkTarget(task, *index)) {
            return;
        }
    }
}

/// Seeks to the key frame before the first target. The frames between it and the target are decoded
/// anyway, so that targets there cost nothing.
void SeriesLane::begin(const Task& task)
{
    const SeriesPlan& plan = m_board.plan(task.video);
    const int first = m_board.stretch(task.video, task.stretch).begin;
    if (first >= plan.targets.size()) {
        return;
    }
    const qint64 ms = plan.targets.at(first).ms;
    m_reader.seek(ms);
    if (m_reader.land(m_isCancelledOrLate) != FrameAnswer::Frame || !m_reader.landing()) {
        return;
    }
    const qint64 landing = toMilliseconds(*m_reader.landing());
    if (plan.keyFrameBefore(ms) - landing > indexErrorMs) {
        m_knowsKeyFrames = false;
    }
    m_board.extendBack(task.video, task.stretch, landing);
}

/// Returns false once cancelled.
bool SeriesLane::walkTarget(const Task& task, int index)
{
    const SeriesTarget target = m_board.plan(task.video).targets.at(index);
    m_reader.setKeyFrameAtOnce(index + 1 == m_board.stretch(task.video, task.stretch).end);
    Delivery delivery = deliveryFor(task);
    delivery.index = index;
    if (!target.isLast) {
        delivery.picture.askedMs = target.ms;
    }
    delivery.picture.frame = target.frame;
    if (isGivenUp()) {
        return deliver(task, std::move(delivery), {FrameAnswer::Failed, {}, overdueText()});
    }
    beginPosition();
    return deliver(task, std::move(delivery), inTime(find(target)));
}

FrameResult SeriesLane::find(const SeriesTarget& target)
{
    QtAV::FrameReader::Search search;
    search.ms = target.ms;
    search.completeFrom = target.ms;
    const qint64 ms = target.ms;
    if (target.isLast) {
        search.isReached = [](const QtAV::VideoFrame&) { return false; };
    } else {
        search.isReached = [ms](const QtAV::VideoFrame& frame) {
            return toMilliseconds(frame.timestamp()) >= ms;
        };
    }
    // After a timeout, pictures that were not begun are missing.
    if (std::exchange(m_startsAnew, false) || !m_reader.canGoOn()) {
        return m_reader.find(search, m_isCancelledOrLate);
    }
    approach(ms);
    return m_reader.findOn(search, m_isCancelledOrLate);
}

/// Restarts at a key frame if one lies between the previous frame and the position.
void SeriesLane::approach(qint64 ms)
{
    if (!m_reader.last()) {
        return;
    }
    const qint64 lastMs = toMilliseconds(*m_reader.last());
    if (wantsToStartAnew(ms, lastMs)) {
        m_reader.seek(ms);
    } else if (!m_knowsKeyFrames && ms - lastMs > worthStartingMs) {
        // The search that follows reports what could not be read.
        static_cast<void>(m_reader.readAhead(ms, m_isCancelledOrLate));
    }
}

bool SeriesLane::wantsToStartAnew(qint64 ms, qint64 lastMs) const
{
    if (!m_knowsKeyFrames) {
        const qint64 groupMs =
            std::min(m_reader.longestGroupMs().value_or(longestReadAheadMs), longestReadAheadMs);
        const qint64 readAheadMs = std::min(2 * groupMs + searchCostMs, longestReadAheadMs);
        return ms - lastMs > readAheadMs;
    }
    return m_board.plan(m_video).keyFrameBefore(ms) - lastMs > worthStartingMs;
}

SeriesBoard::Delivery SeriesLane::deliveryFor(const Task& task) const
{
    Delivery delivery;
    delivery.picture.video = task.video;
    return delivery;
}

/// Returns false once cancelled.
bool SeriesLane::deliver(const Task& task, Delivery delivery, const FrameResult& found)
{
    if (found.answer == FrameAnswer::Cancelled) {
        return false;
    }
    SeriesPicture& picture = delivery.picture;
    if (found.answer == FrameAnswer::Frame) {
        delivery.seconds = found.frame.timestamp();
        picture.baseLayer = found.frame.baseLayer();
        if (std::exchange(m_lastSeconds, delivery.seconds) == delivery.seconds) {
            return true;
        }
        const QVector<qint64> times = m_board.plan(task.video).frameTimesMs;
        picture.timeMs = toMilliseconds(found.frame.timestamp());
        const auto time = std::lower_bound(times.cbegin(), times.cend(), *picture.timeMs);
        if (time != times.cend() && *time == *picture.timeMs) {
            picture.frame = time - times.cbegin();
        }
        series::makePicture(
            picture, m_jobs.at(task.video), found.frame,
            m_source.at(*delivery.seconds, found.frame.displaySize(), picture.frame));
    } else {
        picture.error =
            found.answer == FrameAnswer::Failed
                ? found.error
                : QCoreApplication::translate("series", "There is no picture at this position.");
    }
    return m_board.deliver(task.video, task.stretch, std::move(delivery));
}
