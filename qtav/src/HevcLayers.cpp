#include "qtav/src/HevcLayers.h"

namespace QtAV {

namespace {

constexpr int SequenceParameterSet = 33;

/// The record of ISO/IEC 14496-15 that stands in MP4 and Matroska files.
bool isConfigurationRecord(const uint8_t* data, qsizetype size)
{
    return size >= 23 && data[0] == 1;
}

int layersInConfigurationRecord(const uint8_t* data)
{
    return (data[21] >> 3) & 0x07;
}

/// A parameter set: two bytes of header, then 4 bits of id and 3 bits of layer count less one.
bool parameterSetHasSubLayers(const uint8_t* unit, qsizetype size)
{
    const bool isParameterSet = size >= 3 && ((unit[0] >> 1) & 0x3f) == SequenceParameterSet;
    return isParameterSet && ((unit[2] >> 1) & 0x07) > 0;
}

} // namespace

bool hevcHasSubLayers(const uint8_t* data, qsizetype size)
{
    if (!data || size <= 0)
        return false;
    if (isConfigurationRecord(data, size))
        return layersInConfigurationRecord(data) > 1;
    for (qsizetype i = 0; i + 3 < size; ++i) {
        const bool isStartCode = data[i] == 0 && data[i + 1] == 0 && data[i + 2] == 1;
        if (isStartCode && parameterSetHasSubLayers(data + i + 3, size - i - 3))
            return true;
    }
    return false;
}

} // namespace QtAV
