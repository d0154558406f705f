#include "qtav/src/Orientation.h"

#include <QTransform>

#include <cmath>

namespace QtAV {

Orientation orientationFromDisplayMatrix(const qint32* matrix)
{
    if (!matrix) {
        return Orientation::Upright;
    }
    // A stored point (p, q) is shown at (a p + c q, b p + d q), with y pointing downwards.
    const double a = matrix[0];
    const double b = matrix[1];
    const double c = matrix[3];
    const double d = matrix[4];
    if (std::abs(a) + std::abs(d) >= std::abs(b) + std::abs(c)) {
        if (a < 0) {
            return d < 0 ? Orientation::Rotated180 : Orientation::MirroredHorizontally;
        }
        return d < 0 ? Orientation::MirroredVertically : Orientation::Upright;
    }
    if (b > 0) {
        return c < 0 ? Orientation::Rotated90 : Orientation::Transposed;
    }
    return c < 0 ? Orientation::AntiTransposed : Orientation::Rotated270;
}

bool swapsSides(Orientation orientation)
{
    switch (orientation) {
    case Orientation::Rotated90:
    case Orientation::Rotated270:
    case Orientation::Transposed:
    case Orientation::AntiTransposed:
        return true;
    case Orientation::Upright:
    case Orientation::Rotated180:
    case Orientation::MirroredHorizontally:
    case Orientation::MirroredVertically:
        break;
    }
    return false;
}

QImage oriented(const QImage& image, Orientation orientation)
{
    const auto turned = [&image](int degrees) {
        return image.transformed(QTransform().rotate(degrees));
    };
    switch (orientation) {
    case Orientation::Upright:
        break;
    case Orientation::Rotated90:
        return turned(90);
    case Orientation::Rotated180:
        return image.mirrored(true, true);
    case Orientation::Rotated270:
        return turned(270);
    case Orientation::MirroredHorizontally:
        return image.mirrored(true, false);
    case Orientation::MirroredVertically:
        return image.mirrored(false, true);
    case Orientation::Transposed:
        return turned(90).mirrored(true, false);
    case Orientation::AntiTransposed:
        return turned(90).mirrored(false, true);
    }
    return image;
}

} // namespace QtAV
