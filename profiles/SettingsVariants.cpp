#include "profiles/SettingsVariants.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace {

/// The numbers of types in these streams, which have the format of Qt 4.
constexpr std::uint32_t dateAndTime = 16;
constexpr std::array harmlessTypes{
    1U,   2U,   3U,          4U,   5U,   6U,   7U,       // truth values, numbers and characters
    10U,  11U,  12U,                                     // texts, lists of texts, bytes
    14U,  15U,  dateAndTime, 17U,  18U,                  // times, URLs, locales
    19U,  20U,  21U,         22U,  23U,  24U,  25U, 26U, // sizes, points, lines, rectangles
    64U,  67U,                                           // fonts, colours
    129U, 130U, 131U,        132U, 133U, 134U, 135U      // numbers
};

/// QSettings streams dates in a newer format, in which other types have other numbers.
constexpr std::string_view usualStart = "@Variant(";
constexpr std::string_view dateStart = "@DateTime(";

constexpr int typeBytes = 4;

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

int digit(char c)
{
    return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
}

/// Reads a file's content as QSettings does: without quotes, with escaped characters in their
/// place, and without those that it does not know.
class Decoder
{
public:
    explicit Decoder(const QByteArray& content)
        : m_next(content.cbegin())
        , m_end(content.cend())
    {}

    QByteArray decoded()
    {
        QByteArray text;
        text.reserve(static_cast<int>(m_end - m_next));
        while (m_next != m_end) {
            const char c = *m_next++;
            if (c == '\\') {
                addEscaped(text);
            } else if (c != '"') {
                text += c;
            }
        }
        return text;
    }

private:
    void addEscaped(QByteArray& text)
    {
        if (m_next == m_end) {
            return;
        }
        const char c = *m_next;
        if (c >= '0' && c <= '7') {
            text += number(8, [](char next) { return next >= '0' && next <= '7'; });
            return;
        }
        ++m_next;
        constexpr std::string_view names = "abfnrtv\"?'\\";
        constexpr std::string_view meant = "\a\b\f\n\r\t\v\"?'\\";
        const auto name = names.find(c);
        if (name != std::string_view::npos) {
            text += meant[name];
        } else if (c == 'x' && m_next != m_end && isHexDigit(*m_next)) {
            text += number(16, isHexDigit);
        }
    }

    template <typename IsDigit>
    char number(std::uint16_t base, const IsDigit& isDigit)
    {
        std::uint16_t value = 0;
        for (; m_next != m_end && isDigit(*m_next); ++m_next) {
            value = static_cast<std::uint16_t>(value * base + digit(*m_next));
        }
        return value <= 0xff ? static_cast<char>(value) : '?';
    }

    QByteArray::const_iterator m_next;
    QByteArray::const_iterator m_end;
};

/// The type that a stream declares at its start.
std::uint32_t typeAt(std::string_view stream)
{
    std::uint32_t type = 0;
    for (const char c : stream.substr(0, typeBytes)) {
        type = type << 8U | static_cast<unsigned char>(c);
    }
    return type;
}

template <typename IsHarmless>
bool areHarmless(std::string_view text, std::string_view start, const IsHarmless& isHarmless)
{
    for (auto at = text.find(start); at != std::string_view::npos; at = text.find(start, at + 1)) {
        // QSettings doubles the first character of texts that begin with it.
        const bool isText = at > 0 && text[at - 1] == '@';
        if (!isText && !isHarmless(typeAt(text.substr(at + start.size())))) {
            return false;
        }
    }
    return true;
}

} // namespace

bool SettingsVariants::areHarmless(const QByteArray& content)
{
    const QByteArray decoded = Decoder(content).decoded();
    const std::string_view text(decoded.constData(), static_cast<std::size_t>(decoded.size()));
    const auto isKnown = [](std::uint32_t type) {
        return std::find(harmlessTypes.cbegin(), harmlessTypes.cend(), type) !=
               harmlessTypes.cend();
    };
    return ::areHarmless(text, usualStart, isKnown) &&
           ::areHarmless(text, dateStart, [](std::uint32_t type) { return type == dateAndTime; });
}
