#pragma once

#include <QHash>
#include <QList>
#include <QString>

class BatchWorkerConfig;

/// The results of a batch: its images and failures, and the texts for both.
///
/// Failures of one video that differ only in numbers, such as that of a file's name or of a
/// position, have one cause and share a line. User-interface thread only.
class BatchReport
{
public:
    /// A line about a cause. It is either the first one or replaces the previous line about it.
    struct Line
    {
        int cause = 0; ///< counted from 0
        bool isNew = true;
        QString text;
    };

    /// Records a failure of a job, and returns the line about its cause, which names the job's
    /// video. The job is not owned.
    [[nodiscard]] Line addFailure(BatchWorkerConfig* job, const QString& message);

    int failures() const { return m_failures; }

    /// The jobs with failures, in the order of their first failures.
    QList<BatchWorkerConfig*> failedJobs() const { return m_failedJobs; }
    /// The lines about the job's failures.
    QStringList causesOf(const BatchWorkerConfig* job) const;

    /// "Finished: 38 images, 2 failed", or "Cancelled after 12 images".
    [[nodiscard]] QString outcome(int images, bool isCancelled) const;

private:
    struct Cause
    {
        const BatchWorkerConfig* job = nullptr;
        QString first; ///< the original text
        int count = 0;
    };

    static QString textOf(const Cause& cause);

    QList<Cause> m_causes;
    /// Indexes in m_causes.
    QHash<QString, int> m_places;
    QList<BatchWorkerConfig*> m_failedJobs;
    int m_failures = 0;
};
