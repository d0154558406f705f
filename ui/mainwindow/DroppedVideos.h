#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QMimeData;

/// Interprets a drop onto the window. From any thread.
namespace DroppedVideos {

using IsCancelled = std::function<bool()>;

/// Maximum number of videos taken from one drop.
constexpr int most = 5000;

/// The local files and folders that are dropped, as named; does not access the disk. Empty if there
/// are none.
[[nodiscard]] QStringList pathsIn(const QMimeData& data);

/// The videos among them: files that are videos by name and content, and the contents of folders,
/// see VideoNames::below(). Reads the disk. If nothing qualifies, the first file, because the
/// player can tell best. Without duplicates, in the order of the paths.
[[nodiscard]] QStringList among(const QStringList& paths, const IsCancelled& isCancelled);

} // namespace DroppedVideos
