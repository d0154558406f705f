#pragma once

#include "qtav/src/FileInput.h"

#include <QRect>
#include <QSize>

#include <optional>

namespace QtAV {

/// The part of a track's pictures that an MP4 or QuickTime file wants shown, in pixels as stored:
/// cameras and capture cards store columns beside it that hold no picture. Nothing where the file
/// does not say, or says nonsense. Reads the file's boxes, not its pictures.
///
/// @param track   the track's number in the file
/// @param stored  the size of its pictures
[[nodiscard]] std::optional<QRect> cleanApertureOf(FileInput& input, int track,
                                                   const QSize& stored);

} // namespace QtAV
