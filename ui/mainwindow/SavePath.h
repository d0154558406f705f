#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

/// What the save dialog offers, and what becomes of the name chosen in it.
namespace SavePath {

/// The image types that this machine can write, in the order in which they are offered.
[[nodiscard]] QStringList nameFilters();

/// The path, which ends in the first suffix of the name filter unless it ends in one of an image
/// already. A video's name often has dots of its own, so that any suffix does not do.
[[nodiscard]] QString completed(const QString& path, const QString& nameFilter);

/// The name itself if the folder has no such file, else the next one that is free: a number at its
/// end counts on, any other name gets one. The number that a video's own name ends in is none.
/// Whether there is a file is asked for the name as the name filter completes it.
[[nodiscard]] QString nextFree(const QDir& folder, const QString& name, const QString& nameFilter,
                               const QString& videoBaseName);

} // namespace SavePath
