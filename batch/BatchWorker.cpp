#include "batch/BatchWorker.h"

#include "batch/BatchWorkerConfig.h"
#include "batch/FreePaths.h"
#include "batch/SamplingPlan.h"
#include "batch/SeriesSaver.h"
#include "imaging/FilePublisher.h"
#include "imaging/Rendering.h"
#include "profiles/FileNameProfile.h"
#include "video/FrameGrabber.h"
#include "video/ReadingLimits.h"

#include <QCoreApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QSettings>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <future>
#include <utility>

namespace {

/// Shorter files are not treated as videos.
constexpr qint64 shortestVideo = 500;

constexpr int ticksPerFrame = 2;
/// The fraction of the progress assigned to opening the video.
constexpr float openingProgress = 0.01F;
constexpr float samplingProgress = 0.99F;

/// Gives the worker's own thread time to make and save an image before the next frame arrives.
constexpr unsigned long pauseMilliseconds = 100;

/// Maximum number of frames that wait for their images to be made. Such a frame takes as much
/// memory as its pixels.
constexpr int mostWaitingFrames = 4;

/// How long signals of a series may wait if their receiving thread runs the job.
constexpr std::chrono::milliseconds newsWait{10};

FramePositions listOf(const QVector<qint64>& milliseconds)
{
    FramePositions positions;
    positions.kind = FramePositions::Kind::List;
    for (const qint64 ms : milliseconds) {
        positions.list.push_back({FramePosition::Kind::Milliseconds, static_cast<double>(ms)});
    }
    return positions;
}

/// The positions of a job with exact frames: those of the plan, except that a single image from the
/// middle is taken from the middle of the stretch between the skips.
FramePositions positionsOf(const BatchWorkerConfig& config, const SamplingPlan& plan,
                           qint64 duration)
{
    FramePositions positions;
    positions.kind = FramePositions::Kind::List;
    positions.front.value = static_cast<double>(config.skipFront());
    positions.back.value = static_cast<double>(config.skipBack());
    switch (plan.intervalType) {
    case BatchWorkerConfig::EveryMilliseconds:
        positions.kind = FramePositions::Kind::Every;
        positions.everyMs = config.intervalMilliseconds();
        return positions;
    case BatchWorkerConfig::SpreadImages:
        positions.kind = FramePositions::Kind::Spread;
        positions.count = plan.images;
        return positions;
    default:
        break;
    }
    if (plan.intervalType == BatchWorkerConfig::SingleShot) {
        const bool isMiddle = config.intervalSingleShot() == BatchWorkerConfig::Middle;
        const qint64 ms = isMiddle ? (config.skipFront() + plan.end) / 2 : plan.start;
        positions.list.push_back({FramePosition::Kind::Milliseconds,
                                  static_cast<double>(std::clamp<qint64>(ms, 0, duration))});
    }
    return positions;
}

} // namespace

/// The profiles of a job with exact frames, as values.
struct BatchWorker::Series
{
    ImageRecipe recipe;
    OutputNaming naming;
    SeriesOptions resources;

    static SeriesSaver::Listener listenerOf(BatchWorker& worker);
};

BatchWorker::BatchWorker(QObject* parent)
    : Worker(parent)
    , m_frameGrabber(new FrameGrabber(this))
    , m_paths(std::make_unique<FreePaths>([this](int counter) {
        return m_config->outputDir().filePath(m_config->filenameForCounter(counter));
    }))
{
    registerMetaTypes();
    connect(m_frameGrabber, &FrameGrabber::frameExtracted, this, &BatchWorker::passOn,
            Qt::DirectConnection);
    connect(m_frameGrabber, &FrameGrabber::error, this, &BatchWorker::extractorError);
    const auto noteFailure = [this] { noteMissed(m_frameGrabber->getPosition()); };
    connect(m_frameGrabber, &FrameGrabber::error, this, noteFailure, Qt::DirectConnection);
}

BatchWorker::~BatchWorker()
{
    // The grabber outlives this part of the worker and must not call back into it.
    m_frameGrabber->disconnect(this);
}

void BatchWorker::registerMetaTypes()
{
    qRegisterMetaType<BatchWorker::BatchStatusMessageType>("BatchWorker::BatchStatusMessageType");
    qRegisterMetaType<QtAV::VideoFrame>("QtAV::VideoFrame");
}

void BatchWorker::prepare()
{
    const ImageProfile* const profile = m_config != nullptr ? m_config->imageProfile() : nullptr;
    if (profile == nullptr) {
        return;
    }
    const ReadingLimits limits = ReadingLimits::of(QSettings());
    m_frameGrabber->setPictureMemory(limits.pictureBytes);
    m_frameGrabber->setPositionTimeout(limits.positionTimeout);
    if (!m_config->exactFrames()) {
        m_frameGrabber->setDeinterlacing(QtAV::deinterlacingNamed(profile->deinterlacing()));
        return;
    }
    SeriesOptions resources;
    resources.pictureBytes = limits.pictureBytes;
    resources.positionTimeout = limits.positionTimeout;
    m_series = std::make_unique<const Series>(
        Series{recipes::of(*profile), m_config->filenameProfile()->naming(), resources});
}

void BatchWorker::loadFile()
{
    m_frameGrabber->setSource(m_config->source());
}

void BatchWorker::run()
{
    qDebug("BatchWorker::run");
    if (QThread::currentThread() == thread()) {
        prepare();
    }
    FilePublisher::sweep(m_config->outputDir().absolutePath());
    runInternal();
    waitForAnswer();
    m_frameGrabber->disconnect();
    m_frameGrabber->abort();
}

void BatchWorker::setProgress(float progress)
{
    if (isInterruptionRequested()) {
        return;
    }
    m_progress = progress;
    Q_EMIT progressUpdate(this, progress);
}

void BatchWorker::runInternal()
{
    qDebug("Before progress");
    setProgress(0.0F);
    qDebug("Worker loading file");
    loadFile();
    setProgress(openingProgress);
    if (isInterruptionRequested()) {
        return;
    }
    const qint64 duration = m_frameGrabber->getDuration();
    if (duration < shortestVideo) {
        // The positions in this video are unknown.
        const std::lock_guard<std::mutex> lock(m_missedMutex);
        m_missed.reset();
        // The file name is not part of the message, because receivers know the worker.
        Q_EMIT statusUpdate(this, tr("Could not open file"), Error);
        return;
    }
    const QtAV::MediaFacts& facts = m_frameGrabber->facts();
    m_source = std::make_unique<const PictureSource>(PictureSource::of(
        m_config->source(), facts.tags, facts.tickNumerator, facts.tickDenominator));
    const SamplingPlan plan = SamplingPlan::make(*m_config, duration);
    qDebug("skipAmount: %lld", plan.step);
    m_frameCounter = 1;
    m_hasAnnouncedBaseLayer = false;
    m_stepsTaken = 0;
    m_stepCount = qint64(plan.expectedImages) * ticksPerFrame;
    if (isInterruptionRequested()) {
        return;
    }
    if (m_config->exactFrames()) {
        takeSeries(plan, duration);
    } else if (m_positions) {
        takeListedFrames();
    } else {
        takePlannedFrames(plan);
    }
    tell([this] { Q_EMIT jobDone(this); });
}

void BatchWorker::noteMissed(qint64 position)
{
    const std::lock_guard<std::mutex> lock(m_missedMutex);
    if (!m_missed) {
        m_missed.emplace();
    }
    m_missed->append(position);
}

std::optional<QVector<qint64>> BatchWorker::missedPositions() const
{
    const std::lock_guard<std::mutex> lock(m_missedMutex);
    std::optional<QVector<qint64>> missed = m_missed;
    if (missed) {
        std::sort(missed->begin(), missed->end());
        missed->erase(std::unique(missed->begin(), missed->end()), missed->end());
    }
    return missed;
}

void BatchWorker::takeSeries(const SamplingPlan& plan, qint64 duration)
{
    // The engine opens the video itself.
    m_frameGrabber->safeReleaseResource();
    SeriesJob job;
    job.video = m_config->source();
    job.positions = m_positions ? listOf(*m_positions) : positionsOf(*m_config, plan, duration);
    job.recipe = m_series->recipe;
    job.type = m_series->naming.type;
    job.keepsImage = true;
    const auto pathOf = [this, folder = m_config->outputDir(),
                         video = m_config->sourceFileName()](int counter) {
        return folder.filePath(m_series->naming.fileName(video, counter));
    };
    SeriesSaver saver(FreePaths(pathOf), plan.intervalType == BatchWorkerConfig::SingleShot,
                      Series::listenerOf(*this));
    const auto isCancelled = [this] { return isInterruptionRequested(); };
    runSeries(
        [&] { static_cast<void>(series::run({job}, saver, isCancelled, m_series->resources)); });
    const QVector<qint64> missed = saver.missed();
    for (const qint64 position : missed) {
        noteMissed(position);
    }
}

/// The engine's threads report in order: progress is emitted there, everything else in the worker's
/// own thread.
SeriesSaver::Listener BatchWorker::Series::listenerOf(BatchWorker& worker)
{
    SeriesSaver::Listener listener;
    listener.expecting = [&worker](int pictures) {
        worker.m_stepCount = std::max<qint64>(1, qint64(pictures) * ticksPerFrame);
    };
    listener.beforePicture = [&worker] {
        worker.waitForImages();
        qDebug("Frame");
        worker.tickProgress();
        worker.tickProgress();
        ++worker.m_frameCounter;
    };
    listener.showing = [&worker](QtAV::BaseLayer layer) {
        if (layer != QtAV::BaseLayer::Whole) {
            worker.tell([&worker, layer] { worker.announceBaseLayer(layer); });
        }
    };
    listener.saving = [&worker](const QString& path) {
        worker.tell([&worker, path] { worker.announceSaving(path); });
    };
    listener.notSaved = [&worker](const WriteFailure& failure) {
        worker.tell([&worker, failure] { worker.reportUnsavedImage(failure); });
    };
    listener.lacksRoom = [&worker](const WriteFailure& failure) {
        return worker.waitForRoom(failure);
    };
    listener.failed = [&worker](const QString& message) {
        worker.tell([&worker, message] { worker.extractorError(message); });
    };
    listener.saved = [&worker](const QImage& image) {
        ++worker.m_savedImages;
        ++worker.m_waitingFrames;
        worker.tell([&worker, image] { worker.showSaved(image); });
    };
    return listener;
}

/// If the worker's own thread runs the job, it processes the reports meanwhile.
void BatchWorker::runSeries(const std::function<void()>& work)
{
    if (QThread::currentThread() != thread()) {
        work();
        return;
    }
    const std::future<void> ended = std::async(std::launch::async, work);
    while (ended.wait_for(newsWait) != std::future_status::ready) {
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
}

/// Queues a report for the worker's own thread, in order.
void BatchWorker::tell(std::function<void()> news)
{
    m_handover.post([this, news = std::move(news)] {
        if (!isInterruptionRequested()) {
            news();
        }
    });
}

void BatchWorker::showSaved(QImage image)
{
    --m_waitingFrames;
    Q_EMIT imageReady(this, image);
}

/// Takes frames in the order of the positions, until there are none left.
void BatchWorker::takeFrames(const std::function<std::optional<qint64>()>& nextPosition)
{
    while (const std::optional<qint64> position = nextPosition()) {
        if (!takeFrame(*position)) {
            continue;
        }
        QThread::msleep(pauseMilliseconds);
        QCoreApplication::processEvents();
        waitForImages();
    }
}

void BatchWorker::takePlannedFrames(const SamplingPlan& plan)
{
    qint64 position = plan.start;
    int number = 1;
    takeFrames([&]() -> std::optional<qint64> {
        if (!plan.takes(position, number)) {
            return std::nullopt;
        }
        ++number;
        return std::exchange(position, position + plan.step);
    });
}

void BatchWorker::takeListedFrames()
{
    m_stepCount = std::max<qint64>(1, qint64(m_positions->size()) * ticksPerFrame);
    int place = 0;
    takeFrames([&]() -> std::optional<qint64> {
        const bool isOver = place == m_positions->size();
        return isOver ? std::nullopt : std::optional<qint64>(m_positions->at(place++));
    });
}

/// Keeps frames from piling up if images take longer than frames.
void BatchWorker::waitForImages() const
{
    QElapsedTimer waited;
    waited.start();
    while (m_waitingFrames >= mostWaitingFrames && !isInterruptionRequested() &&
           (m_isAsking || !waited.hasExpired(longestWaitMilliseconds))) {
        QThread::msleep(lookMilliseconds);
    }
}

/// Requests one frame; returns false once interrupted.
bool BatchWorker::takeFrame(qint64 position)
{
    if (isInterruptionRequested()) {
        noteMissed(position);
        return false;
    }
    qDebug("Frame");
    m_frameGrabber->setPosition(position);
    tickProgress();
    if (isInterruptionRequested()) {
        noteMissed(position);
        return false;
    }
    m_frameGrabber->extract();
    tickProgress();
    ++m_frameCounter;
    return !isInterruptionRequested();
}

void BatchWorker::tickProgress()
{
    ++m_stepsTaken;
    const float taken = static_cast<float>(m_stepsTaken) / static_cast<float>(m_stepCount);
    setProgress(taken * samplingProgress + openingProgress);
    qDebug("Steps taken: %lld stepCount: %lld", m_stepsTaken, m_stepCount);
}

/// Passes a frame to the worker's own thread, with its requested position.
void BatchWorker::passOn(const QtAV::VideoFrame& frame)
{
    ++m_waitingFrames;
    const qint64 position = m_frameGrabber->getPosition();
    if (QThread::currentThread() == thread()) {
        frameExtracted(frame, position);
    } else {
        m_handover.post([this, frame, position] { frameExtracted(frame, position); });
    }
}

/// Reports it once per job, unless the whole range is shown.
void BatchWorker::announceBaseLayer(QtAV::BaseLayer layer)
{
    if (layer != QtAV::BaseLayer::Whole && !std::exchange(m_hasAnnouncedBaseLayer, true)) {
        Q_EMIT statusUpdate(this, QtAV::textOf(layer), Normal);
    }
}

void BatchWorker::extractorError(QString message)
{
    if (!isInterruptionRequested()) {
        Q_EMIT statusUpdate(this, tr("Frame extraction error %1").arg(message), Error);
    }
}
