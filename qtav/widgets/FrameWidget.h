#pragma once

#include <QtAV/VideoFrame.h>

#include <QRect>
#include <QSize>

namespace QtAV {

/// What VideoOutput asks of the widgets that it shows frames in.
class FrameWidget
{
public:
    virtual ~FrameWidget() = default;

    /// Shows a frame from the next repaint on; an invalid one for black.
    virtual void setFrame(const VideoFrame& frame) = 0;
};

/// Where a picture goes on a screen of the same unit: in the middle, as large as fits, with its own
/// proportions. Empty when either is.
[[nodiscard]] QRect letterboxed(const QSize& picture, const QSize& screen);

} // namespace QtAV
