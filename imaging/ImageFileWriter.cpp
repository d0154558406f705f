#include "imaging/ImageFileWriter.h"

#include "imaging/HdrColours.h"
#include "imaging/ImageFormats.h"
#include "imaging/JpegEncoder.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFileInfo>
#include <QImageWriter>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

/// From this JPEG quality on, chroma is kept in full resolution.
constexpr int wholeChromaQuality = 90;

constexpr int highestQuality = 100;

/// Stands for zlib's level 1. Above this, Qt's PNG writer does not compress at all.
constexpr int quickestPngQuality = 89;
/// Corresponds to zlib's level 2: a quarter of the time of the writer's default, for files that are
/// up to a third larger.
constexpr int usualPngQuality = 75;

/// A buffer that fails to write if it cannot grow. An exception would pass through the image
/// libraries, which do not support that.
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

bool isJpeg(const QByteArray& format)
{
    return ImageFormats::isJpeg(QString::fromLatin1(format));
}

/// Whether the plugin of the format detects that memory runs out. The others work on copies without
/// checking that they were allocated: BMP then writes an image of no size and reports success, and
/// TIFF never returns.
bool noticesLackOfMemory(const QByteArray& format)
{
    return isJpeg(format) || format == "png";
}

/// Whether there is memory for a copy of the image, for content of up to the same size, and for the
/// threads that Qt copies with.
bool hasMemoryToCopy(const QImage& image)
{
    const size_t copyBytes = 2 * std::max(sizeof(QRgb), static_cast<size_t>(image.depth()) / 8);
    constexpr size_t threadBytes = 64 * 1024 * 1024;
    const auto pixels = static_cast<size_t>(image.width()) * static_cast<size_t>(image.height());
    // Volatile, because otherwise the compiler removes an unused allocation.
    void* const volatile probe = std::malloc(pixels * copyBytes + threadBytes);
    std::free(probe);
    return probe != nullptr;
}

/// The image with a colour profile, which the writers then store: sRGB if it has none. Shares the
/// image's pixels and must not outlive it.
QImage withColorSpace(const QImage& image)
{
    if (image.colorSpace().isValid()) {
        return image;
    }
    // Qt copies constant pixels when any property of an image is set. Nothing writes to these.
    QImage tagged(const_cast<uchar*>(image.constBits()), image.width(), image.height(),
                  image.bytesPerLine(), image.format());
    tagged.setColorTable(image.colorTable());
    tagged.setDotsPerMeterX(image.dotsPerMeterX());
    tagged.setDotsPerMeterY(image.dotsPerMeterY());
    const QStringList keys = image.textKeys();
    for (const QString& key : keys) {
        tagged.setText(key, image.text(key));
    }
    tagged.setColorSpace(QColorSpace(QColorSpace::SRgb));
    return tagged;
}

/// The value that Qt's writer expects for a quality.
int writerQuality(const QByteArray& format, int quality)
{
    if (format != "png") {
        return quality;
    }
    return quality < 0 ? usualPngQuality : std::min(quality, quickestPngQuality);
}

QByteArray encodedByQt(const QImage& image, const QByteArray& format, int quality)
{
    if (!noticesLackOfMemory(format) && !hasMemoryToCopy(image)) {
        return {};
    }
    QByteArray content;
    FallibleBuffer buffer(&content);
    QImageWriter writer(&buffer, format);
    writer.setQuality(writerQuality(format, quality));
    return writer.write(image) ? content : QByteArray();
}

/// The encoded picture; empty if the format is unknown or cannot hold the picture, or if memory
/// runs out. Throws std::bad_alloc in the latter case, too.
QByteArray encoded(const QImage& image, const QByteArray& format, int quality)
{
    const bool keepsChroma = quality >= wholeChromaQuality && JpegEncoder::hasChroma(image);
    const QImage tagged = withColorSpace(image);
    if (isJpeg(format) && keepsChroma) {
        return JpegEncoder::encode(tagged, std::min(quality, highestQuality));
    }
    const QByteArray content = encodedByQt(tagged, format, quality);
    const auto hdr = HdrColours::of(image);
    return hdr && format == "png" ? HdrColours::withCodePoints(content, *hdr) : content;
}

} // namespace

QByteArray ImageFileWriter::encode(const QImage& image, const QString& type, int quality)
{
    const QByteArray format = type.toLower().toUtf8();
    try {
        return image.isNull() || format.isEmpty() ? QByteArray() : encoded(image, format, quality);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

WriteResult ImageFileWriter::write(const QString& fileName, const QImage& image, int quality,
                                   ExistingFile existing)
{
    const QByteArray content = encode(image, QFileInfo(fileName).suffix(), quality);
    return content.isEmpty() ? WriteResult::Failed
                             : FilePublisher::publish(fileName, content, existing);
}
