#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QMimeData;

/// What a drop onto the window means. From any thread.
namespace DroppedVideos {

using IsCancelled = std::function<bool()>;

/// No more are taken of one drop.
constexpr int most = 5000;

/// The files and folders of this machine that are dropped, as they are named; the disk is not
/// asked. Empty when there are none.
[[nodiscard]] QStringList pathsIn(const QMimeData& data);

/// The videos among them, which reads the disk: files that look like a video by name and content,
/// and what folders hold, see VideoNames::below(). Where nothing is one, the first file, for the
/// player knows best. Each once, in the order of the paths.
[[nodiscard]] QStringList among(const QStringList& paths, const IsCancelled& isCancelled);

} // namespace DroppedVideos
