#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// Videos in folders, recognised by the names that the dialog for opening offers. Functions that
/// read the disk may be called in any thread.
namespace VideoNames {

using IsCancelled = std::function<bool()>;

/// Whether the dialog for opening offers a file of this name or path.
[[nodiscard]] bool isVideo(const QString& name);

/// The names of the videos directly in the folder, in natural order.
[[nodiscard]] QStringList in(const QString& folder);

/// The paths of the videos in a folder, followed by those in its subfolders, in natural order.
/// Skips hidden folders, links to folders, and folders more than sixteen levels deep.
///
/// @param most  maximum number of videos
[[nodiscard]] QStringList below(const QString& folder, int most, const IsCancelled& isCancelled);

/// The paths of the previous and the next video in a folder; empty if there is none. The given
/// video need not exist.
struct Neighbours
{
    QString previous;
    QString next;
};

[[nodiscard]] Neighbours neighboursOf(const QString& video);

} // namespace VideoNames
