#include "imaging/HdrColours.h"
#include "imaging/Rendering.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QTextOption>

#include <algorithm>

namespace {

constexpr float opaque = 255.0F;

/// A copy of the image that a painter can work on.
QImage paintableCopy(const QImage& image)
{
    const bool hasColorTable = image.format() == QImage::Format_Indexed8 ||
                               image.format() == QImage::Format_Mono ||
                               image.format() == QImage::Format_MonoLSB;
    if (!hasColorTable) {
        return image.copy();
    }
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                         : QImage::Format_RGB32);
}

qreal opacityOf(const WatermarkRecipe& recipe)
{
    return static_cast<qreal>(static_cast<float>(recipe.opacity) / opaque);
}

void drawTextAndShadow(QPainter& painter, const QFont& font, const QRectF& textRect,
                       const QTextOption& option, const WatermarkRecipe& recipe)
{
    painter.setOpacity(opacityOf(recipe));
    painter.setFont(font);
    if (recipe.hasShadow) {
        painter.setPen(QPen(recipe.shadowColor));
        painter.drawText(textRect.translated(recipe.shadowOffset), recipe.text, option);
    }
    painter.setPen(QPen(recipe.textColor));
    painter.drawText(textRect, recipe.text, option);
}

/// The font in the size at which the widest line of the text has its fraction of the image's width,
/// or the whole text the image's height, whichever is smaller. A text without a width, such as one
/// of line breaks only, leaves the font unchanged.
QFont fittedFont(const QImage& image, const WatermarkRecipe& recipe)
{
    constexpr int measuredSize = 100;
    QFont font = recipe.font;
    // Hinted letters do not grow in proportion.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(measuredSize);
    const QSizeF measured = QFontMetricsF(font, &image).size(0, recipe.text);
    if (measured.isEmpty()) {
        return recipe.font;
    }
    const double width = image.width() * recipe.widthPercent / 100.0;
    const double factor =
        std::min(width / measured.width(), static_cast<double>(image.height()) / measured.height());
    constexpr double pointsPerInch = 72.0;
    // Only sizes in points may have a fraction.
    font.setPointSizeF(measuredSize * factor * pointsPerInch / image.logicalDpiY());
    return font;
}

void drawFittedText(QImage& image, const WatermarkRecipe& recipe)
{
    const QFont font = fittedFont(image, recipe);
    const QRectF area =
        QRectF(image.rect())
            .adjusted(recipe.xMargin, recipe.yMargin, -recipe.xMargin, -recipe.yMargin);
    QPainter painter(&image);
    const QFontMetricsF metrics(font, painter.device());
    const QRectF textRect =
        metrics.boundingRect(area, static_cast<int>(recipe.alignment), recipe.text);
    QTextOption option(recipe.alignment);
    // The rectangle is exactly as wide as the text: no line breaks for a fraction of a pixel.
    option.setWrapMode(QTextOption::ManualWrap);
    drawTextAndShadow(painter, font, textRect, option, recipe);
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

    drawTextAndShadow(painter, recipe.font, textRect, option, recipe);
}

/// The picture in the size that the recipe requests; never null, and never larger than the image
/// unless it has its own size.
QImage sizedPicture(const QSize& image, const WatermarkRecipe& recipe)
{
    QImage picture = recipe.picture;
    // Qt loads a picture named like "logo@2x.png" with a pixel ratio that would shrink it.
    picture.setDevicePixelRatio(1.0);
    if (recipe.widthPercent <= 0) {
        return picture;
    }
    const double width = image.width() * recipe.widthPercent / 100.0;
    const double factor =
        std::min(width / picture.width(), static_cast<double>(image.height()) / picture.height());
    const QSize size(qRound(picture.width() * factor), qRound(picture.height() * factor));
    return picture.scaled(size.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void drawPicture(QImage& image, const WatermarkRecipe& recipe)
{
    const QImage picture = sizedPicture(image.size(), recipe);
    const QPoint position = imaging::alignedPoint(image.size(), picture.size(), recipe.alignment,
                                                  recipe.xMargin, recipe.yMargin);
    QPainter painter(&image);
    painter.setOpacity(opacityOf(recipe));
    painter.drawImage(QPointF(position), picture);
}

void draw(QImage& image, const WatermarkRecipe& recipe)
{
    if (recipe.kind == WatermarkRecipe::Kind::Picture) {
        drawPicture(image, recipe);
    } else if (recipe.widthPercent > 0) {
        drawFittedText(image, recipe);
    } else {
        drawText(image, recipe);
    }
}

/// Skips painting with opacity 0: on images with alpha it is not a no-op, because every touched
/// pixel is converted to premultiplied colours and back.
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
    if (result.isNull() || !isVisible(recipe)) {
        return result;
    }
    const auto hdr = HdrColours::of(image);
    if (!hdr) {
        draw(result, recipe);
        return result;
    }
    QImage layer(image.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    layer.setDotsPerMeterX(image.dotsPerMeterX());
    layer.setDotsPerMeterY(image.dotsPerMeterY());
    if (layer.isNull()) {
        return layer;
    }
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
    if (alignment.testFlag(Qt::AlignRight)) {
        point.setX(freeWidth - xMargin);
    } else if (alignment.testFlag(Qt::AlignHCenter)) {
        point.setX(freeWidth / 2);
    }
    if (alignment.testFlag(Qt::AlignBottom)) {
        point.setY(freeHeight - yMargin);
    } else if (alignment.testFlag(Qt::AlignVCenter)) {
        point.setY(freeHeight / 2);
    }
    return point;
}
