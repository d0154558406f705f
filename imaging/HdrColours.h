#pragma once

#include <QtAV/StoredColours.h>

#include <QByteArray>
#include <QColorSpace>
#include <QImage>

#include <optional>

/// Pictures of high dynamic range that keep their own values. The colour space of an image, with
/// its profile, tells every program what the values stand for.
///
/// Callable from any thread.
namespace HdrColours {

/// The colour space of such values: an ICC profile of version 4.4 that also names the curve and the
/// primaries by their code points in ITU-T H.273. Invalid if memory runs out.
[[nodiscard]] QColorSpace colorSpaceOf(const QtAV::StoredColours& colours);

/// What the values of an image with the result of colorSpaceOf() stand for; otherwise nothing.
[[nodiscard]] std::optional<QtAV::StoredColours> of(const QImage& image);

/// Adds these code points to an encoded PNG, in the chunk cICP, which programs that show high
/// dynamic range read first. Other content stays unchanged.
[[nodiscard]] QByteArray withCodePoints(const QByteArray& png, const QtAV::StoredColours& colours);

/// Draws an sRGB layer over an image with such values: white of the layer becomes as bright as that
/// of pictures with standard range.
///
/// @param image  in Format_RGBX64 or Format_RGBA64
/// @param layer  of the same size, in Format_ARGB32_Premultiplied
void drawOver(QImage& image, const QImage& layer, const QtAV::StoredColours& colours);

} // namespace HdrColours
