#pragma once

#include "series/SceneDetector.h"

#include <QImage>
#include <QSize>
#include <QVector>
#include <QtGlobal>

/// How good a still a frame would be, as far as its samples tell. See docs/best-frames.md.
struct FrameQuality
{
    qint64 ms = 0; ///< the frame's time
    /// How much of what the picture shows is fine detail: the geometric mean of the energies of its
    /// horizontal and vertical differences, as a part of its variance. 0 for a flat picture; only
    /// pictures of one size compare. Motion in either direction lowers it.
    double sharpness = 0.0;
    /// Nearly all samples are as dark as black, or nearly all are the same.
    bool isEmpty = false;
    /// How different it is from the frame before, 0 to 1: see SceneDetector.
    double change = 0.0;
};

/// Measures frames one after another, in the order shown.
class FrameJudge
{
public:
    /// The size that pictures are measured at: they fit into it, in pixels. Smaller ones are not
    /// enlarged.
    static constexpr QSize pictureSize{960, 540};

    /// @param picture  Format_Grayscale8; a null picture counts as empty
    [[nodiscard]] FrameQuality judge(qint64 ms, const QImage& picture);

private:
    SceneDetector m_scenes;
};

/// A stretch of a video, in milliseconds: frames at `fromMs` or later, and before `toMs`.
struct VideoStretch
{
    qint64 fromMs = 0;
    qint64 toMs = 0;
};

/// The times of the best frames of a stretch, in rising order: in each of `count` equal parts the
/// sharpest one; where a part has none that is good, another part gives one more, as far from the
/// others as half a part. Not considered are empty frames, those next to a cut, and those that are
/// blurred next to others of their scene. So there may be fewer than `count`, or none.
///
/// @param frames  in rising order; those before and behind the stretch are only compared with
[[nodiscard]] QVector<qint64> bestOf(const QVector<FrameQuality>& frames,
                                     const VideoStretch& stretch, int count);
