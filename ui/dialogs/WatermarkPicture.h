#pragma once

#include "profiles/WatermarkProfile.h"

#include <QImage>
#include <QString>

/// The picture files of watermarks: a look into them, and the copies that profiles own.
namespace WatermarkPicture {

/// What a picture may hold. A watermark is drawn pixel by pixel, so one this large covers any image
/// many times over; reading it would take more memory than it is worth (4 bytes a pixel), and
/// seconds.
constexpr qint64 maxPixels = WatermarkProfile::mostPixels;

/// Whether the file states more than maxPixels. Reads no more than its header; false for a file
/// that is no picture.
[[nodiscard]] bool isTooLarge(const QString& path);

/// The picture in the file made to fit a screen, in its own proportions; never enlarged. Null if
/// there is no such file, no picture in it, or one that is too large.
[[nodiscard]] QImage readForDisplay(const QString& path);

/// Copies the file into the watermark folder, under a name that no other picture has, and gives
/// that name: what WatermarkProfile::imageFile() holds. The user may do with the original whatever
/// he likes from then on. That copying fails shows when the copy is read.
[[nodiscard]] QString addCopyOf(const QString& path);

} // namespace WatermarkPicture
