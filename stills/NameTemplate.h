#pragma once

#include "stills/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace stills {

/// The values from which the name of a picture is made.
struct NameFields
{
    std::string stem;      ///< the video's name without its last suffix, any bytes
    std::string tail = {}; ///< distinguishes videos with the same stem; follows the stem
    int number = 0;        ///< of the picture within its video, from 1
    std::optional<std::int64_t> frame = {}; ///< the frame's number, if known
    std::int64_t timeMs = 0;
    int width = 0; ///< of the picture, in pixels
    int height = 0;
};

/// A template for the names of pictures: text with fields in braces. A plain value, for any thread.
///
/// The fields are {stem}, {number}, {frame}, {time}, {width} and {height}. Numbers may have a
/// minimum width, padded with zeros: {number:4}. A doubled brace stands for a single one.
class NameTemplate
{
public:
    enum class Field { Text, Stem, Number, Frame, Time, Width, Height };

    NameTemplate() = default;

    /// The template, or a description of the error in the text.
    [[nodiscard]] static Result<NameTemplate> parse(const std::string& text);

    [[nodiscard]] bool uses(Field field) const;

    /// The name of a file in its folder, with a dot and the suffix. The name stays within the
    /// folder, is visible and can be written: separators, control characters and leading dots
    /// become underscores. A name that is too long is truncated between characters, the stem first.
    ///
    /// @param counter  appended to the name from 2 on: for names that are taken
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

/// Makes a file name safe and short enough, like NameTemplate::fileName().
[[nodiscard]] std::string safeFileName(const std::string& base, const std::string& suffix,
                                       int counter = 1);

/// Maximum size in bytes of a base that safeFileName() does not truncate.
[[nodiscard]] std::size_t longestBase(const std::string& suffix);

/// "00.01.02.500": hours, minutes, seconds and milliseconds, so that names sort by time.
[[nodiscard]] std::string timeForNames(std::int64_t ms);

/// Truncates the text to this many bytes, or fewer to keep UTF-8 characters whole.
[[nodiscard]] std::string cutBetweenCharacters(std::string text, std::size_t bytes);

} // namespace stills
