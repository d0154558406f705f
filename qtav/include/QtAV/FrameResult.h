#pragma once

#include <QtAV/VideoFrame.h>

#include <QString>

#include <functional>

namespace QtAV {

/// Returns true when the current work is no longer wanted. It is called often and from the working
/// thread, so it must be quick and thread-safe.
using IsCancelled = std::function<bool()>;

/// The outcome of a request for a frame. The end of a video is never reported as a failure, nor a
/// failure as the end.
enum class FrameAnswer {
    Frame,
    End,       ///< there is no frame in that direction
    Failed,    ///< there may be a frame, but it cannot be read or decoded
    Cancelled, ///< nothing is known: the request was cancelled
};

struct FrameResult
{
    FrameAnswer answer = FrameAnswer::End;
    VideoFrame frame = {}; ///< valid only for Frame
    QString error = {};    ///< a text for people; set only for Failed
};

} // namespace QtAV
