#include "qtav/src/SequenceChange.h"

namespace QtAV {

namespace {

constexpr int h264SequenceParameters = 7;
constexpr int hevcSequenceParameters = 33;

QByteArray bytes(const uint8_t* data, qsizetype size)
{
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

/// Width and height, twelve bits each, from the beginning of a sequence header.
QByteArray mpegSize(const uint8_t* data, qsizetype size)
{
    constexpr uint8_t sequenceHeader = 0xb3;
    constexpr qsizetype sizeBytes = 3;
    const qsizetype place = behindStartCode(data, 0, size);
    const bool isHeader = place + sizeBytes < size && data[place] == sequenceHeader;
    return isHeader ? bytes(data + place + 1, sizeBytes) : QByteArray();
}

} // namespace

SequenceChange::SequenceChange(const AVCodecParameters& parameters)
    : m_codec(parameters.codec_id)
    , m_units(parameters)
{}

QByteArray SequenceChange::parametersIn(const AVPacket& packet) const
{
    if (m_codec == AV_CODEC_ID_MPEG1VIDEO || m_codec == AV_CODEC_ID_MPEG2VIDEO) {
        return mpegSize(packet.data, packet.size);
    }
    const int wanted =
        m_codec == AV_CODEC_ID_HEVC ? hevcSequenceParameters : h264SequenceParameters;
    QByteArray found;
    NalUnits::Cursor cursor = m_units.of(packet.data, packet.size);
    while (const std::optional<NalUnits::Unit> unit = cursor.next()) {
        if (unit->type == wanted) {
            found += bytes(unit->data, unit->size);
        }
    }
    return found;
}

bool SequenceChange::isAt(const AVPacket& packet)
{
    if (!(packet.flags & AV_PKT_FLAG_KEY)) {
        return false;
    }
    const QByteArray parameters = parametersIn(packet);
    if (parameters.isEmpty() || parameters == m_last) {
        return false;
    }
    const bool isFirst = m_last.isEmpty();
    m_last = parameters;
    return !isFirst;
}

} // namespace QtAV
