#pragma once

#include <cstdint>
#include <vector>

/// One place in a video, as people say it.
struct FramePosition
{
    enum class Kind {
        Milliseconds, ///< the first frame at or after `value` milliseconds
        Percent,      ///< the same, `value` per cent of the video's length, 0 to 100
        FrameNumber,  ///< the frame number `value`, counted from 0 in the order shown
        Last,         ///< the last frame
    };

    Kind kind = Kind::Milliseconds;
    double value = 0.0;
};

/// A stretch at the start or the end of a video that gives no pictures.
struct SeriesSkip
{
    enum class Unit { Milliseconds, Percent };

    Unit unit = Unit::Milliseconds;
    double value = 0.0;
};

/// Which frames of a video are asked for. A plain value, the same for any number of videos; without
/// Qt, so that a program can read its arguments before it loads any large library.
struct FramePositions
{
    enum class Kind {
        Every,     ///< every `everyMs` milliseconds, from the end of the skipped front on
        Spread,    ///< `count` of them: the middles of as many equal parts
        List,      ///< those of `list`
        KeyFrames, ///< all key frames
        Scenes,    ///< the first frame of each scene
        Best,      ///< `count` of them: the sharpest of as many equal parts, see FrameQuality
    };

    Kind kind = Kind::Spread;
    std::int64_t everyMs = 5000; ///< 1 or more
    int count = 10;              ///< 1 or more
    std::vector<FramePosition> list;
    double sceneThreshold = 0.3; ///< above 0, up to 1: how different a new scene's first frame is
    SeriesSkip front;            ///< no meaning for List
    SeriesSkip back;             ///< likewise
};
