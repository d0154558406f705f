#pragma once

#include "ui/widgets/TaskThread.h"

#include <QSet>
#include <QString>

/// Removes files that killed programs have left in the folders of snapshots, in the background and
/// once per folder: see FilePublisher::sweep(). User-interface thread only.
class FolderSweeper
{
public:
    /// Returns at once. Does nothing for a folder that was swept before.
    void sweep(const QString& folder);

private:
    QSet<QString> m_swept;
    TaskThread m_thread;
};
