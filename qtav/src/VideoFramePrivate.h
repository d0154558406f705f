#pragma once

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/Orientation.h"

#include <QSharedData>
#include <QSize>

#include <memory>

namespace QtAV {

class PictureConverter;
class StreamParameters;

/// What the copies of one VideoFrame share. Immutable.
class VideoFramePrivate : public QSharedData
{
public:
    VideoFramePrivate(FramePtr picture, qint64 ticks,
                      const std::shared_ptr<const StreamParameters>& parameters,
                      std::shared_ptr<PictureConverter> converter);

    /// The same frame with a smaller picture.
    VideoFramePrivate(const VideoFramePrivate& whole, FramePtr smaller);

    const FramePtr frame;
    const double seconds;
    const Orientation orientation;
    const QSize squareSize; ///< of the decoded picture, with square pixels
    const bool isScaledDown = false;
    const std::shared_ptr<PictureConverter> converter;
};

} // namespace QtAV
