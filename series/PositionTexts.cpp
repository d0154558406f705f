#include "series/PositionTexts.h"

#include "series/DecimalTexts.h"

#include <array>
#include <optional>
#include <string_view>

namespace positions {

namespace {

constexpr std::int64_t nanosecondsInMs = 1000000;
constexpr std::size_t maxListedFrames = 1000000;
constexpr const char* timeForms = "write 90, 90s, 1:30, 1:02:03.5, 500ms, 2m or 1h";

/// Converts to milliseconds; nothing if they exceed the maximum. Whole milliseconds are exact.
std::optional<double> inMs(const Decimal& number, std::int64_t unitMs)
{
    if (number.whole > longestMs / unitMs) {
        return std::nullopt;
    }
    const std::int64_t nanoseconds =
        number.whole * unitMs * nanosecondsInMs + number.billionths * unitMs / 1000;
    return static_cast<double>(nanoseconds) / static_cast<double>(nanosecondsInMs);
}

struct Unit
{
    std::string_view name;
    std::int64_t ms;
};

/// Longer names precede their own endings.
constexpr std::array<Unit, 4> units{{{"ms", 1}, {"s", 1000}, {"m", 60000}, {"h", 3600000}}};

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

Result<double> notATime(const std::string& text, const char* why)
{
    return Result<double>::failure(quoted(text) + " " + why + "; " + timeForms);
}

Result<double> timeWithUnit(const std::string& text)
{
    std::string_view number = text;
    std::int64_t unitMs = 1000;
    for (const Unit& unit : units) {
        if (endsWith(text, unit.name)) {
            number.remove_suffix(unit.name.size());
            unitMs = unit.ms;
            break;
        }
    }
    if (isDigits(number) && !wholeNumber(number, longestMs)) {
        return notATime(text, "is too long a time");
    }
    const auto parsed = decimal(number);
    if (!parsed) {
        return notATime(text, "is no time");
    }
    const auto ms = inMs(*parsed, unitMs);
    return ms ? Result<double>::of(*ms) : notATime(text, "is too long a time");
}

/// "M:SS" or "H:MM:SS", with a fraction of the seconds.
Result<double> timeWithColons(const std::string& text)
{
    std::vector<std::string_view> fields;
    std::string_view rest = text;
    for (std::size_t colon = rest.find(':'); colon != std::string_view::npos;
         colon = rest.find(':')) {
        fields.push_back(rest.substr(0, colon));
        rest.remove_prefix(colon + 1);
    }
    fields.push_back(rest.substr(0, rest.find('.')));
    const auto seconds = decimal(rest);
    if (fields.size() > 3 || !seconds) {
        return notATime(text, "is no time");
    }
    std::int64_t wholeSeconds = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto field = wholeNumber(fields[i], longestMs / 1000);
        if (!field) {
            return notATime(text, isDigits(fields[i]) ? "is too long a time" : "is no time");
        }
        if (i > 0 && fields[i].size() != 2) {
            return notATime(text, "needs two digits behind each colon, as in 1:05");
        }
        if (i > 0 && *field > 59) {
            return notATime(text, "has more than 59 minutes or seconds behind a colon");
        }
        if (wholeSeconds > longestMs / 1000) {
            return notATime(text, "is too long a time");
        }
        wholeSeconds = wholeSeconds * 60 + *field;
    }
    const auto ms = inMs({wholeSeconds, seconds->billionths}, 1000);
    return ms ? Result<double>::of(*ms) : notATime(text, "is too long a time");
}

Result<double> parsePercent(const std::string& text)
{
    const auto number = decimal(std::string_view(text).substr(0, text.size() - 1));
    if (!number || number->whole > 100 || (number->whole == 100 && number->billionths > 0)) {
        return Result<double>::failure(quoted(text) + " is no part of a video; write 0% to 100%");
    }
    return Result<double>::of(valueOf(*number));
}

bool isPercent(const std::string& text)
{
    return endsWith(text, "%");
}

std::vector<std::string> splitAtCommas(const std::string& text)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t comma = text.find(','); comma != std::string::npos;
         comma = text.find(',', start)) {
        parts.push_back(text.substr(start, comma - start));
        start = comma + 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

} // namespace

Result<double> parseTime(const std::string& text)
{
    return text.find(':') == std::string::npos ? timeWithUnit(text) : timeWithColons(text);
}

Result<FramePosition> parsePosition(const std::string& text)
{
    if (text == "last") {
        return Result<FramePosition>::of({FramePosition::Kind::Last, 0.0});
    }
    const Result<double> number = isPercent(text) ? parsePercent(text) : parseTime(text);
    if (!number.isGood()) {
        return Result<FramePosition>::failure(number.error +
                                              (isPercent(text) ? "" : ", or 75% or last"));
    }
    const auto kind =
        isPercent(text) ? FramePosition::Kind::Percent : FramePosition::Kind::Milliseconds;
    return Result<FramePosition>::of({kind, *number.value});
}

Result<std::vector<FramePosition>> parsePositions(const std::string& text)
{
    std::vector<FramePosition> positions;
    for (const std::string& part : splitAtCommas(text)) {
        const Result<FramePosition> position = parsePosition(part);
        if (!position.isGood()) {
            return Result<std::vector<FramePosition>>::failure(position.error);
        }
        positions.push_back(*position.value);
    }
    return Result<std::vector<FramePosition>>::of(positions);
}

Result<SeriesSkip> parseSkip(const std::string& text)
{
    const Result<double> number = isPercent(text) ? parsePercent(text) : parseTime(text);
    if (!number.isGood()) {
        return Result<SeriesSkip>::failure(number.error);
    }
    const auto unit = isPercent(text) ? SeriesSkip::Unit::Percent : SeriesSkip::Unit::Milliseconds;
    return Result<SeriesSkip>::of({unit, *number.value});
}

Result<std::vector<FramePosition>> parseFrames(const std::string& text)
{
    using Frames = Result<std::vector<FramePosition>>;
    constexpr std::int64_t highest = 1000000000;
    std::vector<FramePosition> frames;
    for (const std::string& part : splitAtCommas(text)) {
        const std::string_view range = part;
        const std::size_t hyphen = range.find('-');
        const auto first = wholeNumber(range.substr(0, hyphen), highest);
        const auto last = hyphen == std::string_view::npos
                              ? first
                              : wholeNumber(range.substr(hyphen + 1), highest);
        if (!first || !last || *last < *first) {
            return Frames::failure(
                quoted(part) + " is no frame; write numbers from 0 on and ranges: 0,100,200-300");
        }
        if (frames.size() + std::size_t(*last - *first) >= maxListedFrames) {
            return Frames::failure(quoted(text) + " is more than a million frames; use --every");
        }
        for (std::int64_t frame = *first; frame <= *last; ++frame) {
            frames.push_back({FramePosition::Kind::FrameNumber, static_cast<double>(frame)});
        }
    }
    return Frames::of(frames);
}

} // namespace positions
