#include "stills/FileNameCodec.h"

#if QT_VERSION_MAJOR < 6

#include <array>

namespace stills {

namespace {

constexpr uint firstEscape = 0xdc00; // and the byte, which is 0x80 at least

/// A character at the start of some bytes, and the number of bytes that it takes.
struct Decoded
{
    uint character = 0;
    int length = 1;
};

struct Form
{
    uint lead;     ///< bits that identify the first byte
    uint mask;     ///< mask for these bits
    int length;    ///< in bytes
    uint smallest; ///< smaller values have a shorter encoding
};

constexpr std::array<Form, 4> forms{{{0x00, 0x80, 1, 0x0},
                                     {0xc0, 0xe0, 2, 0x80},
                                     {0xe0, 0xf0, 3, 0x800},
                                     {0xf0, 0xf8, 4, 0x10000}}};

bool isCharacter(uint character, const Form& form)
{
    return character >= form.smallest && character <= 0x10ffff &&
           (character < 0xd800 || character > 0xdfff);
}

Decoded decodedAt(const char* bytes, int length)
{
    const auto byte = [bytes](int i) { return static_cast<uint>(static_cast<uchar>(bytes[i])); };
    for (const Form& form : forms) {
        if ((byte(0) & form.mask) != form.lead || length < form.length) {
            continue;
        }
        uint character = byte(0) & ~form.mask;
        bool isWhole = true;
        for (int i = 1; i < form.length; ++i) {
            isWhole = isWhole && (byte(i) & 0xc0U) == 0x80U;
            character = (character << 6U) | (byte(i) & 0x3fU);
        }
        if (isWhole && isCharacter(character, form)) {
            return {character, form.length};
        }
    }
    return {firstEscape + byte(0), 1};
}

bool isEscape(QChar c)
{
    return c.unicode() >= firstEscape + 0x80 && c.unicode() <= firstEscape + 0xff;
}

} // namespace

void FileNameCodec::install()
{
    // The constructor registers the codec with Qt, which deletes it at the end.
    QTextCodec::setCodecForLocale(new FileNameCodec);
}

QByteArray FileNameCodec::name() const
{
    return QByteArrayLiteral("Morvantile-file-names");
}

/// Not the number of UTF-8, because Qt would skip invalid names in folders.
int FileNameCodec::mibEnum() const
{
    constexpr int privateUse = 2998;
    return privateUse;
}

QString FileNameCodec::convertToUnicode(const char* bytes, int length, ConverterState* state) const
{
    Q_UNUSED(state)
    QString text;
    text.reserve(length);
    for (int i = 0; i < length;) {
        const Decoded decoded = decodedAt(bytes + i, length - i);
        if (QChar::requiresSurrogates(decoded.character)) {
            text += QChar(QChar::highSurrogate(decoded.character));
            text += QChar(QChar::lowSurrogate(decoded.character));
        } else {
            text += QChar(static_cast<ushort>(decoded.character));
        }
        i += decoded.length;
    }
    return text;
}

QByteArray FileNameCodec::convertFromUnicode(const QChar* text, int length,
                                             ConverterState* state) const
{
    Q_UNUSED(state)
    QByteArray bytes;
    bytes.reserve(length);
    int start = 0;
    const auto appendPlain = [&bytes, &start, text](int end) {
        bytes += QString::fromRawData(text + start, end - start).toUtf8();
    };
    for (int i = 0; i < length; ++i) {
        if (text[i].isHighSurrogate() && i + 1 < length && text[i + 1].isLowSurrogate()) {
            ++i; // a character beyond U+FFFF, whose second half may look like an escape
        } else if (isEscape(text[i])) {
            appendPlain(i);
            bytes += static_cast<char>(text[i].unicode() - firstEscape);
            start = i + 1;
        }
    }
    appendPlain(length);
    return bytes;
}

} // namespace stills

#endif
