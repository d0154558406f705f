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

} // namespace

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
