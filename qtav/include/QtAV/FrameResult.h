#pragma once

#include <QtAV/VideoFrame.h>

#include <QString>

#include <functional>

namespace QtAV {

/// Says that what is being done is not wanted any more. Asked often and from the thread that works,
/// so it must be quick and safe to call there.
using IsCancelled = std::function<bool()>;

/// The four answers to the question for a frame. The end of a video is never a failure, nor a
/// failure the end.
enum class FrameAnswer {
    Frame,
    End,       ///< no frame comes in that direction
    Failed,    ///< there may be one, but it cannot be read or decoded
    Cancelled, ///< nothing is known: the question was withdrawn
};

struct FrameResult
{
    FrameAnswer answer = FrameAnswer::End;
    VideoFrame frame = {}; ///< valid for Frame alone
    QString error = {};    ///< a text for people; set for Failed alone
};

} // namespace QtAV
