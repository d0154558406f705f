#include "imaging/FramePicture.h"

#include "imaging/HdrColours.h"

namespace {

bool keepsHdr(const QtAV::VideoFrame& frame, const ImageRecipe& recipe)
{
    return recipe.keepsHdr && frame.storedColours().isHdr();
}

} // namespace

QImage imaging::pictureOf(const QtAV::VideoFrame& frame, const ImageRecipe& recipe)
{
    if (!keepsHdr(frame, recipe)) {
        return frame.toImage(recipe.keepsDeepColours ? frame.deepImageFormat()
                                                     : frame.imageFormat());
    }
    QImage image = frame.toStoredImage();
    image.setColorSpace(HdrColours::colorSpaceOf(frame.storedColours()));
    return image;
}

bool imaging::wantsMore(const QtAV::VideoFrame& frame, const ImageRecipe& recipe)
{
    const bool isDeep = recipe.keepsDeepColours && frame.deepImageFormat() != frame.imageFormat();
    return isDeep || keepsHdr(frame, recipe);
}
