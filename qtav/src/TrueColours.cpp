#include "qtav/src/TrueColours.h"

#include "qtav/src/Dither.h"
#include "qtav/src/RgbLines.h"
#include "qtav/src/SeveralProcessors.h"
#include "qtav/src/YuvToRgb.h"

#include <QRgba64>

#include <algorithm>
#include <future>
#include <thread>
#include <utility>
#include <vector>

namespace QtAV {

namespace {

FOR_SEVERAL_PROCESSORS
void storeBytes(const float* __restrict red, const float* __restrict green,
                const float* __restrict blue, const float* __restrict added,
                QRgb* __restrict pixels, size_t count)
{
    const auto toByte = [](float value, float fraction) {
        const float scaled = std::min(std::max(value, 0.0F), 1.0F) * 255.0F + fraction;
        return static_cast<uint32_t>(static_cast<int32_t>(scaled));
    };
    for (size_t i = 0; i < count; ++i) {
        pixels[i] = 0xff000000U | toByte(red[i], added[i]) << 16 | toByte(green[i], added[i]) << 8 |
                    toByte(blue[i], added[i]);
    }
}

quint16 toWord(float value)
{
    return static_cast<quint16>(std::clamp(value, 0.0F, 1.0F) * 65535.0F + 0.5F);
}

void setAlpha(const std::vector<float>& alphas, QRgb* pixels)
{
    for (size_t i = 0; i < alphas.size(); ++i) {
        pixels[i] = (pixels[i] & 0x00ffffffU) | static_cast<QRgb>(alphas[i] * 255.0F + 0.5F) << 24;
    }
}

bool isUsualMatrix(AVColorSpace space)
{
    return space != AVCOL_SPC_YCGCO && space != AVCOL_SPC_BT2020_CL;
}

/// Dithers more than eight bits, rounds others.
Dither<float> ditherFor(const AVFrame& frame)
{
    const int depth = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth;
    return Dither<float>(frame.width, [depth](int order) {
        return depth > 8 ? (static_cast<float>(order) + 0.5F) / Dither<float>::orders : 0.5F;
    });
}

/// Maps the lines of a picture one after another.
class MappedLines
{
public:
    MappedLines(const AVFrame& frame, const ColourMap* map)
        : m_lines(frame)
        , m_map(map)
        , m_line(frame.width)
    {}

    const RgbLine& read(int line)
    {
        m_lines.read(line, m_line);
        if (m_map) {
            m_map->apply(m_line);
        }
        return m_line;
    }

    bool hasAlpha() const { return m_lines.hasAlpha(); }
    const std::vector<float>& alpha() const { return m_lines.alpha(); }

private:
    RgbLines m_lines;
    const ColourMap* m_map;
    RgbLine m_line;
};

/// A range of lines of the picture and of the image; the end is exclusive.
struct Band
{
    int first;
    int end;
};

/// The memory of an image that several threads write to.
class Target
{
public:
    explicit Target(QImage& image)
        : m_format(image.format())
        , m_bits(image.bits())
        , m_bytesPerLine(image.bytesPerLine())
    {}

    QImage::Format format() const { return m_format; }
    uchar* line(int y) const { return m_bits + y * ptrdiff_t(m_bytesPerLine); }

private:
    QImage::Format m_format;
    uchar* m_bits;
    int m_bytesPerLine;
};

void fillBytes(const AVFrame& frame, MappedLines& lines, const Target& target, Band band)
{
    const Dither<float> dither = ditherFor(frame);
    const bool hasAlpha = target.format() == QImage::Format_ARGB32;
    std::vector<QRgb> own(hasAlpha ? 0 : static_cast<size_t>(frame.width));
    for (int y = band.first; y < band.end; ++y) {
        const RgbLine& line = lines.read(y);
        QRgb* const pixels = hasAlpha ? reinterpret_cast<QRgb*>(target.line(y)) : own.data();
        storeBytes(line.red.data(), line.green.data(), line.blue.data(), dither.line(y), pixels,
                   line.red.size());
        if (!hasAlpha) {
            dropAlpha(pixels, target.line(y), frame.width);
        } else if (lines.hasAlpha()) {
            setAlpha(lines.alpha(), pixels);
        }
    }
}

void fillWords(MappedLines& lines, const Target& target, Band band)
{
    const bool hasAlpha = target.format() == QImage::Format_RGBA64 && lines.hasAlpha();
    for (int y = band.first; y < band.end; ++y) {
        const RgbLine& line = lines.read(y);
        auto* const pixels = reinterpret_cast<QRgba64*>(target.line(y));
        for (size_t x = 0; x < line.red.size(); ++x) {
            pixels[x] = qRgba64(toWord(line.red[x]), toWord(line.green[x]), toWord(line.blue[x]),
                                hasAlpha ? toWord(lines.alpha()[x]) : quint16(65535));
        }
    }
}

void fill(const AVFrame& frame, const ColourMap* map, const Target& target, Band band)
{
    MappedLines lines(frame, map);
    if (target.format() == QImage::Format_RGBX64 || target.format() == QImage::Format_RGBA64) {
        fillWords(lines, target, band);
    } else {
        fillBytes(frame, lines, target, band);
    }
}

/// One band per core, unless starting a thread for it takes longer than it saves.
std::vector<Band> bandsOf(const AVFrame& frame)
{
    constexpr qint64 fewestPixels = 250'000;
    const qint64 cores = std::max(1U, std::thread::hardware_concurrency());
    const qint64 count =
        std::clamp(qint64(frame.width) * frame.height / fewestPixels, qint64(1), cores);
    std::vector<Band> bands;
    for (qint64 i = 0; i < count; ++i) {
        bands.push_back({static_cast<int>(frame.height * i / count),
                         static_cast<int>(frame.height * (i + 1) / count)});
    }
    return bands;
}

} // namespace

TrueColours::TrueColours(std::shared_ptr<const ColourMap> map)
    : m_map(std::move(map))
{}

bool TrueColours::isNeededFor(const AVFrame& frame, const Colours& colours)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    if (!RgbLines::reads(format)) {
        return false;
    }
    const bool isYuv = YuvToRgb::reads(format);
    const bool isByte = av_pix_fmt_desc_get(format)->comp[0].depth == 8;
    return !colours.isStandard() || (!isYuv && !isByte) ||
           (isYuv && !isUsualMatrix(YuvToRgb::matrixOf(frame)));
}

void TrueColours::convert(const AVFrame& frame, QImage& image) const
{
    const Target target(image);
    const std::vector<Band> bands = bandsOf(frame);
    const auto fillBand = [&](Band band) { fill(frame, m_map.get(), target, band); };
    std::vector<std::future<void>> others;
    for (size_t i = 1; i < bands.size(); ++i) {
        // If the system provides no thread, the band is filled when its result is requested.
        const auto policy = std::launch::async | std::launch::deferred;
        others.push_back(std::async(policy, fillBand, bands[i]));
    }
    fillBand(bands.front());
    for (std::future<void>& other : others) {
        other.get();
    }
}

} // namespace QtAV
