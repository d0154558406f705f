#include <QtAV/VideoDecoder.h>

#include "qtav/src/Colours.h"
#include "qtav/src/DecoderMemory.h"
#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FFmpegLog.h"
#include "qtav/src/HeldPictures.h"
#include "qtav/src/HevcLayers.h"
#include "qtav/src/PacketHandle.h"
#include "qtav/src/PictureConverter.h"
#include "qtav/src/SequenceChange.h"
#include "qtav/src/StreamParameters.h"
#include "qtav/src/UnreferencedPictures.h"
#include "qtav/src/VideoFramePrivate.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace QtAV {

namespace {

/// Does nothing if the picture's size differs from what the container states.
void cutTo(const QRect& part, AVFrame& frame, const AVCodecParameters& codec)
{
    if (frame.width != codec.width || frame.height != codec.height) {
        return;
    }
    frame.crop_left = static_cast<size_t>(part.left());
    frame.crop_top = static_cast<size_t>(part.top());
    frame.crop_right = static_cast<size_t>(codec.width - part.right() - 1);
    frame.crop_bottom = static_cast<size_t>(codec.height - part.bottom() - 1);
    static_cast<void>(av_frame_apply_cropping(&frame, AV_FRAME_CROP_UNALIGNED));
}

const AVCodec* decoderFor(const StreamParameters& parameters)
{
    // FFmpeg's own decoders for VP8 and VP9 drop the alpha layer.
    const AVCodec* withAlpha = nullptr;
    if (parameters.hasAlphaLayer && parameters.codec->codec_id == AV_CODEC_ID_VP8) {
        withAlpha = avcodec_find_decoder_by_name("libvpx");
    }
    if (parameters.hasAlphaLayer && parameters.codec->codec_id == AV_CODEC_ID_VP9) {
        withAlpha = avcodec_find_decoder_by_name("libvpx-vp9");
    }
    return withAlpha ? withAlpha : avcodec_find_decoder(parameters.codec->codec_id);
}

bool isIntraOnly(AVCodecID codec)
{
    const AVCodecDescriptor* descriptor = avcodec_descriptor_get(codec);
    return descriptor && (descriptor->props & AV_CODEC_PROP_INTRA_ONLY);
}

static_assert(int(VideoDecoder::DiscardDefault) == int(AVDISCARD_DEFAULT));
static_assert(int(VideoDecoder::DiscardNonReference) == int(AVDISCARD_NONREF));

} // namespace

class VideoDecoder::Private
{
public:
    /// State of the decoder between its first key frame and the frames that follow.
    enum class Start {
        NeedsKeyFrame, ///< nothing has been decoded since opening or flushing
        KeyFrameTaken, ///< the key frame came out early; FFmpeg must get it again
        Running,
    };

    bool openContext();
    void leaveStuckThreads();
    bool sendAndReceive(const AVPacket* packet);
    bool wantsKeyFrameAtOnce() const;
    void startBehindKeyFrame(const AVPacket& packet);
    bool startAtKeyFrame(const Packet& packet);
    bool resumeAfterKeyFrame();
    bool drain(bool& failed);
    bool receiveAll(bool& failed);
    bool deliver(FramePtr frame);
    void restart();
    void applySkipOptions() const;
    void watchSubLayers(const AVPacket& packet);
    bool leavesOut(const AVPacket& packet) const;
    bool leadsUpToKeyFrame(const AVPacket& packet);

    std::shared_ptr<const StreamParameters> parameters;
    DecoderMemory memory;
    CodecContextPtr context; ///< declared after the memory that it uses
    QVariantHash options;
    std::shared_ptr<PictureConverter> converter;

    Start start = Start::NeedsKeyFrame;
    std::shared_ptr<const PacketHandle> keyPacket;
    /// Frames up to these presentation ticks are dropped: those of a key frame that comes out a
    /// second time, or just before a key frame that comes out only once.
    qint64 repeatedTicks = AV_NOPTS_VALUE;
    /// Presentation ticks of the key frame at which decoding started, until a packet behind it is
    /// sent.
    qint64 startTicks = AV_NOPTS_VALUE;
    bool draining = false;
    bool decodesOneAtATime = false; ///< of an AV1 stream in which there was an error
    bool hasSubLayers = false;
    UnreferencedPictures unreferenced;
    SequenceChange sequenceChange;
    qint64 lastTicks = AV_NOPTS_VALUE; ///< of the most recent frame
    qint64 nextTicks = 0;              ///< for frames to which FFmpeg can assign no time

    std::deque<VideoFrame> frames;
    VideoFrame current;
};

VideoDecoder* VideoDecoder::create(const char* name)
{
    return qstrcmp(name, "FFmpeg") == 0 ? new VideoDecoder : nullptr;
}

VideoDecoder::VideoDecoder()
    : d(std::make_unique<Private>())
{}

VideoDecoder::~VideoDecoder() = default;

void VideoDecoder::setCodecContext(const VideoCodecContext* context)
{
    close();
    d->parameters = context ? context->parameters() : nullptr;
    d->decodesOneAtATime = false;
}

void VideoDecoder::setPictureMemory(qint64 bytes)
{
    d->memory.setLimit(PictureLimit(bytes));
}

void VideoDecoder::setDeadline(std::shared_ptr<const Deadline> deadline)
{
    d->memory.setDeadline(std::move(deadline));
}

QString VideoDecoder::errorString() const
{
    return d->memory.refusal();
}

bool VideoDecoder::open()
{
    close();
    if (!d->parameters) {
        return false;
    }
    routeFFmpegLog();
    const AVCodecParameters& stream = *d->parameters->codec;
    if (!d->memory.begin(*d->parameters) || !d->openContext()) {
        return false;
    }
    d->converter = std::make_shared<PictureConverter>();
    d->hasSubLayers = stream.codec_id == AV_CODEC_ID_HEVC &&
                      hevcHasSubLayers(stream.extradata, stream.extradata_size);
    d->unreferenced = UnreferencedPictures(stream);
    d->sequenceChange = SequenceChange(stream);
    d->applySkipOptions();
    return true;
}

bool VideoDecoder::Private::openContext()
{
    const AVCodec* codec = decoderFor(*parameters);
    CodecContextPtr opened(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!opened || avcodec_parameters_to_context(opened.get(), parameters->codec.get()) < 0) {
        return false;
    }
    opened->pkt_timebase = parameters->timeline.timeBase();
    const QVariantHash section = options.value(QStringLiteral("avcodec")).toHash();
    memory.provideFor(*opened, section.value(QStringLiteral("threads"), 0).toInt());
    // Otherwise pictures that are cropped at the left or the top are cropped at a column that suits
    // the processor.
    opened->flags |= AV_CODEC_FLAG_UNALIGNED;
    opened->flags |= decodesOneAtATime ? AV_CODEC_FLAG_LOW_DELAY : 0;
    if (avcodec_open2(opened.get(), codec, nullptr) < 0) {
        memory.explainOpening(*codec, *parameters->codec);
        return false;
    }
    context = std::move(opened);
    return true;
}

void VideoDecoder::close()
{
    d->context.reset();
    d->converter.reset();
    d->restart();
}

qint64 VideoDecoder::pictureBytes() const
{
    return d->parameters ? DecoderMemory::declaredBytes(*d->parameters) : 0;
}

bool VideoDecoder::isOpen() const
{
    return d->context != nullptr;
}

void VideoDecoder::setOptions(const QVariantHash& options)
{
    d->options = options;
    if (d->context) {
        d->applySkipOptions();
    }
}

QVariantHash VideoDecoder::options() const
{
    return d->options;
}

void VideoDecoder::Private::applySkipOptions() const
{
    const QVariantHash section = options.value(QStringLiteral("avcodec")).toHash();
    const auto discard = [&section](const QString& key) {
        return static_cast<AVDiscard>(section.value(key, int(AVDISCARD_DEFAULT)).toInt());
    };
    context->skip_frame = hasSubLayers ? AVDISCARD_DEFAULT : discard(QStringLiteral("skip_frame"));
    context->skip_loop_filter =
        hasSubLayers ? AVDISCARD_DEFAULT : discard(QStringLiteral("skip_loop_filter"));
}

void VideoDecoder::Private::watchSubLayers(const AVPacket& packet)
{
    const bool mayTell = context->codec_id == AV_CODEC_ID_HEVC && (packet.flags & AV_PKT_FLAG_KEY);
    if (!hasSubLayers && mayTell && hevcHasSubLayers(packet.data, packet.size)) {
        hasSubLayers = true;
        applySkipOptions();
    }
}

bool VideoDecoder::Private::leavesOut(const AVPacket& packet) const
{
    const bool mayLeaveOut = start == Start::Running && !draining &&
                             context->skip_frame >= AVDISCARD_NONREF &&
                             !(packet.flags & AV_PKT_FLAG_KEY);
    return mayLeaveOut && unreferenced.areAllOf(packet);
}

/// Pictures that lead up to an open group's key frame refer to the previous group and cannot be
/// decoded from there. FFmpeg 7.1's MPEG-4 decoder tries, and then gives other pictures twice.
bool VideoDecoder::Private::leadsUpToKeyFrame(const AVPacket& packet)
{
    if (startTicks == AV_NOPTS_VALUE) {
        return false;
    }
    if (presentationTicks(packet) > startTicks) {
        startTicks = AV_NOPTS_VALUE;
        return false;
    }
    return unreferenced.areAllOf(packet);
}

void VideoDecoder::flush()
{
    if (!d->context) {
        return;
    }
    avcodec_flush_buffers(d->context.get());
    d->restart();
}

void VideoDecoder::Private::restart()
{
    memory.clearRefusal();
    start = Start::NeedsKeyFrame;
    keyPacket.reset();
    repeatedTicks = AV_NOPTS_VALUE;
    startTicks = AV_NOPTS_VALUE;
    draining = false;
    lastTicks = AV_NOPTS_VALUE;
    nextTicks = 0;
    frames.clear();
    sequenceChange.reset();
    current = VideoFrame();
}

bool VideoDecoder::decode(const Packet& packet)
{
    d->current = VideoFrame();
    const std::shared_ptr<const PacketHandle> handle = PacketHandle::of(packet);
    if (!d->context || (!handle && !packet.isDrain())) {
        return false;
    }
    // The caller requests the frame of the key packet again that it has just passed.
    const bool isRepeated = d->start == Private::Start::KeyFrameTaken && handle == d->keyPacket;
    if (isRepeated) {
        return true;
    }

    if (handle && (d->leavesOut(*handle->get()) || d->leadsUpToKeyFrame(*handle->get()))) {
        return true;
    }

    bool succeeded = true;
    const bool isFirstKeyFrame =
        d->start == Private::Start::NeedsKeyFrame && packet.hasKeyFrame && handle;
    if (isFirstKeyFrame) {
        d->startTicks = presentationTicks(*handle->get());
    }
    if (isFirstKeyFrame && d->wantsKeyFrameAtOnce()) {
        succeeded = d->startAtKeyFrame(packet);
    } else {
        if (d->start == Private::Start::KeyFrameTaken) {
            succeeded = d->resumeAfterKeyFrame();
        }
        if (!d->context) {
            return false;
        }
        if (isFirstKeyFrame) {
            d->startBehindKeyFrame(*handle->get());
        }
        d->start = Private::Start::Running;
        if (handle) {
            d->watchSubLayers(*handle->get());
        }
        succeeded = d->sendAndReceive(handle ? handle->get() : nullptr) && succeeded;
    }
    if (succeeded && !d->frames.empty()) {
        d->current = std::move(d->frames.front());
        d->frames.pop_front();
        HeldPictures::giveAway(*VideoFramePrivate::of(d->current)->frame);
    }
    return succeeded;
}

bool VideoDecoder::Private::wantsKeyFrameAtOnce() const
{
    const QVariantHash section = options.value(QStringLiteral("start")).toHash();
    return section.value(QStringLiteral("key_frame_at_once"), true).toBool();
}

/// The key frame comes out once FFmpeg has enough packets. Pictures that lead up to an open group's
/// key frame cannot be decoded from there.
void VideoDecoder::Private::startBehindKeyFrame(const AVPacket& packet)
{
    nextTicks = presentationTicks(packet);
    if (nextTicks != AV_NOPTS_VALUE) {
        repeatedTicks = nextTicks - 1;
    }
}

/// A decoder that reorders frames or decodes several at a time holds the key frame back. Draining
/// releases it. Since that ends the stream for FFmpeg, the packet is sent again before its
/// successor, and the second copy of the frame is dropped.
bool VideoDecoder::Private::startAtKeyFrame(const Packet& packet)
{
    const std::shared_ptr<const PacketHandle> handle = PacketHandle::of(packet);
    watchSubLayers(*handle->get());
    nextTicks = presentationTicks(*handle->get());
    bool succeeded = sendAndReceive(handle->get());
    if (!frames.empty()) {
        start = Start::Running;
        return succeeded;
    }
    succeeded = sendAndReceive(nullptr) && succeeded;
    keyPacket = handle;
    start = Start::KeyFrameTaken;
    return succeeded;
}

bool VideoDecoder::Private::resumeAfterKeyFrame()
{
    const std::shared_ptr<const PacketHandle> packet = std::move(keyPacket);
    keyPacket.reset();
    avcodec_flush_buffers(context.get());
    draining = false;
    // The following pictures refer to no other picture.
    if (isIntraOnly(context->codec_id)) {
        return true;
    }
    repeatedTicks = lastTicks;
    nextTicks = presentationTicks(*packet->get());
    return sendAndReceive(packet->get());
}

/// A null packet drains. Fails if there is no decoder, see leaveStuckThreads().
bool VideoDecoder::Private::sendAndReceive(const AVPacket* packet)
{
    if (!context) {
        return false;
    }
    if (draining && packet) {
        avcodec_flush_buffers(context.get());
        draining = false;
    }
    bool failed = false;
    bool isRefused = false;
    if (packet && sequenceChange.isAt(*packet)) {
        isRefused = !drain(failed);
    }
    if (packet || !draining) {
        const int result = avcodec_send_packet(context.get(), packet);
        failed = result < 0 && result != AVERROR_EOF;
        draining = !packet;
        if (packet) {
            memory.explainPacket(result, *context, *packet);
        }
    }
    isRefused = !receiveAll(failed) || isRefused;
    const bool mayGetStuck = context->codec_id == AV_CODEC_ID_AV1 && context->thread_count != 1;
    if (failed && mayGetStuck && !decodesOneAtATime) {
        leaveStuckThreads();
    }
    return !failed && !isRefused;
}

/// After an error in AV1, the decoder's threads may wait for each other for ever when they are
/// given more pictures. A new decoder that works on one picture at a time does not; what refers to
/// earlier pictures is lost until the next key frame.
void VideoDecoder::Private::leaveStuckThreads()
{
    decodesOneAtATime = true;
    draining = false;
    context.reset();
    if (openContext()) {
        applySkipOptions();
    }
}

/// Releases all frames held and prepares the decoder for a new start. Returns false if one was
/// refused.
bool VideoDecoder::Private::drain(bool& failed)
{
    const bool isRefused = avcodec_send_packet(context.get(), nullptr) >= 0 && !receiveAll(failed);
    avcodec_flush_buffers(context.get());
    return !isRefused;
}

/// Returns false if a picture was refused.
bool VideoDecoder::Private::receiveAll(bool& failed)
{
    for (;;) {
        FramePtr frame = makeFrame();
        const int result = avcodec_receive_frame(context.get(), frame.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) {
            return true;
        }
        if (result < 0) {
            failed = true;
            return true;
        }
        if (!memory.allowsOutput(*frame) || !deliver(std::move(frame))) {
            return false;
        }
    }
}

/// Returns false if too many pictures wait. One packet can give any number of them.
bool VideoDecoder::Private::deliver(FramePtr frame)
{
    HeldPictures::giveAway(*frame);
    const bool hasTime = frame->best_effort_timestamp != AV_NOPTS_VALUE;
    const qint64 ticks = hasTime ? frame->best_effort_timestamp : nextTicks;
    if (repeatedTicks != AV_NOPTS_VALUE && ticks <= repeatedTicks) {
        // This also drops pictures that lead up to an open group's key frame and cannot be decoded.
        if (ticks == repeatedTicks) {
            repeatedTicks = AV_NOPTS_VALUE;
        }
        return true;
    }
    if (!frames.empty() && !memory.keepWaiting(*frame)) {
        return false;
    }
    repeatedTicks = AV_NOPTS_VALUE;
    lastTicks = ticks;
    nextTicks = ticks + std::max<qint64>(1, durationTicks(*frame));
    forgetUnknownColours(*frame);
    completeColours(*frame, *parameters->statedColours);
    if (parameters->cleanAperture) {
        cutTo(*parameters->cleanAperture, *frame, *parameters->codec);
    }
    frames.emplace_back(new VideoFramePrivate(std::move(frame), ticks, parameters, converter));
    return true;
}

VideoFrame VideoDecoder::frame()
{
    return std::exchange(d->current, VideoFrame());
}

} // namespace QtAV
