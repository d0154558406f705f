#include "stills/Texts.h"

#include <QFile>

#include <algorithm>

namespace stills {

QString pathOf(const std::string& bytes)
{
    return QFile::decodeName(QByteArray::fromStdString(bytes));
}

std::string bytesOf(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

QByteArray oneLine(const QString& text)
{
    QByteArray bytes = QFile::encodeName(text);
    std::replace_if(
        bytes.begin(), bytes.end(),
        [](char c) { return static_cast<uchar>(c) < 0x20 || c == 0x7f; }, '?');
    return bytes;
}

QString readable(const QString& text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += c;
            result += text.at(++i);
        } else {
            const bool isReadable = !c.isSurrogate() && c.category() != QChar::Other_Control;
            result += isReadable ? c : QChar(QLatin1Char('?'));
        }
    }
    return result;
}

QString clockTime(qint64 ms)
{
    const qint64 seconds = std::max<qint64>(ms, 0) / 1000;
    const auto twoDigits = [](qint64 n) {
        return QString::number(n).rightJustified(2, QLatin1Char('0'));
    };
    const QString tail = QLatin1Char(':') + twoDigits(seconds % 60);
    return seconds < 3600 ? QString::number(seconds / 60) + tail
                          : QString::number(seconds / 3600) + QLatin1Char(':') +
                                twoDigits(seconds / 60 % 60) + tail;
}

QString exactClockTime(qint64 ms)
{
    return clockTime(ms) + QLatin1Char('.') +
           QString::number(std::max<qint64>(ms, 0) % 1000).rightJustified(3, QLatin1Char('0'));
}

} // namespace stills
