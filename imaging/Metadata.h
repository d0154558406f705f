#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/PictureSource.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// What the files of pictures say of where these come from, so that photo programs sort them by
/// their time and a still can be made again.
///
/// EXIF and XMP: the moment that the frame shows, to the millisecond, and its zone; the video's
/// name; camera, author and place, where the video's file tells them; the program. Position,
/// frame number and recipe stand in XMP under a namespace of the program's own. Nothing depends on
/// when or where the picture was made: the same frame and recipe give the same bytes.
///
/// Callable from any thread.
namespace imaging {

/// The encoded picture with metadata. Its pixels and its colour profile stay as they are.
///
/// @param content  as ImageFileWriter::encode() gives it
/// @param type     the format that it is encoded in, a suffix without dot
/// @param recipe   says how much is told
/// @param source   nothing is told where it is not known
/// @return the content as it is where there is nothing to tell, and in formats other than JPEG,
///     PNG, TIFF and WebP. Empty where memory runs out. A picture to which nothing can be added for
///     another reason is as good without: that is written to the message log.
[[nodiscard]] QByteArray withMetadata(const QByteArray& content, const QString& type,
                                      const ImageRecipe& recipe, const PictureSource& source);

/// What is needed to make a still again.
struct StillOrigin
{
    QString videoName; ///< the file's name without its folder
    QString videoPath; ///< where it was; empty where the picture does not tell
    qint64 positionMs = 0;
    ImageRecipe recipe;
    bool hadPictureWatermark = false; ///< which the recipe lacks
};

/// What the metadata of a picture's file says. Nothing where the file cannot be read or is no still
/// of this program; then `error` says so, for people. Whatever the file says, the values are sound.
[[nodiscard]] std::optional<StillOrigin> readOrigin(const QString& path, QString& error);

} // namespace imaging
