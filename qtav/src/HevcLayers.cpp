#include "qtav/src/HevcLayers.h"

#include "qtav/src/NalUnits.h"

namespace QtAV {

namespace {

constexpr int sequenceParameterSet = 33;

/// The configuration record of ISO/IEC 14496-15, used in MP4 and Matroska files.
bool isConfigurationRecord(const uint8_t* data, qsizetype size)
{
    return size >= 23 && data[0] == 1;
}

int layersInConfigurationRecord(const uint8_t* data)
{
    return (data[21] >> 3) & 0x07;
}

/// A parameter set: two bytes of header, then 4 bits of id and 3 bits of layer count minus one.
bool parameterSetHasSubLayers(const NalUnits::Unit& unit)
{
    const bool isParameterSet = unit.type == sequenceParameterSet && unit.size >= 3;
    return isParameterSet && ((unit.data[2] >> 1) & 0x07) > 0;
}

} // namespace

bool hevcHasSubLayers(const uint8_t* data, qsizetype size)
{
    if (!data || size <= 0) {
        return false;
    }
    if (isConfigurationRecord(data, size)) {
        return layersInConfigurationRecord(data) > 1;
    }
    NalUnits::Cursor cursor = NalUnits::ofMarked(AV_CODEC_ID_HEVC, data, size);
    while (const std::optional<NalUnits::Unit> unit = cursor.next()) {
        if (parameterSetHasSubLayers(*unit)) {
            return true;
        }
    }
    return false;
}

} // namespace QtAV
