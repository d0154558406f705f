#pragma once

#include "batch/Worker.h"

#include <QtAV/VideoFrame.h>

#include <QImage>
#include <QMetaType>
#include <QString>
#include <QVector>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

class BatchWorkerConfig;
class FrameGrabber;
class FreePaths;
struct ImageRecipe;
struct PictureSource;
struct SamplingPlan;
struct WriteFailure;

/// Runs one batch job: takes the frames, makes the images and saves them.
///
/// A job with exact frames runs through the engine for series, on all cores: nothing pauses, no
/// frame is taken twice, and images are made and saved where they are decoded. It has the same
/// signals in the same order.
///
/// Threads: the worker belongs to the thread that created it, and run() may be called in that
/// thread or another. Frames are taken where run() runs; images are made and saved in the worker's
/// own thread, each while run() pauses after it; run() takes no more frames while too many wait for
/// that. progressUpdate() and the status that a video
/// cannot be opened come from the thread of run(), all other signals from the worker's own. In one
/// thread everything happens in order before run() returns.
class BatchWorker : public Worker
{
    Q_OBJECT

public:
    enum BatchStatusMessageType {
        Normal = 0, ///< what is being done
        Error = 1,  ///< something failed; the job goes on
    };

    explicit BatchWorker(QObject* parent = nullptr);
    ~BatchWorker() override;

    /// Makes the types of the signals known to queued connections. Every worker does so; who
    /// connects by name before there is one calls it.
    static void registerMetaTypes();

    /// The job, needed by run(). Not owned; it must outlive the run and the images still to be
    /// saved after it.
    BatchWorkerConfig* config() const { return m_config; }
    void setConfig(BatchWorkerConfig* config) { m_config = config; }

    /// Asked where there is no room for an image, in the worker's own thread, while the job waits:
    /// true to try again. It may show a dialog. Without one, as at first, the image is an error
    /// like any other. Before run().
    using RoomQuestion = std::function<bool(const WriteFailure& failure)>;
    void setRoomQuestion(RoomQuestion question) { m_roomQuestion = std::move(question); }

    /// Resolves the profiles of a job with exact frames, which may not change from then on. In the
    /// worker's own thread, before run(); run() does so itself when it is called there.
    void prepare();

    /// Tells the frame grabber which video the job is about; nothing is opened yet.
    void loadFile();

    /// Takes these positions only, in milliseconds and rising order, in place of those that the job
    /// says. Before run().
    void setPositions(const QVector<qint64>& positions) { m_positions = positions; }

    /// The positions, in milliseconds and rising order, of which no image has been saved: those
    /// that failed and, after an interruption, those that were not reached. Nothing where the
    /// worker cannot tell, as for a video that it could not open. When run() has ended and what it
    /// left to the worker's own thread is done. From any thread.
    [[nodiscard]] std::optional<QVector<qint64>> missedPositions() const;

    /// How many images of the job have been saved so far, told or not: after an interruption the
    /// signals stop before the last ones are told. From any thread.
    int savedImages() const { return m_savedImages; }

    /// Runs the job to its end or to the next step after an interruption. Once for each worker.
    void run() override;

    /// Reports how much of the job is done, from 0 to 1; nothing once interrupted.
    void setProgress(float progress);

Q_SIGNALS:
    /// An image has been saved. It is the receiver's only until the signal returns.
    void imageReady(BatchWorker* worker, QImage& image);
    /// Something to tell the user.
    void statusUpdate(BatchWorker* worker, QString message,
                      BatchWorker::BatchStatusMessageType type = BatchWorker::Normal);
    /// How much of the job is done, from 0 to 1. The last one may fall short of 1, since the
    /// number of images is an estimate.
    void progressUpdate(BatchWorker* worker, float progress);
    /// The job is done to its end, and missedPositions() is known: the last signal.
    void jobDone(BatchWorker* worker);

private Q_SLOTS:
    void frameExtracted(QtAV::VideoFrame frame, qint64 position);
    void extractorError(QString message);
    void tellNews();

private:
    /// How often to look whether fewer images wait or an answer has come, and how long to wait for
    /// images: should the worker's thread make none, the job goes on all the same.
    static constexpr unsigned long lookMilliseconds = 10;
    static constexpr qint64 longestWaitMilliseconds = 5000;

    void runInternal();
    void takeFrames(const std::function<std::optional<qint64>()>& nextPosition);
    void takePlannedFrames(const SamplingPlan& plan);
    void takeListedFrames();
    void noteMissed(qint64 position);
    void takeSeries(const SamplingPlan& plan, qint64 duration);
    void runSeries(const std::function<void()>& work);
    void tell(std::function<void()> news);
    void showSaved(QImage image);
    [[nodiscard]] bool takeFrame(qint64 position);
    void tickProgress();
    void waitForImages() const;
    void passOn(const QtAV::VideoFrame& frame);

    void saveFrame(const QtAV::VideoFrame& frame, qint64 position);
    void announceSaving(const QString& path);
    void announceBaseLayer(QtAV::BaseLayer layer);
    [[nodiscard]] bool saveImage(QString path, const QImage& image, const ImageRecipe& recipe,
                                 const PictureSource& source);
    void reportUnsavedImage(const WriteFailure& failure);
    void takePostponed();
    void waitForAnswer() const;
    [[nodiscard]] bool askForRoom(const WriteFailure& failure);
    [[nodiscard]] bool waitForRoom(const WriteFailure& failure);
    void reportUnmadeImage(const QString& path, qint64 position, const QString& reason);

    /// Frames whose images are still to be made. Counted up in the thread of run(), down in the
    /// worker's own.
    std::atomic<int> m_waitingFrames{0};
    std::atomic<int> m_savedImages{0};
    RoomQuestion m_roomQuestion;
    std::atomic<bool> m_isAsking{false}; ///< the question is being answered
    /// Frames that came meanwhile, with their positions.
    std::deque<std::pair<QtAV::VideoFrame, qint64>> m_postponed;
    std::optional<QVector<qint64>> m_positions; ///< in place of the job's
    mutable std::mutex m_missedMutex;
    /// Nothing until they can be told. Guarded by m_missedMutex.
    std::optional<QVector<qint64>> m_missed;
    BatchWorkerConfig* m_config = nullptr;
    FrameGrabber* m_frameGrabber;
    std::unique_ptr<const PictureSource> m_source; ///< the video; null until run() has opened it
    struct Series;
    std::unique_ptr<const Series> m_series; ///< of a job with exact frames, once prepared
    std::mutex m_newsMutex;
    /// What is to be told in the worker's own thread, in order. Guarded by m_newsMutex.
    std::deque<std::function<void()>> m_news;
    /// Number of the frame to request next.
    int m_frameCounter = 0;
    bool m_hasAnnouncedBaseLayer = false;
    /// Of the images of a job without exact frames. Profiles that change meanwhile count from the
    /// next image on.
    std::unique_ptr<FreePaths> m_paths;
    float m_progress = 0.0F;
    /// Two for each frame: for finding and for taking it.
    qint64 m_stepsTaken = 0;
    qint64 m_stepCount = 0;
};

Q_DECLARE_METATYPE(BatchWorker::BatchStatusMessageType)
