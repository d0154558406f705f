#include "bench/bare/BareConversion.h"

#include "bench/bare/Handles.h"

extern "C" {
#include <libavutil/imgutils.h>
#include <libswscale/swscale.h>
}

#include <QFile>

namespace bench {

namespace {

struct FreeScaler
{
    void operator()(SwsContext* context) const { sws_freeContext(context); }
};

using ScalerPtr = std::unique_ptr<SwsContext, FreeScaler>;

InputPtr openedInput(const QString& video)
{
    AVFormatContext* context = nullptr;
    if (avformat_open_input(&context, QFile::encodeName(video).constData(), nullptr, nullptr) < 0) {
        return nullptr;
    }
    InputPtr input(context);
    return avformat_find_stream_info(context, nullptr) < 0 ? nullptr : std::move(input);
}

CodecPtr openedCodec(const AVStream& stream)
{
    const AVCodec* const codec = avcodec_find_decoder(stream.codecpar->codec_id);
    CodecPtr context(avcodec_alloc_context3(codec));
    if (codec == nullptr || !context ||
        avcodec_parameters_to_context(context.get(), stream.codecpar) < 0 ||
        avcodec_open2(context.get(), codec, nullptr) < 0) {
        return nullptr;
    }
    return context;
}

/// The first frame decoded; null if there is none.
FramePtr firstFrame(const QString& video)
{
    const InputPtr input = openedInput(video);
    if (!input) {
        return nullptr;
    }
    const int index = av_find_best_stream(input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (index < 0) {
        return nullptr;
    }
    const CodecPtr codec = openedCodec(*input->streams[index]);
    const PacketPtr packet(av_packet_alloc());
    FramePtr frame(av_frame_alloc());
    if (!codec || !packet || !frame) {
        return nullptr;
    }
    while (av_read_frame(input.get(), packet.get()) >= 0) {
        const bool isSent =
            packet->stream_index == index && avcodec_send_packet(codec.get(), packet.get()) >= 0;
        av_packet_unref(packet.get());
        if (isSent && avcodec_receive_frame(codec.get(), frame.get()) >= 0) {
            return frame;
        }
    }
    // A decoder may hold a single frame back until it is drained.
    if (avcodec_send_packet(codec.get(), nullptr) < 0 ||
        avcodec_receive_frame(codec.get(), frame.get()) < 0) {
        return nullptr;
    }
    return frame;
}

ScalerPtr makeScaler(const AVFrame& frame, ScalerFlags flags)
{
    int value = SWS_BICUBIC;
    if (flags == ScalerFlags::Exact) {
        value |= SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT;
    }
    ScalerPtr scaler(sws_getContext(
        frame.width, frame.height, static_cast<AVPixelFormat>(frame.format), frame.width,
        frame.height, AV_PIX_FMT_BGRA, value, nullptr, nullptr, nullptr));
    if (!scaler) {
        return nullptr;
    }
    constexpr int limited = 0;
    constexpr int full = 1;
    constexpr int neutral = 1 << 16;
    const int* const bt709 = sws_getCoefficients(SWS_CS_ITU709);
    const int result =
        sws_setColorspaceDetails(scaler.get(), bt709, limited, bt709, full, 0, neutral, neutral);
    return result < 0 ? nullptr : std::move(scaler);
}

FramePtr makeTarget(const AVFrame& source)
{
    FramePtr target(av_frame_alloc());
    if (!target) {
        return nullptr;
    }
    target->width = source.width;
    target->height = source.height;
    target->format = AV_PIX_FMT_BGRA;
    return av_frame_get_buffer(target.get(), 0) < 0 ? nullptr : std::move(target);
}

} // namespace

struct BareConversion::Private
{
    FramePtr source;
    FramePtr target;
    ScalerPtr scaler;
};

BareConversion::BareConversion(const QString& video, ScalerFlags flags)
    : d(std::make_unique<Private>())
{
    d->source = firstFrame(video);
    if (!d->source) {
        m_error = QStringLiteral("no frame could be decoded from %1").arg(video);
        return;
    }
    d->scaler = makeScaler(*d->source, flags);
    d->target = makeTarget(*d->source);
    if (!d->scaler || !d->target) {
        m_error = QStringLiteral("no conversion to BGRA for %1").arg(video);
    }
}

BareConversion::~BareConversion() = default;

bool BareConversion::run()
{
    return sws_scale(d->scaler.get(), d->source->data, d->source->linesize, 0, d->source->height,
                     d->target->data, d->target->linesize) == d->source->height;
}

std::uint8_t* BareConversion::pixels()
{
    return d->target->data[0];
}

int BareConversion::bytesPerLine() const
{
    return d->target->linesize[0];
}

QSize BareConversion::size() const
{
    return isValid() ? QSize(d->target->width, d->target->height) : QSize();
}

QString ffmpegVersion()
{
    return QString::fromLatin1(av_version_info());
}

} // namespace bench
