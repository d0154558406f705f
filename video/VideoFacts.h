#pragma once

#include <QtGlobal>

/// Basic properties of a video file as a plain value that may be passed between threads. They are
/// documented in VideoInfo.
struct VideoFacts
{
    qint64 duration = 0; ///< in milliseconds
    qint32 width = 0;    ///< in pixels
    qint32 height = 0;   ///< in pixels
    bool loaded = false;
};
