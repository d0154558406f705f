#pragma once

#include "batch/Worker.h"
#include "utils/CallQueue.h"

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
/// A job with exact frames uses the series engine on all cores: it does not pause, takes no frame
/// twice, and makes and saves images where they are decoded. It emits the same signals in the same
/// order.
///
/// Threads: the worker belongs to the thread that created it; run() may be called in that thread or
/// another. Frames are taken in the thread of run(). Images are made and saved in the worker's own
/// thread, while run() pauses after each frame and waits if too many are pending. progressUpdate(),
/// and the status that a video cannot be opened, are emitted in the thread of run(), all other
/// signals in the worker's own. If both are one thread, everything happens in order before run()
/// returns.
class BatchWorker : public Worker
{
    Q_OBJECT

public:
    enum BatchStatusMessageType {
        Normal = 0, ///< progress information
        Error = 1,  ///< something failed; the job goes on
    };

    explicit BatchWorker(QObject* parent = nullptr);
    ~BatchWorker() override;

    /// Registers the types of the signals for queued connections. Every worker does so; call it
    /// before connecting by name if no worker exists yet.
    static void registerMetaTypes();

    /// The job, required by run(). Not owned; it must outlive the run and the images that are saved
    /// after it.
    BatchWorkerConfig* config() const { return m_config; }
    void setConfig(BatchWorkerConfig* config) { m_config = config; }

    /// Called if there is no room for an image, in the worker's own thread, while the job waits;
    /// returns true to try again. It may show a dialog. Without it, the default, the image counts
    /// as an error like any other. Set it before run().
    using RoomQuestion = std::function<bool(const WriteFailure& failure)>;
    void setRoomQuestion(RoomQuestion question) { m_roomQuestion = std::move(question); }

    /// Resolves the profiles of a job with exact frames, which must not change from then on. Call
    /// it in the worker's own thread before run(); run() calls it itself in that thread.
    void prepare();

    /// Sets the frame grabber's video to that of the job; nothing is opened yet.
    void loadFile();

    /// Uses these positions, in milliseconds and rising order, instead of those of the job. Set
    /// them before run().
    void setPositions(const QVector<qint64>& positions) { m_positions = positions; }

    /// The positions, in milliseconds and rising order, without a saved image: those that failed
    /// and, after an interruption, those that were not reached. Nothing if the worker cannot tell,
    /// for example for a video that it could not open. Valid when run() has ended and its work in
    /// the worker's own thread is done. From any thread.
    [[nodiscard]] std::optional<QVector<qint64>> missedPositions() const;

    /// How many images of the job have been saved so far, whether reported or not: after an
    /// interruption the last ones are not reported. From any thread.
    int savedImages() const { return m_savedImages; }

    /// Runs the job to its end or to the next step after an interruption. Call it once per worker.
    void run() override;

    /// Reports the job's progress, 0 to 1. Does nothing once interrupted.
    void setProgress(float progress);

Q_SIGNALS:
    /// An image has been saved. The receiver may use it only until the signal returns.
    void imageReady(BatchWorker* worker, QImage& image);
    /// A message for the user.
    void statusUpdate(BatchWorker* worker, QString message,
                      BatchWorker::BatchStatusMessageType type = BatchWorker::Normal);
    /// The job's progress, 0 to 1. The last value may be below 1, since the number of images is an
    /// estimate.
    void progressUpdate(BatchWorker* worker, float progress);
    /// The job has ended, and missedPositions() is known: the last signal.
    void jobDone(BatchWorker* worker);

private Q_SLOTS:
    void frameExtracted(const QtAV::VideoFrame& frame, qint64 position);
    void extractorError(QString message);

private:
    /// Interval of checks for fewer waiting images or for an answer, and the maximum time of
    /// waiting for images: if the worker's thread makes none, the job continues.
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

    /// Frames whose images are still to be made. Incremented in the thread of run(), decremented in
    /// the worker's own.
    std::atomic<int> m_waitingFrames{0};
    std::atomic<int> m_savedImages{0};
    RoomQuestion m_roomQuestion;
    std::atomic<bool> m_isAsking{false}; ///< the question is being answered
    /// Frames that arrived meanwhile, with their positions.
    std::deque<std::pair<QtAV::VideoFrame, qint64>> m_postponed;
    std::optional<QVector<qint64>> m_positions; ///< in place of the job's
    mutable std::mutex m_missedMutex;
    /// Nothing while unknown. Guarded by m_missedMutex.
    std::optional<QVector<qint64>> m_missed;
    BatchWorkerConfig* m_config = nullptr;
    FrameGrabber* m_frameGrabber;
    std::unique_ptr<const PictureSource> m_source; ///< describes the video; null until run() has
                                                   ///< opened it
    struct Series;
    std::unique_ptr<const Series> m_series; ///< of a job with exact frames, once prepared
    CallQueue m_handover{this};             ///< frames and reports for the worker's own thread
    /// Number of the frame to request next.
    int m_frameCounter = 0;
    bool m_hasAnnouncedBaseLayer = false;
    /// Paths of the images of a job without exact frames. Changes to profiles take effect with the
    /// next image.
    std::unique_ptr<FreePaths> m_paths;
    float m_progress = 0.0F;
    /// Two steps per frame: finding and taking it.
    qint64 m_stepsTaken = 0;
    qint64 m_stepCount = 0;
};

Q_DECLARE_METATYPE(BatchWorker::BatchStatusMessageType)
