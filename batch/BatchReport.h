#pragma once

#include <QHash>
#include <QList>
#include <QString>

class BatchWorkerConfig;

/// What became of a batch: its images, what failed, and the words for both.
///
/// Failures of one video that differ in numbers alone, such as that of a file's name or of a
/// position, have one cause and share a line. User-interface thread only.
class BatchReport
{
public:
    /// A line on a cause, and whether it is the first on it or takes the place of the one before.
    struct Line
    {
        int cause = 0; ///< counted from 0
        bool isNew = true;
        QString text;
    };

    /// Notes that something failed for a job, and gives the line on its cause. The job is not
    /// owned; its video is named in the line.
    [[nodiscard]] Line addFailure(BatchWorkerConfig* job, const QString& message);

    int failures() const { return m_failures; }

    /// The jobs for which something failed, in the order of their first failures.
    QList<BatchWorkerConfig*> failedJobs() const { return m_failedJobs; }
    /// The lines on what failed for the job.
    QStringList causesOf(const BatchWorkerConfig* job) const;

    /// "Finished: 38 images, 2 failed", or "Cancelled after 12 images".
    [[nodiscard]] QString outcome(int images, bool isCancelled) const;

private:
    struct Cause
    {
        const BatchWorkerConfig* job = nullptr;
        QString first; ///< as it came
        int count = 0;
    };

    static QString textOf(const Cause& cause);

    QList<Cause> m_causes;
    /// Places in m_causes.
    QHash<QString, int> m_places;
    QList<BatchWorkerConfig*> m_failedJobs;
    int m_failures = 0;
};
