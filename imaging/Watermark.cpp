#include "imaging/HdrColours.h"
#include "imaging/Rendering.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QTextOption>

namespace {

constexpr float opaque = 255.0F;

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

qreal opacityOf(const WatermarkRecipe& recipe)
{
    return static_cast<qreal>(static_cast<float>(recipe.opacity) / opaque);
}

void drawText(QImage& image, const WatermarkRecipe& recipe)
{
    const QRect area =
        image.rect().adjusted(recipe.xMargin, recipe.yMargin, -recipe.xMargin, -recipe.yMargin);
    QPainter painter(&image);
    const QFontMetrics metrics(recipe.font, painter.device());
    const QRectF textRect =
        metrics.boundingRect(area, static_cast<int>(recipe.alignment), recipe.text);
    const QTextOption option(recipe.alignment);

    painter.setOpacity(opacityOf(recipe));
    painter.setFont(recipe.font);
    painter.setPen(QPen(recipe.shadowColor));
    painter.drawText(textRect.translated(recipe.shadowOffset), recipe.text, option);
    painter.setPen(QPen(recipe.textColor));
    painter.drawText(textRect, recipe.text, option);
}

void drawPicture(QImage& image, const WatermarkRecipe& recipe)
{
    QImage picture = recipe.picture;
    // A picture named like "logo@2x.png" is loaded with a pixel ratio that would shrink it.
    picture.setDevicePixelRatio(1.0);
    const QPoint position = imaging::alignedPoint(image.size(), picture.size(), recipe.alignment,
                                                  recipe.xMargin, recipe.yMargin);
    QPainter painter(&image);
    painter.setOpacity(opacityOf(recipe));
    painter.drawImage(QPointF(position), picture);
}

void draw(QImage& image, const WatermarkRecipe& recipe)
{
    if (recipe.kind == WatermarkRecipe::Kind::Text)
        drawText(image, recipe);
    else
        drawPicture(image, recipe);
}

/// Painting with opacity 0 is left out: on images with alpha it is not without effect, since every
/// touched pixel goes through premultiplied colours and back.
bool isVisible(const WatermarkRecipe& recipe)
{
    const bool isThere = recipe.kind == WatermarkRecipe::Kind::Text ? !recipe.text.isEmpty()
                                                                    : !recipe.picture.isNull();
    return isThere && recipe.opacity > 0;
}

} // namespace

QImage imaging::watermarked(const QImage& image, const WatermarkRecipe& recipe)
{
    QImage result = paintableCopy(image);
    if (result.isNull() || !isVisible(recipe))
        return result;
    const auto hdr = HdrColours::of(image);
    if (!hdr) {
        draw(result, recipe);
        return result;
    }
    QImage layer(image.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    layer.setDotsPerMeterX(image.dotsPerMeterX());
    layer.setDotsPerMeterY(image.dotsPerMeterY());
    if (layer.isNull())
        return layer;
    draw(layer, recipe);
    HdrColours::drawOver(result, layer, *hdr);
    return result;
}

QPoint imaging::alignedPoint(QSize container, QSize item, Qt::Alignment alignment, int xMargin,
                             int yMargin)
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
