#include "ui/batch/BatchProcessingDialog.h"

#include "batch/BatchThread.h"
#include "batch/BatchWorkerConfig.h"
#include "imaging/WriteFailure.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/PlainText.h"
#include "ui_BatchProcessingDialog.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>

namespace {

/// Progress from 0 to 1 in whole per cent; 100 only if everything is done.
int percent(float progress)
{
    return static_cast<int>(progress * 100.0F);
}

} // namespace

BatchProcessingDialog::BatchProcessingDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::BatchProcessingDialog>())
    , m_thread(new BatchThread(this))
    , m_announcer(new Announcer(this))
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    connect(m_ui->doneButton, &QPushButton::clicked, this,
            &BatchProcessingDialog::doneButtonClicked);
    connect(m_thread, &BatchThread::progressUpdate, this,
            &BatchProcessingDialog::threadProgressUpdate);
    connect(m_thread, &BatchThread::threadDone, this, &BatchProcessingDialog::threadDone);
    m_ui->doneButton->setFocus();
    updateDoneButton();
}

BatchProcessingDialog::~BatchProcessingDialog() = default;

void BatchProcessingDialog::addWorkerWithConfig(BatchWorkerConfig* config)
{
    m_thread->addWorker(addWorker(config));
}

void BatchProcessingDialog::addWorkerForPositions(BatchWorkerConfig* config,
                                                  const QVector<qint64>& positions)
{
    BatchWorker* const worker = addWorker(config);
    worker->setPositions(positions);
    m_thread->addWorker(worker);
}

BatchWorker* BatchProcessingDialog::addWorker(BatchWorkerConfig* config)
{
    auto* const worker = new BatchWorker(this);
    worker->setConfig(config);
    worker->setRoomQuestion([this](const WriteFailure& failure) { return askForRoom(failure); });
    connect(worker, &BatchWorker::statusUpdate, this, &BatchProcessingDialog::workerStatusUpdate);
    connect(worker, &BatchWorker::imageReady, this, &BatchProcessingDialog::workerImageReady);
    // A job reports its activity only with its first frame, which may take a while.
    connect(worker, &BatchWorker::progressUpdate, this,
            [this](BatchWorker* running) { showCurrentVideo(*running); });
    connect(worker, &BatchWorker::jobDone, this, [this](BatchWorker* done) { noteMissed(*done); });
    return worker;
}

void BatchProcessingDialog::noteMissed(const BatchWorker& worker)
{
    const std::optional<QVector<qint64>> missed = worker.missedPositions();
    if (missed) {
        m_missed.insert(worker.config(), *missed);
    }
}

std::optional<QVector<qint64>> BatchProcessingDialog::missedPositions(BatchWorkerConfig* job) const
{
    const auto found = m_missed.constFind(job);
    return found == m_missed.cend() ? std::nullopt : std::optional<QVector<qint64>>(*found);
}

int BatchProcessingDialog::exec()
{
    m_ui->currentVideoLabel->clear();
    m_ui->statusLabel->clear();
    show();
    m_thread->start(QThread::InheritPriority);
    return QDialog::exec();
}

void BatchProcessingDialog::logMessage(const QString& message, BatchWorker* worker)
{
    const QString source =
        worker == nullptr ? QString() : worker->config()->source() + QStringLiteral(": ");
    m_ui->logTextEdit->moveCursor(QTextCursor::End);
    m_ui->logTextEdit->insertPlainText(source + message + QLatin1Char('\n'));
}

bool BatchProcessingDialog::confirmAbort()
{
    return QMessageBox::question(this, tr("Cancel Batch Processing"),
                                 tr("Are you sure you want to cancel batch processing?\n"),
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::Yes) == QMessageBox::Yes;
}

bool BatchProcessingDialog::askForRoom(const WriteFailure& failure)
{
    QMessageBox box(QMessageBox::Warning, tr("Images Cannot Be Saved"), asPlainText(failure.text()),
                    QMessageBox::NoButton, this);
    box.setInformativeText(
        tr("Free some space and try again, or stop. Images that are saved already are kept."));
    const QPushButton* const retry = box.addButton(tr("Try Again"), QMessageBox::AcceptRole);
    box.addButton(tr("Stop"), QMessageBox::RejectRole);
    box.exec();
    const bool triesAgain = box.clickedButton() == retry;
    if (!triesAgain) {
        abort();
    }
    return triesAgain;
}

void BatchProcessingDialog::abort()
{
    m_thread->requestInterruption();
    updateDoneButton();
}

void BatchProcessingDialog::reject()
{
    close();
}

void BatchProcessingDialog::closeEvent(QCloseEvent* event)
{
    if (m_thread->isFinished()) {
        event->accept();
        return;
    }
    event->ignore();
    if (!m_thread->isInterruptionRequested() && confirmAbort()) {
        abort();
    }
}

void BatchProcessingDialog::doneButtonClicked()
{
    close();
}

void BatchProcessingDialog::workerStatusUpdate(BatchWorker* worker, QString text,
                                               BatchWorker::BatchStatusMessageType type)
{
    showCurrentVideo(*worker);
    m_ui->statusLabel->setText(text);
    if (type == BatchWorker::Error) {
        logFailure(worker->config(), text);
    }
}

void BatchProcessingDialog::logFailure(BatchWorkerConfig* job, const QString& message)
{
    const BatchReport::Line line = m_report.addFailure(job, message);
    if (line.isNew) {
        logMessage(line.text, nullptr);
        // An empty block follows the line.
        m_causeBlocks.append(m_ui->logTextEdit->document()->blockCount() - 2);
    } else {
        replaceLogLine(m_causeBlocks.at(line.cause), line.text);
    }
}

void BatchProcessingDialog::replaceLogLine(int block, const QString& text)
{
    QTextCursor cursor(m_ui->logTextEdit->document()->findBlockByNumber(block));
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

void BatchProcessingDialog::workerImageReady(BatchWorker* worker, QImage& image)
{
    ++m_images[worker];
    m_ui->previewImageView->setImage(image);
}

void BatchProcessingDialog::threadProgressUpdate(float overallProgress, float currentProgress)
{
    m_ui->progressBarTotal->setValue(percent(overallProgress));
    m_ui->progressBarCurrent->setValue(percent(currentProgress));
}

void BatchProcessingDialog::threadDone()
{
    // The signal is the thread's last act but not yet its end; wait before the button disappears.
    m_thread->wait();
    updateDoneButton();
    // An interrupted worker has not reported its end, but still exists.
    const auto left = m_thread->findChildren<BatchWorker*>();
    for (const BatchWorker* const worker : left) {
        noteMissed(*worker);
    }
    const QString outcome = m_report.outcome(savedImages(), m_thread->isInterruptionRequested());
    logMessage(outcome, nullptr);
    m_ui->currentVideoLabel->clear();
    m_ui->statusLabel->setText(outcome);
    m_announcer->announce(outcome);
}

/// An interrupted worker has not reported all images, but still exists.
int BatchProcessingDialog::savedImages() const
{
    QHash<const BatchWorker*, int> images = m_images;
    const auto workers = m_thread->findChildren<BatchWorker*>();
    for (const BatchWorker* const worker : workers) {
        images[worker] = worker->savedImages();
    }
    int sum = 0;
    for (const int count : qAsConst(images)) {
        sum += count;
    }
    return sum;
}

void BatchProcessingDialog::showCurrentVideo(const BatchWorker& worker)
{
    m_ui->currentVideoLabel->setText(worker.config()->source());
}

void BatchProcessingDialog::updateDoneButton()
{
    const bool isFinished = m_thread->isFinished();
    const bool isStopping = !isFinished && m_thread->isInterruptionRequested();
    m_ui->doneButton->setText(isFinished   ? tr("Done")
                              : isStopping ? tr("Stopping\u2026")
                                           : tr("Cancel"));
    m_ui->doneButton->setEnabled(!isStopping);
    // Return must close a finished dialog, and not cancel a running batch.
    m_ui->doneButton->setDefault(isFinished);
}
