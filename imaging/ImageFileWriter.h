#pragma once

#include "imaging/FilePublisher.h"

#include <QByteArray>
#include <QImage>
#include <QString>

/// Writes images to files, completely or not at all.
///
/// The picture is encoded in memory and then stored by FilePublisher, with its guarantees and its
/// one exception. Every file whose format supports it has a colour profile: the image's own, or
/// sRGB. Stateless: callable from any thread.
namespace ImageFileWriter {

/// Leaves the quality to the format.
constexpr int defaultQuality = -1;

/// The encoded picture. Empty for a null image, if the type (a suffix without dot,
/// case-insensitive) is not a writable format, and if memory runs out.
///
/// @param quality  as for write()
[[nodiscard]] QByteArray encode(const QImage& image, const QString& type, int quality);

/// Writes the image to `fileName`.
///
/// @param quality  0 (small file) to 100 (best picture), or defaultQuality. Higher values count as
///     100. Its effect depends on the format. JPEG keeps chroma in full resolution from 90 on; PNG
///     is lossless and always compressed, with higher values less but faster.
/// @return Failed for a null image, for a name whose suffix (case-insensitive) is not a writable
///     format, if memory for the encoded picture runs out, and if the file cannot be written.
///
/// The format is determined by the last suffix of the name.
[[nodiscard]] WriteResult write(const QString& fileName, const QImage& image, int quality,
                                ExistingFile existing);

} // namespace ImageFileWriter
