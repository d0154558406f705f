#include "ui/mainwindow/SavePath.h"

#include "imaging/ImageFormats.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

/// "jpg" and "jpeg" in "JPEG (*.jpg *.jpeg)".
QStringList suffixesIn(const QString& nameFilters)
{
    static const QRegularExpression pattern(QStringLiteral("\\*\\.(\\w+)"));
    QStringList suffixes;
    QRegularExpressionMatchIterator matches = pattern.globalMatch(nameFilters);
    while (matches.hasNext()) {
        suffixes.append(matches.next().captured(1));
    }
    return suffixes;
}

/// The parts of a name: "film-", 7 and ".png" for "film-07.png", with the number's width.
struct NumberedName
{
    QString head;
    qlonglong number = 1;
    int width = 1;
    QString tail;
};

NumberedName takenApart(const QString& name, const QString& videoBaseName)
{
    static const QStringList known = suffixesIn(SavePath::nameFilters().join(QLatin1Char(' ')));
    NumberedName parts;
    parts.head = name;
    const QString suffix = QFileInfo(name).suffix();
    if (known.contains(suffix, Qt::CaseInsensitive)) {
        parts.tail = QLatin1Char('.') + suffix;
        parts.head.chop(parts.tail.size());
    }
    static const QRegularExpression numbered(QStringLiteral("^(.*[-_ ])(\\d{1,9})$"));
    const QRegularExpressionMatch match = numbered.match(parts.head);
    if (match.hasMatch() && parts.head != videoBaseName) {
        parts.head = match.captured(1);
        parts.number = match.captured(2).toLongLong();
        parts.width = match.capturedLength(2);
    } else {
        parts.head += QLatin1Char('-');
    }
    return parts;
}

} // namespace

QString SavePath::nextFree(const QDir& folder, const QString& name, const QString& nameFilter,
                           const QString& videoBaseName)
{
    const auto isTaken = [&](const QString& candidate) {
        const QFileInfo file(completed(folder.absoluteFilePath(candidate), nameFilter));
        return file.exists() || file.isSymLink();
    };
    QString free = name;
    NumberedName parts = takenApart(name, videoBaseName);
    while (isTaken(free)) {
        ++parts.number;
        free = parts.head +
               QStringLiteral("%1").arg(parts.number, parts.width, 10, QLatin1Char('0')) +
               parts.tail;
    }
    return free;
}

QStringList SavePath::nameFilters()
{
    QStringList filters{QStringLiteral("JPEG (*.jpg *.jpeg)"), QStringLiteral("PNG (*.png)"),
                        QStringLiteral("BMP (*.bmp)"), QStringLiteral("TIFF (*.tif *.tiff)")};
    const auto addIfWritable = [&filters](const char* name, const QString& suffix) {
        if (ImageFormats::canWrite(suffix)) {
            filters += QStringLiteral("%1 (*.%2)").arg(QString::fromLatin1(name), suffix);
        }
    };
    addIfWritable("WebP", QStringLiteral("webp"));
    addIfWritable("AVIF", QStringLiteral("avif"));
    addIfWritable("JPEG XL", QStringLiteral("jxl"));
    return filters;
}

QString SavePath::completed(const QString& path, const QString& nameFilter)
{
    const QStringList known = suffixesIn(nameFilters().join(QLatin1Char(' ')));
    const QStringList wanted = suffixesIn(nameFilter);
    if (wanted.isEmpty() || known.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive)) {
        return path;
    }
    return path + QLatin1Char('.') + wanted.first();
}
