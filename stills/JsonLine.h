#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>

#include <optional>

namespace stills {

/// One JSON object on one line, with its keys in the order in which they are added. Texts are
/// UTF-8; invalid bytes of file names appear as the lone surrogates of FileNameCodec: \udc80 to
/// \udcff.
class JsonLine
{
public:
    /// An object whose first key is "type".
    explicit JsonLine(QLatin1String type);

    JsonLine& add(QLatin1String key, const QString& value);
    /// A whole number; null for nothing.
    JsonLine& add(QLatin1String key, std::optional<qint64> value);
    JsonLine& addTruth(QLatin1String key, bool value);

    /// The complete object and a line break.
    [[nodiscard]] QByteArray line() const { return m_text + "}\n"; }

private:
    JsonLine& addRaw(QLatin1String key, const QByteArray& value);

    QByteArray m_text;
};

} // namespace stills
