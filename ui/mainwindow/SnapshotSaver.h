#pragma once

#include "imaging/ImageRecipe.h"
#include "profiles/OutputNaming.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class FreePaths;
class SnapshotShelf;

/// Saves snapshots of a shelf as files, one after another in the background. Those written are
/// marked as saved in the shelf. User-interface thread only.
class SnapshotSaver : public QObject
{
    Q_OBJECT

public:
    /// A snapshot and the parameters for saving it.
    struct Job
    {
        QString id;
        QString videoBaseName; ///< used in the file's name
        ImageRecipe recipe;
    };

    /// @param shelf  not owned; must outlive this object
    explicit SnapshotSaver(SnapshotShelf& shelf, QObject* parent = nullptr);

    /// Starts saving into the folder, under free names only; nothing is ever replaced. Jobs started
    /// while others are being saved follow them.
    void start(const QVector<Job>& jobs, const QString& folder, const OutputNaming& naming);

    /// True while finished() is still to come.
    [[nodiscard]] bool isRunning() const { return m_left > 0; }

    /// Why the one that failed last could not be saved, for people; empty where that is unknown.
    [[nodiscard]] const QString& failure() const { return m_failure; }

Q_SIGNALS:
    void progressed(int done, int all);
    /// The result of all jobs started.
    /// @param lastFile  the path of the file written last; empty if none was written
    void finished(int saved, int failed, const QString& lastFile);

private:
    void save(const Job& job, const QString& type, const std::shared_ptr<FreePaths>& paths);
    void notice(const QString& id, const QString& path, const QString& failure);

    SnapshotShelf& m_shelf;
    int m_saved = 0;
    int m_failed = 0;
    QString m_lastFile;
    QString m_failure;
    int m_left = 0;
};
