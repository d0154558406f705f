#pragma once

#include <optional>
#include <string>
#include <utility>

namespace positions {

/// A value, or a text for people why there is none. Exactly one of the two is set.
template <typename T>
struct Result
{
    std::optional<T> value;
    std::string error;

    [[nodiscard]] static Result of(T content) { return {std::move(content), {}}; }
    [[nodiscard]] static Result failure(std::string text)
    {
        return {std::nullopt, std::move(text)};
    }
    [[nodiscard]] bool isGood() const { return value.has_value(); }
};

/// The text in single quotes on one line: control characters become question marks.
[[nodiscard]] inline std::string quoted(std::string text)
{
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
            c = '?';
        }
    }
    return "'" + text + "'";
}

} // namespace positions
