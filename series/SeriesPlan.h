#pragma once

#include "series/SeriesTargets.h"

#include <QVector>

/// How a video's targets are shared out between lanes.
struct SeriesPlan
{
    /// Targets of which one lane takes one after another: [begin, end) of the plan's, or for key
    /// frames and scenes all frames of [fromMs, toMs).
    struct Stretch
    {
        int begin = 0;
        int end = 0;
        qint64 fromMs = 0;
        qint64 toMs = 0;
    };

    QVector<SeriesTarget> targets;
    QVector<Stretch> stretches;
    /// Where key frames lie, in rising order; empty where that is not known.
    QVector<qint64> keyFramesMs;
    /// The presentation times of all frames, in rising order; empty unless they were asked for.
    QVector<qint64> frameTimesMs;

    /// The last key frame at or before a position; -1 where none is known.
    [[nodiscard]] qint64 keyFrameBefore(qint64 ms) const;
};

/// Cuts the targets where a key frame lies between two of them, so that no two lanes decode the
/// same frames; where key frames are not known, by number. Keeps neighbours together where decoding
/// on costs little.
[[nodiscard]] SeriesPlan planTargets(QVector<SeriesTarget> targets, QVector<qint64> keyFramesMs,
                                     int lanes);

/// Cuts a part of a video for lanes that look at all its frames, or at all key frames.
[[nodiscard]] SeriesPlan planPart(qint64 fromMs, qint64 toMs, QVector<qint64> keyFramesMs,
                                  int lanes);
