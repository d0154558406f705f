// Adding videos to batch mode: they are chosen or dropped, then read one after another.

#include "ui/batch/BatchModeDialog.h"

#include "batch/BatchModeListModel.h"
#include "batch/BatchWorkerConfig.h"
#include "batch/VideoInfoLoader.h"
#include "ui/widgets/SmartFileDialog.h"
#include "ui_BatchModeDialog.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QItemSelection>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

#include <algorithm>
#include <chrono>
#include <iterator>

namespace {

/// Delay before reading is shown: most videos are read at once, and nothing should flash up.
constexpr std::chrono::milliseconds longestUnseenLoading{300};

/// In average letters.
constexpr int progressBarWidth = 12;

/// The local paths among what is dragged: of files, folders and what is not there any more.
QStringList localPaths(const QMimeData& data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

QStringList filesAmong(const QStringList& paths)
{
    QStringList files;
    std::copy_if(paths.cbegin(), paths.cend(), std::back_inserter(files),
                 [](const QString& path) { return QFileInfo(path).isFile(); });
    return files;
}

/// Never a move, because the source program would then delete the files.
void acceptAsCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

void BatchModeDialog::setupLoading()
{
    QWidget& widget = *m_ui->loadingWidget;
    widget.hide();
    m_ui->loadingProgressBar->setMinimumWidth(progressBarWidth * fontMetrics().averageCharWidth());
    m_loadingDelay.setSingleShot(true);
    m_loadingDelay.setInterval(longestUnseenLoading);
    connect(&m_loadingDelay, &QTimer::timeout, &widget, &QWidget::show);
    connect(m_loader, &VideoInfoLoader::loaded, this, &BatchModeDialog::listJob);
    connect(m_loader, &VideoInfoLoader::finished, this, &BatchModeDialog::endLoading);
    connect(this, &QDialog::finished, this, &BatchModeDialog::endList);
}

void BatchModeDialog::on_loadVideoButton_clicked()
{
    SmartFileDialog dialog(this, QStringLiteral("openDialog"));
    dialog.setFiltersToVideo();
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (dialog.exec() == QDialog::Accepted) {
        addVideos(dialog.selectedFiles());
    }
}

void BatchModeDialog::loadVideos(const QStringList& files)
{
    addVideos(files);
}

bool BatchModeDialog::isLoading() const
{
    return m_loader->isLoading();
}

void BatchModeDialog::loadStretch(const QString& video, qint64 skipFront, qint64 skipBack)
{
    BatchWorkerConfig* job = jobOf(video);
    const bool isNew = job == nullptr;
    if (isNew) {
        job = newJob(video);
    }
    job->setSkipFront(skipFront);
    job->setSkipBack(skipBack);
    if (isNew) {
        read({job});
    } else {
        showJobsAnew();
    }
}

/// The first job of the video, listed or being read; null if there is none.
BatchWorkerConfig* BatchModeDialog::jobOf(const QString& video) const
{
    const QFileInfo wanted(video);
    const auto isOfVideo = [&wanted](const BatchWorkerConfig* job) {
        return QFileInfo(job->source()) == wanted;
    };
    const QList<BatchWorkerConfig*> jobs = m_model->getConfigs() + m_loader->waitingJobs();
    const auto found = std::find_if(jobs.cbegin(), jobs.cend(), isOfVideo);
    return found == jobs.cend() ? nullptr : *found;
}

BatchWorkerConfig* BatchModeDialog::newJob(const QString& video)
{
    auto* const config = new BatchWorkerConfig(this);
    // Default until the user has stored a choice.
    config->setExactFrames(true);
    config->loadFromLastUsed();
    config->setSource(video);
    return config;
}

void BatchModeDialog::addVideos(const QStringList& files)
{
    if (!files.isEmpty()) {
        // Also for dropped videos, and for typed paths.
        QSettings().setValue(QStringLiteral("openDialog_dialogPath"),
                             QFileInfo(files.constLast()).absolutePath());
    }
    QList<BatchWorkerConfig*> jobs;
    for (const QString& file : files) {
        jobs.append(newJob(file));
    }
    read(jobs);
}

/// Clears the selection first, so that a selection made by the user while reading remains.
void BatchModeDialog::read(const QList<BatchWorkerConfig*>& jobs)
{
    if (jobs.isEmpty()) {
        return;
    }
    m_newJobs = QSet<BatchWorkerConfig*>(jobs.cbegin(), jobs.cend());
    m_ui->filesTableView->clearSelection();
    if (!isLoading()) {
        m_loadingDelay.start();
    }
    m_loader->load(jobs);
    showLoading();
}

void BatchModeDialog::listJob(BatchWorkerConfig* job)
{
    m_model->addConfig(job);
    showLoading();
}

void BatchModeDialog::showLoading()
{
    updateFieldsEnabled();
    if (const BatchWorkerConfig* const job = m_loader->currentJob()) {
        m_ui->loadingLabel->setText(tr("Reading video %1 of %2:")
                                        .arg(m_loader->loadedCount() + 1)
                                        .arg(m_loader->jobCount()));
        m_ui->loadingFileLabel->setText(QFileInfo(job->source()).fileName());
    }
    m_ui->loadingProgressBar->setMaximum(m_loader->jobCount());
    m_ui->loadingProgressBar->setValue(m_loader->loadedCount());
}

void BatchModeDialog::on_stopLoadingButton_clicked()
{
    qDeleteAll(m_loader->cancel());
}

void BatchModeDialog::endLoading()
{
    m_loadingDelay.stop();
    if (m_ui->stopLoadingButton->hasFocus()) {
        m_ui->filesTableView->setFocus();
    }
    m_ui->loadingWidget->hide();
    updateFieldsEnabled();
    if (!m_ui->filesTableView->selectionModel()->hasSelection()) {
        selectNewJobs();
    }
    m_newJobs.clear();
    Q_EMIT loadingFinished();
}

/// They are last in the list. Some may be missing, since loading can be stopped and jobs can be
/// removed.
void BatchModeDialog::selectNewJobs()
{
    const int end = m_model->rowCount();
    int first = end;
    while (first > 0 && m_newJobs.contains(m_model->getConfig(first - 1))) {
        --first;
    }
    if (first == end) {
        return;
    }
    const QItemSelection rows(m_model->index(first, 0), m_model->index(end - 1, 0));
    QItemSelectionModel& selection = *m_ui->filesTableView->selectionModel();
    selection.setCurrentIndex(m_model->index(first, 0), QItemSelectionModel::NoUpdate);
    // With one call, because each change refills the form.
    selection.select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/// Does not look at the files, because their disk may be slow.
void BatchModeDialog::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localPaths(*event->mimeData()).isEmpty()) {
        acceptAsCopy(*event);
    }
}

void BatchModeDialog::dropEvent(QDropEvent* event)
{
    const QStringList files = filesAmong(localPaths(*event->mimeData()));
    if (files.isEmpty()) {
        event->ignore();
        return;
    }
    acceptAsCopy(*event);
    loadVideos(files);
}
