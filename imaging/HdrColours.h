#pragma once

#include <QtAV/StoredColours.h>

#include <QByteArray>
#include <QColorSpace>
#include <QImage>

#include <optional>

/// Pictures of high dynamic range that keep their own values. An image bears them in its colour
/// space, whose profile tells every program what they stand for.
///
/// Callable from any thread.
namespace HdrColours {

/// The colour space of such values: an ICC profile of version 4.4 that names the curve and the
/// primaries by their numbers in ITU-T H.273, too. Invalid where memory runs out.
[[nodiscard]] QColorSpace colorSpaceOf(const QtAV::StoredColours& colours);

/// What an image's values stand for where colorSpaceOf() was given to it.
[[nodiscard]] std::optional<QtAV::StoredColours> of(const QImage& image);

/// An encoded PNG that says by those numbers what its values stand for: in the chunk cICP, which
/// programs that show high dynamic range read first. What is no PNG stays as it is.
[[nodiscard]] QByteArray withCodePoints(const QByteArray& png, const QtAV::StoredColours& colours);

/// Draws a layer in sRGB over an image with such values: white of the layer is as bright as that of
/// pictures with standard range.
///
/// @param image  in Format_RGBX64 or Format_RGBA64
/// @param layer  of the same size, in Format_ARGB32_Premultiplied
void drawOver(QImage& image, const QImage& layer, const QtAV::StoredColours& colours);

} // namespace HdrColours
