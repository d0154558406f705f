#include "qtav/src/TrueColours.h"

#include "qtav/src/Dither.h"
#include "qtav/src/RgbLines.h"
#include "qtav/src/SeveralProcessors.h"
#include "qtav/src/YuvToRgb.h"

#include <QRgba64>

#include <algorithm>
#include <utility>

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
    for (size_t i = 0; i < count; ++i)
        pixels[i] = 0xff000000U | toByte(red[i], added[i]) << 16 | toByte(green[i], added[i]) << 8 |
                    toByte(blue[i], added[i]);
}

quint16 toWord(float value)
{
    return static_cast<quint16>(std::clamp(value, 0.0F, 1.0F) * 65535.0F + 0.5F);
}

void setAlpha(const std::vector<float>& alphas, QRgb* pixels)
{
    for (size_t i = 0; i < alphas.size(); ++i)
        pixels[i] = (pixels[i] & 0x00ffffffU) | static_cast<QRgb>(alphas[i] * 255.0F + 0.5F) << 24;
}

bool isUsualMatrix(AVColorSpace space)
{
    return space != AVCOL_SPC_YCGCO && space != AVCOL_SPC_BT2020_CL;
}

/// More than eight bits are dithered, others rounded.
Dither<float> ditherFor(const AVFrame& frame)
{
    const int depth = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth;
    return Dither<float>(frame.width, [depth](int order) {
        return depth > 8 ? (static_cast<float>(order) + 0.5F) / Dither<float>::Orders : 0.5F;
    });
}

/// A line of the picture after the other, mapped.
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
        if (m_map)
            m_map->apply(m_line);
        return m_line;
    }

    bool hasAlpha() const { return m_lines.hasAlpha(); }
    const std::vector<float>& alpha() const { return m_lines.alpha(); }

private:
    RgbLines m_lines;
    const ColourMap* m_map;
    RgbLine m_line;
};

void fillBytes(const AVFrame& frame, MappedLines& lines, QImage& image)
{
    const Dither<float> dither = ditherFor(frame);
    const bool hasAlpha = image.format() == QImage::Format_ARGB32;
    std::vector<QRgb> own(hasAlpha ? 0 : static_cast<size_t>(frame.width));
    for (int y = 0; y < frame.height; ++y) {
        const RgbLine& line = lines.read(y);
        QRgb* const pixels = hasAlpha ? reinterpret_cast<QRgb*>(image.scanLine(y)) : own.data();
        storeBytes(line.red.data(), line.green.data(), line.blue.data(), dither.line(y), pixels,
                   line.red.size());
        if (!hasAlpha)
            dropAlpha(pixels, image.scanLine(y), frame.width);
        else if (lines.hasAlpha())
            setAlpha(lines.alpha(), pixels);
    }
}

void fillWords(const AVFrame& frame, MappedLines& lines, QImage& image)
{
    const bool hasAlpha = image.format() == QImage::Format_RGBA64 && lines.hasAlpha();
    for (int y = 0; y < frame.height; ++y) {
        const RgbLine& line = lines.read(y);
        auto* const pixels = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (size_t x = 0; x < line.red.size(); ++x)
            pixels[x] = qRgba64(toWord(line.red[x]), toWord(line.green[x]), toWord(line.blue[x]),
                                hasAlpha ? toWord(lines.alpha()[x]) : quint16(65535));
    }
}

} // namespace

TrueColours::TrueColours(std::shared_ptr<const ColourMap> map)
    : m_map(std::move(map))
{}

bool TrueColours::isNeededFor(const AVFrame& frame, const Colours& colours)
{
    const auto format = static_cast<AVPixelFormat>(frame.format);
    if (!RgbLines::reads(format))
        return false;
    const bool isYuv = YuvToRgb::reads(format);
    const bool isByte = av_pix_fmt_desc_get(format)->comp[0].depth == 8;
    return !colours.isStandard() || (!isYuv && !isByte) ||
           (isYuv && !isUsualMatrix(YuvToRgb::matrixOf(frame)));
}

void TrueColours::convert(const AVFrame& frame, QImage& image) const
{
    MappedLines lines(frame, m_map.get());
    const bool isDeep =
        image.format() == QImage::Format_RGBX64 || image.format() == QImage::Format_RGBA64;
    if (isDeep)
        fillWords(frame, lines, image);
    else
        fillBytes(frame, lines, image);
}

} // namespace QtAV
