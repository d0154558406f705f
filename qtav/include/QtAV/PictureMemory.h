#pragma once

#include <QtGlobal>

namespace QtAV {

/// What one picture of a video may take in memory, in bytes, unless something else is set: 1 GiB.
/// What is counted is the picture as it is decoded and the image with 4 bytes a pixel that is made
/// of it. A picture that would take more is refused before memory is taken for it.
constexpr qint64 usualPictureBytes = qint64(1) << 30;

} // namespace QtAV
