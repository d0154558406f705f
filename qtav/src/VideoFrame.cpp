#include <QtAV/VideoFrame.h>

#include "qtav/src/Colours.h"
#include "qtav/src/Deinterlacer.h"
#include "qtav/src/DynamicMetadata.h"
#include "qtav/src/PictureConverter.h"
#include "qtav/src/StreamParameters.h"
#include "qtav/src/VideoFramePrivate.h"

#include <cmath>
#include <new>
#include <utility>

namespace QtAV {

namespace {

/// What a picture states about itself takes precedence over its container.
Orientation orientationOf(const AVFrame& frame, const StreamParameters& parameters)
{
    const AVFrameSideData* own = av_frame_get_side_data(&frame, AV_FRAME_DATA_DISPLAYMATRIX);
    if (own && own->size >= 9 * sizeof(qint32)) {
        return orientationFromDisplayMatrix(reinterpret_cast<const qint32*>(own->data));
    }
    return parameters.orientation;
}

AVRational sampleAspectRatioOf(const AVFrame& frame, const StreamParameters& parameters)
{
    const AVRational stated = parameters.sampleAspectRatio.num > 0 ? parameters.sampleAspectRatio
                                                                   : frame.sample_aspect_ratio;
    return stated.num > 0 && stated.den > 0 ? stated : AVRational{1, 1};
}

/// Converts a Format_ARGB32 image to Format_RGB888; null when memory runs out.
///
/// Qt's own conversion divides the work between threads, and waits forever if there is no memory to
/// start one.
QImage withoutAlpha(const QImage& image)
{
    QImage result(image.size(), QImage::Format_RGB888);
    for (int y = 0; y < result.height(); ++y) {
        dropAlpha(reinterpret_cast<const QRgb*>(image.constScanLine(y)), result.scanLine(y),
                  result.width());
    }
    return result;
}

/// The format that a picture is first converted to, on the way to the requested one.
QImage::Format convertedFormat(QImage::Format wanted, bool isScaledLater)
{
    switch (wanted) {
    case QImage::Format_RGB888:
        return isScaledLater ? QImage::Format_ARGB32 : wanted;
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64:
        return wanted;
    default:
        return QImage::Format_ARGB32;
    }
}

/// Damaged headers state ratios that no picture has; stretching by them would fill the memory.
constexpr double widestPixel = 16.0;

/// In images with at most this fraction of the lines, the moments of two fields are not visible.
constexpr int fewLines = 8;

/// A reference to the same picture in the same memory; null for null.
FramePtr shared(const FramePtr& picture)
{
    if (!picture) {
        return nullptr;
    }
    FramePtr same(av_frame_clone(picture.get()));
    Q_CHECK_PTR(same.get());
    return same;
}

FramePtr sharedPicture(const VideoFramePrivate* data)
{
    return data ? shared(data->frame) : nullptr;
}

/// A time in seconds, corrected so that an inexact half is not truncated to the millisecond before.
double withoutShortfall(double seconds)
{
    constexpr double shortfall = 1e-6;
    const double whole = std::round(seconds * 1000.0);
    if (whole / 1000.0 - seconds > shortfall || seconds * 1000.0 >= whole) {
        return seconds;
    }
    double result = whole / 1000.0;
    while (result * 1000.0 < whole) {
        result = std::nextafter(result, whole);
    }
    return result;
}

/// The time in seconds halfway between a frame and its successor, as far as that is known.
double secondMoment(const VideoFramePrivate& frame, const VideoFramePrivate* before,
                    const VideoFramePrivate* after)
{
    if (after) {
        return withoutShortfall((frame.seconds + after->seconds) / 2.0);
    }
    return before ? withoutShortfall(frame.seconds + (frame.seconds - before->seconds) / 2.0)
                  : frame.seconds;
}

} // namespace

QSize squareSizeOf(const QSize& stored, AVRational sampleAspectRatio)
{
    if (sampleAspectRatio.num <= 0 || sampleAspectRatio.den <= 0) {
        return stored;
    }
    const double ratio = av_q2d(sampleAspectRatio);
    if (ratio > widestPixel || ratio < 1.0 / widestPixel) {
        return stored;
    }
    if (ratio >= 1.0) {
        return {static_cast<int>(std::lround(stored.width() * ratio)), stored.height()};
    }
    return {stored.width(), static_cast<int>(std::lround(stored.height() / ratio))};
}

VideoFramePrivate::VideoFramePrivate(FramePtr picture, qint64 ticks,
                                     const std::shared_ptr<const StreamParameters>& parameters,
                                     std::shared_ptr<PictureConverter> pictureConverter)
    : frame(std::move(picture))
    , seconds(parameters->timeline.seconds(ticks))
    , orientation(orientationOf(*frame, *parameters))
    , squareSize(
          squareSizeOf({frame->width, frame->height}, sampleAspectRatioOf(*frame, *parameters)))
    , baseLayer(baseLayerOf(*frame, parameters->baseLayer))
    , converter(std::move(pictureConverter))
    , m_firstSeconds(seconds)
    , m_secondSeconds(seconds)
{}

VideoFramePrivate::VideoFramePrivate(const VideoFramePrivate& whole, FramePtr smaller)
    : frame(std::move(smaller))
    , seconds(whole.seconds)
    , orientation(whole.orientation)
    , squareSize(whole.squareSize)
    , baseLayer(whole.baseLayer)
    , isScaledDown(true)
    , converter(whole.converter)
    , m_firstSeconds(whole.m_firstSeconds)
    , m_secondSeconds(whole.m_secondSeconds)
{}

VideoFramePrivate::VideoFramePrivate(const VideoFramePrivate& alone, const VideoFrame& frameBefore,
                                     const VideoFrame& frameAfter, FieldSettings fieldSettings)
    : QSharedData()
    , frame(sharedPicture(&alone))
    , seconds(alone.seconds)
    , orientation(alone.orientation)
    , squareSize(alone.squareSize)
    , baseLayer(alone.baseLayer)
    , isScaledDown(alone.isScaledDown)
    , converter(alone.converter)
    , m_fields(std::move(fieldSettings))
    , m_firstSeconds(alone.seconds)
    , m_secondSeconds(secondMoment(alone, of(frameBefore), of(frameAfter)))
    , m_before(sharedPicture(of(frameBefore)))
    , m_after(sharedPicture(of(frameAfter)))
{}

VideoFramePrivate::VideoFramePrivate(const VideoFramePrivate& other, FieldFilter::Moment moment)
    : QSharedData()
    , frame(shared(other.frame))
    , seconds(moment == FieldFilter::Moment::First ? other.m_firstSeconds : other.m_secondSeconds)
    , orientation(other.orientation)
    , squareSize(other.squareSize)
    , baseLayer(other.baseLayer)
    , isScaledDown(other.isScaledDown)
    , converter(other.converter)
    , m_fields{other.m_fields.deinterlacing, other.m_fields.deinterlacer, moment}
    , m_firstSeconds(other.m_firstSeconds)
    , m_secondSeconds(other.m_secondSeconds)
    , m_before(shared(other.m_before))
    , m_after(shared(other.m_after))
{}

const VideoFramePrivate* VideoFramePrivate::of(const VideoFrame& frame)
{
    return frame.d.constData();
}

bool VideoFramePrivate::isOfTwoMoments() const
{
    return m_fields.deinterlacer &&
           Deinterlacer::isOfTwoMoments({m_before.get(), frame.get(), m_after.get()},
                                        m_fields.deinterlacing);
}

FramePtr VideoFramePrivate::deinterlaced() const
{
    if (!m_fields.deinterlacer) {
        return nullptr;
    }
    return m_fields.deinterlacer->deinterlaced({m_before.get(), frame.get(), m_after.get()},
                                               m_fields.deinterlacing, m_fields.moment);
}

VideoFrame::VideoFrame() = default;
VideoFrame::~VideoFrame() = default;
VideoFrame::VideoFrame(const VideoFrame&) = default;
VideoFrame::VideoFrame(VideoFrame&&) noexcept = default;
VideoFrame& VideoFrame::operator=(const VideoFrame&) = default;
VideoFrame& VideoFrame::operator=(VideoFrame&&) noexcept = default;

VideoFrame::VideoFrame(VideoFramePrivate* data)
    : d(data)
{}

bool VideoFrame::isValid() const
{
    return d;
}

double VideoFrame::timestamp() const
{
    return d ? d->seconds : 0.0;
}

int VideoFrame::width() const
{
    return d ? d->frame->width : 0;
}

int VideoFrame::height() const
{
    return d ? d->frame->height : 0;
}

QSize VideoFrame::displaySize() const
{
    if (!d) {
        return {};
    }
    return swapsSides(d->orientation) ? d->squareSize.transposed() : d->squareSize;
}

VideoFrame VideoFrame::scaledDown(const QSize& size) const
{
    const QSize whole = displaySize();
    const bool isSmaller =
        !size.isEmpty() && size.width() < whole.width() && size.height() < whole.height();
    if (!d || !isSmaller || !PictureConverter::isOpaqueYuv(*d->frame)) {
        return *this;
    }
    const QSize stored = swapsSides(d->orientation) ? size.transposed() : size;
    const FramePtr deinterlaced = d->deinterlaced();
    FramePtr smaller = d->converter->scaled(deinterlaced ? *deinterlaced : *d->frame, stored);
    return smaller ? VideoFrame(new VideoFramePrivate(*d, std::move(smaller))) : *this;
}

VideoFrame VideoFrame::secondField() const
{
    if (!d || isSecondField() || !d->isOfTwoMoments()) {
        return {};
    }
    return VideoFrame(new VideoFramePrivate(*d, FieldFilter::Moment::Second));
}

VideoFrame VideoFrame::firstField() const
{
    return isSecondField() ? VideoFrame(new VideoFramePrivate(*d, FieldFilter::Moment::First))
                           : *this;
}

bool VideoFrame::isSecondField() const
{
    return d && d->moment() == FieldFilter::Moment::Second;
}

bool VideoFrame::isScaledDown() const
{
    return d && d->isScaledDown;
}

qint64 VideoFrame::byteCount() const
{
    if (!d) {
        return 0;
    }
    // Planes may share a buffer, and buffers are larger than their planes: count the buffers.
    qint64 bytes = 0;
    for (const AVBufferRef* buffer : d->frame->buf) {
        bytes += buffer ? static_cast<qint64>(buffer->size) : 0;
    }
    return bytes;
}

QString VideoFrame::format() const
{
    if (!d) {
        return {};
    }
    return QString::fromLatin1(av_get_pix_fmt_name(static_cast<AVPixelFormat>(d->frame->format)));
}

QImage::Format VideoFrame::imageFormat() const
{
    if (!d) {
        return QImage::Format_Invalid;
    }
    return PictureConverter::hasAlpha(*d->frame) ? QImage::Format_ARGB32 : QImage::Format_RGB888;
}

QImage::Format VideoFrame::deepImageFormat() const
{
    const QImage::Format usual = imageFormat();
    if (!d) {
        return usual;
    }
    const AVPixFmtDescriptor* const format =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(d->frame->format));
    if (!format || format->comp[0].depth <= 8) {
        return usual;
    }
    return usual == QImage::Format_ARGB32 ? QImage::Format_RGBA64 : QImage::Format_RGBX64;
}

QImage VideoFrame::toImage(QImage::Format format, const QSize& size, const QRectF& region) const
try {
    if (!d) {
        return {};
    }
    const QImage::Format wanted = format == QImage::Format_Invalid ? QImage::Format_ARGB32 : format;
    const QSize whole = displaySize();
    const bool isReduced = region.isNull() && !size.isEmpty() && size.width() <= whole.width() &&
                           size.height() <= whole.height();
    const bool isTiny = isReduced && size.height() * fewLines <= whole.height();
    const FramePtr deinterlaced = isTiny ? nullptr : d->deinterlaced();
    const AVFrame& picture = deinterlaced ? *deinterlaced : *d->frame;
    // A scaled-down frame may have another format, but has no alpha either.
    const bool isOpaque = d->isScaledDown || PictureConverter::isOpaqueYuv(picture);
    const QSize upright = isReduced && isOpaque ? size : whole;
    const QSize stored = swapsSides(d->orientation) ? upright.transposed() : upright;
    const bool isScaledLater = !size.isEmpty() && (size != upright || !region.isNull());
    QImage image =
        oriented(d->converter->convert(picture, stored, convertedFormat(wanted, isScaledLater)),
                 d->orientation);
    if (!region.isNull()) {
        const QRect part = region.toAlignedRect() & image.rect();
        if (part.isEmpty()) {
            return {};
        }
        image = image.copy(part);
    }
    if (!size.isEmpty() && size != image.size()) {
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    // Without transparency these formats are identical in memory.
    if (isOpaque && wanted == QImage::Format_ARGB32_Premultiplied) {
        image.reinterpretAsFormat(wanted);
    }
    if (image.format() == QImage::Format_ARGB32 && wanted == QImage::Format_RGB888) {
        return withoutAlpha(image);
    }
    return image.format() == wanted ? image : std::move(image).convertToFormat(wanted);
} catch (const std::bad_alloc&) {
    return {};
}

BaseLayer VideoFrame::baseLayer() const
{
    return d ? d->baseLayer : BaseLayer::Whole;
}

StoredColours VideoFrame::storedColours() const
{
    return d ? coloursOf(*d->frame) : StoredColours();
}

QImage VideoFrame::toStoredImage() const
try {
    if (!d) {
        return {};
    }
    const FramePtr deinterlaced = d->deinterlaced();
    return oriented(
        d->converter->convertAsStored(deinterlaced ? *deinterlaced : *d->frame, d->squareSize),
        d->orientation);
} catch (const std::bad_alloc&) {
    return {};
}

} // namespace QtAV
