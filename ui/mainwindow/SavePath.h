#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

/// The types that the save dialog offers, and the completion of the chosen name.
namespace SavePath {

/// The image types that this machine can write, in the order in which they are offered.
[[nodiscard]] QStringList nameFilters();

/// Appends the first suffix of the name filter to the path, unless it already ends in an image
/// suffix. Other suffixes do not count, because video names often contain dots.
[[nodiscard]] QString completed(const QString& path, const QString& nameFilter);

/// The name itself if the folder has no such file, otherwise the next free one: a number at its end
/// is incremented, any other name gets one. A number at the end of the video's own name does not
/// count. Existence is checked for the name as completed by the name filter.
[[nodiscard]] QString nextFree(const QDir& folder, const QString& name, const QString& nameFilter,
                               const QString& videoBaseName);

} // namespace SavePath
