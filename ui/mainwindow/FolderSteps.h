#pragma once

#include "ui/widgets/DiskTask.h"
#include "utils/CallQueue.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

class QAction;

/// The two actions that open the next and the previous video in the folder of the open one. Each is
/// enabled while there is such a video. The folder is read in the background, and again when it
/// changes. User-interface thread only.
class FolderSteps : public QObject
{
    Q_OBJECT

public:
    /// @param next      this object enables and disables it; must outlive this object
    /// @param previous  like next
    FolderSteps(QAction& next, QAction& previous, QObject* parent);
    ~FolderSteps() override;

    /// Sets the open video; an empty path for none.
    void setVideo(const QString& path);

Q_SIGNALS:
    /// The user requests to open that video.
    void chosen(const QString& path);

private:
    void look();
    void show(const QString& previous, const QString& next);

    QAction& m_nextAction;
    QAction& m_previousAction;
    QString m_video;
    QString m_next;
    QString m_previous;
    int m_look = 0; ///< changes whenever the folder is read
    QFileSystemWatcher m_watcher;
    QTimer m_settling; ///< limits how often a busy folder is read
    CallQueue m_answers{this};
    DiskTask m_task; ///< last, since its thread calls the other members
};
