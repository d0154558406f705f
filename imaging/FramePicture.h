#pragma once

#include "imaging/ImageRecipe.h"

#include <QtAV/VideoFrame.h>

#include <QImage>

namespace imaging {

/// The image of a frame that a recipe begins with: in 8 bits a channel, in as many as the picture
/// has, or in the values as they are stored, with their colour space. A null image where there is
/// no memory for it, or no frame. Callable from any thread.
[[nodiscard]] QImage pictureOf(const QtAV::VideoFrame& frame, const ImageRecipe& recipe);

/// Whether that is another one than 8 bits in sRGB.
[[nodiscard]] bool wantsMore(const QtAV::VideoFrame& frame, const ImageRecipe& recipe);

} // namespace imaging
