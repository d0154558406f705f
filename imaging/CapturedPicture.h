#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/PictureSource.h"

#include <QtAV/StoredColours.h>
#include <QtAV/VideoFrame.h>

#include <QImage>

/// A frame that was captured, with all that later pictures of it can be made of. It needs neither
/// the video nor its decoder any more. A value: it may be copied to any thread.
///
/// It comes as the decoder's frame, or unpacked: as images alone, which can be written to files and
/// read back without a loss.
struct CapturedPicture
{
    QImage image;                ///< in 8 bits a channel, as it is shown; null for no picture
    QtAV::VideoFrame frame;      ///< what it was made of; invalid once unpacked
    QImage deep;                 ///< in 16 bits a channel; null unless unpacked from more than 8
    QImage stored;               ///< the values of high dynamic range; null where there are none
    QtAV::StoredColours colours; ///< of `stored`
    PictureSource source;

    /// The same as images alone. Takes as long as making up to two pictures. A picture that there
    /// is no memory for is null, see isWhole().
    [[nodiscard]] CapturedPicture unpacked() const;

    /// How many images an unpacked picture has to hold: all of them are there.
    [[nodiscard]] bool isWhole(const QtAV::VideoFrame& origin) const;

    /// The memory that it takes, in bytes.
    [[nodiscard]] qint64 byteCount() const;
};

namespace imaging {

/// Whether a recipe uses more than the picture's 8 bits in sRGB.
[[nodiscard]] bool wantsMore(const CapturedPicture& picture, const ImageRecipe& recipe);

/// The image that a recipe begins with, as for a frame. Where a picture that was unpacked lacks
/// what the recipe wants, its 8 bits.
[[nodiscard]] QImage pictureOf(const CapturedPicture& picture, const ImageRecipe& recipe);

} // namespace imaging
