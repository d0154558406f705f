#include "qtav/src/PictureConverter.h"

#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/TrueColours.h"

#include <algorithm>

namespace QtAV {

namespace {

bool isRgb(const AVPixFmtDescriptor& format)
{
    return format.flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BAYER);
}

bool isXyz(AVPixelFormat format)
{
    return format == AV_PIX_FMT_XYZ12LE || format == AV_PIX_FMT_XYZ12BE;
}

/// The format that preserves everything a picture has and can be read directly.
AVPixelFormat readableFormatFor(AVPixelFormat format)
{
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(format);
    const bool isDeep = descriptor.comp[0].depth > 8;
    if (isRgb(descriptor) && isDeep) {
        return descriptor.flags & AV_PIX_FMT_FLAG_ALPHA ? AV_PIX_FMT_GBRAP16LE
                                                        : AV_PIX_FMT_GBRP16LE;
    }
    if (isRgb(descriptor) || isXyz(format)) {
        return AV_PIX_FMT_BGRA;
    }
    if (descriptor.flags & AV_PIX_FMT_FLAG_ALPHA) {
        return isDeep ? AV_PIX_FMT_YUVA444P16LE : AV_PIX_FMT_YUVA444P;
    }
    return isDeep ? AV_PIX_FMT_YUV444P16LE : AV_PIX_FMT_YUV444P;
}

/// The same format without an implied range, which the scaler expects to be set separately.
AVPixelFormat withoutRange(AVPixelFormat format)
{
    switch (format) {
    case AV_PIX_FMT_YUVJ411P:
        return AV_PIX_FMT_YUV411P;
    case AV_PIX_FMT_YUVJ420P:
        return AV_PIX_FMT_YUV420P;
    case AV_PIX_FMT_YUVJ422P:
        return AV_PIX_FMT_YUV422P;
    case AV_PIX_FMT_YUVJ440P:
        return AV_PIX_FMT_YUV440P;
    case AV_PIX_FMT_YUVJ444P:
        return AV_PIX_FMT_YUV444P;
    default:
        return format;
    }
}

bool isFullRangeFormat(const AVFrame& frame)
{
    return frame.color_range == AVCOL_RANGE_JPEG || YuvToRgb::isJpegFormat(frame.format);
}

void setOption(SwsContext& context, const char* name, int64_t value)
{
    av_opt_set_int(&context, name, value, 0);
}

/// Sets the position of chroma, in directions in which it is subsampled. The side is "src" or
/// "dst".
void setChromaPlace(SwsContext& context, const QByteArray& side, AVPixelFormat format,
                    AVChromaLocation location)
{
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(format);
    const std::optional<ChromaPosition> position = chromaPositionOf(location);
    if (!position) {
        return;
    }
    if (descriptor.log2_chroma_w > 0) {
        setOption(context, (side + "_h_chr_pos").constData(), position->x);
    }
    if (descriptor.log2_chroma_h > 0) {
        setOption(context, (side + "_v_chr_pos").constData(), position->y);
    }
}

/// Chroma of two alternating moments cannot be scaled like that of one.
bool hasFieldChroma(const AVFrame& frame)
{
    const AVPixFmtDescriptor& format =
        *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    return isInterlaced(frame) && format.log2_chroma_h == 1;
}

/// Smaller pictures are made by area: every pixel counts, and fine detail neither vanishes nor
/// flickers. For enlarging, that smooths too much.
int filterFor(const QSize& from, const QSize& to)
{
    const bool isSmaller = to.width() <= from.width() && to.height() <= from.height();
    return isSmaller ? SWS_AREA : SWS_BICUBIC;
}

} // namespace

bool PictureConverter::Task::operator==(const Task& other) const
{
    return from == other.from && to == other.to && source == other.source &&
           target == other.target && isFullRange == other.isFullRange &&
           chromaLocation == other.chromaLocation;
}

bool PictureConverter::hasAlpha(const AVFrame& frame)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(format);
    return descriptor && (descriptor->flags & AV_PIX_FMT_FLAG_ALPHA);
}

bool PictureConverter::isOpaqueYuv(const AVFrame& frame)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(format);
    return descriptor && !isRgb(*descriptor) && !isXyz(format) && !hasAlpha(frame);
}

QImage PictureConverter::convert(const AVFrame& frame, const QSize& size, QImage::Format format)
{
    return convertFrom(coloursOf(frame), frame, size, format);
}

QImage PictureConverter::convertAsStored(const AVFrame& frame, const QSize& size)
{
    return convertFrom({}, frame, size,
                       hasAlpha(frame) ? QImage::Format_RGBA64 : QImage::Format_RGBX64);
}

/// Converts non-standard colours to sRGB.
QImage PictureConverter::convertFrom(const Colours& colours, const AVFrame& frame,
                                     const QSize& size, QImage::Format wanted)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    if (!av_pix_fmt_desc_get(format) || size.isEmpty()) {
        return {};
    }
    const bool isStored = size == QSize(frame.width, frame.height);
    if (isStored && (YuvToRgb::reads(format) || TrueColours::isNeededFor(frame, colours))) {
        return imageOf(frame, colours, wanted);
    }
    if (isStored || !hasFieldChroma(frame)) {
        return scaledImage(frame, colours, size, wanted);
    }
    const bool isDeep = wanted == QImage::Format_RGBX64 || wanted == QImage::Format_RGBA64;
    const FramePtr picture =
        withoutFields(colours, frame, isDeep ? AV_PIX_FMT_RGBA64 : AV_PIX_FMT_BGRA);
    return picture ? scaledImage(*picture, {}, size, wanted) : QImage();
}

/// Scales the picture to the size and into a format that can be read.
QImage PictureConverter::scaledImage(const AVFrame& frame, const Colours& colours,
                                     const QSize& size, QImage::Format wanted)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    std::optional<Scaler> scaler = takeScaler(taskFor(frame, size, readableFormatFor(format)));
    if (!scaler) {
        return {};
    }
    if (!scaler->picture) {
        scaler->picture = makePicture(scaler->task);
    }
    if (!scaler->picture || !scale(frame, *scaler, *scaler->picture)) {
        return {};
    }
    QImage image = imageOf(*scaler->picture, colours, wanted);
    keepScaler(std::move(*scaler));
    return image;
}

FramePtr PictureConverter::scaled(const AVFrame& frame, const QSize& size)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    if (!av_pix_fmt_desc_get(format) || size.isEmpty()) {
        return nullptr;
    }
    const FramePtr whole =
        hasFieldChroma(frame) ? withoutFields(coloursOf(frame), frame, AV_PIX_FMT_BGRA) : nullptr;
    const AVFrame& source = whole ? *whole : frame;
    const auto sourceFormat = static_cast<AVPixelFormat>(source.format);
    const AVPixelFormat target =
        YuvToRgb::reads(sourceFormat) ? sourceFormat : readableFormatFor(sourceFormat);
    std::optional<Scaler> scaler = takeScaler(taskFor(source, size, target));
    if (!scaler) {
        return nullptr;
    }
    FramePtr picture = makePicture(scaler->task);
    if (!picture || !scale(source, *scaler, *picture)) {
        return nullptr;
    }
    keepScaler(std::move(*scaler));
    picture->chroma_location = YuvToRgb::chromaLocationOf(source);
    if (!whole) {
        completeColours(*picture, frame);
    }
    return picture;
}

/// An interlaced picture converted to red, green and blue, in which no chroma belongs to a field
/// any more. Null when memory runs out.
///
/// @param format  AV_PIX_FMT_BGRA or, for 16 bits, AV_PIX_FMT_RGBA64
FramePtr PictureConverter::withoutFields(const Colours& colours, const AVFrame& frame,
                                         AVPixelFormat format)
{
    const QSize size(frame.width, frame.height);
    const bool isDeep = format == AV_PIX_FMT_RGBA64;
    const QImage image =
        convertFrom(colours, frame, size, isDeep ? QImage::Format_RGBA64 : QImage::Format_ARGB32);
    FramePtr picture = makePicture(taskFor(frame, size, format));
    if (image.isNull() || !picture) {
        return nullptr;
    }
    av_image_copy_plane(picture->data[0], picture->linesize[0], image.constBits(),
                        image.bytesPerLine(), frame.width * image.depth() / 8, frame.height);
    return picture;
}

/// The image of a picture in one of the readable formats.
QImage PictureConverter::imageOf(const AVFrame& picture, const Colours& colours,
                                 QImage::Format format)
{
    const QSize size(picture.width, picture.height);
    const bool hasAlpha = format == QImage::Format_ARGB32;
    const bool isDeep = !hasAlpha && format != QImage::Format_RGB888;
    QImage image = (hasAlpha ? m_shownImages : m_capturedImages).take(size, format);
    if (image.isNull()) {
        return image;
    }
    if (isDeep || TrueColours::isNeededFor(picture, colours)) {
        TrueColours(mapFor(colours)).convert(picture, image);
    } else if (picture.format != AV_PIX_FMT_BGRA) {
        YuvToRgb(picture).convert(picture, image);
    } else if (hasAlpha) { // the same in memory
        av_image_copy_plane(image.bits(), image.bytesPerLine(), picture.data[0],
                            picture.linesize[0], picture.width * 4, picture.height);
    } else {
        for (int line = 0; line < picture.height; ++line) {
            dropAlpha(reinterpret_cast<const QRgb*>(picture.data[0] +
                                                    ptrdiff_t(line) * picture.linesize[0]),
                      image.scanLine(line), picture.width);
        }
    }
    return image;
}

/// The tables for colours; null for standard ones. The colours of a video hardly ever change.
std::shared_ptr<const ColourMap> PictureConverter::mapFor(const Colours& colours)
{
    if (colours.isStandard()) {
        return nullptr;
    }
    const std::lock_guard lock(m_mutex);
    if (!m_map || m_map->colours() != colours) {
        m_map = std::make_shared<const ColourMap>(colours);
    }
    return m_map;
}

PictureConverter::Task PictureConverter::taskFor(const AVFrame& frame, const QSize& size,
                                                 AVPixelFormat target)
{
    return {{frame.width, frame.height},
            size,
            withoutRange(static_cast<AVPixelFormat>(frame.format)),
            withoutRange(target),
            isFullRangeFormat(frame),
            YuvToRgb::chromaLocationOf(frame)};
}

/// Scales a picture, which keeps its own colours. Returns false if that is impossible.
bool PictureConverter::scale(const AVFrame& frame, const Scaler& scaler, AVFrame& picture)
{
    picture.color_range = isFullRangeFormat(frame) ? AVCOL_RANGE_JPEG : frame.color_range;
    picture.colorspace = YuvToRgb::matrixOf(frame);
    return sws_scale(scaler.context.get(), frame.data, frame.linesize, 0, frame.height,
                     picture.data, picture.linesize) > 0;
}

std::optional<PictureConverter::Scaler> PictureConverter::takeScaler(const Task& task)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_idle.begin(), m_idle.end(),
                                        [&task](const Scaler& s) { return s.task == task; });
        if (found != m_idle.end()) {
            Scaler scaler = std::move(*found);
            m_idle.erase(found);
            return scaler;
        }
    }
    return makeScaler(task);
}

/// Null if FFmpeg cannot do this scaling.
ScalerPtr PictureConverter::makeScalerContext(const Task& task)
{
    ScalerPtr context(sws_alloc_context());
    if (!context) {
        return nullptr;
    }
    setOption(*context, "srcw", task.from.width());
    setOption(*context, "srch", task.from.height());
    setOption(*context, "src_format", task.source);
    setOption(*context, "dstw", task.to.width());
    setOption(*context, "dsth", task.to.height());
    setOption(*context, "dst_format", task.target);
    setOption(*context, "sws_flags",
              filterFor(task.from, task.to) | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT |
                  SWS_FULL_CHR_H_INP | SWS_BITEXACT);
    setChromaPlace(*context, "src", task.source, task.chromaLocation);
    setChromaPlace(*context, "dst", task.target, task.chromaLocation);
    return sws_init_context(context.get(), nullptr, nullptr) < 0 ? nullptr : std::move(context);
}

std::optional<PictureConverter::Scaler> PictureConverter::makeScaler(const Task& task)
{
    ScalerPtr context = makeScalerContext(task);
    if (!context) {
        return std::nullopt;
    }
    // The same range on both sides, since YuvToRgb converts to full range.
    const int* coefficients = sws_getCoefficients(SWS_CS_DEFAULT);
    constexpr int neutral = 1 << 16;
    sws_setColorspaceDetails(context.get(), coefficients, task.isFullRange, coefficients,
                             task.isFullRange, 0, neutral, neutral);
    return Scaler{task, std::move(context), nullptr};
}

/// Null when memory runs out.
FramePtr PictureConverter::makePicture(const Task& task)
{
    FramePtr picture = makeFrame();
    picture->width = task.to.width();
    picture->height = task.to.height();
    picture->format = task.target;
    return av_frame_get_buffer(picture.get(), 0) < 0 ? nullptr : std::move(picture);
}

void PictureConverter::keepScaler(Scaler scaler)
{
    const std::lock_guard lock(m_mutex);
    if (m_idle.size() == mostIdleScalers) {
        m_idle.erase(m_idle.begin());
    }
    m_idle.push_back(std::move(scaler));
}

} // namespace QtAV
