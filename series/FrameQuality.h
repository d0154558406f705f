#pragma once

#include "series/SceneDetector.h"

#include <QImage>
#include <QSize>
#include <QVector>
#include <QtGlobal>

/// How good a still a frame would make, judged by its samples. See docs/best-frames.md.
struct FrameQuality
{
    qint64 ms = 0; ///< the frame's time
    /// How much of the picture's content is fine detail: the geometric mean of the energies of its
    /// horizontal and vertical differences, relative to its variance. 0 for a flat picture. Only
    /// values of pictures of one size are comparable. Motion in either direction lowers it.
    double sharpness = 0.0;
    /// Nearly all samples are black, or nearly all are equal.
    bool isEmpty = false;
    /// How much it differs from the previous frame, 0 to 1: see SceneDetector.
    double change = 0.0;
};

/// Measures frames in presentation order. One thread at a time may use an object.
class FrameJudge
{
public:
    /// The size in pixels into which pictures are fitted for measuring. Smaller ones are not
    /// enlarged.
    static constexpr QSize pictureSize{960, 540};

    /// @param picture  Format_Grayscale8; a null picture counts as empty
    [[nodiscard]] FrameQuality judge(qint64 ms, const QImage& picture);

private:
    SceneDetector m_scenes;
};

/// A stretch of a video in milliseconds: frames at or after `fromMs` and before `toMs`.
struct VideoStretch
{
    qint64 fromMs = 0;
    qint64 toMs = 0;
};

/// The times of the best frames of a stretch, in rising order: the sharpest one of each of `count`
/// equal parts. If a part has no good frame, another part gives one more, at least half a part away
/// from the others. Not considered are empty frames, frames next to a cut, and frames that are
/// blurred compared with others of their scene nearby. So the result may have fewer than `count`
/// times, or none.
///
/// @param frames  in rising order; those before and behind the stretch are used only for comparison
[[nodiscard]] QVector<qint64> bestOf(const QVector<FrameQuality>& frames,
                                     const VideoStretch& stretch, int count);
