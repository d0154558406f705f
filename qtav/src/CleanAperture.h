#pragma once

#include "qtav/src/FileInput.h"

#include <QRect>
#include <QSize>

#include <optional>

namespace QtAV {

/// The part of a track's pictures that an MP4 or QuickTime file declares visible, in stored pixels.
/// Cameras and capture cards store columns outside it that hold no picture. Nothing if the file
/// does not state it or states nonsense. Reads the file's boxes, not its pictures.
///
/// @param track   the track's number in the file
/// @param stored  the size of its pictures
[[nodiscard]] std::optional<QRect> cleanApertureOf(FileInput& input, int track,
                                                   const QSize& stored);

} // namespace QtAV
