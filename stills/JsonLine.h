#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>

#include <optional>

namespace stills {

/// One JSON object in one line, its keys in the order in which they are added. Texts come out as
/// UTF-8; a byte of a file name that is none comes out as the lone surrogate that FileNameCodec
/// makes of it: \udc80 to \udcff.
class JsonLine
{
public:
    /// An object whose first key is "type".
    explicit JsonLine(QLatin1String type);

    JsonLine& add(QLatin1String key, const QString& value);
    /// A whole number; null where there is none.
    JsonLine& add(QLatin1String key, std::optional<qint64> value);
    JsonLine& addTruth(QLatin1String key, bool value);

    /// The object and a line break.
    [[nodiscard]] QByteArray line() const { return m_text + "}\n"; }

private:
    JsonLine& addRaw(QLatin1String key, const QByteArray& value);

    QByteArray m_text;
};

} // namespace stills
