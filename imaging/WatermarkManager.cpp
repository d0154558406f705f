#include "imaging/WatermarkManager.h"

#include "profiles/WatermarkProfile.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QTextOption>

namespace {

constexpr int TextType = 0;
constexpr float OpaqueAlpha = 255.0F;

/// A copy of the image that a painter can work on.
QImage paintableCopy(const QImage& image)
{
    const bool hasColorTable = image.format() == QImage::Format_Indexed8 ||
                               image.format() == QImage::Format_Mono ||
                               image.format() == QImage::Format_MonoLSB;
    if (!hasColorTable)
        return image.copy();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                         : QImage::Format_RGB32);
}

qreal opacityOf(const WatermarkProfile& profile)
{
    return static_cast<qreal>(static_cast<float>(profile.alpha()) / OpaqueAlpha);
}

/// Painting with opacity 0 is left out: on images with alpha it is not without effect, since every
/// touched pixel goes through premultiplied colours and back.
bool isVisible(const WatermarkProfile& profile)
{
    return profile.alpha() > 0;
}

void drawText(QImage& image, const WatermarkProfile& profile)
{
    const QString text = profile.text();
    const QFont font = profile.textFont();
    const Qt::Alignment alignment = profile.alignment();
    const QRect area = image.rect().adjusted(profile.xMargin(), profile.yMargin(),
                                             -profile.xMargin(), -profile.yMargin());

    QPainter painter(&image);
    const QFontMetrics metrics(font, painter.device());
    const QRectF textRect = metrics.boundingRect(area, static_cast<int>(alignment), text);
    const QTextOption option(alignment);

    painter.setOpacity(opacityOf(profile));
    painter.setFont(font);
    painter.setPen(QPen(profile.textShadowColor()));
    painter.drawText(textRect.translated(profile.textShadowOffset()), text, option);
    painter.setPen(QPen(profile.textColor()));
    painter.drawText(textRect, text, option);
}

} // namespace

WatermarkManager* WatermarkManager::instance()
{
    static auto* const manager = new WatermarkManager;
    return manager;
}

QImage WatermarkManager::processImage(QImage& image, WatermarkProfile* profile)
{
    return profile->watermarkType() == TextType ? processTypeText(image, profile)
                                                : processTypeImage(image, profile);
}

QImage WatermarkManager::processTypeText(QImage& image, WatermarkProfile* profile)
{
    QImage result = paintableCopy(image);
    if (!result.isNull() && isVisible(*profile) && !profile->text().isEmpty())
        drawText(result, *profile);
    return result;
}

QImage WatermarkManager::processTypeImage(QImage& image, WatermarkProfile* profile)
{
    QImage picture = profile->image();
    QImage result = paintableCopy(image);
    if (result.isNull() || picture.isNull() || !isVisible(*profile))
        return result;
    // A picture named like "logo@2x.png" is loaded with a pixel ratio that would shrink it.
    picture.setDevicePixelRatio(1.0);

    const QPoint position = getAlignedPoint(result.size(), picture.size(), profile->alignment(),
                                            profile->xMargin(), profile->yMargin());
    QPainter painter(&result);
    painter.setOpacity(opacityOf(*profile));
    painter.drawImage(QPointF(position), picture);
    return result;
}

QPoint WatermarkManager::getAlignedPoint(QSize container, QSize item, Qt::Alignment alignment,
                                         int xMargin, int yMargin)
{
    const int freeWidth = container.width() - item.width();
    const int freeHeight = container.height() - item.height();
    QPoint point(xMargin, yMargin);
    if (alignment.testFlag(Qt::AlignRight))
        point.setX(freeWidth - xMargin);
    else if (alignment.testFlag(Qt::AlignHCenter))
        point.setX(freeWidth / 2);
    if (alignment.testFlag(Qt::AlignBottom))
        point.setY(freeHeight - yMargin);
    else if (alignment.testFlag(Qt::AlignVCenter))
        point.setY(freeHeight / 2);
    return point;
}
