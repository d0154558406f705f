#include "ui/mainwindow/DropZone.h"

#include "ui/mainwindow/DropHighlight.h"
#include "ui/mainwindow/DroppedVideos.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QProgressDialog>
#include <QTimer>

DropZone::DropZone(QWidget& window, std::chrono::milliseconds patience)
    : QObject(&window)
    , m_window(window)
    , m_patience(patience)
    , m_highlight(new DropHighlight(window))
{}

DropZone::~DropZone() = default;

void DropZone::enter(QDragEnterEvent& event)
{
    if (!DroppedVideos::pathsIn(*event.mimeData()).isEmpty()) {
        // Never a move, because the source program would then delete the file.
        event.setDropAction(Qt::CopyAction);
        event.accept();
        m_highlight->appear();
    }
}

void DropZone::leave()
{
    m_highlight->hide();
}

void DropZone::drop(QDropEvent& event)
{
    m_highlight->hide();
    const QStringList paths = DroppedVideos::pathsIn(*event.mimeData());
    if (paths.isEmpty()) {
        return;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    search(paths);
}

void DropZone::search(const QStringList& paths)
{
    m_isSearching = true;
    const int search = ++m_search;
    QTimer::singleShot(m_patience, this, [this, search] { showProgress(search); });
    m_task.start([this, search, paths](const DiskTask::Run& run) {
        const QStringList videos =
            DroppedVideos::among(paths, [&run] { return run.isCancelled(); });
        run.answer([&] { m_answers.post([this, search, videos] { take(search, videos); }); });
    });
}

void DropZone::showProgress(int search)
{
    if (!m_isSearching || search != m_search || m_progress != nullptr) {
        return;
    }
    m_progress = new QProgressDialog(tr("Looking for videos\u2026"), tr("Cancel"), 0, 0, &m_window);
    m_progress->setObjectName(QStringLiteral("dropProgress"));
    m_progress->setWindowModality(Qt::WindowModal);
    connect(m_progress, &QProgressDialog::canceled, this, &DropZone::cancel);
    m_progress->show();
}

void DropZone::cancel()
{
    ++m_search;
    m_isSearching = false;
    m_task.cancel();
    hideProgress();
}

void DropZone::hideProgress()
{
    if (m_progress != nullptr) {
        // It may be the sender of what is handled now.
        m_progress->hide();
        m_progress->deleteLater();
        m_progress.clear();
    }
}

void DropZone::take(int search, const QStringList& videos)
{
    if (search != m_search) {
        return;
    }
    m_isSearching = false;
    hideProgress();
    if (videos.isEmpty()) {
        Q_EMIT nothingFound();
    } else {
        Q_EMIT dropped(videos);
    }
}
