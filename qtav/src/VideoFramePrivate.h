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

/// What makes a whole picture of one that combs.
struct FieldSettings
{
    Deinterlacing deinterlacing = Deinterlacing::Off;
    std::shared_ptr<Deinterlacer> deinterlacer; ///< never null, unless it is off
    FieldFilter::Moment moment = FieldFilter::Moment::First;
};

/// The stored size of a picture with square pixels.
[[nodiscard]] QSize squareSizeOf(const QSize& stored, AVRational sampleAspectRatio);

/// What the copies of one VideoFrame share. Immutable.
class VideoFramePrivate : public QSharedData
{
public:
    VideoFramePrivate(FramePtr picture, qint64 ticks,
                      const std::shared_ptr<const StreamParameters>& parameters,
                      std::shared_ptr<PictureConverter> converter);

    /// The same frame with a smaller picture.
    VideoFramePrivate(const VideoFramePrivate& whole, FramePtr smaller);

    /// The same frame with the pictures around it, of which the whole one is made. They belong to
    /// frames that may be invalid where they are not known.
    VideoFramePrivate(const VideoFramePrivate& alone, const VideoFrame& before,
                      const VideoFrame& after, FieldSettings fieldSettings);

    /// The frame of one moment of a frame that has the pictures around it.
    VideoFramePrivate(const VideoFramePrivate& other, FieldFilter::Moment moment);

    /// What a frame holds; null for an invalid one.
    static const VideoFramePrivate* of(const VideoFrame& frame);

    /// Whether the picture shows two moments, see Deinterlacer.
    [[nodiscard]] bool isOfTwoMoments() const;
    FieldFilter::Moment moment() const { return m_fields.moment; }

    /// The picture that is shown: null where that is `frame` itself. Made anew by each call.
    [[nodiscard]] FramePtr deinterlaced() const;

    const FramePtr frame; ///< as it was decoded
    const double seconds;
    const Orientation orientation;
    const QSize squareSize;    ///< of the decoded picture, with square pixels
    const BaseLayer baseLayer; ///< what it is, where there is more
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
