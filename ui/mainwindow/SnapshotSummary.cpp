#include "ui/mainwindow/SnapshotSummary.h"

#include "imaging/ImageFormats.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString translatedSummary(const char* text)
{
    return QCoreApplication::translate("SnapshotSummary", text);
}

QString sizeText(const QSize& size)
{
    return QStringLiteral("%1 \u00d7 %2").arg(size.width()).arg(size.height());
}

} // namespace

QString SnapshotSummary::formatName(const QString& type)
{
    const QString lower = type.toLower();
    if (lower == QLatin1String("jpg")) {
        return QStringLiteral("JPEG");
    }
    if (lower == QLatin1String("tif")) {
        return QStringLiteral("TIFF");
    }
    if (lower == QLatin1String("webp")) {
        return QStringLiteral("WebP");
    }
    if (lower == QLatin1String("jxl")) {
        return QStringLiteral("JPEG XL");
    }
    return type.toUpper();
}

QString SnapshotSummary::text(const QSize& saved, const QSize& frame, const QString& type,
                              const ImageRecipe& recipe)
{
    QStringList parts;
    parts += saved == frame ? sizeText(saved)
                            : translatedSummary(QT_TRANSLATE_NOOP("SnapshotSummary", "%1 of %2"))
                                  .arg(sizeText(saved), sizeText(frame));
    parts += ImageFormats::hasQuality(type)
                 ? QStringLiteral("%1 %2").arg(formatName(type)).arg(recipe.jpegQuality)
                 : formatName(type);
    if (recipe.watermark) {
        parts += translatedSummary(QT_TRANSLATE_NOOP("SnapshotSummary", "watermark"));
    }
    return parts.join(separator);
}
