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

/// Runs a batch and shows how it goes: the video, the last image, the progress, and a log of what
/// went wrong, one line a cause. Errors of a job never stop the batch. At the end it says how many
/// images there are and how much failed.
///
/// Add the jobs, then exec(). While jobs run, the dialog closes for nobody: whoever tries to is
/// asked whether to cancel the batch. User-interface thread only.
class BatchProcessingDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BatchProcessingDialog(QWidget* parent = nullptr);
    /// Stops what still runs, and waits for its next step.
    ~BatchProcessingDialog() override;

    /// Adds a job, before exec(). The job is not owned and must outlive the dialog.
    void addWorkerWithConfig(BatchWorkerConfig* config);
    /// The same for these positions alone, in milliseconds and rising order.
    void addWorkerForPositions(BatchWorkerConfig* config, const QVector<qint64>& positions);

    /// Shows the dialog, runs the jobs in the order in which they were added, and returns when the
    /// user has closed the dialog. Once for each dialog.
    int exec() override;

    /// Appends a line to the log, headed by the path of the worker's video; null for none.
    void logMessage(const QString& message, BatchWorker* worker);

    /// What became of the batch so far.
    const BatchReport& report() const { return m_report; }

    /// The positions of a job, in milliseconds, of which there is no image; nothing where that is
    /// not known. When exec() has returned.
    [[nodiscard]] std::optional<QVector<qint64>> missedPositions(BatchWorkerConfig* job) const;

    /// Asks the user whether to cancel the batch.
    [[nodiscard]] bool confirmAbort();

    /// Tells that there is no room for an image and asks whether to try again, for which it gives
    /// true, or to cancel the batch.
    [[nodiscard]] bool askForRoom(const WriteFailure& failure);

    /// Cancels the batch, which ends after the running job's next step.
    void abort();

public Q_SLOTS:
    /// Escape, too, goes the way of closing.
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
    /// The blocks of the log that tell of the causes in m_report.
    QList<int> m_causeBlocks;
    /// Of the workers that have told of images. They may be gone.
    QHash<const BatchWorker*, int> m_images;
    QHash<BatchWorkerConfig*, QVector<qint64>> m_missed; ///< of the jobs of which it is known
};
