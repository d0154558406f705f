#pragma once

#include <QByteArray>
#include <QImage>

/// JPEG with chroma in full resolution (4:4:4).
///
/// Qt's writer always halves chroma in both directions, which blurs fine coloured details at any
/// quality. Stateless: callable from any thread.
namespace JpegEncoder {

/// Whether the image has colours; a grey image is the same in either encoder.
[[nodiscard]] bool hasChroma(const QImage& image);

/// The encoded image, with its resolution and its colour profile. Alpha is ignored.
///
/// @param quality  1 to 100
/// @return empty for a null image, for one with a side that no JPEG can have (above 65500), and
///     where memory runs out. Throws std::bad_alloc in the latter case, too.
[[nodiscard]] QByteArray encode(const QImage& image, int quality);

} // namespace JpegEncoder
