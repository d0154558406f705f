#pragma once

#include "stills/Options.h"
#include "stills/Result.h"

#include <cstdint>
#include <string>
#include <vector>

/// Times, positions and numbers as people write them. Whatever is not written in one of the ways
/// that are named here is an error that quotes the text: nothing is guessed, rounded or passed
/// over.
namespace stills {

/// Milliseconds of a time: "90", "90s", "1.5s", "500ms", "2m", "1h", "1:30", "1:30.250" or
/// "1:02:03.5". Fields behind a colon have two digits and end at 59; fractions have up to nine
/// digits behind a point.
[[nodiscard]] Result<double> parseTime(const std::string& text);

/// A time, a part of the video's length ("75%", "12.5%"), or "last".
[[nodiscard]] Result<FramePosition> parsePosition(const std::string& text);

/// Positions with commas between them.
[[nodiscard]] Result<std::vector<FramePosition>> parsePositions(const std::string& text);

/// A time or a part of the video's length.
[[nodiscard]] Result<SeriesSkip> parseSkip(const std::string& text);

/// Numbers of frames, counted from 0, and ranges of them: "0,100,200-300". A million at most.
[[nodiscard]] Result<std::vector<FramePosition>> parseFrames(const std::string& text);

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
