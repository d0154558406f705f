#pragma once

#include <QColorSpace>
#include <QImage>

namespace testsupport {

/// The picture's pixels in a format, to be compared: Qt 6 calls pictures different whose colour
/// profiles are.
inline QImage pixelsOf(const QImage& image, QImage::Format format)
{
    QImage pixels = image.convertToFormat(format);
    pixels.setColorSpace(QColorSpace());
    return pixels;
}

} // namespace testsupport
