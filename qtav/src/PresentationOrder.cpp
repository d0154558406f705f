#include "qtav/src/PresentationOrder.h"

#include <algorithm>
#include <limits>

namespace QtAV {

namespace {

/// In a stream that has no times at all none need be waited for.
constexpr size_t MaximumUnplaced = 64;

constexpr qint64 NoOrder = std::numeric_limits<qint64>::min();

bool hasOrderCount(AVCodecID codec)
{
    return codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC;
}

} // namespace

PresentationOrder::PresentationOrder(const AVCodecParameters& codec, int reorderDelay, Times times)
    : m_parser(av_parser_init(codec.codec_id))
    , m_context(avcodec_alloc_context3(nullptr))
    , m_mode(times)
    , m_hasOrderCount(hasOrderCount(codec.codec_id))
    , m_reorderDelay(static_cast<size_t>(std::max(0, reorderDelay)))
    , m_highestOrder(NoOrder)
{
    Q_CHECK_PTR(m_context.get());
    avcodec_parameters_to_context(m_context.get(), &codec);
    if (m_parser)
        m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
}

void PresentationOrder::push(PacketPtr packet, qint64 frameTicks)
{
    parse(*packet);
    const quint64 place = m_firstPlace + m_held.size();
    if (m_mode == Times::OfDecoding)
        m_times.push_back(packet->dts);
    const bool isTimed = m_mode == Times::WithGaps && packet->pts != AV_NOPTS_VALUE;
    const bool isKey = packet->flags & AV_PKT_FLAG_KEY;
    const Waiting picture{0, place, packet->pts, frameTicks};
    m_held.push_back({std::move(packet), isTimed});
    if (m_hasOrderCount)
        placeByOrderCount(picture, isKey);
    else
        placeByPictureType(picture);
}

void PresentationOrder::parse(const AVPacket& packet)
{
    if (!m_parser)
        return;
    uint8_t* out = nullptr;
    int outSize = 0;
    av_parser_parse2(m_parser.get(), m_context.get(), &out, &outSize, packet.data, packet.size,
                     packet.pts, packet.dts, packet.pos);
}

void PresentationOrder::placeByOrderCount(Waiting picture, bool isKey)
{
    picture.order = m_parser ? m_parser->output_picture_number : 0;
    // The count starts over where nothing later refers to anything before.
    const bool startsOver = isKey && picture.order <= m_highestOrder;
    if (startsOver) {
        showAll();
        m_highestOrder = picture.order;
    }
    m_highestOrder = std::max(m_highestOrder, picture.order);
    m_waiting.insert(picture);
    while (m_waiting.size() > m_reorderDelay)
        showNext();
}

void PresentationOrder::placeByPictureType(Waiting picture)
{
    const bool shownAtOnce = m_parser && m_parser->pict_type == AV_PICTURE_TYPE_B;
    if (!shownAtOnce)
        showAll();
    picture.order = shownAtOnce ? -1 : 0;
    m_waiting.insert(picture);
    if (shownAtOnce || m_reorderDelay == 0)
        showNext();
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
    qint64 ticks = picture.ticks;
    if (ticks != AV_NOPTS_VALUE) {
        timeUnplaced(ticks);
    } else if (m_nextTicks != AV_NOPTS_VALUE) {
        ticks = m_nextTicks;
        settle(picture.place, ticks);
    } else {
        m_unplaced.push_back(picture);
        if (m_unplaced.size() > MaximumUnplaced)
            giveUpUnplaced();
        return;
    }
    m_nextTicks = ticks + picture.frameTicks;
}

/// Times the pictures that were shown before the first whose time is known.
void PresentationOrder::timeUnplaced(qint64 endTicks)
{
    for (auto picture = m_unplaced.crbegin(); picture != m_unplaced.crend(); ++picture) {
        endTicks -= picture->frameTicks;
        settle(picture->place, endTicks);
    }
    m_unplaced.clear();
}

/// Their decoding times have to do.
void PresentationOrder::giveUpUnplaced()
{
    for (const Waiting& picture : m_unplaced)
        settle(picture.place, AV_NOPTS_VALUE);
    m_unplaced.clear();
}

void PresentationOrder::settle(quint64 place, qint64 ticks)
{
    Held& held = m_held[place - m_firstPlace];
    held.packet->pts = ticks;
    held.certain = true;
}

void PresentationOrder::showAll()
{
    while (!m_waiting.empty())
        showNext();
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
    m_highestOrder = NoOrder;
    m_nextTicks = AV_NOPTS_VALUE;
}

PacketPtr PresentationOrder::pop()
{
    if (m_held.empty() || !m_held.front().certain)
        return nullptr;
    PacketPtr packet = std::move(m_held.front().packet);
    m_held.pop_front();
    ++m_firstPlace;
    return packet;
}

} // namespace QtAV
