#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Numbers in decimal digits as people write them: without signs, spaces, exponents or letters.
namespace positions {

/// A number without sign: its whole part, and its fraction in billionths.
struct Decimal
{
    std::int64_t whole = 0;
    std::int64_t billionths = 0;
};

[[nodiscard]] bool isDigits(std::string_view text);

/// Nothing for what is no number or beyond the largest one that is allowed.
[[nodiscard]] std::optional<std::int64_t> wholeNumber(std::string_view text, std::int64_t maximum);

/// Digits, and a point with one to nine digits behind it. The whole part is at most the number of
/// milliseconds of the longest time, see parseTime().
[[nodiscard]] std::optional<Decimal> decimal(std::string_view text);

/// The number as the nearest one that a double holds.
[[nodiscard]] double valueOf(const Decimal& number);

} // namespace positions
