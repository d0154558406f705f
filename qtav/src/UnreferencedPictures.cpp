#include "qtav/src/UnreferencedPictures.h"

namespace QtAV {

namespace {

namespace h264 {
constexpr int Slice = 1;
constexpr int SupplementalInformation = 6;
constexpr int Delimiter = 9;
constexpr int Filler = 12;
} // namespace h264

namespace hevc {
constexpr int LastOrdinarySlice = 15;
constexpr int Delimiter = 35;
constexpr int Filler = 38;
constexpr int PrefixInformation = 39;
constexpr int SuffixInformation = 40;
} // namespace hevc

namespace mpeg4 {
constexpr int UserData = 0xb2;
constexpr int Picture = 0xb6;
constexpr int BidirectionalPicture = 2;
} // namespace mpeg4

/// How long the lengths before units are, by the records of ISO/IEC 14496-15; 0 where there is no
/// such record, and start codes part the units.
int lengthBytesOf(const AVCodecParameters& parameters)
{
    if (parameters.codec_id == AV_CODEC_ID_MPEG4)
        return 0;
    const uint8_t* record = parameters.extradata;
    const int place = parameters.codec_id == AV_CODEC_ID_HEVC ? 21 : 4;
    const bool isRecord = record && parameters.extradata_size > place && record[0] == 1;
    return isRecord ? (record[place] & 0x03) + 1 : 0;
}

/// The place behind the next start code; the end where none follows.
qsizetype behindStartCode(const uint8_t* data, qsizetype from, qsizetype size)
{
    for (qsizetype i = from; i + 3 <= size; ++i) {
        if (data[i] == 0 && data[i + 1] == 0 && data[i + 2] == 1)
            return i + 3;
    }
    return size;
}

} // namespace

UnreferencedPictures::UnreferencedPictures(const AVCodecParameters& parameters)
{
    if (parameters.codec_id != AV_CODEC_ID_H264 && parameters.codec_id != AV_CODEC_ID_HEVC &&
        parameters.codec_id != AV_CODEC_ID_MPEG4)
        return;
    m_codec = parameters.codec_id;
    m_lengthBytes = lengthBytesOf(parameters);
}

bool UnreferencedPictures::areAllOf(const uint8_t* data, qsizetype size) const
{
    if (m_codec == AV_CODEC_ID_NONE || !data)
        return false;
    return m_lengthBytes > 0 ? areAllOfPrefixed(data, size) : areAllOfMarked(data, size);
}

bool UnreferencedPictures::areAllOfPrefixed(const uint8_t* data, qsizetype size) const
{
    bool hasPicture = false;
    qsizetype place = 0;
    while (size - place > m_lengthBytes) {
        qsizetype length = 0;
        for (int i = 0; i < m_lengthBytes; ++i)
            length = length << 8 | data[place++];
        if (length <= 0 || length > size - place)
            return false;
        const Unit unit = unitAt(data + place, length);
        if (unit == Unit::Needed)
            return false;
        hasPicture = hasPicture || unit == Unit::Unreferenced;
        place += length;
    }
    return hasPicture && place == size;
}

bool UnreferencedPictures::areAllOfMarked(const uint8_t* data, qsizetype size) const
{
    bool hasPicture = false;
    for (qsizetype place = behindStartCode(data, 0, size); place < size;
         place = behindStartCode(data, place, size)) {
        const Unit unit = unitAt(data + place, size - place);
        if (unit == Unit::Needed)
            return false;
        hasPicture = hasPicture || unit == Unit::Unreferenced;
    }
    return hasPicture;
}

UnreferencedPictures::Unit UnreferencedPictures::unitAt(const uint8_t* data, qsizetype size) const
{
    if (m_codec == AV_CODEC_ID_H264)
        return h264UnitAt(data);
    if (size < 2)
        return Unit::Needed;
    return m_codec == AV_CODEC_ID_HEVC ? hevcUnitAt(data) : mpeg4UnitAt(data);
}

UnreferencedPictures::Unit UnreferencedPictures::h264UnitAt(const uint8_t* data)
{
    const int type = data[0] & 0x1f;
    const bool isReferred = data[0] & 0x60;
    if (type == h264::Slice)
        return isReferred ? Unit::Needed : Unit::Unreferenced;
    const bool isNeutral =
        type == h264::SupplementalInformation || type == h264::Delimiter || type == h264::Filler;
    return isNeutral ? Unit::Neutral : Unit::Needed;
}

UnreferencedPictures::Unit UnreferencedPictures::hevcUnitAt(const uint8_t* data)
{
    const int type = (data[0] >> 1) & 0x3f;
    // Slices of pictures that are referred to have odd types.
    if (type <= hevc::LastOrdinarySlice)
        return type % 2 ? Unit::Needed : Unit::Unreferenced;
    const bool isNeutral = type == hevc::Delimiter || type == hevc::Filler ||
                           type == hevc::PrefixInformation || type == hevc::SuffixInformation;
    return isNeutral ? Unit::Neutral : Unit::Needed;
}

UnreferencedPictures::Unit UnreferencedPictures::mpeg4UnitAt(const uint8_t* data)
{
    if (data[0] == mpeg4::Picture)
        return data[1] >> 6 == mpeg4::BidirectionalPicture ? Unit::Unreferenced : Unit::Needed;
    return data[0] == mpeg4::UserData ? Unit::Neutral : Unit::Needed;
}

} // namespace QtAV
