#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/PictureSource.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Metadata in the files of pictures about their origin, so that photo programs can sort them by
/// time and a still can be made again.
///
/// EXIF and XMP contain: the moment that the frame shows, to the millisecond, with its zone; the
/// video's name; camera, author and place, if the video's file states them; the program. Position,
/// frame number and recipe are stored in XMP under the program's own namespace. Nothing depends on
/// when or where the picture was made: the same frame and recipe give the same bytes.
///
/// Callable from any thread.
namespace imaging {

/// Adds metadata to the encoded picture. Its pixels and its colour profile stay unchanged.
///
/// @param content  as returned by ImageFileWriter::encode()
/// @param type     its format, a suffix without dot
/// @param recipe   says how much is stored
/// @param source   nothing is stored if it is unknown
/// @return the unchanged content if there is nothing to store, and in formats other than JPEG, PNG,
///     TIFF and WebP. Empty if memory runs out. If metadata cannot be added for another reason, a
///     message is logged and the picture is returned without it.
[[nodiscard]] QByteArray withMetadata(QByteArray content, const QString& type,
                                      const ImageRecipe& recipe, const PictureSource& source);

/// What is needed to make a still again.
struct StillOrigin
{
    QString videoName; ///< the file's name without its folder
    QString videoPath; ///< its original path; empty if the picture does not contain it
    qint64 positionMs = 0;
    ImageRecipe recipe;
    bool hadPictureWatermark = false; ///< which the recipe does not include
};

/// Reads the metadata of a picture's file. Nothing if the file cannot be read or is not a still of
/// this program; `error` then has a text for people. All values are validated, whatever the file
/// contains.
[[nodiscard]] std::optional<StillOrigin> readOrigin(const QString& path, QString& error);

} // namespace imaging
