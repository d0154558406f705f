#pragma once

#include "imaging/PictureSource.h"
#include "series/SeriesRunner.h"

#include <QtAV/VideoFrame.h>

namespace series {

/// Renders a frame as the job wants it and encodes it; on failure, sets the picture's error
/// instead. Callable from any thread. Throws std::bad_alloc where memory runs out.
void makePicture(SeriesPicture& picture, const SeriesJob& job, const QtAV::VideoFrame& frame,
                 const PictureSource& source);

} // namespace series
