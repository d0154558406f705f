#include "qtav/src/DecoderMemory.h"

#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/VideoFramePrivate.h"

#include <cerrno>
#include <utility>

namespace QtAV {

namespace {

/// What a picture takes beside its pixels.
constexpr qint64 frameBytes = 2048;

QSize sizeOf(const AVCodecParameters& codec)
{
    return {codec.width, codec.height};
}

AVPixelFormat formatOf(const AVCodecParameters& codec)
{
    return static_cast<AVPixelFormat>(codec.format);
}

qint64 bytesOf(const QSize& stored, AVPixelFormat format, AVRational stated, AVRational ofPicture)
{
    const QSize shown = squareSizeOf(stored, stated.num > 0 ? stated : ofPicture);
    return PictureLimit::bytesOf(format, stored, shown);
}

} // namespace

void DecoderMemory::setDeadline(std::shared_ptr<const Deadline> deadline)
{
    m_deadline = std::move(deadline);
}

qint64 DecoderMemory::declaredBytes(const StreamParameters& stream)
{
    const AVCodecParameters& codec = *stream.codec;
    return bytesOf(sizeOf(codec), formatOf(codec), stream.sampleAspectRatio,
                   codec.sample_aspect_ratio);
}

bool DecoderMemory::begin(const StreamParameters& stream)
{
    const AVCodecParameters& codec = *stream.codec;
    m_statedAspectRatio = stream.sampleAspectRatio;
    return allows(sizeOf(codec), formatOf(codec), codec.sample_aspect_ratio);
}

void DecoderMemory::provideFor(AVCodecContext& decoder, int wantedThreads)
{
    const QSize stored(decoder.width, decoder.height);
    decoder.thread_count = m_limit.threadsFor(decoder.pix_fmt, stored, wantedThreads);
    m_mostHeldBytes = m_limit.heldBytes(decoder.pix_fmt, stored, decoder.thread_count);
    if (decoder.codec_id == AV_CODEC_ID_AV1) {
        decoder.max_pixels = m_limit.mostPixels();
    }
    decoder.opaque = this;
    decoder.get_buffer2 = &DecoderMemory::take;
    allowCallsFromThreads(decoder);
}

bool DecoderMemory::allowsOutput(const AVFrame& frame)
{
    const bool wasChecked = frame.opaque_ref;
    return wasChecked || (!isLate() && allows({frame.width, frame.height},
                                              static_cast<AVPixelFormat>(frame.format),
                                              frame.sample_aspect_ratio));
}

bool DecoderMemory::keepWaiting(AVFrame& frame)
{
    const qint64 bytes =
        frameBytes + PictureLimit::decodedBytes(static_cast<AVPixelFormat>(frame.format),
                                                {frame.width, frame.height});
    return allowsToHold(bytes) && m_held.add(frame, bytes);
}

/// Without a limit the stream's header, read again, tells the size. That takes no pictures.
void DecoderMemory::explainOpening(const AVCodec& codec, const AVCodecParameters& stream)
{
    if (codec.id != AV_CODEC_ID_AV1) {
        return;
    }
    const CodecContextPtr decoder(avcodec_alloc_context3(&codec));
    if (!decoder || avcodec_parameters_to_context(decoder.get(), &stream) < 0) {
        return;
    }
    decoder->thread_count = 1;
    if (avcodec_open2(decoder.get(), &codec, nullptr) >= 0) {
        static_cast<void>(allows({decoder->width, decoder->height}, decoder->pix_fmt,
                                 decoder->sample_aspect_ratio));
    }
}

void DecoderMemory::explainPacket(int error, AVCodecContext& decoder, const AVPacket& packet)
{
    if (error != AVERROR(ERANGE)) {
        return;
    }
    const ParserPtr parser(av_parser_init(decoder.codec_id));
    if (!parser) {
        return;
    }
    uint8_t* data = nullptr;
    int size = 0;
    av_parser_parse2(parser.get(), &decoder, &data, &size, packet.data, packet.size, packet.pts,
                     packet.dts, packet.pos);
    static_cast<void>(allows({parser->width, parser->height},
                             static_cast<AVPixelFormat>(parser->format),
                             decoder.sample_aspect_ratio));
}

QString DecoderMemory::refusal() const
{
    const std::lock_guard lock(m_refusalMutex);
    return m_refusal;
}

/// Whether a picture is small enough; records the reason if not.
bool DecoderMemory::allows(const QSize& stored, AVPixelFormat format, AVRational sampleAspectRatio)
{
    const qint64 bytes = bytesOf(stored, format, m_statedAspectRatio, sampleAspectRatio);
    if (m_limit.allows(bytes)) {
        return true;
    }
    refuse(m_limit.refusal(stored, bytes));
    return false;
}

/// Whether the decoder may keep one more picture; records the reason if not.
bool DecoderMemory::allowsToHold(qint64 bytes)
{
    const qint64 all = m_held.bytes() + bytes;
    if (all <= m_mostHeldBytes) {
        return true;
    }
    refuse(PictureLimit::heldRefusal(all, m_mostHeldBytes));
    return false;
}

void DecoderMemory::refuse(const QString& reason)
{
    const std::lock_guard lock(m_refusalMutex);
    m_refusal = reason;
}

/// Called for each picture that is begun, from any of the decoder's threads.
int DecoderMemory::take(AVCodecContext* decoder, AVFrame* frame, int flags)
{
    auto& self = *static_cast<DecoderMemory*>(decoder->opaque);
    const QSize stored(frame->width, frame->height);
    const auto format = static_cast<AVPixelFormat>(frame->format);
    const qint64 bytes = PictureLimit::decodedBytes(format, stored);
    if (!self.allows(stored, format, decoder->sample_aspect_ratio) || !self.allowsToHold(bytes)) {
        return AVERROR(ENOMEM);
    }
    if (self.isLate()) {
        return AVERROR_EXIT;
    }
    const int result = avcodec_default_get_buffer2(decoder, frame, flags);
    if (result < 0) {
        return result;
    }
    return self.m_held.add(*frame, bytes) ? result : AVERROR(ENOMEM);
}

} // namespace QtAV
