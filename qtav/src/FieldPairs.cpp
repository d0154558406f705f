#include "qtav/src/FieldPairs.h"

#include "qtav/src/NalUnitTypes.h"

#include <cstring>

namespace QtAV {

FieldPairs::FieldPairs(const AVCodecParameters& codec)
    : m_parser(av_parser_init(codec.codec_id))
    , m_context(avcodec_alloc_context3(nullptr))
    , m_units(codec)
{
    Q_CHECK_PTR(m_context.get());
    avcodec_parameters_to_context(m_context.get(), &codec);
    if (m_parser) {
        m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
    }
}

void FieldPairs::push(PacketPtr packet)
{
    const Picture picture = parse(*packet);
    if (isSecond(picture)) {
        join(*packet);
        release();
        return;
    }
    release();
    if (picture.isField) {
        m_first = std::move(packet);
        m_firstPicture = picture;
    } else {
        m_complete.push_back(std::move(packet));
    }
}

FieldPairs::Picture FieldPairs::parse(const AVPacket& packet)
{
    Picture picture;
    if (!m_parser) {
        return picture;
    }
    uint8_t* out = nullptr;
    int outSize = 0;
    av_parser_parse2(m_parser.get(), m_context.get(), &out, &outSize, packet.data, packet.size,
                     packet.pts, packet.dts, packet.pos);
    picture.isField = m_parser->picture_structure == AV_PICTURE_STRUCTURE_TOP_FIELD ||
                      m_parser->picture_structure == AV_PICTURE_STRUCTURE_BOTTOM_FIELD;
    if (picture.isField) {
        picture.isLikePrevious = m_parser->field_order != AV_FIELD_UNKNOWN;
        picture.isReference = isReference(packet);
        picture.isKey = packet.flags & AV_PKT_FLAG_KEY;
        picture.order = m_parser->output_picture_number;
    }
    return picture;
}

bool FieldPairs::isReference(const AVPacket& packet) const
{
    NalUnits::Cursor cursor = m_units.of(packet.data, packet.size);
    while (const std::optional<NalUnits::Unit> unit = cursor.next()) {
        if (unit->type >= h264::slice && unit->type <= h264::refreshSlice) {
            return unit->isReference;
        }
    }
    return false;
}

/// A second field without its first one must not be joined with the next frame's first one. Their
/// frame numbers may be the same: that of a disposable frame is that of the next reference frame,
/// and key frames may all have one.
bool FieldPairs::isSecond(const Picture& picture) const
{
    if (!m_first || !picture.isField || !picture.isLikePrevious) {
        return false;
    }
    if (picture.isReference && !m_firstPicture.isReference) {
        return false;
    }
    return !picture.isKey || (m_firstPicture.isKey && picture.order >= m_firstPicture.order);
}

void FieldPairs::join(const AVPacket& second)
{
    const int firstBytes = m_first->size;
    if (av_grow_packet(m_first.get(), second.size) < 0) {
        m_first->flags |= AV_PKT_FLAG_CORRUPT;
        return;
    }
    std::memcpy(m_first->data + firstBytes, second.data, static_cast<size_t>(second.size));
    m_first->duration += second.duration;
    m_first->flags |= second.flags & AV_PKT_FLAG_CORRUPT;
}

void FieldPairs::release()
{
    if (m_first) {
        m_complete.push_back(std::move(m_first));
    }
}

void FieldPairs::finish()
{
    release();
}

void FieldPairs::reset()
{
    m_first.reset();
    m_complete.clear();
}

PacketPtr FieldPairs::pop()
{
    if (m_complete.empty()) {
        return nullptr;
    }
    PacketPtr packet = std::move(m_complete.front());
    m_complete.pop_front();
    return packet;
}

} // namespace QtAV
