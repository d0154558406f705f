#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// The size that `size` takes when it is scaled, both axes alike, to the bounds.
///
/// A size that is larger than the bounds on both axes shrinks until it lies inside them. Any other
/// size is divided by the smaller of its two ratios to the bounds: it meets one side of them and
/// may exceed the other. Sides are rounded, halves away from zero. An empty size or empty bounds
/// give QSize(0, 0).
[[nodiscard]] QSize scaled(const QSize& size, const QSize& bounds);

/// Scales pictures by one of three methods and renders vector pictures.
///
/// The programs do not call it: `imaging` scales pictures of 8 and 16 bits, in linear light if
/// wanted, by KernelResampling, which does the work here too; icons are drawn in the colours of the
/// theme by `ui/theme`. It stays for code that has a plain QImage or the name of a vector picture.
///
/// Without state; `resize` and `bicubicInterpolation` may be called from any thread, `svg` from
/// the user-interface thread only, because it asks for the screen.
class CImageResizer
{
public:
    /// From fast and coarse to slow and fine.
    enum ResizeMethod : int {
        Fast = 0,     ///< Nearest neighbour.
        Filtered = 1, ///< Qt's smooth transformation.
        Bicubic = 2   ///< Convolution, see bicubicInterpolation.
    };

    /// Whether the result keeps the aspect ratio; every value except Keep ignores it.
    enum AspectRatio : int { Keep = 0, Ignore = 1 };

    /// The picture scaled to `size` by the method; another method than the three gives a null
    /// image.
    [[nodiscard]] static QImage resize(const QImage& image, const QSize& size, ResizeMethod method,
                                       AspectRatio aspect);

    /// The picture scaled by convolution: cubic along an axis that grows or stays, Lanczos (3
    /// lobes) along one that shrinks, stretched by the factor so that fine patterns do not alias.
    /// Pixels beyond an edge count as the edge's own. Colours are weighted by their alpha.
    ///
    /// The result is Format_RGB32, or Format_ARGB32_Premultiplied when the picture has alpha. With
    /// the aspect kept its size is scaled(image.size(), size). A null image, an empty size and a
    /// result of more than 2 GiB give a null image.
    [[nodiscard]] static QImage bicubicInterpolation(const QImage& image, const QSize& size,
                                                     AspectRatio aspect);

    /// Renders the resource ":/name.svg" on a transparent Format_ARGB32_Premultiplied image.
    ///
    /// The image has the requested size when neither of its sides is negative, otherwise the
    /// picture's default size times the primary screen's pixel ratio. The size is also stored in
    /// `outSize`, unless that is null. Where there is no valid picture, the image is null and the
    /// size (-1, -1).
    [[nodiscard]] static QImage svg(const QString& name, QSize* outSize,
                                    const QSize& requested = QSize());
};
