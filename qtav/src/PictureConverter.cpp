#include "qtav/src/PictureConverter.h"

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

/// Copies a BGRA picture, which is what Format_ARGB32 is in memory.
QImage imageFromBgra(const AVFrame& frame)
{
    QImage image(frame.width, frame.height, QImage::Format_ARGB32);
    if (!image.isNull())
        av_image_copy_plane(image.bits(), image.bytesPerLine(), frame.data[0], frame.linesize[0],
                            frame.width * 4, frame.height);
    return image;
}

} // namespace

bool PictureConverter::Task::operator==(const Task& other) const
{
    return from == other.from && to == other.to && source == other.source &&
           target == other.target && isFullRange == other.isFullRange;
}

QImage PictureConverter::convert(const AVFrame& frame, const QSize& size)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    if (!av_pix_fmt_desc_get(format) || size.isEmpty())
        return {};
    const bool isStored = size == QSize(frame.width, frame.height);
    if (isStored && YuvToRgb::reads(format))
        return YuvToRgb(frame).convert(frame);
    const FramePtr readable = scaled(frame, size, readableFormatFor(format));
    if (!readable)
        return {};
    return readable->format == AV_PIX_FMT_BGRA ? imageFromBgra(*readable)
                                               : YuvToRgb(*readable).convert(*readable);
}

/// The picture at another size or in another format, with its own colours; null when impossible.
FramePtr PictureConverter::scaled(const AVFrame& frame, const QSize& size, AVPixelFormat format)
{
    FramePtr result = makeFrame();
    result->width = size.width();
    result->height = size.height();
    result->format = format;
    if (av_frame_get_buffer(result.get(), 0) < 0 || av_frame_copy_props(result.get(), &frame) < 0)
        return nullptr;
    result->color_range = isFullRangeFormat(frame) ? AVCOL_RANGE_JPEG : frame.color_range;
    // The chroma is at the luma's places now.
    result->chroma_location = AVCHROMA_LOC_UNSPECIFIED;
    result->colorspace = YuvToRgb::matrixOf(frame);

    const Task task{{frame.width, frame.height},
                    size,
                    static_cast<AVPixelFormat>(frame.format),
                    format,
                    isFullRangeFormat(frame)};
    ScalerPtr scaler = takeScaler(task);
    if (!scaler)
        return nullptr;
    const int lines = sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height,
                                result->data, result->linesize);
    keepScaler(task, std::move(scaler));
    return lines > 0 ? std::move(result) : nullptr;
}

ScalerPtr PictureConverter::takeScaler(const Task& task)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_idle.begin(), m_idle.end(),
                                        [&task](const Scaler& s) { return s.task == task; });
        if (found != m_idle.end()) {
            ScalerPtr scaler = std::move(found->context);
            m_idle.erase(found);
            return scaler;
        }
    }
    constexpr int Flags =
        SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT | SWS_FULL_CHR_H_INP | SWS_BITEXACT;
    ScalerPtr scaler(sws_getContext(task.from.width(), task.from.height(), task.source,
                                    task.to.width(), task.to.height(), task.target, Flags, nullptr,
                                    nullptr, nullptr));
    if (!scaler)
        return nullptr;
    // The same range on both sides: the conversion to full range is YuvToRgb's.
    const int* coefficients = sws_getCoefficients(SWS_CS_DEFAULT);
    constexpr int Neutral = 1 << 16;
    sws_setColorspaceDetails(scaler.get(), coefficients, task.isFullRange, coefficients,
                             task.isFullRange, 0, Neutral, Neutral);
    return scaler;
}

void PictureConverter::keepScaler(const Task& task, ScalerPtr scaler)
{
    const std::lock_guard lock(m_mutex);
    if (m_idle.size() == MostIdleScalers)
        m_idle.erase(m_idle.begin());
    m_idle.push_back({task, std::move(scaler)});
}

} // namespace QtAV
