#pragma once

#include <QImage>

/// Reserved for adjustments of single images that need state of their own. There are none yet; the
/// calls it; the adjustments in use are those of ImageProcessingManager.
class ImageProcessor
{
public:
    ImageProcessor() = default;

    /// Always a null image: there is no picture to adjust.
    [[nodiscard]] QImage brightnessContrast(int brightness, double contrast);
};
