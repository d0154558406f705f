#pragma once

#include "ui/widgets/TaskThread.h"

#include <QSet>
#include <QString>

/// Removes what killed programs have left in the folders that snapshots are saved in, in the
/// background and once for each folder: see FilePublisher::sweep(). User-interface thread only.
class FolderSweeper
{
public:
    /// Returns at once. Nothing happens to a folder that was swept before.
    void sweep(const QString& folder);

private:
    QSet<QString> m_swept;
    TaskThread m_thread;
};
