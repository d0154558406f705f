#pragma once

#include <QtAV/BaseLayer.h>

#include "qtav/src/FFmpegHandles.h"

namespace QtAV {

/// The base layer according to what a container states about a stream's instructions for each
/// picture.
[[nodiscard]] BaseLayer baseLayerOf(const AVStream& stream);

/// The base layer according to the instructions of a picture itself, otherwise the stated one.
[[nodiscard]] BaseLayer baseLayerOf(const AVFrame& frame, BaseLayer stated);

} // namespace QtAV
