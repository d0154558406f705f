#include "qtav/src/PresentationOrder.h"

#include "qtav/src/Timeline.h"

#include <algorithm>
#include <limits>

namespace QtAV {

namespace {

/// In a stream without any times, pictures need not wait for one.
constexpr size_t maximumUnplaced = 64;

/// Longer than any picture is shown, and small enough to avoid overflow.
constexpr qint64 maximumFrameTicks = qint64(1) << 40;

constexpr qint64 noOrder = std::numeric_limits<qint64>::min();

bool hasOrderCount(AVCodecID codec)
{
    return codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC;
}

/// True if two times differ by less than half a picture.
bool isNear(qint64 a, qint64 b, qint64 frameTicks)
{
    // Damaged files state any time: the distance of two need not fit into 64 bits.
    const Timeline::Wide distance = Timeline::Wide(a) - b;
    const qint64 limit = std::max<qint64>(1, frameTicks / 2);
    return -limit < distance && distance < limit;
}

} // namespace

PresentationOrder::PresentationOrder(const AVCodecParameters& codec, int reorderDelay, Times times,
                                     AVRational timeBase)
    : m_parser(av_parser_init(codec.codec_id))
    , m_context(avcodec_alloc_context3(nullptr))
    , m_codec(codec.codec_id)
    , m_timeBase(timeBase)
    , m_mode(times)
    , m_hasOrderCount(hasOrderCount(codec.codec_id))
    , m_reorderDelay(static_cast<size_t>(std::max(0, reorderDelay)))
    , m_highestOrder(noOrder)
{
    Q_CHECK_PTR(m_context.get());
    avcodec_parameters_to_context(m_context.get(), &codec);
    if (m_parser) {
        m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
    }
}

void PresentationOrder::push(PacketPtr packet, qint64 frameTicks)
{
    parse(*packet);
    const quint64 place = m_firstPlace + m_held.size();
    if (m_mode == Times::OfDecoding) {
        m_times.push_back(packet->dts);
    }
    const bool isKey = packet->flags & AV_PKT_FLAG_KEY;
    const bool isTimed = m_mode == Times::WithGaps && packet->pts != AV_NOPTS_VALUE && !isKey;
    const qint64 shown = std::clamp<qint64>(shownTicks(*packet, frameTicks), 0, maximumFrameTicks);
    const Waiting picture{0, place, packet->pts, shown, isKey};
    m_held.push_back({std::move(packet), isTimed});
    if (m_hasOrderCount) {
        placeByOrderCount(picture);
    } else {
        placeByPictureType(picture);
    }
}

void PresentationOrder::parse(const AVPacket& packet)
{
    if (!m_parser) {
        return;
    }
    uint8_t* out = nullptr;
    int outSize = 0;
    av_parser_parse2(m_parser.get(), m_context.get(), &out, &outSize, packet.data, packet.size,
                     packet.pts, packet.dts, packet.pos);
}

/// Film on an NTSC DVD is stored at its own rate: each picture states for how many fields it is
/// shown.
qint64 PresentationOrder::shownTicks(const AVPacket& packet, qint64 frameTicks) const
{
    const AVRational rate = m_context->framerate;
    const bool countsFields = m_codec == AV_CODEC_ID_MPEG2VIDEO && m_parser &&
                              m_parser->repeat_pict > 0 && rate.num > 0 && rate.den > 0;
    if (!countsFields || packet.duration > 0) {
        return frameTicks;
    }
    const AVRational field{rate.den, 2 * rate.num};
    return av_rescale_q(1 + m_parser->repeat_pict, field, m_timeBase);
}

void PresentationOrder::placeByOrderCount(Waiting picture)
{
    picture.order = m_parser ? m_parser->output_picture_number : 0;
    // The count restarts where no later picture refers to an earlier one.
    const bool startsOver = picture.isKey && picture.order <= m_highestOrder;
    if (startsOver) {
        showAll();
        m_highestOrder = picture.order;
    }
    m_highestOrder = std::max(m_highestOrder, picture.order);
    m_waiting.insert(picture);
    while (m_waiting.size() > m_reorderDelay) {
        showNext();
    }
}

void PresentationOrder::placeByPictureType(Waiting picture)
{
    const bool shownAtOnce = m_parser && m_parser->pict_type == AV_PICTURE_TYPE_B;
    if (!shownAtOnce) {
        showAll();
    }
    picture.order = shownAtOnce ? -1 : 0;
    m_waiting.insert(picture);
    if (shownAtOnce || m_reorderDelay == 0) {
        showNext();
    }
}

void PresentationOrder::showNext()
{
    const Waiting picture = *m_waiting.begin();
    m_waiting.erase(m_waiting.begin());
    if (m_mode == Times::WithGaps) {
        time(picture);
        return;
    }
    settle(picture.place, m_times.front());
    m_times.pop_front();
}

void PresentationOrder::time(const Waiting& picture)
{
    const bool isTimed = picture.ticks != AV_NOPTS_VALUE;
    const bool isExpected = m_unplaced.empty() && m_nextTicks != AV_NOPTS_VALUE;
    const bool fits =
        isTimed && isExpected && isNear(picture.ticks, m_nextTicks, picture.frameTicks);
    const bool isDoubtful = picture.isKey && !fits;
    const bool decides = !isDoubtful || std::any_of(m_unplaced.cbegin(), m_unplaced.cend(),
                                                    [](const Waiting& p) { return p.isKey; });
    if (isTimed && decides) {
        timeUnplaced(picture);
    }
    if (isExpected && !isTimed) {
        settle(picture.place, m_nextTicks);
        m_nextTicks += picture.frameTicks;
    } else if (isTimed && !isDoubtful) {
        settle(picture.place, picture.ticks);
        m_nextTicks = picture.ticks + picture.frameTicks;
    } else {
        m_unplaced.push_back(picture);
        if (m_unplaced.size() > maximumUnplaced) {
            giveUpUnplaced();
        }
    }
}

/// Assigns times to the pictures shown before one whose time is known, going backward.
void PresentationOrder::timeUnplaced(const Waiting& known)
{
    constexpr int largestError = 3;
    qint64 ticks = known.ticks;
    for (auto picture = m_unplaced.rbegin(); picture != m_unplaced.rend(); ++picture) {
        ticks -= picture->frameTicks;
        const bool isOwn = picture->ticks != AV_NOPTS_VALUE;
        // Beyond that there are gaps between the pictures.
        const bool fits =
            isOwn && !known.isKey &&
            isNear(picture->ticks, ticks, 2 * (largestError + 1) * picture->frameTicks - 1);
        if (isOwn && !fits) {
            ticks = picture->ticks;
        }
        settle(picture->place, ticks);
    }
    m_unplaced.clear();
}

/// Falls back to the times that the packets have themselves.
void PresentationOrder::giveUpUnplaced()
{
    for (const Waiting& picture : m_unplaced) {
        const bool isOwn = picture.ticks != AV_NOPTS_VALUE;
        const bool isBackwards = isOwn && m_nextTicks != AV_NOPTS_VALUE &&
                                 picture.ticks < m_nextTicks - picture.frameTicks / 2;
        const qint64 ticks = isOwn && !isBackwards ? picture.ticks : m_nextTicks;
        settle(picture.place, ticks);
        m_nextTicks = ticks == AV_NOPTS_VALUE ? ticks : ticks + picture.frameTicks;
    }
    m_unplaced.clear();
}

/// Sets the time of a picture, unless it was already delivered with its own.
void PresentationOrder::settle(quint64 place, qint64 ticks)
{
    if (place < m_firstPlace) {
        return;
    }
    Held& held = m_held[place - m_firstPlace];
    held.packet->pts = ticks;
    held.certain = true;
}

void PresentationOrder::showAll()
{
    while (!m_waiting.empty()) {
        showNext();
    }
}

void PresentationOrder::finish()
{
    showAll();
    giveUpUnplaced();
}

void PresentationOrder::reset()
{
    m_held.clear();
    m_times.clear();
    m_waiting.clear();
    m_unplaced.clear();
    m_firstPlace = 0;
    m_highestOrder = noOrder;
    m_nextTicks = AV_NOPTS_VALUE;
}

PacketPtr PresentationOrder::pop()
{
    if (m_held.empty() || !m_held.front().certain) {
        return nullptr;
    }
    PacketPtr packet = std::move(m_held.front().packet);
    m_held.pop_front();
    ++m_firstPlace;
    return packet;
}

} // namespace QtAV
