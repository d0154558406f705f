#pragma once

#include "series/FramePositions.h"

#include <QVector>
#include <QtGlobal>

#include <optional>
#include <vector>

/// One requested frame, once the video is known.
struct SeriesTarget
{
    /// Position in milliseconds: the first frame at or after it is meant.
    qint64 ms = 0;
    /// The frame's number, if a number was requested.
    std::optional<qint64> frame = {};
    /// True if the last frame of the video is meant.
    bool isLast = false;
};

/// What must be known about a video to determine its targets.
struct SeriesLength
{
    qint64 durationMs = 0;
    /// Presentation times of all frames in milliseconds, in rising order. Needed only for frame
    /// numbers.
    QVector<qint64> frameTimesMs = {};
};

/// Maximum number of targets of a video: each millisecond of more than an hour, or each frame of a
/// day.
constexpr int mostTargets = 5000000;

/// Whether the positions are more than mostTargets. A damaged video may state any length.
[[nodiscard]] bool isTooMuch(const FramePositions& positions, const SeriesLength& length);

/// The targets in rising order, without duplicates. Empty for KeyFrames, Scenes and Best, which are
/// determined while decoding. Numbers of frames that do not exist are omitted and returned in
/// `missing`.
[[nodiscard]] QVector<SeriesTarget> targetsOf(const FramePositions& positions,
                                              const SeriesLength& length,
                                              std::vector<FramePosition>* missing = nullptr);

/// The length of a skipped stretch in milliseconds.
[[nodiscard]] qint64 msOf(const SeriesSkip& skip, qint64 durationMs);

/// True if some of the positions are frame numbers.
[[nodiscard]] bool asksForNumbers(const FramePositions& positions);
