#include "qtav/src/NalUnits.h"

#include <cstring>

namespace QtAV {

namespace {

/// Size of the length before each unit, by the records of ISO/IEC 14496-15; 0 if there is no such
/// record, and start codes separate the units.
int lengthBytesOf(const AVCodecParameters& parameters)
{
    const uint8_t* record = parameters.extradata;
    const int place = parameters.codec_id == AV_CODEC_ID_HEVC ? 21 : 4;
    const bool isRecord = record && parameters.extradata_size > place && record[0] == 1;
    return isRecord ? (record[place] & 0x03) + 1 : 0;
}

int headerBytesOf(AVCodecID codec)
{
    return codec == AV_CODEC_ID_HEVC ? 2 : 1;
}

NalUnits::Unit unitAt(AVCodecID codec, const uint8_t* data, qsizetype size)
{
    if (codec == AV_CODEC_ID_HEVC) {
        return {(data[0] >> 1) & 0x3f, true, data, size};
    }
    return {data[0] & 0x1f, (data[0] & 0x60) != 0, data, size};
}

} // namespace

qsizetype behindStartCode(const uint8_t* data, qsizetype from, qsizetype size)
{
    // Start codes end in a 1, which is rarer than a 0.
    for (qsizetype i = from + 2; i < size; ++i) {
        const void* one = std::memchr(data + i, 1, static_cast<size_t>(size - i));
        if (!one) {
            return size;
        }
        i = static_cast<const uint8_t*>(one) - data;
        if (data[i - 1] == 0 && data[i - 2] == 0) {
            return i + 1;
        }
    }
    return size;
}

NalUnits::NalUnits(const AVCodecParameters& parameters)
{
    if (parameters.codec_id != AV_CODEC_ID_H264 && parameters.codec_id != AV_CODEC_ID_HEVC) {
        return;
    }
    m_codec = parameters.codec_id;
    m_lengthBytes = lengthBytesOf(parameters);
}

NalUnits::Cursor NalUnits::of(const uint8_t* data, qsizetype size) const
{
    return {*this, data, areKnown() && data ? size : 0};
}

NalUnits::Cursor NalUnits::ofMarked(AVCodecID codec, const uint8_t* data, qsizetype size)
{
    NalUnits units;
    units.m_codec = codec;
    return units.of(data, size);
}

NalUnits::Cursor::Cursor(const NalUnits& units, const uint8_t* data, qsizetype size)
    : m_codec(units.m_codec)
    , m_lengthBytes(units.m_lengthBytes)
    , m_data(data)
    , m_size(size)
{
    if (m_lengthBytes == 0) {
        m_place = behindStartCode(data, 0, size);
    }
}

/// The length before a unit; nothing if it exceeds the packet.
std::optional<qsizetype> NalUnits::Cursor::nextLength()
{
    if (m_size - m_place <= m_lengthBytes) {
        return std::nullopt;
    }
    qsizetype length = 0;
    for (int i = 0; i < m_lengthBytes; ++i) {
        length = length << 8 | m_data[m_place + i];
    }
    if (length <= 0 || length > m_size - m_place - m_lengthBytes) {
        return std::nullopt;
    }
    m_place += m_lengthBytes;
    return length;
}

std::optional<NalUnits::Unit> NalUnits::Cursor::unitOf(const uint8_t* data, qsizetype size)
{
    m_isDamaged = size < headerBytesOf(m_codec);
    return m_isDamaged ? std::nullopt : std::optional(unitAt(m_codec, data, size));
}

std::optional<NalUnits::Unit> NalUnits::Cursor::next()
{
    if (m_isDamaged || m_place >= m_size) {
        return std::nullopt;
    }
    if (m_lengthBytes > 0) {
        const std::optional<qsizetype> length = nextLength();
        m_isDamaged = !length;
        if (!length) {
            return std::nullopt;
        }
        m_place += *length;
        return unitOf(m_data + m_place - *length, *length);
    }
    constexpr qsizetype startCodeBytes = 3;
    const qsizetype from = m_place;
    m_place = behindStartCode(m_data, from, m_size);
    const qsizetype end = m_place < m_size ? m_place - startCodeBytes : m_size;
    return unitOf(m_data + from, end - from);
}

} // namespace QtAV
