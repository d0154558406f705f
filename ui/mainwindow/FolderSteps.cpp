#include "ui/mainwindow/FolderSteps.h"

#include "ui/mainwindow/VideoNames.h"

#include <QAction>
#include <QFileInfo>

namespace {

constexpr int settlingMs = 300;

} // namespace

FolderSteps::FolderSteps(QAction& next, QAction& previous, QObject* parent)
    : QObject(parent)
    , m_nextAction(next)
    , m_previousAction(previous)
{
    show({}, {});
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingMs);
    connect(&m_settling, &QTimer::timeout, this, &FolderSteps::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        // Not restarted by each change, so that a constantly changing folder is read, too.
        if (!m_settling.isActive()) {
            m_settling.start();
        }
    });
    connect(&next, &QAction::triggered, this, [this] { Q_EMIT chosen(m_next); });
    connect(&previous, &QAction::triggered, this, [this] { Q_EMIT chosen(m_previous); });
}

FolderSteps::~FolderSteps() = default;

void FolderSteps::setVideo(const QString& path)
{
    m_video = path;
    const QStringList watched = m_watcher.directories();
    if (!watched.isEmpty()) {
        m_watcher.removePaths(watched);
    }
    show({}, {});
    if (!path.isEmpty()) {
        m_watcher.addPath(QFileInfo(path).absolutePath());
    }
    look();
}

void FolderSteps::look()
{
    const int look = ++m_look;
    if (m_video.isEmpty()) {
        m_task.cancel();
        return;
    }
    m_task.start([this, look, video = m_video](const DiskTask::Run& run) {
        const VideoNames::Neighbours found = VideoNames::neighboursOf(video);
        run.answer([&] {
            m_answers.post([this, look, found] {
                // Another video may have been opened in the meantime.
                if (look == m_look) {
                    show(found.previous, found.next);
                }
            });
        });
    });
}

void FolderSteps::show(const QString& previous, const QString& next)
{
    m_previous = previous;
    m_next = next;
    m_previousAction.setEnabled(!previous.isEmpty());
    m_nextAction.setEnabled(!next.isEmpty());
}
