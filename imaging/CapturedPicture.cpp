#include "imaging/CapturedPicture.h"

#include "imaging/FramePicture.h"
#include "imaging/HdrColours.h"

namespace {

bool isDeep(const QtAV::VideoFrame& frame)
{
    return frame.deepImageFormat() != frame.imageFormat();
}

bool isHdr(const QtAV::VideoFrame& frame)
{
    return frame.isValid() && frame.storedColours().isHdr();
}

} // namespace

CapturedPicture CapturedPicture::unpacked() const
{
    CapturedPicture result = *this;
    if (!frame.isValid()) {
        return result;
    }
    result.frame = QtAV::VideoFrame();
    if (isDeep(frame)) {
        result.deep = frame.toImage(frame.deepImageFormat());
    }
    if (isHdr(frame)) {
        result.stored = frame.toStoredImage();
        result.colours = frame.storedColours();
    }
    return result;
}

bool CapturedPicture::isWhole(const QtAV::VideoFrame& origin) const
{
    return !image.isNull() && (!isDeep(origin) || !deep.isNull()) &&
           (!isHdr(origin) || !stored.isNull());
}

qint64 CapturedPicture::byteCount() const
{
    return image.sizeInBytes() + frame.byteCount() + deep.sizeInBytes() + stored.sizeInBytes();
}

bool imaging::wantsMore(const CapturedPicture& picture, const ImageRecipe& recipe)
{
    if (picture.frame.isValid()) {
        return wantsMore(picture.frame, recipe);
    }
    return (recipe.keepsDeepColours && !picture.deep.isNull()) ||
           (recipe.keepsHdr && !picture.stored.isNull());
}

QImage imaging::pictureOf(const CapturedPicture& picture, const ImageRecipe& recipe)
{
    if (picture.frame.isValid()) {
        return pictureOf(picture.frame, recipe);
    }
    if (recipe.keepsHdr && !picture.stored.isNull()) {
        QImage image = picture.stored;
        image.setColorSpace(HdrColours::colorSpaceOf(picture.colours));
        return image;
    }
    return recipe.keepsDeepColours && !picture.deep.isNull() ? picture.deep : picture.image;
}
