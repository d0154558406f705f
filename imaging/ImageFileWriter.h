#pragma once

#include "imaging/FilePublisher.h"

#include <QByteArray>
#include <QImage>
#include <QString>

/// Writes images to files, whole or not at all.
///
/// The picture is encoded in memory and then put under its name by FilePublisher, with all that
/// that promises, and its one exception. Every file of a format that can hold one has a colour
/// profile: the image's own, or sRGB. Without state: callable from any thread.
namespace ImageFileWriter {

/// The quality that leaves the choice to the format.
constexpr int defaultQuality = -1;

/// The encoded picture. Empty for a null image, where the type, which is a suffix without dot,
/// stands for no format that can be written (capitals do not matter), and where memory runs out.
///
/// @param quality  as for write()
[[nodiscard]] QByteArray encode(const QImage& image, const QString& type, int quality);

/// Writes the image to `fileName`.
///
/// @param quality  0 (small file) to 100 (true picture), or defaultQuality; above 100 counts as
///     100. What it means is up to the format. JPEG keeps chroma in full resolution from 90 on; PNG
///     loses nothing and is always compressed, the less the quicker.
/// @return Failed for a null image, for a name whose suffix stands for no format that can be
///     written (capitals do not matter), where memory for the encoded picture runs out, and where
///     the file cannot be written.
///
/// The format is the suffix's; the last one's where the name has several dots.
[[nodiscard]] WriteResult write(const QString& fileName, const QImage& image, int quality,
                                ExistingFile existing);

} // namespace ImageFileWriter
