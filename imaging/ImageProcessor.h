#pragma once

#include <QImage>

/// A place for adjustments of single images that need state of their own. None does yet, so nothing
/// calls it; the adjustments in use are those of ImageProcessingManager.
class ImageProcessor
{
public:
    ImageProcessor() = default;

    /// Always a null image: there is no picture to adjust.
    [[nodiscard]] QImage brightnessContrast(int brightness, double contrast);
};
