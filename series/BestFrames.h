#pragma once

#include "series/FrameQuality.h"

#include <QtAV/AVDemuxer.h>
#include <QtAV/Deinterlacing.h>

#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

#include <functional>

namespace QtAV {
class FrameReader;
} // namespace QtAV

/// A frame proposed for a still.
struct BestFrame
{
    qint64 ms = 0;
    QImage picture; ///< a small picture of the frame
};

/// The result of a search for the best frames.
struct BestFrames
{
    QVector<BestFrame> frames; ///< in presentation order
    QString error;             ///< a text for people; empty on success and after cancellation
};

/// Finds the frames of a stretch of a video that make the best stills: see bestOf(). Decodes all
/// frames of the stretch and some around it. Callable from any thread.
namespace series {

/// The times of the best frames, using an open reader that afterwards needs a seek. Empty, without
/// an error, if all frames are empty, blurred or next to cuts, or if it was cancelled.
/// @param onFrame  called for each frame that was decoded; may be empty
[[nodiscard]] QVector<qint64> findBest(QtAV::FrameReader& reader, const VideoStretch& stretch,
                                       int count, const QtAV::IsCancelled& isCancelled,
                                       QString& error, const std::function<void()>& onFrame = {});

/// Like above for the video at a path, with pictures that fit into a size in pixels.
[[nodiscard]] BestFrames findBest(const QString& video, QtAV::Deinterlacing deinterlacing,
                                  const VideoStretch& stretch, int count, const QSize& pictureSize,
                                  const QtAV::IsCancelled& isCancelled);

} // namespace series
