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

/// Saves snapshots of a shelf as files of the user's, one after another in the background. Those
/// that are written are marked as saved there. User-interface thread only.
class SnapshotSaver : public QObject
{
    Q_OBJECT

public:
    /// One snapshot, and what becomes of it.
    struct Job
    {
        QString id;
        QString videoBaseName; ///< for the file's name
        ImageRecipe recipe;
    };

    /// @param shelf  not owned; must outlive this object
    explicit SnapshotSaver(SnapshotShelf& shelf, QObject* parent = nullptr);

    /// Begins to save into the folder, under free names only; nothing is ever replaced. What is
    /// started while others are being saved comes behind them.
    void start(const QVector<Job>& jobs, const QString& folder, const OutputNaming& naming);

    /// While this is true, finished() is still to come.
    [[nodiscard]] bool isRunning() const { return m_left > 0; }

    /// Why the one that failed last could not be saved, for people; empty where that is unknown.
    [[nodiscard]] const QString& failure() const { return m_failure; }

Q_SIGNALS:
    void progressed(int done, int all);
    /// What became of all that was started.
    /// @param lastFile  the path of the one written last; empty where there is none
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
