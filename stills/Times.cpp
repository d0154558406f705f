#include "stills/Times.h"

#include "series/DecimalTexts.h"

#include <optional>
#include <string_view>

namespace stills {

namespace {

using positions::decimal;
using positions::valueOf;
using positions::wholeNumber;

constexpr int maxSide = 65500; // what a JPEG file can hold

} // namespace

Result<Size> parseSize(const std::string& text)
{
    const std::string_view view = text;
    const std::size_t cross = view.find('x');
    const auto width = wholeNumber(view.substr(0, cross), maxSide);
    const auto height = cross == std::string_view::npos
                            ? std::nullopt
                            : wholeNumber(view.substr(cross + 1), maxSide);
    if (!width || !height || *width < 1 || *height < 1) {
        return Result<Size>::failure(quoted(text) +
                                     " is no size; write the width and the height: 1920x1080");
    }
    return Result<Size>::of({static_cast<int>(*width), static_cast<int>(*height)});
}

Result<std::int64_t> parseNumber(const std::string& text, std::int64_t minimum,
                                 std::int64_t maximum)
{
    const auto number = wholeNumber(text, maximum);
    if (!number || *number < minimum) {
        return Result<std::int64_t>::failure(quoted(text) + " is no whole number from " +
                                             std::to_string(minimum) + " to " +
                                             std::to_string(maximum));
    }
    return Result<std::int64_t>::of(*number);
}

Result<double> parseThreshold(const std::string& text)
{
    const auto number = decimal(text);
    const double value = number ? valueOf(*number) : 0.0;
    if (!number || value <= 0.0 || value > 1.0) {
        return Result<double>::failure(quoted(text) + " is no number above 0 and up to 1, as 0.3");
    }
    return Result<double>::of(value);
}

Result<std::int64_t> parseMemory(const std::string& text)
{
    constexpr std::string_view letters = "KMGT";
    constexpr std::int64_t smallest = 1024 * 1024;
    constexpr std::int64_t largest = std::int64_t(1) << 50;
    std::string_view number = text;
    int shift = 0;
    const std::size_t letter = text.empty() ? std::string_view::npos : letters.find(text.back());
    if (letter != std::string_view::npos) {
        number.remove_suffix(1);
        shift = 10 * (static_cast<int>(letter) + 1);
    }
    const auto parsed = decimal(number);
    const double bytes =
        parsed ? valueOf(*parsed) * static_cast<double>(std::int64_t(1) << shift) : 0.0;
    if (bytes < static_cast<double>(smallest) || bytes > static_cast<double>(largest)) {
        return Result<std::int64_t>::failure(quoted(text) +
                                             " is no amount of memory; write 800M or 2G");
    }
    return Result<std::int64_t>::of(static_cast<std::int64_t>(bytes));
}

Result<Shard> parseShard(const std::string& text)
{
    constexpr std::int64_t most = 1000000000;
    const std::string_view view = text;
    const std::size_t slash = view.find('/');
    const auto number = wholeNumber(view.substr(0, slash), most);
    const auto count =
        slash == std::string_view::npos ? std::nullopt : wholeNumber(view.substr(slash + 1), most);
    if (!number || !count) {
        return Result<Shard>::failure(quoted(text) +
                                      " is no shard; write 3/16 for the third of 16");
    }
    if (*number < 1 || *number > *count) {
        return Result<Shard>::failure(quoted(text) + " does not exist: shards count from 1, so " +
                                      "write 1/16 to 16/16");
    }
    return Result<Shard>::of({static_cast<int>(*number), static_cast<int>(*count)});
}

} // namespace stills
