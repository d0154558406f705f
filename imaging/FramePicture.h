#pragma once

#include "imaging/ImageRecipe.h"

#include <QtAV/VideoFrame.h>

#include <QImage>

namespace imaging {

/// The image of a frame that a recipe starts with: with 8 bits per channel, with as many as the
/// picture has, or with its stored values and their colour space. Null for an invalid frame, or if
/// memory runs out. Callable from any thread.
[[nodiscard]] QImage pictureOf(const QtAV::VideoFrame& frame, const ImageRecipe& recipe);

/// Whether a recipe needs anything other than 8 bits in sRGB.
[[nodiscard]] bool wantsMore(const QtAV::VideoFrame& frame, const ImageRecipe& recipe);

} // namespace imaging
