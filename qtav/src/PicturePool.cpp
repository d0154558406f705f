#include "qtav/src/PicturePool.h"

#include <algorithm>
#include <array>

namespace QtAV {

namespace {

constexpr int PlaneCount = 4;

/// Decoders read a little behind a plane's end, and want its start at a round address.
constexpr size_t Margin = 128;

using LineSizes = std::array<int, PlaneCount>;

/// The lengths of the lines of a picture's planes, of which each is a multiple of what the decoder
/// asks for; FFmpeg's error when there is no such picture.
int fillLineSizes(LineSizes& lines, AVPixelFormat format, int width, const int* alignments)
{
    for (;;) {
        const int result = av_image_fill_linesizes(lines.data(), format, width);
        if (result < 0)
            return result;
        const bool isAligned =
            std::equal(lines.begin(), lines.end(), alignments,
                       [](int line, int alignment) { return line % alignment == 0; });
        if (isAligned)
            return 0;
        // To the next multiple of a higher power of two.
        width += width & -width;
    }
}

} // namespace

PicturePool::~PicturePool()
{
    for (auto& entry : m_planes)
        av_buffer_pool_uninit(&entry.second);
}

void PicturePool::serve(AVCodecContext& context)
{
    context.opaque = this;
    context.get_buffer2 = getBuffer;
#if LIBAVCODEC_VERSION_MAJOR < 60
    // Without it decoding threads would queue up for the thread that sends packets.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    context.thread_safe_callbacks = 1;
#pragma GCC diagnostic pop
#endif
}

int PicturePool::getBuffer(AVCodecContext* context, AVFrame* frame, int flags)
{
    const AVPixFmtDescriptor* format =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame->format));
    const bool isOrdinary = format && !(format->flags & AV_PIX_FMT_FLAG_HWACCEL);
    if (!isOrdinary || !(context->codec->capabilities & AV_CODEC_CAP_DR1))
        return avcodec_default_get_buffer2(context, frame, flags);
    return static_cast<PicturePool*>(context->opaque)->fill(*context, *frame);
}

int PicturePool::fill(AVCodecContext& context, AVFrame& frame)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    int width = frame.width;
    int height = frame.height;
    std::array<int, AV_NUM_DATA_POINTERS> alignments{};
    avcodec_align_dimensions2(&context, &width, &height, alignments.data());
    LineSizes lines{};
    int result = fillLineSizes(lines, format, width, alignments.data());
    if (result < 0)
        return result;

    std::array<ptrdiff_t, PlaneCount> wideLines{};
    std::copy(lines.begin(), lines.end(), wideLines.begin());
    std::array<size_t, PlaneCount> sizes{};
    result = av_image_fill_plane_sizes(sizes.data(), format, height, wideLines.data());
    if (result < 0)
        return result;

    for (size_t i = 0; i < sizes.size() && sizes[i] > 0; ++i) {
        frame.buf[i] = planeOf(sizes[i] + Margin);
        if (!frame.buf[i]) {
            av_frame_unref(&frame);
            return AVERROR(ENOMEM);
        }
        frame.data[i] = frame.buf[i]->data;
        frame.linesize[i] = lines[i];
    }
    frame.extended_data = frame.data;
    return 0;
}

/// Null when memory runs out.
AVBufferRef* PicturePool::planeOf(size_t size)
{
    AVBufferPool* pool = nullptr;
    {
        const std::lock_guard lock(m_mutex);
        AVBufferPool*& entry = m_planes[size];
        if (!entry)
            entry = av_buffer_pool_init(size, av_buffer_allocz);
        pool = entry;
    }
    return pool ? av_buffer_pool_get(pool) : nullptr;
}

} // namespace QtAV
