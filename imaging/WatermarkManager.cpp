#include "imaging/WatermarkManager.h"

#include "imaging/Rendering.h"

WatermarkManager* WatermarkManager::instance()
{
    static auto* const manager = new WatermarkManager;
    return manager;
}

QImage WatermarkManager::processImage(QImage& image, WatermarkProfile* profile)
{
    return imaging::watermarked(image, recipes::of(*profile));
}

QImage WatermarkManager::processTypeText(QImage& image, WatermarkProfile* profile)
{
    return imaging::watermarked(image, recipes::of(*profile, WatermarkRecipe::Kind::Text));
}

QImage WatermarkManager::processTypeImage(QImage& image, WatermarkProfile* profile)
{
    return imaging::watermarked(image, recipes::of(*profile, WatermarkRecipe::Kind::Picture));
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
