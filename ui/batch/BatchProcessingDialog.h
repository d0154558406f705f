#pragma once

#include "batch/BatchReport.h"
#include "batch/BatchWorker.h"

#include <QDialog>
#include <QHash>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

class Announcer;
class BatchThread;
class BatchWorkerConfig;
class QCloseEvent;
class QImage;

namespace Ui {
class BatchProcessingDialog;
}

/// Runs a batch and shows its progress: the video, the last image, progress bars, and a log of
/// failures with one line per cause. Errors of a job never stop the batch. At the end it reports
/// the number of images and of failures.
///
/// Add the jobs, then call exec(). While jobs run, any attempt to close the dialog asks whether to
/// cancel the batch. User-interface thread only.
class BatchProcessingDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BatchProcessingDialog(QWidget* parent = nullptr);
    /// Stops a running batch, and waits for its next step.
    ~BatchProcessingDialog() override;

    /// Adds a job; call it before exec(). The job is not owned and must outlive the dialog.
    void addWorkerWithConfig(BatchWorkerConfig* config);
    /// Like addWorkerWithConfig(), for these positions only, in milliseconds and rising order.
    void addWorkerForPositions(BatchWorkerConfig* config, const QVector<qint64>& positions);

    /// Shows the dialog, runs the jobs in the order in which they were added, and returns when the
    /// user has closed the dialog. Call it once per dialog.
    int exec() override;

    /// Appends a line to the log, preceded by the path of the worker's video unless the worker is
    /// null.
    void logMessage(const QString& message, BatchWorker* worker);

    /// The results of the batch so far.
    const BatchReport& report() const { return m_report; }

    /// The positions of a job, in milliseconds, without an image; nothing if unknown. Valid when
    /// exec() has returned.
    [[nodiscard]] std::optional<QVector<qint64>> missedPositions(BatchWorkerConfig* job) const;

    /// Asks the user whether to cancel the batch.
    [[nodiscard]] bool confirmAbort();

    /// Reports that there is no room for an image and asks whether to try again (true) or to cancel
    /// the batch (false).
    [[nodiscard]] bool askForRoom(const WriteFailure& failure);

    /// Cancels the batch, which ends after the running job's next step.
    void abort();

public Q_SLOTS:
    /// Escape is handled like closing the dialog.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private Q_SLOTS:
    void doneButtonClicked();
    void workerStatusUpdate(BatchWorker* worker, QString text,
                            BatchWorker::BatchStatusMessageType type);
    void workerImageReady(BatchWorker* worker, QImage& image);
    void threadProgressUpdate(float overallProgress, float currentProgress);
    void threadDone();

private:
    [[nodiscard]] BatchWorker* addWorker(BatchWorkerConfig* config);
    void noteMissed(const BatchWorker& worker);
    void showCurrentVideo(const BatchWorker& worker);
    void updateDoneButton();
    void logFailure(BatchWorkerConfig* job, const QString& message);
    void replaceLogLine(int block, const QString& text);
    [[nodiscard]] int savedImages() const;

    const std::unique_ptr<Ui::BatchProcessingDialog> m_ui;
    BatchThread* const m_thread;
    Announcer* const m_announcer;
    BatchReport m_report;
    /// The blocks of the log for the causes in m_report.
    QList<int> m_causeBlocks;
    /// Number of images by worker. The workers may no longer exist.
    QHash<const BatchWorker*, int> m_images;
    QHash<BatchWorkerConfig*, QVector<qint64>> m_missed; ///< for jobs of which it is known
};
