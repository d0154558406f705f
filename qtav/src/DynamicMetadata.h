#pragma once

#include <QtAV/BaseLayer.h>

#include "qtav/src/FFmpegHandles.h"

namespace QtAV {

/// What a container says of a stream's instructions for each picture.
[[nodiscard]] BaseLayer baseLayerOf(const AVStream& stream);

/// What a picture brings along itself, else what its container has said.
[[nodiscard]] BaseLayer baseLayerOf(const AVFrame& frame, BaseLayer stated);

} // namespace QtAV
