#include "imaging/ImageProcessor.h"

QImage ImageProcessor::brightnessContrast(int /*brightness*/, double /*contrast*/)
{
    return {};
}
