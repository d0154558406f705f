#include "stills/Profiles.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "stills/Texts.h"

#include <QImageWriter>
#include <QStringList>

namespace stills {

namespace {

constexpr int usualQuality = 90;

/// The profile of that name; else an error under the option's name.
template <typename Profile>
Result<const Profile*> profileNamed(const char* option, const std::string& name)
{
    const QString wanted = pathOf(name);
    QStringList known;
    for (const BaseProfile* profile : Profile::profileManager()->profiles()) {
        if (profile->name().compare(wanted, Qt::CaseInsensitive) == 0) {
            return Result<const Profile*>::of(qobject_cast<const Profile*>(profile));
        }
        known += profile->name();
    }
    const std::string there = known.isEmpty()
                                  ? "there is none yet; make one in the window"
                                  : "there are: " + bytesOf(known.join(QStringLiteral(", ")));
    return Result<const Profile*>::failure(std::string(option) + ": there is no profile " +
                                           quoted(name) + "; " + there);
}

std::string applyImageProfile(const Options& options, ImageRecipe& recipe)
{
    if (options.profile) {
        const auto profile = profileNamed<ImageProfile>("--profile", *options.profile);
        if (!profile.isGood()) {
            return profile.error;
        }
        recipe = recipes::of(**profile.value);
    } else {
        recipe.jpegQuality = usualQuality;
    }
    if (options.watermark) {
        const auto watermark = profileNamed<WatermarkProfile>("--watermark", *options.watermark);
        if (!watermark.isGood()) {
            return watermark.error;
        }
        recipe.watermark = recipes::of(**watermark.value);
    }
    return {};
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
    const QByteArray format = look.suffix.toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format)) {
        return "pictures of the type " + quoted(bytesOf(look.suffix)) +
               " cannot be written on this machine; choose another --format";
    }
    return {};
}

} // namespace

Result<Look> lookOf(const Options& options)
{
    Look look;
    look.suffix = QStringLiteral("jpg");
    std::string error = applyImageProfile(options, look.recipe);
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
    if (options.quality) {
        look.recipe.jpegQuality = *options.quality;
    }
    return Result<Look>::of(look);
}

} // namespace stills
