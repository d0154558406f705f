// Starting a batch: what it will make and where, and the questions before it.

#include "ui/batch/BatchModeDialog.h"

#include "batch/BatchListFile.h"
#include "batch/BatchModeListModel.h"
#include "batch/BatchWorkerConfig.h"
#include "batch/VideoInfoLoader.h"
#include "ui/batch/BatchProcessingDialog.h"
#include "ui/widgets/PlainText.h"
#include "ui_BatchModeDialog.h"

#include <QDir>
#include <QLocale>
#include <QMessageBox>

#include <algorithm>
#include <limits>

namespace {

/// A larger number of images must be confirmed: it is rarely intended.
constexpr int manyImages = 2000;

/// Maximum number of folders named in a question.
constexpr int mostNamedFolders = 8;

/// The missing folders of the jobs, without duplicates.
QStringList missingFolders(const QList<BatchWorkerConfig*>& jobs)
{
    QStringList missing;
    for (const BatchWorkerConfig* const job : jobs) {
        const QString folder = job->outputDir().absolutePath();
        if (!missing.contains(folder) && !QDir(folder).exists()) {
            missing += folder;
        }
    }
    return missing;
}

QString namesOf(const QStringList& folders)
{
    QStringList names;
    for (const QString& folder : folders.mid(0, mostNamedFolders)) {
        names += QDir::toNativeSeparators(folder);
    }
    if (folders.size() > mostNamedFolders) {
        names += QStringLiteral("\u2026");
    }
    return names.join(QLatin1Char('\n'));
}

struct ImageSum
{
    qint64 images = 0;
    bool isComplete = true; ///< the number of images of all jobs is known
};

ImageSum sumOf(const QList<BatchWorkerConfig*>& jobs)
{
    ImageSum sum;
    for (const BatchWorkerConfig* const job : jobs) {
        const std::optional<int> images = job->expectedImages();
        sum.images += images.value_or(0);
        sum.isComplete = sum.isComplete && images.has_value();
    }
    return sum;
}

/// The settings that determine the positions of a job.
QVariantList samplingOf(const BatchWorkerConfig& job)
{
    return {job.source(),       job.skipFront(),         job.skipBack(),
            job.intervalType(), job.intervalImages(),    job.intervalMilliseconds(),
            job.exactFrames(),  job.intervalSingleShot()};
}

/// The number used to select a plural form.
int forPlural(qint64 number)
{
    return int(std::min<qint64>(number, std::numeric_limits<int>::max()));
}

} // namespace

void BatchModeDialog::showImageSum()
{
    const QList<BatchWorkerConfig*> jobs = m_model->getConfigs();
    if (jobs.isEmpty()) {
        m_ui->imageSumLabel->clear();
        return;
    }
    const qint64 count = sumOf(jobs).images;
    const QString images = tr("%1 images", "in: About %1 of %n videos", forPlural(count))
                               .arg(QLocale().toString(count));
    m_ui->imageSumLabel->setText(
        jobs.size() == 1 ? tr("About %1 of 1 video").arg(images)
                         : tr("About %1 of %n videos", nullptr, jobs.size()).arg(images));
}

/// Creates missing folders if the user agrees. Returns false if the batch cannot start.
bool BatchModeDialog::areFoldersUsable(const QList<BatchWorkerConfig*>& jobs)
{
    const QStringList missing = missingFolders(jobs);
    if (missing.isEmpty()) {
        return true;
    }
    const QString question = missing.size() == 1
                                 ? tr("The folder for the images does not exist. Create it?")
                                 : tr("These folders for the images do not exist. Create them?");
    QMessageBox box(QMessageBox::Question, tr("Folder does not exist"), question,
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setInformativeText(asPlainText(namesOf(missing)));
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() != QMessageBox::Yes) {
        return false;
    }
    for (const QString& folder : missing) {
        if (!QDir().mkpath(folder)) {
            QMessageBox::warning(
                this, tr("Folder does not exist"),
                asPlainText(tr("%1 could not be created.").arg(QDir::toNativeSeparators(folder))));
            return false;
        }
    }
    return true;
}

bool BatchModeDialog::isNumberWanted(const QList<BatchWorkerConfig*>& jobs)
{
    const qint64 images = sumOf(jobs).images;
    return images <= manyImages ||
           QMessageBox::question(
               this, tr("Many Images"),
               tr("This batch will make about %1 images. Start it?", nullptr, forPlural(images))
                   .arg(QLocale().toString(images)),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

/// Empty if the whole job has to be repeated.
QVector<qint64> BatchModeDialog::positionsToRetry(const BatchWorkerConfig& job) const
{
    const Rest rest = m_rests.value(&job);
    return rest.settings == samplingOf(job) ? rest.positions : QVector<qint64>();
}

void BatchModeDialog::run(const QList<BatchWorkerConfig*>& jobs, Extent extent)
{
    if (!isNumberWanted(jobs) || !areFoldersUsable(jobs)) {
        return;
    }
    saveList();
    BatchProcessingDialog dialog(this);
    for (BatchWorkerConfig* const job : jobs) {
        const QVector<qint64> positions =
            extent == Extent::WhatFailed ? positionsToRetry(*job) : QVector<qint64>();
        if (positions.isEmpty()) {
            dialog.addWorkerWithConfig(job);
        } else {
            dialog.addWorkerForPositions(job, positions);
        }
    }
    dialog.exec();
    for (BatchWorkerConfig* const job : jobs) {
        m_rests.insert(job,
                       {dialog.missedPositions(job).value_or(QVector<qint64>()), samplingOf(*job)});
        m_model->setFailure(job,
                            asPlainText(dialog.report().causesOf(job).join(QLatin1Char('\n'))));
    }
    // The workers may have corrected intervals.
    showJobsAnew();
}

void BatchModeDialog::on_startButton_clicked()
{
    run(m_model->getConfigs(), Extent::WholeJobs);
}

void BatchModeDialog::on_retryFailedButton_clicked()
{
    run(m_model->failedConfigs(), Extent::WhatFailed);
}

void BatchModeDialog::on_useForNewVideosButton_clicked()
{
    saveBatchWorkerConfigDefault();
}

void BatchModeDialog::keepList()
{
    m_keepsList = true;
    read(BatchListFile::load(this));
}

void BatchModeDialog::saveList(const QList<BatchWorkerConfig*>& unread) const
{
    if (m_keepsList) {
        BatchListFile::save(m_model->getConfigs() + unread);
    }
}

/// Videos that have not been read are read when the list is restored. Closing the dialog ends its
/// list; where the application ends under it, only the destructor does.
void BatchModeDialog::endList()
{
    const QList<BatchWorkerConfig*> unread = m_loader->cancel();
    saveList(unread);
    qDeleteAll(unread);
    m_keepsList = false;
}
