#pragma once

#include "profiles/WatermarkProfile.h"

#include <QImage>
#include <QString>

/// The picture files of watermarks: previews, and the copies that profiles own.
namespace WatermarkPicture {

/// Maximum size of a picture. A watermark is drawn pixel by pixel, so one this large covers any
/// image many times over. Reading a larger one would take too much memory (4 bytes per pixel) and
/// seconds of time.
constexpr qint64 maxPixels = WatermarkProfile::mostPixels;

/// Whether the file declares more than maxPixels. Reads only its header; false for a file that is
/// not a picture.
[[nodiscard]] bool isTooLarge(const QString& path);

/// The picture in the file, scaled down to fit a screen in its own proportions; never enlarged.
/// Null if there is no such file, it is not a picture, or the picture is too large.
[[nodiscard]] QImage readForDisplay(const QString& path);

/// Copies the file into the watermark folder under a unique name and returns that name, for
/// WatermarkProfile::imageFile(). The original is no longer needed afterwards. A failure to copy
/// shows when the copy is read.
[[nodiscard]] QString addCopyOf(const QString& path);

} // namespace WatermarkPicture
