#pragma once

#include "series/FramePositions.h"
#include "series/TextResult.h"

#include <cstdint>
#include <string>
#include <vector>

/// Parses times and positions as people write them. Any text in another form than those documented
/// here is an error that quotes it: nothing is guessed, rounded or ignored.
namespace positions {

constexpr std::int64_t longestMs = std::int64_t(1000000) * 3600000; ///< a million hours

/// Milliseconds of a time: "90", "90s", "1.5s", "500ms", "2m", "1h", "1:30", "1:30.250" or
/// "1:02:03.5". Fields behind a colon have two digits and end at 59; fractions have up to nine
/// digits behind a point.
[[nodiscard]] Result<double> parseTime(const std::string& text);

/// A time, a fraction of the video's length ("75%", "12.5%"), or "last".
[[nodiscard]] Result<FramePosition> parsePosition(const std::string& text);

/// Positions with commas between them.
[[nodiscard]] Result<std::vector<FramePosition>> parsePositions(const std::string& text);

/// A time or a fraction of the video's length.
[[nodiscard]] Result<SeriesSkip> parseSkip(const std::string& text);

/// Frame numbers, counted from 0, and ranges of them: "0,100,200-300". At most a million.
[[nodiscard]] Result<std::vector<FramePosition>> parseFrames(const std::string& text);

} // namespace positions
