#pragma once

#include <QImage>
#include <QSize>
#include <QtGlobal>

namespace QtAV {

/// What makes a stored picture upright: one of the eight symmetries that map a rectangle to itself
/// or to its transpose.
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

/// The orientation of an FFmpeg display matrix (nine 16.16 numbers, row by row), rounded to the
/// nearest quarter turn. Null and degenerate matrices mean upright.
Orientation orientationFromDisplayMatrix(const qint32* matrix);

/// True if width and height are swapped.
bool swapsSides(Orientation orientation);

/// The picture turned upright; the image itself if it already is.
[[nodiscard]] QImage oriented(const QImage& image, Orientation orientation);

} // namespace QtAV
