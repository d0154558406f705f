#include "series/SeriesPictures.h"

#include "imaging/FramePicture.h"
#include "imaging/Rendering.h"

#include <QCoreApplication>

namespace {

QImage thumbnailOf(const QImage& image, const QSize& bounds)
{
    const QSize size = image.size().scaled(bounds, Qt::KeepAspectRatio);
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The picture for a screen: stored HDR values are none.
QImage shownPicture(const imaging::Rendering& made, const ImageRecipe& recipe,
                    const QtAV::VideoFrame& frame)
{
    if (!recipe.keepsHdr || !frame.storedColours().isHdr()) {
        return made.image;
    }
    ImageRecipe shown = recipe;
    shown.keepsHdr = false;
    return imaging::render(imaging::pictureOf(frame, shown), shown).image;
}

} // namespace

void series::makePicture(SeriesPicture& picture, const SeriesJob& job,
                         const QtAV::VideoFrame& frame, const PictureSource& source)
{
    const ImageRecipe recipe = forType(job.recipe, job.type);
    const imaging::Rendering made = imaging::render(imaging::pictureOf(frame, recipe), recipe);
    picture.size = made.image.size();
    picture.error = made.error;
    if (made.image.isNull()) {
        return;
    }
    if (!job.type.isEmpty()) {
        picture.content = imaging::encode(made.image, recipe, job.type, source);
        if (picture.content.isEmpty()) {
            picture.error =
                QCoreApplication::translate("series", "The picture could not be encoded as %1.")
                    .arg(job.type);
            return;
        }
    }
    if (!job.thumbnail.isEmpty() || job.keepsImage) {
        const QImage shown = shownPicture(made, recipe, frame);
        picture.thumbnail = job.thumbnail.isEmpty() ? QImage() : thumbnailOf(shown, job.thumbnail);
        picture.image = job.keepsImage ? shown : QImage();
    }
}
