#pragma once

#include <QImage>
#include <QSize>
#include <QtGlobal>

namespace QtAV {

/// What has to be done to a stored picture to show it upright: one of the eight ways in which a
/// rectangle covers itself or its transposition.
enum class Orientation {
    Upright,
    Rotated90,  ///< turn clockwise by a quarter
    Rotated180, ///< turn by a half
    Rotated270, ///< turn counter-clockwise by a quarter
    MirroredHorizontally,
    MirroredVertically,
    Transposed,     ///< mirror on the diagonal from the top left
    AntiTransposed, ///< mirror on the diagonal from the top right
};

/// The orientation that FFmpeg's display matrix (nine 16.16 numbers, row by row) asks for; a
/// rotation in between goes to the nearest quarter. Null and degenerate matrices mean upright.
Orientation orientationFromDisplayMatrix(const qint32* matrix);

/// True where width and height change places.
bool swapsSides(Orientation orientation);

/// The picture turned upright; the image itself when it is so already.
[[nodiscard]] QImage oriented(const QImage& image, Orientation orientation);

} // namespace QtAV
