#include "ui/mainwindow/DroppedVideo.h"

#include <QFileInfo>
#include <QMimeData>
#include <QMimeDatabase>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace {

QStringList localFiles(const QMimeData& data)
{
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

bool looksLikeVideo(const QString& file)
{
    return QMimeDatabase().mimeTypeForFile(file).name().startsWith(QLatin1String("video/"));
}

} // namespace

QString DroppedVideo::pathIn(const QMimeData& data)
{
    const QStringList files = localFiles(data);
    const auto video = std::find_if(files.cbegin(), files.cend(), looksLikeVideo);
    return video == files.cend() ? files.value(0) : *video;
}
