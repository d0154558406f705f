#pragma once

#include <QVector>
#include <QtGlobal>

#include <optional>

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

    [[nodiscard]] qint64 ms(qint64 durationMs) const;
};

/// Which frames of a video are asked for. A plain value, the same for any number of videos.
struct FramePositions
{
    enum class Kind {
        Every,     ///< every `everyMs` milliseconds, from the end of the skipped front on
        Spread,    ///< `count` of them: the middles of as many equal parts
        List,      ///< those of `list`
        KeyFrames, ///< all key frames
        Scenes,    ///< the first frame of each scene
    };

    Kind kind = Kind::Spread;
    qint64 everyMs = 5000; ///< 1 or more
    int count = 10;        ///< 1 or more
    QVector<FramePosition> list;
    double sceneThreshold = 0.3; ///< above 0, up to 1: how different a new scene's first frame is
    SeriesSkip front;            ///< no meaning for List
    SeriesSkip back;             ///< likewise
};

/// One frame that is asked for, once the video is known.
struct SeriesTarget
{
    /// In milliseconds: the first frame at or after it is meant.
    qint64 ms = 0;
    /// The frame's number, where that was asked for.
    std::optional<qint64> frame = {};
    /// The last frame of the video is meant.
    bool isLast = false;
};

/// What has to be known of a video to tell which frames are meant.
struct SeriesLength
{
    qint64 durationMs = 0;
    /// The presentation times of all frames in milliseconds, in rising order. Needed for frame
    /// numbers alone.
    QVector<qint64> frameTimesMs = {};
};

/// The targets in rising order, none of them twice; none for KeyFrames and Scenes, which the video
/// itself has to tell. Numbers of frames that there are not are left out and given in `missing`.
[[nodiscard]] QVector<SeriesTarget> targetsOf(const FramePositions& positions,
                                              const SeriesLength& length,
                                              QVector<FramePosition>* missing = nullptr);

/// Some of the positions are numbers of frames.
[[nodiscard]] bool asksForNumbers(const FramePositions& positions);
