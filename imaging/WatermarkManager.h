#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QSize>

class WatermarkProfile;

/// Draws watermarks: text with a shadow, or a picture, at one of nine places.
///
/// Keeps nothing between calls; every call paints on its own copy. A picture is read through the
/// profiles' shared cache, which one thread may use at a time: all callers are on the
/// user-interface thread.
///
/// The results are full copies of the images, which are never changed. They keep the image's
/// format, except that formats with a colour table, which cannot be painted on, become RGB32 or
/// ARGB32. A null image gives a null image; an invisible watermark (opacity 0, empty text, missing
/// picture) changes no pixel.
class WatermarkManager : public QObject
{
    Q_OBJECT

public:
    /// The only instance, made at the first call. It lives as long as the process.
    static WatermarkManager* instance();

    /// A copy of the image with the profile's watermark: text for watermark type 0, a picture for
    /// any other. The profile is not null.
    [[nodiscard]] QImage processImage(QImage& image, WatermarkProfile* profile);

    /// A copy of the image with the profile's text above its shadow. The text is laid out in the
    /// image minus the margins on all four sides.
    [[nodiscard]] QImage processTypeText(QImage& image, WatermarkProfile* profile);

    /// A copy of the image with the profile's picture, pixel by pixel at its own size.
    [[nodiscard]] QImage processTypeImage(QImage& image, WatermarkProfile* profile);

    /// The same as imaging::alignedPoint().
    [[nodiscard]] static QPoint getAlignedPoint(QSize container, QSize item,
                                                Qt::Alignment alignment, int xMargin, int yMargin);

private:
    WatermarkManager() = default;
};
