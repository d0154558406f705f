#pragma once

#include "series/FramePositions.h"

#include <QVector>
#include <QtGlobal>

#include <optional>
#include <vector>

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

/// The targets in rising order, none of them twice; none for KeyFrames, Scenes and Best, which the
/// video itself has to tell. Numbers of frames that there are not are left out and given in
/// `missing`.
[[nodiscard]] QVector<SeriesTarget> targetsOf(const FramePositions& positions,
                                              const SeriesLength& length,
                                              std::vector<FramePosition>* missing = nullptr);

/// How long a skipped stretch is, in milliseconds.
[[nodiscard]] qint64 msOf(const SeriesSkip& skip, qint64 durationMs);

/// Some of the positions are numbers of frames.
[[nodiscard]] bool asksForNumbers(const FramePositions& positions);
