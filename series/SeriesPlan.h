#pragma once

#include "series/SeriesTargets.h"

#include <QVector>

/// How a video's targets are distributed among lanes.
struct SeriesPlan
{
    /// Targets that one lane takes one after another: [begin, end) of the plan's targets or, for
    /// key frames and scenes, all frames of [fromMs, toMs).
    struct Stretch
    {
        int begin = 0;
        int end = 0;
        qint64 fromMs = 0;
        qint64 toMs = 0;
    };

    QVector<SeriesTarget> targets;
    QVector<Stretch> stretches;
    /// Times of key frames in rising order; empty if unknown.
    QVector<qint64> keyFramesMs;
    /// Presentation times of all frames in rising order; empty unless requested.
    QVector<qint64> frameTimesMs;

    /// The last key frame at or before a position; -1 if none is known.
    [[nodiscard]] qint64 keyFrameBefore(qint64 ms) const;
};

/// Divides the targets where a key frame lies between two of them, so that no two lanes decode the
/// same frames; by number if key frames are unknown. Keeps neighbours together if decoding on costs
/// little.
[[nodiscard]] SeriesPlan planTargets(QVector<SeriesTarget> targets, QVector<qint64> keyFramesMs,
                                     int lanes);

/// Divides a part of a video among lanes that examine all its frames or all its key frames.
[[nodiscard]] SeriesPlan planPart(qint64 fromMs, qint64 toMs, QVector<qint64> keyFramesMs,
                                  int lanes);
