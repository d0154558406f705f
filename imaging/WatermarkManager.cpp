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
    return imaging::alignedPoint(container, item, alignment, xMargin, yMargin);
}
