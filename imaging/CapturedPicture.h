#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/PictureSource.h"

#include <QtAV/StoredColours.h>
#include <QtAV/VideoFrame.h>

#include <QImage>

/// A captured frame with everything needed to make pictures of it later, independent of the video
/// and its decoder. A value: it may be copied to any thread.
///
/// It holds the decoder's frame or, once unpacked, only images, which can be stored in files and
/// read back without loss.
struct CapturedPicture
{
    QImage image;                ///< with 8 bits per channel, as shown; null for no picture
    QtAV::VideoFrame frame;      ///< the original frame; invalid once unpacked
    QImage deep;                 ///< with 16 bits per channel; null unless unpacked from more than
                                 ///< 8
    QImage stored;               ///< stored values of high dynamic range; null if there are none
    QtAV::StoredColours colours; ///< of `stored`
    PictureSource source;

    /// The same picture as images only. Takes as long as making up to two pictures. An image that
    /// does not fit into memory is null, see isWhole().
    [[nodiscard]] CapturedPicture unpacked() const;

    /// Whether all images that an unpacked picture needs exist.
    [[nodiscard]] bool isWhole(const QtAV::VideoFrame& origin) const;

    /// Its memory in bytes.
    [[nodiscard]] qint64 byteCount() const;
};

namespace imaging {

/// Whether a recipe uses more than the picture's 8 bits in sRGB.
[[nodiscard]] bool wantsMore(const CapturedPicture& picture, const ImageRecipe& recipe);

/// The image that a recipe starts with, as for a frame. If an unpacked picture lacks what the
/// recipe needs, the image with 8 bits.
[[nodiscard]] QImage pictureOf(const CapturedPicture& picture, const ImageRecipe& recipe);

} // namespace imaging
