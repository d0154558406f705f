#pragma once

#include <QString>

class QMimeData;

/// What a drop onto the window means.
namespace DroppedVideo {

/// The first video among the files that are dropped, told by name and content; where none looks
/// like one, the first file, for the player knows best. Empty when there is no local file.
[[nodiscard]] QString pathIn(const QMimeData& data);

} // namespace DroppedVideo
