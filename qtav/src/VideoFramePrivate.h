#pragma once

#include <QtAV/BaseLayer.h>
#include <QtAV/Deinterlacing.h>

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FieldFilter.h"
#include "qtav/src/Orientation.h"

#include <QSharedData>
#include <QSize>

#include <memory>

namespace QtAV {

class Deinterlacer;
class PictureConverter;
class StreamParameters;
class VideoFrame;

/// How combing pictures are made whole.
struct FieldSettings
{
    Deinterlacing deinterlacing = Deinterlacing::Off;
    std::shared_ptr<Deinterlacer> deinterlacer; ///< null only if deinterlacing is off
    FieldFilter::Moment moment = FieldFilter::Moment::First;
};

/// The size of a stored picture once its pixels are square.
[[nodiscard]] QSize squareSizeOf(const QSize& stored, AVRational sampleAspectRatio);

/// The data shared by copies of a VideoFrame. Immutable.
class VideoFramePrivate : public QSharedData
{
public:
    VideoFramePrivate(FramePtr picture, qint64 ticks,
                      const std::shared_ptr<const StreamParameters>& parameters,
                      std::shared_ptr<PictureConverter> converter);

    /// The same frame with a smaller picture.
    VideoFramePrivate(const VideoFramePrivate& whole, FramePtr smaller);

    /// The same frame with its neighbouring pictures, from which the whole picture is made. A
    /// neighbour that is unknown is given as an invalid frame.
    VideoFramePrivate(const VideoFramePrivate& alone, const VideoFrame& before,
                      const VideoFrame& after, FieldSettings fieldSettings);

    /// The frame for one moment of a frame that has its neighbouring pictures.
    VideoFramePrivate(const VideoFramePrivate& other, FieldFilter::Moment moment);

    /// The data of a frame; null for an invalid one.
    static const VideoFramePrivate* of(const VideoFrame& frame);

    /// Whether the picture shows two moments, see Deinterlacer.
    [[nodiscard]] bool isOfTwoMoments() const;
    FieldFilter::Moment moment() const { return m_fields.moment; }

    /// The picture to show; null if that is `frame` itself. Each call makes it again.
    [[nodiscard]] FramePtr deinterlaced() const;

    const FramePtr frame; ///< as decoded
    const double seconds;
    const Orientation orientation;
    const QSize squareSize;    ///< of the decoded picture, with square pixels
    const BaseLayer baseLayer; ///< which part of high dynamic range it shows
    const bool isScaledDown = false;
    const std::shared_ptr<PictureConverter> converter;

private:
    const FieldSettings m_fields;
    const double m_firstSeconds;
    const double m_secondSeconds; ///< of the later moment
    const FramePtr m_before;      ///< null where it is not known or not needed
    const FramePtr m_after;       ///< likewise
};

} // namespace QtAV
