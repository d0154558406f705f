#pragma once

#include <cstdint>
#include <vector>

/// A position in a video, as people specify it.
struct FramePosition
{
    enum class Kind {
        Milliseconds, ///< the first frame at or after `value` milliseconds
        Percent,      ///< the same for `value` per cent of the video's length, 0 to 100
        FrameNumber,  ///< the frame number `value`, counted from 0 in presentation order
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

/// Specifies which frames of a video are requested. A plain value that applies to any number of
/// videos. It does not use Qt, so that a program can parse its arguments before it loads any large
/// library.
struct FramePositions
{
    enum class Kind {
        Every,     ///< every `everyMs` milliseconds, from the end of the skipped front on
        Spread,    ///< `count` frames: the middles of as many equal parts
        List,      ///< the positions of `list`
        KeyFrames, ///< all key frames
        Scenes,    ///< the first frame of each scene
        Best,      ///< `count` frames: the sharpest of as many equal parts, see FrameQuality
    };

    Kind kind = Kind::Spread;
    std::int64_t everyMs = 5000; ///< 1 or more
    int count = 10;              ///< 1 or more
    std::vector<FramePosition> list;
    double sceneThreshold = 0.3; ///< above 0, up to 1: minimum difference of a new scene's first
                                 ///< frame
    SeriesSkip front;            ///< ignored for List
    SeriesSkip back;             ///< ignored for List
};
