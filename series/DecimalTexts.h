#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Unsigned decimal numbers as people write them: without spaces, exponents or letters.
namespace positions {

/// An unsigned number: its whole part, and its fraction in billionths.
struct Decimal
{
    std::int64_t whole = 0;
    std::int64_t billionths = 0;
};

[[nodiscard]] bool isDigits(std::string_view text);

/// Nothing if the text is no number or exceeds the maximum.
[[nodiscard]] std::optional<std::int64_t> wholeNumber(std::string_view text, std::int64_t maximum);

/// Digits, optionally followed by a point and one to nine digits. The whole part is at most the
/// number of milliseconds of the longest time, see parseTime().
[[nodiscard]] std::optional<Decimal> decimal(std::string_view text);

/// The nearest double.
[[nodiscard]] double valueOf(const Decimal& number);

} // namespace positions
