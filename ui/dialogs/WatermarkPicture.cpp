#include "ui/dialogs/WatermarkPicture.h"

#include "profiles/WatermarkProfile.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSize>
#include <QUuid>

namespace {

/// More than any view of a dialog shows, even on high-resolution screens.
constexpr QSize displayBounds{1024, 1024};

bool isTooLarge(QSize size)
{
    return qint64{size.width()} * size.height() > WatermarkPicture::maxPixels;
}

} // namespace

bool WatermarkPicture::isTooLarge(const QString& path)
{
    return QFileInfo(path).isFile() && ::isTooLarge(QImageReader(path).size());
}

QImage WatermarkPicture::readForDisplay(const QString& path)
{
    // A pipe would block.
    if (!QFileInfo(path).isFile()) {
        return {};
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (::isTooLarge(size)) {
        return {};
    }
    if (size.width() > displayBounds.width() || size.height() > displayBounds.height()) {
        // Most decoders scale it down without ever holding the whole picture.
        const QSize fitting = size.scaled(displayBounds, Qt::KeepAspectRatio);
        reader.setScaledSize(fitting.expandedTo({1, 1}));
    }
    return reader.read();
}

QString WatermarkPicture::addCopyOf(const QString& path)
{
    const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper() +
                         QLatin1Char('.') + QFileInfo(path).completeSuffix();
    if (QFileInfo(path).isFile()) {
        QFile::copy(path, WatermarkProfile::pathForImage(name));
    }
    return name;
}
