#include "imaging/ImageFileWriter.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

namespace {

/// The encoded picture; empty when the format is unknown or cannot hold the picture.
QByteArray encoded(const QImage& image, const QByteArray& format, int quality)
{
    QByteArray content;
    QBuffer buffer(&content);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    return writer.write(image) ? content : QByteArray();
}

} // namespace

WriteResult ImageFileWriter::write(const QString& fileName, const QImage& image, int quality,
                                   ExistingFile existing)
{
    const QByteArray format = QFileInfo(fileName).suffix().toLower().toUtf8();
    if (image.isNull() || format.isEmpty())
        return WriteResult::Failed;
    const QByteArray content = encoded(image, format, quality);
    return content.isEmpty() ? WriteResult::Failed
                             : FilePublisher::publish(fileName, content, existing);
}
