#include "imaging/JpegEncoder.h"

#include "imaging/JpegSegments.h"

#include <QColorSpace>
#include <QtEndian>

#include <turbojpeg.h>

#include <cmath>
#include <limits>
#include <memory>
#include <optional>

namespace {

constexpr double inchesPerMeter = 1 / 0.0254;

/// What a QByteArray can hold, and some bytes for its own header.
constexpr unsigned long mostBytes = std::numeric_limits<int>::max() - 4096;

struct CompressorDeleter
{
    void operator()(void* compressor) const { tjDestroy(compressor); }
};
using CompressorPtr = std::unique_ptr<void, CompressorDeleter>;

/// The encoder's name for the image's order of samples; nothing for an unsupported one.
std::optional<TJPF> pixelFormatOf(QImage::Format format)
{
    switch (format) {
    case QImage::Format_RGB888:
        return TJPF_RGB;
    case QImage::Format_BGR888:
        return TJPF_BGR;
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
    case QImage::Format_ARGB32_Premultiplied:
        return Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TJPF_BGRX : TJPF_XRGB;
    case QImage::Format_RGBX8888:
    case QImage::Format_RGBA8888:
    case QImage::Format_RGBA8888_Premultiplied:
        return TJPF_RGBX;
    default:
        return std::nullopt;
    }
}

long dotsPerInch(int dotsPerMeter)
{
    return std::lround(dotsPerMeter / inchesPerMeter);
}

} // namespace

bool JpegEncoder::hasChroma(const QImage& image)
{
    return image.depth() > 8 || !image.allGray();
}

QByteArray JpegEncoder::encode(const QImage& image, int quality)
{
    const bool isKnown = pixelFormatOf(image.format()).has_value();
    const QImage source = isKnown ? image : image.convertToFormat(QImage::Format_RGB888);
    const CompressorPtr compressor(tjInitCompress());
    if (source.isNull() || !compressor) {
        return {};
    }
    // Allocating the worst case takes no memory for pages that stay untouched; growing would take
    // it twice.
    unsigned long size = tjBufSize(source.width(), source.height(), TJSAMP_444);
    if (size > mostBytes) {
        return {};
    }
    QByteArray content(static_cast<int>(size), Qt::Uninitialized);
    auto* memory = reinterpret_cast<unsigned char*>(content.data());
    const int result =
        tjCompress2(compressor.get(), source.constBits(), source.width(), source.bytesPerLine(),
                    source.height(), *pixelFormatOf(source.format()), &memory, &size, TJSAMP_444,
                    quality, TJFLAG_ACCURATEDCT | TJFLAG_NOREALLOC);
    if (result != 0) {
        return {};
    }
    content.truncate(static_cast<int>(size));
    const QByteArray profile = JpegSegments::colorProfile(source.colorSpace().iccProfile());
    const bool isWhole = JpegSegments::setResolution(content, dotsPerInch(source.dotsPerMeterX()),
                                                     dotsPerInch(source.dotsPerMeterY())) &&
                         JpegSegments::add(content, profile);
    return isWhole ? content : QByteArray();
}
