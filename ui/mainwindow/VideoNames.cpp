#include "ui/mainwindow/VideoNames.h"

#include "ui/mainwindow/NaturalOrder.h"
#include "ui/widgets/SmartFileDialog.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int deepest = 16;

/// In natural order.
QStringList namesIn(const QDir& folder, QDir::Filters kind, const QStringList& patterns)
{
    QStringList names = folder.entryList(patterns, kind | QDir::NoDotAndDotDot, QDir::Unsorted);
    std::sort(names.begin(), names.end(), NaturalOrder());
    return names;
}

void collect(const QDir& folder, int depth, int most, const VideoNames::IsCancelled& isCancelled,
             QStringList& videos)
{
    const QStringList names = VideoNames::in(folder.absolutePath());
    for (const QString& name : names) {
        if (videos.size() < most) {
            videos.append(folder.absoluteFilePath(name));
        }
    }
    if (depth == deepest) {
        return;
    }
    const QStringList folders = namesIn(folder, QDir::Dirs | QDir::NoSymLinks, {});
    for (const QString& name : folders) {
        if (videos.size() >= most || isCancelled()) {
            return;
        }
        collect(QDir(folder.absoluteFilePath(name)), depth + 1, most, isCancelled, videos);
    }
}

} // namespace

bool VideoNames::isVideo(const QString& name)
{
    return QDir::match(SmartFileDialog::videoPatterns(), QFileInfo(name).fileName());
}

QStringList VideoNames::in(const QString& folder)
{
    return namesIn(QDir(folder), QDir::Files, SmartFileDialog::videoPatterns());
}

QStringList VideoNames::below(const QString& folder, int most, const IsCancelled& isCancelled)
{
    QStringList videos;
    collect(QDir(folder), 1, most, isCancelled, videos);
    return videos;
}

VideoNames::Neighbours VideoNames::neighboursOf(const QString& video)
{
    const QFileInfo info(video);
    const QDir folder(info.absolutePath());
    const QStringList names = in(folder.absolutePath());
    const NaturalOrder order;
    const auto first = std::lower_bound(names.cbegin(), names.cend(), info.fileName(), order);
    const auto behind = std::upper_bound(first, names.cend(), info.fileName(), order);
    Neighbours neighbours;
    if (first != names.cbegin()) {
        neighbours.previous = folder.absoluteFilePath(*std::prev(first));
    }
    if (behind != names.cend()) {
        neighbours.next = folder.absoluteFilePath(*behind);
    }
    return neighbours;
}
