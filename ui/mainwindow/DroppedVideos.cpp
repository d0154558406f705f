#include "ui/mainwindow/DroppedVideos.h"

#include "ui/mainwindow/VideoNames.h"

#include <QFileInfo>
#include <QMimeData>
#include <QMimeDatabase>
#include <QUrl>

namespace {

bool looksLikeVideo(const QString& file)
{
    return QMimeDatabase().mimeTypeForFile(file).name().startsWith(QLatin1String("video/"));
}

} // namespace

QStringList DroppedVideos::pathsIn(const QMimeData& data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

QStringList DroppedVideos::among(const QStringList& paths, const IsCancelled& isCancelled)
{
    QStringList videos;
    QString firstFile;
    for (const QString& path : paths) {
        if (isCancelled() || videos.size() >= most) {
            break;
        }
        const QFileInfo info(path);
        if (info.isDir()) {
            videos += VideoNames::below(path, most - videos.size(), isCancelled);
        } else if (info.isFile() && firstFile.isEmpty()) {
            firstFile = path;
        }
        if (info.isFile() && looksLikeVideo(path)) {
            videos.append(path);
        }
    }
    videos.removeDuplicates();
    return videos.isEmpty() && !firstFile.isEmpty() ? QStringList(firstFile) : videos;
}
