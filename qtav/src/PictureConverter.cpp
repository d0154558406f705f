#include "qtav/src/PictureConverter.h"

#include "qtav/src/FFmpegCompat.h"

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

/// The format that keeps all that a picture has and that can be read directly.
AVPixelFormat readableFormatFor(AVPixelFormat format)
{
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(format);
    if (isRgb(descriptor) || isXyz(format))
        return AV_PIX_FMT_BGRA;
    const bool isDeep = descriptor.comp[0].depth > 8;
    if (descriptor.flags & AV_PIX_FMT_FLAG_ALPHA)
        return isDeep ? AV_PIX_FMT_YUVA444P16LE : AV_PIX_FMT_YUVA444P;
    return isDeep ? AV_PIX_FMT_YUV444P16LE : AV_PIX_FMT_YUV444P;
}

bool isFullRangeFormat(const AVFrame& frame)
{
    return frame.color_range == AVCOL_RANGE_JPEG || YuvToRgb::isJpegFormat(frame.format);
}

void setOption(SwsContext& context, const char* name, int64_t value)
{
    av_opt_set_int(&context, name, value, 0);
}

/// Says where chroma lies, in directions in which there is less of it than of luma.
void setChromaPlace(SwsContext& context, AVPixelFormat format, AVChromaLocation location)
{
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(format);
    const std::optional<ChromaPosition> position = chromaPositionOf(location);
    if (!position)
        return;
    if (descriptor.log2_chroma_w > 0)
        setOption(context, "src_h_chr_pos", position->x);
    if (descriptor.log2_chroma_h > 0)
        setOption(context, "src_v_chr_pos", position->y);
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

QImage PictureConverter::convert(const AVFrame& frame, const QSize& size)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    if (!av_pix_fmt_desc_get(format) || size.isEmpty())
        return {};
    const bool isStored = size == QSize(frame.width, frame.height);
    if (isStored && YuvToRgb::reads(format))
        return imageOf(frame);
    std::optional<Scaler> scaler = takeScaler(taskFor(frame, size));
    if (!scaler || !scale(frame, *scaler))
        return {};
    QImage image = imageOf(*scaler->picture);
    keepScaler(std::move(*scaler));
    return image;
}

/// The image of a picture in one of the readable formats.
QImage PictureConverter::imageOf(const AVFrame& picture)
{
    QImage image = m_images.take({picture.width, picture.height});
    if (image.isNull())
        return image;
    if (picture.format == AV_PIX_FMT_BGRA) // which is what Format_ARGB32 is in memory
        av_image_copy_plane(image.bits(), image.bytesPerLine(), picture.data[0],
                            picture.linesize[0], picture.width * 4, picture.height);
    else
        YuvToRgb(picture).convert(picture, image);
    return image;
}

PictureConverter::Task PictureConverter::taskFor(const AVFrame& frame, const QSize& size)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    return {{frame.width, frame.height},
            size,
            format,
            readableFormatFor(format),
            isFullRangeFormat(frame),
            YuvToRgb::chromaLocationOf(frame)};
}

/// Scales a picture, which keeps its own colours. False when that is impossible.
bool PictureConverter::scale(const AVFrame& frame, const Scaler& scaler)
{
    AVFrame& picture = *scaler.picture;
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

/// Null when FFmpeg cannot scale so.
ScalerPtr PictureConverter::makeScalerContext(const Task& task)
{
    ScalerPtr context(sws_alloc_context());
    if (!context)
        return nullptr;
    setOption(*context, "srcw", task.from.width());
    setOption(*context, "srch", task.from.height());
    setOption(*context, "src_format", task.source);
    setOption(*context, "dstw", task.to.width());
    setOption(*context, "dsth", task.to.height());
    setOption(*context, "dst_format", task.target);
    setOption(*context, "sws_flags",
              SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT | SWS_FULL_CHR_H_INP |
                  SWS_BITEXACT);
    setChromaPlace(*context, task.source, task.chromaLocation);
    return sws_init_context(context.get(), nullptr, nullptr) < 0 ? nullptr : std::move(context);
}

std::optional<PictureConverter::Scaler> PictureConverter::makeScaler(const Task& task)
{
    ScalerPtr context = makeScalerContext(task);
    if (!context)
        return std::nullopt;
    // The same range on both sides: the conversion to full range is YuvToRgb's.
    const int* coefficients = sws_getCoefficients(SWS_CS_DEFAULT);
    constexpr int Neutral = 1 << 16;
    sws_setColorspaceDetails(context.get(), coefficients, task.isFullRange, coefficients,
                             task.isFullRange, 0, Neutral, Neutral);
    FramePtr picture = makeFrame();
    picture->width = task.to.width();
    picture->height = task.to.height();
    picture->format = task.target;
    if (av_frame_get_buffer(picture.get(), 0) < 0)
        return std::nullopt;
    return Scaler{task, std::move(context), std::move(picture)};
}

void PictureConverter::keepScaler(Scaler scaler)
{
    const std::lock_guard lock(m_mutex);
    if (m_idle.size() == MostIdleScalers)
        m_idle.erase(m_idle.begin());
    m_idle.push_back(std::move(scaler));
}

} // namespace QtAV
