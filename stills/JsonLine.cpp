#include "stills/JsonLine.h"

namespace stills {

namespace {

QByteArray escape(QChar c)
{
    return "\\u" + QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
}

QByteArray inQuotes(const QString& text)
{
    QByteArray result = "\"";
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += text.mid(i, 2).toUtf8();
            ++i;
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\\')) {
            result += '\\';
            result += c.toLatin1();
        } else if (c.unicode() < 0x20 || c.unicode() == 0x7f || c.isSurrogate()) {
            result += escape(c);
        } else {
            result += QString(c).toUtf8();
        }
    }
    return result + '"';
}

} // namespace

JsonLine::JsonLine(QLatin1String type)
    : m_text("{\"type\":" + inQuotes(type))
{}

JsonLine& JsonLine::addRaw(QLatin1String key, const QByteArray& value)
{
    m_text += "," + inQuotes(key) + ":" + value;
    return *this;
}

JsonLine& JsonLine::add(QLatin1String key, const QString& value)
{
    return addRaw(key, inQuotes(value));
}

JsonLine& JsonLine::add(QLatin1String key, std::optional<qint64> value)
{
    return addRaw(key, value ? QByteArray::number(*value) : QByteArrayLiteral("null"));
}

JsonLine& JsonLine::addTruth(QLatin1String key, bool value)
{
    return addRaw(key, value ? QByteArrayLiteral("true") : QByteArrayLiteral("false"));
}

} // namespace stills
