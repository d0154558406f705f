#include "imaging/JpegEncoder.h"

#include <QColorSpace>
#include <QtEndian>

#include <turbojpeg.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>

namespace {

constexpr double inchesPerMeter = 1 / 0.0254;

/// Position of the resolution unit in JFIF's first segment, and the end of that segment.
constexpr int unitOffset = 13;
constexpr int firstSegmentEnd = 20;
constexpr char dotsPerInch = 1;

/// Maximum size of the part of a colour profile in one segment, after its length, name and numbers;
/// and the maximum number of such segments.
constexpr int largestProfilePart = 65535 - 2 - 12 - 2;
constexpr int mostProfileParts = 255;

struct CompressorDeleter
{
    void operator()(void* compressor) const { tjDestroy(compressor); }
};
using CompressorPtr = std::unique_ptr<void, CompressorDeleter>;

struct BytesDeleter
{
    void operator()(unsigned char* bytes) const { tjFree(bytes); }
};
using BytesPtr = std::unique_ptr<unsigned char, BytesDeleter>;

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

void appendNumber(QByteArray& bytes, int number)
{
    bytes.append(static_cast<char>(number >> 8)).append(static_cast<char>(number & 0xff));
}

/// Splits the profile into segments, which decoders join again.
QByteArray profileSegments(const QByteArray& profile)
{
    const int parts = (profile.size() + largestProfilePart - 1) / largestProfilePart;
    QByteArray segments;
    if (parts > mostProfileParts) {
        return segments;
    }
    for (int part = 0; part < parts; ++part) {
        const QByteArray content = profile.mid(part * largestProfilePart, largestProfilePart);
        segments.append("\xff\xe2", 2);
        appendNumber(segments, content.size() + 65535 - largestProfilePart);
        segments.append("ICC_PROFILE", 12);
        segments.append(static_cast<char>(part + 1)).append(static_cast<char>(parts));
        segments.append(content);
    }
    return segments;
}

QByteArray resolutionOf(const QImage& image)
{
    QByteArray resolution(1, dotsPerInch);
    for (const int dotsPerMeter : {image.dotsPerMeterX(), image.dotsPerMeterY()}) {
        const auto dots = std::lround(dotsPerMeter / inchesPerMeter);
        appendNumber(resolution, static_cast<int>(std::clamp<long>(dots, 1, 65535)));
    }
    return resolution;
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
    const BytesPtr bytes(tjAlloc(static_cast<int>(size)));
    if (!bytes) {
        return {};
    }
    unsigned char* memory = bytes.get();
    const int result =
        tjCompress2(compressor.get(), source.constBits(), source.width(), source.bytesPerLine(),
                    source.height(), *pixelFormatOf(source.format()), &memory, &size, TJSAMP_444,
                    quality, TJFLAG_ACCURATEDCT | TJFLAG_NOREALLOC);
    constexpr auto mostBytes = static_cast<unsigned long>(std::numeric_limits<int>::max() / 2);
    if (result != 0 || size < firstSegmentEnd || size > mostBytes) {
        return {};
    }
    const auto* const encoded = reinterpret_cast<const char*>(bytes.get());
    const QByteArray profile = profileSegments(source.colorSpace().iccProfile());
    QByteArray content;
    content.reserve(static_cast<int>(size) + profile.size());
    content.append(encoded, unitOffset);
    content.append(resolutionOf(source));
    content.append(encoded + content.size(), firstSegmentEnd - content.size());
    content.append(profile);
    content.append(encoded + firstSegmentEnd, static_cast<int>(size) - firstSegmentEnd);
    return content;
}
