#pragma once

#include "series/PositionTexts.h"
#include "stills/Options.h"
#include "stills/Result.h"

#include <cstdint>
#include <string>
#include <vector>

/// Parses numbers as people write them, like the times and positions of series/PositionTexts.h. Any
/// text in another form than those documented here is an error that quotes it: nothing is guessed,
/// rounded or ignored.
namespace stills {

using positions::parseFrames;
using positions::parsePosition;
using positions::parsePositions;
using positions::parseSkip;
using positions::parseTime;

/// "1920x1080": each side 1 to 65500 pixels.
[[nodiscard]] Result<Size> parseSize(const std::string& text);

/// A whole number in decimal digits, from `minimum` to `maximum`, both at least 0.
[[nodiscard]] Result<std::int64_t> parseNumber(const std::string& text, std::int64_t minimum,
                                               std::int64_t maximum);

/// A number above 0, up to 1, such as "0.3".
[[nodiscard]] Result<double> parseThreshold(const std::string& text);

/// Bytes: "800M", "2G", "1.5G" or "500000000". K, M, G and T count in 1024s. One megabyte at least.
[[nodiscard]] Result<std::int64_t> parseMemory(const std::string& text);

/// "3/16": the number from 1 to the count.
[[nodiscard]] Result<Shard> parseShard(const std::string& text);

} // namespace stills
