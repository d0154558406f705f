#pragma once

#include <QtGlobal>

/// The basic facts of a video file as a plain value, which may travel between threads. VideoInfo
/// says what each of them is.
struct VideoFacts
{
    qint64 duration = 0; ///< in milliseconds
    qint32 width = 0;    ///< in pixels
    qint32 height = 0;   ///< in pixels
    bool loaded = false;
};
