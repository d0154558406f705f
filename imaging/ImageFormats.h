#pragma once

#include <QString>
#include <QStringList>

/// Which image formats can be written on this machine. WebP, AVIF and JPEG XL need plugins that may
/// be missing.
///
/// Callable from any thread. The first query for a format other than JPEG, PNG and BMP loads all
/// plugins.
namespace ImageFormats {

/// The suffixes to offer, such as "jpg", as far as they can be written: those of JPEG, PNG, TIFF,
/// BMP, WebP, AVIF and JPEG XL, in this order.
[[nodiscard]] QStringList suffixes();

/// True if files with this suffix, case-insensitive, can be written, even if it is not offered.
[[nodiscard]] bool canWrite(const QString& suffix);

/// True if files with this suffix, case-insensitive, are JPEG.
[[nodiscard]] bool isJpeg(const QString& suffix);

/// True if files with this suffix, case-insensitive, have a quality setting.
[[nodiscard]] bool hasQuality(const QString& suffix);

/// True if files with this suffix, case-insensitive, can have more than 8 bits per channel.
[[nodiscard]] bool hasDepth(const QString& suffix);

/// True if files with this suffix, case-insensitive, can hold high dynamic range as it is stored.
[[nodiscard]] bool hasHdr(const QString& suffix);

} // namespace ImageFormats
