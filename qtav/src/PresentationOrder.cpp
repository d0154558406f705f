#include "qtav/src/PresentationOrder.h"

#include <algorithm>
#include <limits>

namespace QtAV {

namespace {

constexpr qint64 NoOrder = std::numeric_limits<qint64>::min();

bool hasOrderCount(AVCodecID codec)
{
    return codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC;
}

} // namespace

PresentationOrder::PresentationOrder(const AVCodecParameters& codec, int reorderDelay)
    : m_parser(av_parser_init(codec.codec_id))
    , m_context(avcodec_alloc_context3(nullptr))
    , m_hasOrderCount(hasOrderCount(codec.codec_id))
    , m_reorderDelay(static_cast<size_t>(std::max(0, reorderDelay)))
    , m_highestOrder(NoOrder)
{
    Q_CHECK_PTR(m_context.get());
    avcodec_parameters_to_context(m_context.get(), &codec);
    if (m_parser)
        m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
}

void PresentationOrder::push(PacketPtr packet)
{
    parse(*packet);
    const quint64 place = m_firstPlace + m_held.size();
    m_times.push_back(packet->dts);
    m_held.push_back({std::move(packet), false});
    if (m_hasOrderCount)
        placeByOrderCount(*m_held.back().packet, place);
    else
        placeByPictureType(place);
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

void PresentationOrder::placeByOrderCount(const AVPacket& packet, quint64 place)
{
    const qint64 order = m_parser ? m_parser->output_picture_number : 0;
    // The count starts over where nothing later refers to anything before.
    const bool startsOver = (packet.flags & AV_PKT_FLAG_KEY) && order <= m_highestOrder;
    if (startsOver) {
        showAll();
        m_highestOrder = order;
    }
    m_highestOrder = std::max(m_highestOrder, order);
    m_waiting.insert({order, place});
    while (m_waiting.size() > m_reorderDelay)
        showNext();
}

void PresentationOrder::placeByPictureType(quint64 place)
{
    const bool shownAtOnce = m_parser && m_parser->pict_type == AV_PICTURE_TYPE_B;
    if (!shownAtOnce)
        showAll();
    m_waiting.insert({shownAtOnce ? -1 : 0, place});
    if (shownAtOnce || m_reorderDelay == 0)
        showNext();
}

void PresentationOrder::showNext()
{
    const auto next = m_waiting.begin();
    Held& held = m_held[next->place - m_firstPlace];
    held.packet->pts = m_times.front();
    held.certain = true;
    m_times.pop_front();
    m_waiting.erase(next);
}

void PresentationOrder::showAll()
{
    while (!m_waiting.empty())
        showNext();
}

void PresentationOrder::finish()
{
    showAll();
}

void PresentationOrder::reset()
{
    m_held.clear();
    m_times.clear();
    m_waiting.clear();
    m_firstPlace = 0;
    m_highestOrder = NoOrder;
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
