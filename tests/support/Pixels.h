#pragma once

#include <QColorSpace>
#include <QImage>

namespace testsupport {

/// The picture's pixels in a format, for comparison: in Qt 6 pictures with different colour
/// profiles are not equal.
inline QImage pixelsOf(const QImage& image, QImage::Format format)
{
    QImage pixels = image.convertToFormat(format);
    pixels.setColorSpace(QColorSpace());
    return pixels;
}

} // namespace testsupport
