#include "stills/NameTemplate.h"

#include "stills/Times.h"

#include <algorithm>
#include <cstdio>

namespace stills {

namespace {

constexpr std::size_t longestName = 255; // bytes, on all usual file systems
constexpr std::size_t counterRoom = 10;  // "-" and nine digits
constexpr std::size_t shortestStem = 8;  // bytes that stay of a stem that is cut
constexpr int widestNumber = 18;

struct FieldName
{
    const char* name;
    NameTemplate::Field field;
    bool isNumber;
};

constexpr FieldName fieldNames[] = {
    {"stem", NameTemplate::Field::Stem, false},  {"number", NameTemplate::Field::Number, true},
    {"frame", NameTemplate::Field::Frame, true}, {"time", NameTemplate::Field::Time, false},
    {"width", NameTemplate::Field::Width, true}, {"height", NameTemplate::Field::Height, true},
};

std::string padded(std::int64_t number, int width)
{
    std::string text = std::to_string(number);
    const auto wanted = static_cast<std::size_t>(width);
    return text.size() < wanted ? std::string(wanted - text.size(), '0') + text : text;
}

bool isForbidden(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f || c == '/' || c == '\\';
}

std::string safe(std::string base)
{
    std::replace_if(base.begin(), base.end(), isForbidden, '_');
    for (std::size_t i = 0; i < base.size() && base[i] == '.'; ++i) {
        base[i] = '_';
    }
    return base.empty() ? "_" : base;
}

std::string joined(const std::string& base, const std::string& suffix, int counter)
{
    const std::string count = counter > 1 ? "-" + std::to_string(counter) : std::string();
    return base + count + "." + safe(suffix);
}

} // namespace

std::string timeForNames(std::int64_t ms)
{
    ms = std::max<std::int64_t>(ms, 0);
    return padded(ms / 3600000, 2) + "." + padded(ms / 60000 % 60, 2) + "." +
           padded(ms / 1000 % 60, 2) + "." + padded(ms % 1000, 3);
}

std::string cutBetweenCharacters(std::string text, std::size_t bytes)
{
    if (text.size() <= bytes) {
        return text;
    }
    const auto isContinuation = [&text](std::size_t i) {
        return (static_cast<unsigned char>(text[i]) & 0xc0U) == 0x80U;
    };
    std::size_t end = bytes;
    // A character has at most three continuation bytes; more of them are not UTF-8.
    for (int i = 0; i < 3 && end > 0 && isContinuation(end); ++i) {
        --end;
    }
    text.resize(isContinuation(end) ? bytes : end);
    return text;
}

std::size_t longestBase(const std::string& suffix)
{
    const std::size_t taken = counterRoom + 1 + suffix.size();
    return taken < longestName ? longestName - taken : 1;
}

std::string safeFileName(const std::string& base, const std::string& suffix, int counter)
{
    return joined(cutBetweenCharacters(safe(base), longestBase(suffix)), suffix, counter);
}

Result<NameTemplate::Part> NameTemplate::parseField(const std::string& content)
{
    const std::size_t colon = content.find(':');
    const std::string name = content.substr(0, colon);
    const auto* const known = std::find_if(std::begin(fieldNames), std::end(fieldNames),
                                           [&name](const FieldName& f) { return name == f.name; });
    if (known == std::end(fieldNames)) {
        return Result<Part>::failure(
            quoted("{" + content + "}") +
            " is no field; there are {stem}, {number}, {frame}, {time}, {width} and {height}");
    }
    Part part;
    part.field = known->field;
    if (colon != std::string::npos) {
        const auto width = parseNumber(content.substr(colon + 1), 1, widestNumber);
        if (!known->isNumber || !width.isGood()) {
            return Result<Part>::failure(quoted("{" + content + "}") +
                                         " has a wrong width; numbers take one, as {number:4}");
        }
        part.width = static_cast<int>(*width.value);
    }
    return Result<Part>::of(part);
}

Result<NameTemplate> NameTemplate::parse(const std::string& text)
{
    using Template = Result<NameTemplate>;
    NameTemplate result;
    std::string plain;
    const auto endPlain = [&result, &plain] {
        if (!plain.empty()) {
            result.m_parts.push_back({Field::Text, plain, 0});
            plain.clear();
        }
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool isDoubled = (c == '{' || c == '}') && i + 1 < text.size() && text[i + 1] == c;
        if (isDoubled || (c != '{' && c != '}')) {
            plain += c;
            i += isDoubled ? 1 : 0;
            continue;
        }
        const std::size_t end = text.find('}', i);
        if (c == '}' || end == std::string::npos) {
            return Template::failure("there is a single brace in " + quoted(text) +
                                     "; write {{ or }} for a brace in a name");
        }
        const auto part = parseField(text.substr(i + 1, end - i - 1));
        if (!part.isGood()) {
            return Template::failure(part.error);
        }
        endPlain();
        result.m_parts.push_back(*part.value);
        i = end;
    }
    endPlain();
    return result.m_parts.empty() ? Template::failure("an empty name names nothing; the usual one "
                                                      "is '{stem}-{time}'")
                                  : Template::of(result);
}

bool NameTemplate::uses(Field field) const
{
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [field](const Part& part) { return part.field == field; });
}

std::string NameTemplate::expanded(const NameFields& fields) const
{
    std::string name;
    for (const Part& part : m_parts) {
        switch (part.field) {
        case Field::Text:
            name += part.text;
            break;
        case Field::Stem:
            name += fields.stem + fields.tail;
            break;
        case Field::Number:
            name += padded(fields.number, part.width);
            break;
        case Field::Frame:
            name += fields.frame ? padded(*fields.frame, part.width) : "unknown";
            break;
        case Field::Time:
            name += timeForNames(fields.timeMs);
            break;
        case Field::Width:
            name += padded(fields.width, part.width);
            break;
        case Field::Height:
            name += padded(fields.height, part.width);
            break;
        }
    }
    // If the name does not contain the stem, the tail is appended to distinguish videos.
    return uses(Field::Stem) ? name : name + fields.tail;
}

std::string NameTemplate::fileName(const NameFields& fields, const std::string& suffix,
                                   int counter) const
{
    std::string base = expanded(fields);
    const std::size_t room = longestBase(suffix);
    const auto stems = static_cast<std::size_t>(
        std::count_if(m_parts.begin(), m_parts.end(),
                      [](const Part& part) { return part.field == Field::Stem; }));
    if (base.size() > room && stems > 0) {
        const std::size_t excess = (base.size() - room + stems - 1) / stems;
        const std::size_t kept = fields.stem.size() > excess ? fields.stem.size() - excess : 0;
        NameFields shorter = fields;
        shorter.stem = cutBetweenCharacters(fields.stem, std::max(kept, shortestStem));
        base = expanded(shorter);
    }
    return safeFileName(base, suffix, counter);
}

} // namespace stills
