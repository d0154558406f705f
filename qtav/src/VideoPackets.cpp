#include "qtav/src/VideoPackets.h"

#include "qtav/src/Colours.h"
#include "qtav/src/DynamicMetadata.h"
#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/PacketHandle.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace QtAV {

namespace {

/// Maximum size of the hidden packets that wait for one that is shown.
constexpr qint64 mostHiddenBytes = qint64{64} * 1024 * 1024;

/// Codecs whose presentation order follows from the picture types alone.
bool isOrderedByType(AVCodecID codec)
{
    return codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
           codec == AV_CODEC_ID_MPEG4;
}

/// How many bytes of a packet belong to a picture whose beginning was not read.
int tailBytes(AVCodecID codec, const AVPacket& packet)
{
    constexpr uint8_t firstSlice = 0x01;
    constexpr uint8_t lastSlice = 0xaf;
    constexpr int startCodeBytes = 4;
    for (qsizetype i = behindStartCode(packet.data, 0, packet.size); i < packet.size;
         i = behindStartCode(packet.data, i, packet.size)) {
        const uint8_t code = packet.data[i];
        const bool isSlice = codec != AV_CODEC_ID_MPEG4 && code >= firstSlice && code <= lastSlice;
        if (!isSlice) {
            return static_cast<int>(i) + 1 - startCodeBytes;
        }
    }
    return packet.size;
}

} // namespace

VideoPackets::VideoPackets(Container& container, int stream)
    : m_container(container)
    , m_stream(stream)
    , m_isRaw(container.isRawStream())
{
    m_isLikeAvi = container.isAvi() || hasDecodingTimesOnly();
    describeStream();
    chooseOrder();
    choosePairing();
    m_keyPictures.emplace(*m_parameters->codec);
}

VideoPackets::~VideoPackets() = default;

/// True for Matroska files that hold a stream the way an AVI does, with a header and a tag of that
/// (V_MS/VFW/FOURCC). FFmpeg states no more than the tag, which streams with presentation times may
/// have, too. These have one for their first packet.
bool VideoPackets::hasDecodingTimesOnly()
{
    const AVCodecParameters& codec = *m_container.stream(m_stream).codecpar;
    const bool hasOtherTimes =
        m_isRaw || m_container.isTransmission() || m_container.indexesAllPackets();
    const bool isReordered = codec.video_delay > 0 && (codec.codec_id == AV_CODEC_ID_MPEG4 ||
                                                       codec.codec_id == AV_CODEC_ID_H264);
    if (hasOtherTimes || !isReordered || codec.codec_tag == 0 || !rewind()) {
        return false;
    }
    PacketPtr packet;
    PacketAnswer answer = m_container.read(packet);
    while (answer == PacketAnswer::Packet && packet->stream_index != m_stream) {
        answer = m_container.read(packet);
    }
    return answer == PacketAnswer::Packet && packet->pts == AV_NOPTS_VALUE &&
           packet->dts != AV_NOPTS_VALUE && rewind();
}

void VideoPackets::describeStream()
{
    const AVStream& stream = m_container.stream(m_stream);
    auto parameters = std::make_shared<StreamParameters>();
    parameters->codec.reset(avcodec_parameters_alloc());
    Q_CHECK_PTR(parameters->codec.get());
    avcodec_parameters_copy(parameters->codec.get(), stream.codecpar);
    if (m_isLikeAvi && stream.codecpar->codec_id == AV_CODEC_ID_MPEG4) {
        unpackBFrames(parameters->codec);
    }
    parameters->timeline =
        m_isRaw ? Timeline(stream.time_base, 0, stream.time_base) : m_container.timeline(m_stream);
    parameters->frameRate = m_container.frameRate(m_stream);
    parameters->sampleAspectRatio = stream.sample_aspect_ratio;
    parameters->orientation = orientationFromDisplayMatrix(displayMatrixOf(stream));
    parameters->cleanAperture = m_container.cleanAperture(m_stream);
    parameters->statedColours = statedColours(stream);
    parameters->baseLayer = baseLayerOf(stream);
    const AVDictionaryEntry* alpha = av_dict_get(stream.metadata, "alpha_mode", nullptr, 0);
    parameters->hasAlphaLayer = alpha && std::strcmp(alpha->value, "1") == 0;
    m_parameters = std::move(parameters);
}

void VideoPackets::unpackBFrames(CodecParametersPtr& codec)
{
    AVBSFContext* filter = nullptr;
    if (av_bsf_alloc(av_bsf_get_by_name("mpeg4_unpack_bframes"), &filter) < 0) {
        return;
    }
    m_unpackBFrames.reset(filter);
    avcodec_parameters_copy(filter->par_in, codec.get());
    filter->time_base_in = m_container.stream(m_stream).time_base;
    if (av_bsf_init(filter) >= 0) {
        avcodec_parameters_copy(codec.get(), filter->par_out);
    } else {
        m_unpackBFrames.reset();
    }
}

void VideoPackets::chooseOrder()
{
    const AVCodecParameters& codec = *m_parameters->codec;
    const int delay = m_container.stream(m_stream).codecpar->video_delay;
    const AVRational timeBase = timeline().timeBase();
    using Times = PresentationOrder::Times;
    if (m_isRaw || (m_isLikeAvi && delay > 0)) {
        m_order = std::make_unique<PresentationOrder>(codec, delay, Times::OfDecoding, timeBase);
    } else if (m_container.isTransmission() && isOrderedByType(codec.codec_id)) {
        m_order = std::make_unique<PresentationOrder>(codec, delay, Times::WithGaps, timeBase);
        m_fillsGaps = true;
        // FFmpeg's guesses can give two pictures the same time.
        m_container.setMissingTimes(Container::MissingTimes::Leave);
    }
}

/// Other containers hold both fields of a frame in one packet, and so do the packets that FFmpeg's
/// parsers of other codecs make.
void VideoPackets::choosePairing()
{
    const AVCodecParameters& codec = *m_parameters->codec;
    if (codec.codec_id == AV_CODEC_ID_H264 && (m_isRaw || m_container.isTransmission())) {
        m_pairs = std::make_unique<FieldPairs>(codec);
    }
}

PacketAnswer VideoPackets::read(PacketPtr& packet)
{
    while (m_ready.empty()) {
        if (m_ended) {
            return PacketAnswer::End;
        }
        PacketPtr fresh;
        const PacketAnswer answer = m_container.read(fresh);
        if (answer == PacketAnswer::End) {
            acceptEnd();
        } else if (answer != PacketAnswer::Packet) {
            return answer;
        } else if (fresh->stream_index == m_audioStream) {
            m_ready.push_back(std::move(fresh));
        } else if (fresh->stream_index == m_stream && fresh->size > 0) {
            accept(std::move(fresh));
        }
    }
    packet = std::move(m_ready.front());
    m_ready.pop_front();
    return PacketAnswer::Packet;
}

void VideoPackets::accept(PacketPtr packet)
{
    if (m_unpackBFrames) {
        unpack(std::move(packet));
    } else if (m_pairs) {
        m_pairs->push(std::move(packet));
        takePairs();
    } else {
        order(std::move(packet));
    }
}

void VideoPackets::acceptEnd()
{
    m_ended = true;
    if (m_pairs) {
        m_pairs->finish();
        takePairs();
    }
    if (m_order) {
        m_order->finish();
        takeOrdered();
    }
    dropHiddenGroup();
    deliverHidden();
}

void VideoPackets::takePairs()
{
    while (PacketPtr packet = m_pairs->pop()) {
        order(std::move(packet));
    }
}

void VideoPackets::unpack(PacketPtr packet)
{
    if (av_bsf_send_packet(m_unpackBFrames.get(), packet.get()) < 0) {
        return;
    }
    PacketPtr unpacked = makePacket();
    while (av_bsf_receive_packet(m_unpackBFrames.get(), unpacked.get()) >= 0) {
        order(std::move(unpacked));
        unpacked = makePacket();
    }
}

void VideoPackets::order(PacketPtr packet)
{
    flagKey(*packet);
    if (!m_order) {
        setMissingTime(*packet);
        keepOrDeliver(std::move(packet));
        return;
    }
    if (m_isRaw || m_isLikeAvi) {
        setMissingTime(*packet);
    } else if (joinsBehindTail(*packet)) {
        return;
    }
    const qint64 ticks = frameTicks(*packet);
    m_order->push(std::move(packet), ticks);
    takeOrdered();
}

void VideoPackets::keepOrDeliver(PacketPtr packet)
{
    if (packet->flags & AV_PKT_FLAG_DISCARD) {
        m_hiddenBytes += packet->size;
        m_hidden.push_back(std::move(packet));
        if (m_hiddenBytes > mostHiddenBytes) {
            deliverHidden();
        }
        return;
    }
    deliverHidden();
    m_ready.push_back(std::move(packet));
}

/// At the end, no shown picture refers to a hidden key picture or what follows it.
void VideoPackets::dropHiddenGroup()
{
    const auto isKey = [](const PacketPtr& packet) { return packet->flags & AV_PKT_FLAG_KEY; };
    m_hidden.erase(std::find_if(m_hidden.begin(), m_hidden.end(), isKey), m_hidden.end());
}

void VideoPackets::deliverHidden()
{
    std::move(m_hidden.begin(), m_hidden.end(), std::back_inserter(m_ready));
    m_hidden.clear();
    m_hiddenBytes = 0;
}

/// Reading a transmission from the middle may begin with the useless end of a picture. FFmpeg puts
/// it before the next picture, or gives it that picture's time. Returns true if nothing is left.
bool VideoPackets::joinsBehindTail(AVPacket& packet)
{
    if (!m_joins) {
        return false;
    }
    const int tail = tailBytes(m_parameters->codec->codec_id, packet);
    if (tail == packet.size) {
        m_tailTicks = packet.pts;
        return true;
    }
    m_joins = false;
    packet.data += tail;
    packet.size -= tail;
    if (packet.pts == AV_NOPTS_VALUE) {
        packet.pts = m_tailTicks;
    }
    return false;
}

void VideoPackets::takeOrdered()
{
    while (PacketPtr packet = m_order->pop()) {
        if (presentationTicks(*packet) == AV_NOPTS_VALUE) {
            setMissingTime(*packet);
        }
        m_ready.push_back(std::move(packet));
    }
}

/// An AVI index with packed B-frames marks the chunk behind the key frame instead of the key frame.
void VideoPackets::flagKey(AVPacket& packet) const
{
    const bool isFlagged = packet.flags & AV_PKT_FLAG_KEY;
    if (!isFlagged && !m_unpackBFrames) {
        return;
    }
    if (m_keyPictures->isIn(packet)) {
        packet.flags |= AV_PKT_FLAG_KEY;
    } else {
        packet.flags &= ~AV_PKT_FLAG_KEY;
    }
}

void VideoPackets::setMissingTime(AVPacket& packet)
{
    if (m_isRaw || presentationTicks(packet) == AV_NOPTS_VALUE) {
        packet.dts = m_nextTicks;
    }
    m_nextTicks = (m_isRaw ? packet.dts : presentationTicks(packet)) + frameTicks(packet);
}

qint64 VideoPackets::frameTicks(const AVPacket& packet) const
{
    if (packet.duration > 0) {
        return packet.duration;
    }
    const AVRational rate = m_parameters->frameRate;
    if (rate.num <= 0 || rate.den <= 0) {
        return 1;
    }
    return std::max<qint64>(1, av_rescale_q(1, av_inv_q(rate), timeline().timeBase()));
}

bool VideoPackets::index()
{
    if (!m_isRaw) {
        return true;
    }
    m_rawIndex = RawStreamIndex();
    PacketPtr packet;
    for (;;) {
        const PacketAnswer answer = read(packet);
        if (answer == PacketAnswer::End) {
            break;
        }
        if (answer == PacketAnswer::Failed && canGoOn()) {
            continue;
        }
        if (answer != PacketAnswer::Packet) {
            return false;
        }
        if (packet->stream_index == m_stream && packet->flags & AV_PKT_FLAG_KEY) {
            m_rawIndex.add({packet->pos, packet->dts, packet->pts});
        }
    }
    m_rawIndex.setLength(m_nextTicks);
    return rewind();
}

bool VideoPackets::seekInRawStream(qint64 ms)
{
    const auto keyFrame = m_rawIndex.atOrBefore(timeline().lastTickOf(ms));
    if (!keyFrame) {
        return rewind();
    }
    forgetPosition();
    m_nextTicks = keyFrame->decodingTicks;
    return m_container.seekToByte(keyFrame->position);
}

void VideoPackets::forgetPosition()
{
    m_ready.clear();
    m_hidden.clear();
    m_hiddenBytes = 0;
    m_nextTicks = 0;
    m_ended = false;
    m_joins = true;
    m_tailTicks = AV_NOPTS_VALUE;
    if (m_order) {
        m_order->reset();
    }
    if (m_pairs) {
        m_pairs->reset();
    }
    if (m_unpackBFrames) {
        av_bsf_flush(m_unpackBFrames.get());
    }
}

bool VideoPackets::seekNear(qint64 ms)
{
    if (m_isRaw) {
        return seekInRawStream(ms);
    }
    forgetPosition();
    return m_container.seekNear(m_stream, timeline().lastTickOf(ms));
}

bool VideoPackets::rewind()
{
    forgetPosition();
    // Searching a damaged stream for its first time may end anywhere; its first byte is reliable.
    const bool goesByBytes = m_isRaw || m_container.isTransmission();
    if (goesByBytes && m_container.seekToByte(0)) {
        return true;
    }
    return m_container.seekNear(m_stream, m_container.timeline(m_stream).lastTickOf(0)) || reopen();
}

bool VideoPackets::reopen()
{
    forgetPosition();
    return m_container.reopen();
}

} // namespace QtAV
