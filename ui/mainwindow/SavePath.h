#pragma once

#include <QString>
#include <QStringList>

/// What the save dialog offers, and what becomes of the name chosen in it.
namespace SavePath {

/// The image types that this machine can write, in the order in which they are offered.
[[nodiscard]] QStringList nameFilters();

/// The path, which ends in the first suffix of the name filter unless it ends in one of an image
/// already. A video's name often has dots of its own, so that any suffix does not do.
[[nodiscard]] QString completed(const QString& path, const QString& nameFilter);

} // namespace SavePath
