#include "series/DecimalTexts.h"

#include "series/PositionTexts.h"

#include <string>

namespace positions {

namespace {

constexpr int maxFractionDigits = 9;
constexpr std::string_view digits = "0123456789";

} // namespace

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of(digits) == std::string_view::npos;
}

std::optional<std::int64_t> wholeNumber(std::string_view text, std::int64_t maximum)
{
    if (!isDigits(text)) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    for (const char c : text) {
        const int digit = c - '0';
        if (number > (maximum - digit) / 10) {
            return std::nullopt;
        }
        number = number * 10 + digit;
    }
    return number;
}

std::optional<Decimal> decimal(std::string_view text)
{
    const std::size_t point = text.find('.');
    const auto whole = wholeNumber(text.substr(0, point), longestMs);
    if (!whole) {
        return std::nullopt;
    }
    Decimal number{*whole, 0};
    if (point == std::string_view::npos) {
        return number;
    }
    const std::string_view fraction = text.substr(point + 1);
    if (!isDigits(fraction) || fraction.size() > std::size_t(maxFractionDigits)) {
        return std::nullopt;
    }
    std::int64_t scale = 100000000;
    for (const char c : fraction) {
        number.billionths += (c - '0') * scale;
        scale /= 10;
    }
    return number;
}

double valueOf(const Decimal& number)
{
    return static_cast<double>(number.whole) + static_cast<double>(number.billionths) / 1e9;
}

} // namespace positions
