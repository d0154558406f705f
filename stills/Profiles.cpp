#include "stills/Profiles.h"

#include "imaging/ImageFormats.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "stills/Texts.h"

#include <QStringList>

namespace stills {

namespace {

constexpr int usualQuality = 90;

/// The profile with that name, or an error with the option's name.
template <typename Profile>
Result<const Profile*> profileNamed(const char* option, const std::string& name)
{
    const QString wanted = pathOf(name);
    QStringList known;
    for (const BaseProfile* profile : Profile::profileManager()->profiles()) {
        if (profile->name().compare(wanted, Qt::CaseInsensitive) == 0 ||
            profile->shownName().compare(wanted, Qt::CaseInsensitive) == 0) {
            return Result<const Profile*>::of(qobject_cast<const Profile*>(profile));
        }
        known += profile->shownName();
    }
    const std::string there = known.isEmpty()
                                  ? "there is none yet; make one in the window"
                                  : "there are: " + bytesOf(known.join(QStringLiteral(", ")));
    return Result<const Profile*>::failure(std::string(option) + ": there is no profile " +
                                           quoted(name) + "; " + there);
}

/// Whether the watermark needs a picture that is missing.
bool lacksPicture(const WatermarkRecipe& recipe)
{
    return recipe.kind == WatermarkRecipe::Kind::Picture && recipe.picture.isNull();
}

std::string applyImageProfile(const Options& options, const imaging::StillOrigin* like,
                              ImageRecipe& recipe)
{
    if (like != nullptr) {
        recipe = like->recipe;
    } else if (options.profile) {
        const auto profile = profileNamed<ImageProfile>("--profile", *options.profile);
        if (!profile.isGood()) {
            return profile.error;
        }
        recipe = recipes::of(**profile.value);
        if (!options.watermark && recipe.watermark && lacksPicture(*recipe.watermark)) {
            return "--profile: the picture of the watermark of " + quoted(*options.profile) +
                   " cannot be read, or is too large";
        }
    } else {
        recipe.jpegQuality = usualQuality;
    }
    if (options.watermark) {
        const auto watermark = profileNamed<WatermarkProfile>("--watermark", *options.watermark);
        if (!watermark.isGood()) {
            return watermark.error;
        }
        recipe.watermark = recipes::of(**watermark.value);
        if (lacksPicture(*recipe.watermark)) {
            return "--watermark: the picture of " + quoted(*options.watermark) +
                   " cannot be read, or is too large";
        }
    } else if (like != nullptr && like->hadPictureWatermark) {
        return "--like: " + quoted(*options.like) +
               " has a picture as its watermark, which its file does not hold; name that with "
               "--watermark";
    }
    return {};
}

ResizeFilter engineFilter(Filter filter)
{
    switch (filter) {
    case Filter::Lanczos:
        return ResizeFilter::Lanczos;
    case Filter::Bicubic:
        return ResizeFilter::Bicubic;
    case Filter::Nearest:
        return ResizeFilter::Nearest;
    case Filter::Area:
        break;
    }
    return ResizeFilter::Area;
}

PictureMetadata engineMetadata(Metadata metadata)
{
    switch (metadata) {
    case Metadata::All:
        return PictureMetadata::All;
    case Metadata::None:
        return PictureMetadata::None;
    case Metadata::WithoutPlace:
        break;
    }
    return PictureMetadata::WithoutPlace;
}

std::string applyNaming(const Options& options, Look& look)
{
    if (options.nameProfile) {
        const auto profile = profileNamed<FileNameProfile>("--name-profile", *options.nameProfile);
        if (!profile.isGood()) {
            return profile.error;
        }
        look.naming = (*profile.value)->naming();
        look.suffix = look.naming->type;
    }
    if (options.format) {
        look.suffix = pathOf(*options.format);
    }
    if (!ImageFormats::canWrite(look.suffix)) {
        return "pictures of the type " + quoted(bytesOf(look.suffix)) +
               " cannot be written on this machine; choose another --format: " +
               bytesOf(ImageFormats::suffixes().join(QStringLiteral(", ")));
    }
    return {};
}

} // namespace

Result<Look> lookOf(const Options& options, const imaging::StillOrigin* like)
{
    Look look;
    look.suffix = QStringLiteral("jpg");
    std::string error = applyImageProfile(options, like, look.recipe);
    if (error.empty()) {
        error = applyNaming(options, look);
    }
    if (!error.empty()) {
        return Result<Look>::failure(error);
    }
    if (options.size && options.makesPictures) {
        look.recipe.keepsSize = false;
        look.recipe.bounds = QSize(options.size->width, options.size->height);
        look.recipe.keepsAspectRatio = true;
        look.recipe.enlarges = options.enlarges;
    }
    if (options.deinterlacing) {
        look.recipe.deinterlacing = pathOf(*options.deinterlacing);
    }
    if (options.keepsHdr) {
        look.recipe.keepsHdr = *options.keepsHdr;
    }
    if (options.keepsHdr.value_or(false) && !ImageFormats::hasHdr(look.suffix)) {
        return Result<Look>::failure("--hdr stored needs pictures that can hold it; choose "
                                     "--format png or tiff");
    }
    if (options.quality) {
        look.recipe.jpegQuality = *options.quality;
    }
    if (options.filter) {
        look.recipe.resampling.filter = engineFilter(*options.filter);
    }
    if (options.keepsDeepColours) {
        look.recipe.keepsDeepColours = true;
    }
    if (options.isInLinearLight) {
        look.recipe.resampling.light = ResizeLight::Linear;
    }
    if (options.metadata) {
        look.recipe.metadata = engineMetadata(*options.metadata);
    }
    return Result<Look>::of(look);
}

} // namespace stills
