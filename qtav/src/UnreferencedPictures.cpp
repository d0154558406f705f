#include "qtav/src/UnreferencedPictures.h"

#include "qtav/src/NalUnitTypes.h"

namespace QtAV {

namespace {

namespace mpeg4 {
constexpr int userData = 0xb2;
constexpr int picture = 0xb6;
constexpr int bidirectionalPicture = 2;
} // namespace mpeg4

enum class Meaning { Neutral, Unreferenced, Needed };

Meaning meaningInH264(const NalUnits::Unit& unit)
{
    if (unit.type == h264::slice) {
        return unit.isReference ? Meaning::Needed : Meaning::Unreferenced;
    }
    const bool isNeutral = unit.type == h264::supplementalInformation ||
                           unit.type == h264::delimiter || unit.type == h264::filler;
    return isNeutral ? Meaning::Neutral : Meaning::Needed;
}

Meaning meaningInHevc(const NalUnits::Unit& unit)
{
    // Slices of reference pictures have odd types.
    if (unit.type <= hevc::lastOrdinarySlice) {
        return unit.type % 2 ? Meaning::Needed : Meaning::Unreferenced;
    }
    const bool isNeutral = unit.type == hevc::delimiter || unit.type == hevc::filler ||
                           unit.type == hevc::prefixInformation ||
                           unit.type == hevc::suffixInformation;
    return isNeutral ? Meaning::Neutral : Meaning::Needed;
}

/// MPEG-4: B-pictures preceded by nothing except user data.
bool areBidirectional(const uint8_t* data, qsizetype size)
{
    bool hasPicture = false;
    for (qsizetype i = behindStartCode(data, 0, size); i + 1 < size;
         i = behindStartCode(data, i, size)) {
        const bool isPicture = data[i] == mpeg4::picture;
        if (!isPicture && data[i] != mpeg4::userData) {
            return false;
        }
        if (isPicture && data[i + 1] >> 6 != mpeg4::bidirectionalPicture) {
            return false;
        }
        hasPicture = hasPicture || isPicture;
    }
    return hasPicture;
}

} // namespace

UnreferencedPictures::UnreferencedPictures(const AVCodecParameters& parameters)
    : m_isMpeg4(parameters.codec_id == AV_CODEC_ID_MPEG4)
    , m_units(parameters)
{}

bool UnreferencedPictures::areAllOf(const uint8_t* data, qsizetype size) const
{
    if (m_isMpeg4) {
        return data && areBidirectional(data, size);
    }
    NalUnits::Cursor cursor = m_units.of(data, size);
    bool hasPicture = false;
    while (const std::optional<NalUnits::Unit> unit = cursor.next()) {
        const Meaning meaning =
            m_units.codec() == AV_CODEC_ID_HEVC ? meaningInHevc(*unit) : meaningInH264(*unit);
        if (meaning == Meaning::Needed) {
            return false;
        }
        hasPicture = hasPicture || meaning == Meaning::Unreferenced;
    }
    return hasPicture && cursor.isWhole();
}

} // namespace QtAV
