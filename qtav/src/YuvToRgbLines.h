#pragma once

#include "qtav/src/YuvToRgb.h"

#include <cstdint>

namespace QtAV {

/// Converts the front of a line by the processor's widest instructions.
///
/// For 8-bit luma and half as many chroma samples, each on the place of every second luma sample;
/// one more chroma sample than needed is read. The result is the one that the plain loops of
/// YuvToRgb give, to the bit.
///
/// @return how many pixels were written: `count` cut off to the width of a step, and 0 where the
///         processor has no such instructions. What remains is the caller's.
int convertHalvedLine(const uint8_t* luma, const int16_t* cb, const int16_t* cr, uint32_t* pixels,
                      int count, const YuvToRgb::Matrix& matrix);

} // namespace QtAV
