#include "qtav/src/KeyPictures.h"

#include "qtav/src/NalUnitTypes.h"

namespace QtAV {

namespace {

/// The message that announces a recovery point, in both codecs.
constexpr int recoveryPoint = 6;

/// Reads unsigned Exp-Golomb codes with up to 31 leading zeros; gives 0 behind the end.
class Bits
{
public:
    Bits(const uint8_t* data, qsizetype size)
        : m_data(data)
        , m_bits(size * 8)
    {}

    quint32 code()
    {
        int zeros = 0;
        while (zeros < 31 && m_place < m_bits && bit() == 0) {
            ++zeros;
        }
        quint32 rest = 0;
        for (int i = 0; i < zeros; ++i) {
            rest = rest << 1 | bit();
        }
        return (1U << zeros) - 1 + rest;
    }

private:
    quint32 bit()
    {
        if (m_place >= m_bits) {
            return 0;
        }
        const quint32 value = m_data[m_place / 8] >> (7 - m_place % 8) & 1;
        ++m_place;
        return value;
    }

    const uint8_t* m_data;
    qsizetype m_bits;
    qsizetype m_place = 0;
};

/// An H.264 slice: its first macroblock, then its type, of which 2 and 4 are intra types.
bool isIntraSlice(const NalUnits::Unit& unit)
{
    Bits bits(unit.data + 1, unit.size - 1);
    static_cast<void>(bits.code());
    const quint32 type = bits.code() % 5;
    return type == 2 || type == 4;
}

/// A number coded as bytes of 255 followed by a smaller one. The bytes of a damaged packet can add
/// up to more than 31 bits hold.
qint64 messageNumber(const NalUnits::Unit& unit, qsizetype& place)
{
    qint64 number = 0;
    while (place < unit.size && unit.data[place] == 255) {
        number += 255;
        ++place;
    }
    return place < unit.size ? number + unit.data[place++] : number;
}

bool announcesRecovery(const NalUnits::Unit& unit, qsizetype headerBytes)
{
    // Each message has a type and a length; two bytes end the last one.
    for (qsizetype place = headerBytes; place + 2 < unit.size;) {
        const qint64 type = messageNumber(unit, place);
        const qint64 length = messageNumber(unit, place);
        if (type == recoveryPoint) {
            return true;
        }
        if (length > unit.size - place) {
            return false;
        }
        place += static_cast<qsizetype>(length);
    }
    return false;
}

/// MPEG-1 and MPEG-2: ten bits of temporal reference, then three bits of type, 1 for intra.
bool isMpegKey(const uint8_t* data, qsizetype size)
{
    constexpr uint8_t picture = 0x00;
    for (qsizetype i = behindStartCode(data, 0, size); i + 2 < size;
         i = behindStartCode(data, i, size)) {
        if (data[i] == picture) {
            return (data[i + 2] >> 3 & 0x07) == 1;
        }
    }
    return false;
}

/// MPEG-4: two bits of type, 0 for intra. The empty picture that ends a packed group has the type
/// of the group's first picture.
bool isMpeg4Key(const uint8_t* data, qsizetype size)
{
    constexpr uint8_t picture = 0xb6;
    constexpr qsizetype largestEmptyPicture = 19;
    if (size <= largestEmptyPicture) {
        return false;
    }
    for (qsizetype i = behindStartCode(data, 0, size); i + 1 < size;
         i = behindStartCode(data, i, size)) {
        if (data[i] == picture) {
            return data[i + 1] >> 6 == 0;
        }
    }
    return false;
}

} // namespace

KeyPictures::KeyPictures(const AVCodecParameters& parameters)
    : m_codec(parameters.codec_id)
    , m_units(parameters)
{}

bool KeyPictures::isIn(const uint8_t* data, qsizetype size) const
{
    if (!data || size <= 0) {
        return false;
    }
    switch (m_codec) {
    case AV_CODEC_ID_H264:
    case AV_CODEC_ID_HEVC:
        return isInUnits(data, size);
    case AV_CODEC_ID_MPEG1VIDEO:
    case AV_CODEC_ID_MPEG2VIDEO:
        return isMpegKey(data, size);
    case AV_CODEC_ID_MPEG4:
        return isMpeg4Key(data, size);
    case AV_CODEC_ID_VP8:
        return (data[0] & 0x01) == 0;
    default:
        return true;
    }
}

/// The first of two fields in a packet counts, and the first slice of a picture.
bool KeyPictures::isInUnits(const uint8_t* data, qsizetype size) const
{
    const bool isHevc = m_codec == AV_CODEC_ID_HEVC;
    NalUnits::Cursor cursor = m_units.of(data, size);
    while (const std::optional<NalUnits::Unit> unit = cursor.next()) {
        const int type = unit->type;
        const bool isMessage =
            type == (isHevc ? hevc::prefixInformation : h264::supplementalInformation);
        if (isMessage && announcesRecovery(*unit, isHevc ? 2 : 1)) {
            return true;
        }
        if (isHevc && type <= hevc::lastSlice) {
            return type >= hevc::firstRefreshSlice && type <= hevc::lastRefreshSlice;
        }
        if (!isHevc && type >= h264::slice && type <= h264::refreshSlice) {
            return type == h264::refreshSlice || (type == h264::slice && isIntraSlice(*unit));
        }
    }
    return true;
}

} // namespace QtAV
