#pragma once

#include "imaging/FilePublisher.h"
#include "imaging/ImageRecipe.h"
#include "imaging/PictureSource.h"

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>

/// The one way from a frame to the picture that is shown, copied and saved, and to its file.
/// Without state: all functions may be called from any thread, also at the same time.
namespace imaging {

struct Rendering
{
    QImage image;  ///< null after a failure
    QString error; ///< why, for people; empty after a success
};

/// The picture that a recipe makes of an image: contrast and brightness, then the size, then the
/// watermark. The result shares nothing with the image.
///
/// Contrast c multiplies every sample by 1 + c / 200 where it is negative, by 1 + c / 40 where it
/// is not; the brightness is added after that. Alpha is a sample like the others, so that an opaque
/// picture has to come in a format of three channels: else a lower contrast or brightness would
/// make it see-through. (Format_RGB32 has four.) Images of three channels give Format_RGB888, of
/// four Format_ARGB32, of one Format_Indexed8 (greys).
///
/// An image of 16 bits a channel becomes one of 8, unless the recipe keeps deep colours: then an
/// opaque one gives Format_RGBX64, whose fourth channel no correction touches, and one with alpha
/// Format_RGBA64. Brightness means the same as with 8 bits. What keeps the values of high dynamic
/// range stays so too, and corrections are applied to these values.
///
/// A null image is a failure, and so is a lack of memory: no exception leaves this function. An
/// image that is moved in, and of which nothing changes, is not copied.
[[nodiscard]] Rendering render(QImage image, const ImageRecipe& recipe);

/// A full copy of the image with the watermark. It has the image's format, except that formats with
/// a colour table, which cannot be painted on, become RGB32 or ARGB32. A null image gives a null
/// image; a watermark that cannot be seen leaves every pixel as it is.
[[nodiscard]] QImage watermarked(const QImage& image, const WatermarkRecipe& recipe);

/// An image as it is, encoded in the format that a file name's suffix would stand for; the quality
/// as in save(). Empty for a null image, a format that cannot be written, and a lack of memory.
[[nodiscard]] QByteArray encode(const QImage& image, int jpegQuality, const QString& type);

/// Writes an image as it is to a file, in the format of the file name's suffix. The quality, 0 to
/// 100, is used where the type is "jpg" or "jpeg", in capitals or not. See ImageFileWriter.
[[nodiscard]] WriteResult save(const QString& fileName, const QImage& image, int jpegQuality,
                               const QString& type, ExistingFile existing);

/// The same by a recipe, which says the quality and how much the file tells of its picture's
/// source.
[[nodiscard]] QByteArray encode(const QImage& image, const ImageRecipe& recipe, const QString& type,
                                const PictureSource& source);
[[nodiscard]] WriteResult save(const QString& fileName, const QImage& image,
                               const ImageRecipe& recipe, const QString& type,
                               const PictureSource& source, ExistingFile existing,
                               WriteFailure* failure = nullptr);

/// A recipe's quality matters for files of this type: a suffix, in capitals or not.
[[nodiscard]] bool usesQuality(const QString& type);

/// The top left corner of an item in a container, in pixels.
///
/// The margins count from the edges that the item is aligned to; a centred axis has none, and half
/// pixels are cut towards zero. Without a flag for an axis the item is left or top. Right goes
/// before centre, bottom before centre. An item larger than the container may lie at negative
/// coordinates.
[[nodiscard]] QPoint alignedPoint(QSize container, QSize item, Qt::Alignment alignment, int xMargin,
                                  int yMargin);

} // namespace imaging
