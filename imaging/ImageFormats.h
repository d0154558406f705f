#pragma once

#include <QString>
#include <QStringList>

/// Which files pictures can be written to on this machine. Some formats come with plugins that may
/// be missing: WebP, AVIF and JPEG XL.
///
/// Callable from any thread; the first call loads the plugins' descriptions.
namespace ImageFormats {

/// The suffixes that are offered, such as "jpg", as far as they can be written: those of JPEG, PNG,
/// TIFF, BMP, WebP, AVIF and JPEG XL, in this order.
[[nodiscard]] QStringList suffixes();

/// Files with this suffix, in capitals or not, can be written; also other ones than are offered.
[[nodiscard]] bool canWrite(const QString& suffix);

/// A quality matters for files with this suffix, in capitals or not.
[[nodiscard]] bool hasQuality(const QString& suffix);

/// Files with this suffix, in capitals or not, can have more than 8 bits a channel.
[[nodiscard]] bool hasDepth(const QString& suffix);

/// Files with this suffix, in capitals or not, can hold high dynamic range as it is stored.
[[nodiscard]] bool hasHdr(const QString& suffix);

} // namespace ImageFormats
