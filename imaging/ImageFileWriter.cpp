#include "imaging/ImageFileWriter.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

#include <cstdlib>
#include <new>

namespace {

/// A buffer that fails to write when it cannot grow. An exception would pass through the image
/// libraries, which are not made for that.
class FallibleBuffer : public QBuffer
{
public:
    using QBuffer::QBuffer;

protected:
    qint64 writeData(const char* data, qint64 size) override
    {
        try {
            return QBuffer::writeData(data, size);
        } catch (const std::bad_alloc&) {
            return -1;
        }
    }
};

/// Whether the plugin of the format notices by itself that memory runs out. The other ones work on
/// copies and do not look whether they got them: BMP then writes an image of no size and says that
/// all went well, and TIFF never returns.
bool noticesLackOfMemory(const QByteArray& format)
{
    return format == "jpg" || format == "jpeg" || format == "png";
}

/// Whether there is memory for a copy of the image, for content that may take as much, and for the
/// threads that Qt copies with.
bool hasMemoryToCopy(const QImage& image)
{
    constexpr size_t copyBytes = 2 * sizeof(QRgb);
    constexpr size_t threadBytes = 64 * 1024 * 1024;
    const auto pixels = static_cast<size_t>(image.width()) * static_cast<size_t>(image.height());
    // Volatile, or the compiler leaves out taking what is given back unused.
    void* const volatile probe = std::malloc(pixels * copyBytes + threadBytes);
    std::free(probe);
    return probe != nullptr;
}

/// The encoded picture; empty when the format is unknown or cannot hold the picture, or when memory
/// runs out.
QByteArray encoded(const QImage& image, const QByteArray& format, int quality)
{
    if (!noticesLackOfMemory(format) && !hasMemoryToCopy(image))
        return {};
    QByteArray content;
    FallibleBuffer buffer(&content);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    return writer.write(image) ? content : QByteArray();
}

} // namespace

QByteArray ImageFileWriter::encode(const QImage& image, const QString& type, int quality)
{
    const QByteArray format = type.toLower().toUtf8();
    return image.isNull() || format.isEmpty() ? QByteArray() : encoded(image, format, quality);
}

WriteResult ImageFileWriter::write(const QString& fileName, const QImage& image, int quality,
                                   ExistingFile existing)
{
    const QByteArray content = encode(image, QFileInfo(fileName).suffix(), quality);
    return content.isEmpty() ? WriteResult::Failed
                             : FilePublisher::publish(fileName, content, existing);
}
