#pragma once

#include "ui/widgets/NewestTask.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

class QAction;

/// The two actions that open the next and the previous video of the open one's folder. Each is
/// enabled while there is such a video: the folder is looked at in the background, and again when
/// it changes. User-interface thread only.
class FolderSteps : public QObject
{
    Q_OBJECT

public:
    /// @param next      enabled and disabled from now on; both must outlive this object
    /// @param previous  likewise
    FolderSteps(QAction& next, QAction& previous, QObject* parent);
    ~FolderSteps() override;

    /// The video that is open; an empty path for none.
    void setVideo(const QString& path);

Q_SIGNALS:
    /// The user wants to open that video.
    void chosen(const QString& path);

private:
    void look();
    void show(const QString& previous, const QString& next);
    Q_INVOKABLE void take(int look, const QString& previous, const QString& next);

    QAction& m_nextAction;
    QAction& m_previousAction;
    QString m_video;
    QString m_next;
    QString m_previous;
    int m_look = 0; ///< changes with each look at the folder
    QFileSystemWatcher m_watcher;
    QTimer m_settling; ///< a folder in which much happens is looked at once in a while
    NewestTask m_task; ///< last: its thread calls for the others
};
