#pragma once

#include "qtav/src/YuvToRgb.h"

#include <cstdint>

namespace QtAV {

/// Converts the beginning of a line with the processor's widest instructions.
///
/// For 8-bit luma and half as many chroma samples, each at the position of every second luma
/// sample. Reads one more chroma sample than needed. The result is bit-identical to that of the
/// plain loops of YuvToRgb.
///
/// @return the number of pixels written: `count` rounded down to the width of a step, or 0 if the
///     processor lacks such instructions. The caller converts the rest.
int convertHalvedLine(const uint8_t* luma, const int16_t* cb, const int16_t* cr, uint32_t* pixels,
                      int count, const YuvToRgb::Matrix& matrix);

} // namespace QtAV
