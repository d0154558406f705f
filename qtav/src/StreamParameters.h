#pragma once

#include <QtAV/BaseLayer.h>

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/Orientation.h"
#include "qtav/src/Timeline.h"

#include <QRect>

#include <optional>

namespace QtAV {

/// What the demuxer knows about a video stream and the decoder needs. Immutable once made.
class StreamParameters
{
public:
    CodecParametersPtr codec;
    Timeline timeline;
    /// Frames per second; 0/1 if the container does not state it.
    AVRational frameRate{0, 1};
    /// The container's sample aspect ratio, which takes precedence over the codec's; 0/1 = unset.
    AVRational sampleAspectRatio{0, 1};
    Orientation orientation = Orientation::Upright;
    /// The part of the stored pictures that the container declares visible.
    std::optional<QRect> cleanAperture;
    /// A picture without pixels that holds what the container states about the colours; see
    /// completeColours().
    FramePtr statedColours;
    /// The base layer according to the container, see DynamicMetadata.h.
    BaseLayer baseLayer = BaseLayer::Whole;
    /// The container announces an alpha channel beside the pictures (VP8, VP9).
    bool hasAlphaLayer = false;
};

} // namespace QtAV
