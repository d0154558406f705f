#include "qtav/src/DecoderMemory.h"

#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/VideoFramePrivate.h"

#include <utility>

namespace QtAV {

namespace {

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
    decoder.opaque = this;
    decoder.get_buffer2 = &DecoderMemory::take;
    allowCallsFromThreads(decoder);
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
    if (self.m_deadline && self.m_deadline->hasPassed()) {
        return AVERROR_EXIT;
    }
    const int result = avcodec_default_get_buffer2(decoder, frame, flags);
    if (result < 0) {
        return result;
    }
    return self.m_held.add(*frame, bytes) ? result : AVERROR(ENOMEM);
}

} // namespace QtAV
