#pragma once

#include "series/FrameQuality.h"

#include <QtAV/AVDemuxer.h>
#include <QtAV/Deinterlacing.h>

#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

namespace QtAV {
class FrameReader;
} // namespace QtAV

/// A frame that is proposed for a still.
struct BestFrame
{
    qint64 ms = 0;
    QImage picture; ///< small
};

struct BestFrames
{
    QVector<BestFrame> frames; ///< in the order shown
    QString error;             ///< for people; empty after a success, and where it was cancelled
};

/// Finds the frames of a stretch of a video that are best for stills: see bestOf(). All its frames
/// are decoded for that, and some around it. From any thread.
namespace series {

/// The times of the frames, by an open reader, which afterwards goes on with a seek only. None, and
/// no error, where all are empty, blurred or at cuts.
[[nodiscard]] QVector<qint64> findBest(QtAV::FrameReader& reader, const VideoStretch& stretch,
                                       int count, const QtAV::IsCancelled& isCancelled,
                                       QString& error);

/// The same by a video's path, with pictures that fit into a size in pixels.
[[nodiscard]] BestFrames findBest(const QString& video, QtAV::Deinterlacing deinterlacing,
                                  const VideoStretch& stretch, int count, const QSize& pictureSize,
                                  const QtAV::IsCancelled& isCancelled);

} // namespace series
