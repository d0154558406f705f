#pragma once

#include "stills/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace stills {

/// What the name of one picture is made of.
struct NameFields
{
    std::string stem;      ///< the video's name without its last suffix, any bytes
    std::string tail = {}; ///< tells videos of one stem apart; comes behind the stem
    int number = 0;        ///< of the picture within its video, from 1
    std::optional<std::int64_t> frame = {}; ///< the frame's number, where known
    std::int64_t timeMs = 0;
    int width = 0; ///< of the picture, in pixels
    int height = 0;
};

/// How pictures are named: text with fields in braces. A plain value, for any thread.
///
/// The fields are {stem}, {number}, {frame}, {time}, {width} and {height}; numbers may have a
/// width, which leading zeros fill: {number:4}. A doubled brace stands for one.
class NameTemplate
{
public:
    enum class Field { Text, Stem, Number, Frame, Time, Width, Height };

    NameTemplate() = default;

    /// The template; or what is wrong with the text.
    [[nodiscard]] static Result<NameTemplate> parse(const std::string& text);

    [[nodiscard]] bool uses(Field field) const;

    /// The name of a file in its folder, with a dot and the suffix. The name stays within the
    /// folder, is visible and can be written: separators, control characters and leading dots
    /// become underlines, and what is longer than file names may be is cut, the stem first, between
    /// characters.
    ///
    /// @param counter  from 2 on comes behind the name: for names that are taken
    [[nodiscard]] std::string fileName(const NameFields& fields, const std::string& suffix,
                                       int counter = 1) const;

private:
    struct Part
    {
        Field field = Field::Text;
        std::string text = {};
        int width = 0;
    };

    [[nodiscard]] std::string expanded(const NameFields& fields) const;
    [[nodiscard]] static Result<Part> parseField(const std::string& content);

    std::vector<Part> m_parts;
};

/// A whole file name made safe and short enough, as NameTemplate::fileName() does it.
[[nodiscard]] std::string safeFileName(const std::string& base, const std::string& suffix,
                                       int counter = 1);

/// "00.01.02.500": hours, minutes, seconds and milliseconds, in an order that sorts right.
[[nodiscard]] std::string timeForNames(std::int64_t ms);

/// Cuts the text to so many bytes, or some fewer where a character of UTF-8 would be torn.
[[nodiscard]] std::string cutBetweenCharacters(std::string text, std::size_t bytes);

} // namespace stills
