#include "batch/BatchReport.h"

#include "batch/BatchWorkerConfig.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace {

/// A key that is equal for all failures of a job that differ only in numbers.
QString keyOf(const BatchWorkerConfig* job, QString message)
{
    static const QRegularExpression numbers(QStringLiteral("\\d+"));
    return QString::number(quintptr(job)) + QLatin1Char(' ') +
           message.replace(numbers, QStringLiteral("0"));
}

QString imagesText(int images)
{
    return images == 1 ? QCoreApplication::translate("BatchReport", "1 image")
                       : QCoreApplication::translate("BatchReport", "%n images", nullptr, images);
}

} // namespace

BatchReport::Line BatchReport::addFailure(BatchWorkerConfig* job, const QString& message)
{
    ++m_failures;
    if (!m_failedJobs.contains(job)) {
        m_failedJobs.append(job);
    }
    const QString key = keyOf(job, message);
    const bool isNew = !m_places.contains(key);
    if (isNew) {
        m_places.insert(key, m_causes.size());
        m_causes.append(Cause{job, message, 0});
    }
    const int place = m_places.value(key);
    Cause& cause = m_causes[place];
    ++cause.count;
    return {place, isNew, textOf(cause)};
}

QString BatchReport::textOf(const Cause& cause)
{
    QString line = cause.job->source() + QStringLiteral(": ") + cause.first;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    const int others = cause.count - 1;
    return others == 0 ? line
                       : QCoreApplication::translate("BatchReport", "%1 (and %n more of this kind)",
                                                     nullptr, others)
                             .arg(line);
}

QStringList BatchReport::causesOf(const BatchWorkerConfig* job) const
{
    QStringList causes;
    for (const Cause& cause : m_causes) {
        if (cause.job == job) {
            causes += textOf(cause);
        }
    }
    return causes;
}

QString BatchReport::outcome(int images, bool isCancelled) const
{
    const QString done =
        (isCancelled ? QCoreApplication::translate("BatchReport", "Cancelled after %1")
                     : QCoreApplication::translate("BatchReport", "Finished: %1"))
            .arg(imagesText(images));
    return m_failures == 0
               ? done
               : QCoreApplication::translate("BatchReport", "%1, %n failed", nullptr, m_failures)
                     .arg(done);
}
