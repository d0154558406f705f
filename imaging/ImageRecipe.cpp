#include "imaging/ImageRecipe.h"

#include "imaging/ImageFormats.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"

#include <algorithm>

namespace {

constexpr int textType = 0;

const WatermarkProfile* ownWatermark(const ImageProfile& profile)
{
    return qobject_cast<const WatermarkProfile*>(
        WatermarkProfile::profileManager()->profileForId(profile.watermarkProfileId()));
}

ResizeFilter filterOf(const ImageProfile& profile)
{
    switch (profile.resizeFilter()) {
    case ImageProfile::LanczosFilter:
        return ResizeFilter::Lanczos;
    case ImageProfile::BicubicFilter:
        return ResizeFilter::Bicubic;
    case ImageProfile::NearestFilter:
        return ResizeFilter::Nearest;
    default:
        return ResizeFilter::Area;
    }
}

PictureMetadata metadataOf(const ImageProfile& profile)
{
    switch (profile.metadata()) {
    case ImageProfile::MetadataAll:
        return PictureMetadata::All;
    case ImageProfile::NoMetadata:
        return PictureMetadata::None;
    default:
        return PictureMetadata::WithoutPlace;
    }
}

} // namespace

ImageRecipe forType(ImageRecipe recipe, const QString& type)
{
    recipe.keepsDeepColours = recipe.keepsDeepColours && ImageFormats::hasDepth(type);
    recipe.keepsHdr = recipe.keepsHdr && ImageFormats::hasHdr(type);
    return recipe;
}

ImageRecipe recipes::of(const ImageProfile& profile, const WatermarkProfile* watermark)
{
    ImageRecipe recipe;
    recipe.deinterlacing = profile.deinterlacing();
    recipe.keepsSize = profile.sameSizeAsVideo();
    recipe.bounds = QSize(profile.imageWidth(), profile.imageHeight());
    recipe.keepsAspectRatio = profile.maintainAspectRatio();
    recipe.resampling.filter = filterOf(profile);
    recipe.resampling.light =
        profile.resizeInLinearLight() ? ResizeLight::Linear : ResizeLight::AsCoded;
    recipe.contrast = profile.imageContrast();
    recipe.brightness = profile.imageBrightness();
    recipe.jpegQuality = profile.imageQuality();
    recipe.metadata = metadataOf(profile);
    recipe.keepsDeepColours = profile.deepColours();
    recipe.keepsHdr = profile.hdr() == ImageProfile::HdrAsStored;
    if (watermark == nullptr) {
        watermark = ownWatermark(profile);
    }
    if (watermark != nullptr) {
        recipe.watermark = of(*watermark);
    }
    return recipe;
}

WatermarkRecipe recipes::of(const WatermarkProfile& profile)
{
    const bool isText = profile.watermarkType() == textType;
    return of(profile, isText ? WatermarkRecipe::Kind::Text : WatermarkRecipe::Kind::Picture);
}

WatermarkRecipe recipes::of(const WatermarkProfile& profile, WatermarkRecipe::Kind kind)
{
    WatermarkRecipe recipe;
    recipe.kind = kind;
    recipe.alignment = profile.alignment();
    recipe.xMargin = profile.xMargin();
    recipe.yMargin = profile.yMargin();
    recipe.opacity = profile.alpha();
    recipe.widthPercent = profile.relativeSize() ? std::clamp(profile.relativeWidth(), 1, 100) : 0;
    if (kind == WatermarkRecipe::Kind::Picture) {
        recipe.picture = profile.image();
        return recipe;
    }
    recipe.text = profile.text();
    recipe.font = profile.textFont();
    recipe.textColor = profile.textColor();
    recipe.hasShadow = profile.textShadow();
    recipe.shadowColor = profile.textShadowColor();
    recipe.shadowOffset = profile.textShadowOffset();
    return recipe;
}
