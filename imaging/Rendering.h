#pragma once

#include "imaging/FilePublisher.h"
#include "imaging/ImageRecipe.h"
#include "imaging/PictureSource.h"

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>

/// The only way from a frame to the picture that is shown, copied and saved, and to its file.
/// Stateless: all functions may be called concurrently from any thread.
namespace imaging {

/// The result of render(): an image or an error.
struct Rendering
{
    QImage image;  ///< null on failure
    QString error; ///< the reason, for people; empty on success
};

/// Applies a recipe to an image: contrast and brightness, then the size, then the watermark. The
/// result shares no data with the image.
///
/// Contrast c multiplies every sample by 1 + c / 200 if it is negative, otherwise by 1 + c / 40;
/// the brightness is added after that. Alpha is treated like the other samples, so pass opaque
/// pictures in a format with three channels: otherwise a lower contrast or brightness would make
/// them see-through. (Format_RGB32 has four.) Images with three channels give Format_RGB888, with
/// four Format_ARGB32, with one Format_Indexed8 (greys).
///
/// An image with 16 bits per channel is reduced to 8, unless the recipe keeps deep colours: then an
/// opaque one gives Format_RGBX64, whose fourth channel no correction changes, and one with alpha
/// Format_RGBA64. Brightness means the same as with 8 bits. Stored values of high dynamic range are
/// kept too, and corrections are applied to these values.
///
/// A null image is a failure, and so is a lack of memory: no exception leaves this function. An
/// image that is moved in and not changed is not copied.
[[nodiscard]] Rendering render(QImage image, const ImageRecipe& recipe);

/// A full copy of the image with the watermark. It keeps the image's format, except that formats
/// with a colour table, which cannot be painted on, become RGB32 or ARGB32. A null image gives a
/// null image; an invisible watermark changes no pixel.
[[nodiscard]] QImage watermarked(const QImage& image, const WatermarkRecipe& recipe);

/// Encodes an unchanged image in the format of a suffix, with the quality as in save(). Empty for a
/// null image, a format that cannot be written, and if memory runs out.
[[nodiscard]] QByteArray encode(const QImage& image, int jpegQuality, const QString& type);

/// Writes an unchanged image to a file, in the format of the file name's suffix. The quality, 0 to
/// 100, is used if the type is "jpg" or "jpeg", case-insensitive. See ImageFileWriter.
[[nodiscard]] WriteResult save(const QString& fileName, const QImage& image, int jpegQuality,
                               const QString& type, ExistingFile existing);

/// Like above with a recipe, which determines the quality and how much the file tells about the
/// picture's source.
[[nodiscard]] QByteArray encode(const QImage& image, const ImageRecipe& recipe, const QString& type,
                                const PictureSource& source);
[[nodiscard]] WriteResult save(const QString& fileName, const QImage& image,
                               const ImageRecipe& recipe, const QString& type,
                               const PictureSource& source, ExistingFile existing,
                               WriteFailure* failure = nullptr);

/// Whether a recipe's quality affects files of this type: a suffix, case-insensitive.
[[nodiscard]] bool usesQuality(const QString& type);

/// The top left corner of an item in a container, in pixels.
///
/// The margins count from the edges that the item is aligned to; a centred axis has none, and half
/// pixels are truncated towards zero. Without a flag for an axis the item is left or top. Right
/// takes precedence over centre, bottom over centre. An item larger than the container may have
/// negative coordinates.
[[nodiscard]] QPoint alignedPoint(QSize container, QSize item, Qt::Alignment alignment, int xMargin,
                                  int yMargin);

} // namespace imaging
