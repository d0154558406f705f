#include "qtav/src/YuvToRgb.h"

#include "qtav/src/Dither.h"
#include "qtav/src/SeveralProcessors.h"
#include "qtav/src/YuvLines.h"
#include "qtav/src/YuvToRgbLines.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace QtAV {

namespace {

// Results have 5 fractional bits.
constexpr int factorBits = 13;
constexpr int fractionBits = 5;

/// A picture with more columns or lines that does not state its matrix is high definition.
constexpr int standardColumns = 1279;
constexpr int standardLines = 576;

// Compilers turn this pattern into one rounding multiplication of 16-bit lanes.
inline int16_t multiplied(int16_t a, int16_t b)
{
    return static_cast<int16_t>((((int32_t(a) * b) >> 14) + 1) >> 1);
}

inline int16_t toByte(int16_t value, int16_t added)
{
    const auto whole = static_cast<int16_t>((value + added) >> fractionBits);
    return std::min<int16_t>(std::max<int16_t>(whole, 0), 255);
}

constexpr int16_t half = 1 << (fractionBits - 1);

FOR_SEVERAL_PROCESSORS
void combine(const int16_t* __restrict lumas, const int16_t* __restrict cbs,
             const int16_t* __restrict crs, const int16_t* __restrict added,
             uint32_t* __restrict pixels, int count, YuvToRgb::Matrix m)
{
    for (int i = 0; i < count; ++i) {
        const int16_t luma = multiplied(static_cast<int16_t>(lumas[i] - m.black), m.luma);
        const int16_t red =
            toByte(static_cast<int16_t>(luma + multiplied(crs[i], m.crToRed)), added[i]);
        const int16_t green = toByte(static_cast<int16_t>(luma - multiplied(cbs[i], m.cbToGreen) -
                                                          multiplied(crs[i], m.crToGreen)),
                                     added[i]);
        const int16_t blue =
            toByte(static_cast<int16_t>(luma + multiplied(cbs[i], m.cbToBlue)), added[i]);
        const auto low = static_cast<uint16_t>(blue | (green << 8));
        const auto high = static_cast<uint16_t>(red | 0xff00);
        pixels[i] = low | uint32_t(high) << 16;
    }
}

void setAlpha(const uint8_t* alphas, uint32_t* pixels, int count)
{
    for (int i = 0; i < count; ++i) {
        pixels[i] = (pixels[i] & 0x00ffffffU) | uint32_t(alphas[i]) << 24;
    }
}

void setAlphaDeep(const uint16_t* alphas, uint32_t* pixels, int count, int depth)
{
    const uint32_t most = (1U << depth) - 1;
    for (int i = 0; i < count; ++i) {
        const uint32_t alpha = std::min(255U, (uint32_t(alphas[i]) * 255U + most / 2) / most);
        pixels[i] = (pixels[i] & 0x00ffffffU) | alpha << 24;
    }
}

int16_t factor(double value)
{
    return static_cast<int16_t>(std::lround(value * (1 << factorBits)));
}

YuvToRgb::Matrix makeMatrix(AVColorSpace space, bool fullRange, int depth)
{
    const auto [red, blue] = YuvToRgb::sharesOf(space);
    const double green = 1.0 - red - blue;
    // The widest sample, scaled to 15 bits, stands for 255 in full range.
    const double fullScale =
        255.0 * (1 << (YuvLines::sampleBits - 8)) /
        (double((1 << depth) - 1) * std::pow(2.0, YuvLines::sampleBits - depth));
    const double luma = fullRange ? fullScale : 255.0 / 219.0;
    const double chroma = fullRange ? fullScale : 255.0 / 224.0;
    return {factor(luma),
            factor(chroma * 2 * (1 - red)),
            factor(chroma * 2 * (1 - blue) * blue / green),
            factor(chroma * 2 * (1 - red) * red / green),
            factor(chroma * 2 * (1 - blue)),
            static_cast<int16_t>(fullRange ? 0 : 16 << (YuvLines::sampleBits - 8))};
}

/// Reads one kind of picture line by line and converts each line.
class LineConverter
{
public:
    LineConverter(const AVFrame& frame, const YuvToRgb::Matrix& matrix)
        : m_lines(frame)
        , m_matrix(matrix)
        , m_plain(static_cast<size_t>(frame.width), half)
        , m_dither(m_lines.depth() > 8 ? frame.width : 0, ditherAt)
    {}

    void convert(int line, uint32_t* pixels)
    {
        m_lines.moveTo(line);
        int done = 0;
        if (m_lines.isPlainHalved()) {
            done = convertHalvedLine(m_lines.storedLuma(), m_lines.halvedCb(), m_lines.halvedCr(),
                                     pixels, m_lines.width(), m_matrix);
        }
        if (done < m_lines.width()) {
            convertRest(line, pixels, done);
        }
        if (m_lines.hasAlpha()) {
            addAlpha(pixels);
        }
    }

private:
    void convertRest(int line, uint32_t* pixels, int done)
    {
        m_lines.widen(done);
        const int16_t* const added = m_lines.depth() > 8 ? m_dither.line(line) : m_plain.data();
        combine(m_lines.luma() + done, m_lines.cb() + done, m_lines.cr() + done, added + done,
                pixels + done, m_lines.width() - done, m_matrix);
    }

    static int16_t ditherAt(int order)
    {
        return static_cast<int16_t>((order << fractionBits) / Dither<int16_t>::orders);
    }

    void addAlpha(uint32_t* pixels) const
    {
        const uint8_t* const alpha = m_lines.storedAlpha();
        if (m_lines.depth() == 8) {
            setAlpha(alpha, pixels, m_lines.width());
        } else {
            setAlphaDeep(reinterpret_cast<const uint16_t*>(alpha), pixels, m_lines.width(),
                         m_lines.depth());
        }
    }

    YuvLines m_lines;
    const YuvToRgb::Matrix m_matrix;
    const std::vector<int16_t> m_plain;
    const Dither<int16_t> m_dither;
};

} // namespace

YuvToRgb::YuvToRgb(const AVFrame& frame)
    : m_matrix(
          makeMatrix(matrixOf(frame), isFullRange(frame),
                     av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth))
{}

YuvToRgb::Shares YuvToRgb::sharesOf(AVColorSpace space)
{
    switch (space) {
    case AVCOL_SPC_BT709:
        return {0.2126, 0.0722};
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return {0.2627, 0.0593};
    case AVCOL_SPC_SMPTE240M:
        return {0.212, 0.087};
    case AVCOL_SPC_FCC:
        return {0.30, 0.11};
    default:
        return {0.299, 0.114};
    }
}

bool YuvToRgb::isFullRange(const AVFrame& frame)
{
    return frame.color_range == AVCOL_RANGE_JPEG || isJpegFormat(frame.format);
}

bool YuvToRgb::reads(AVPixelFormat format)
{
    if (format == AV_PIX_FMT_NV12 || format == AV_PIX_FMT_NV21) {
        return true;
    }
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(format);
    constexpr uint64_t excluded = AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BE |
                                  AV_PIX_FMT_FLAG_BITSTREAM | AV_PIX_FMT_FLAG_HWACCEL |
                                  AV_PIX_FMT_FLAG_BAYER | AV_PIX_FMT_FLAG_FLOAT;
    const bool isGrey = d.nb_components == 1;
    const bool isPlanar = d.nb_components >= 3 && (d.flags & AV_PIX_FMT_FLAG_PLANAR);
    const AVComponentDescriptor& first = d.comp[0];
    const int bytes = first.depth > 8 ? 2 : 1;
    const bool isPlain = first.depth >= 8 && first.depth <= 16 && first.shift == 0;
    const bool isSeparate = !isPlanar || (d.comp[1].step == bytes && d.comp[1].plane == 1);
    return !(d.flags & excluded) && (isGrey || isPlanar) && isPlain && isSeparate &&
           first.step == bytes && d.log2_chroma_w <= 1 && d.log2_chroma_h <= 1;
}

AVChromaLocation YuvToRgb::chromaLocationOf(const AVFrame& frame)
{
    if (frame.chroma_location != AVCHROMA_LOC_UNSPECIFIED) {
        return frame.chroma_location;
    }
    // Full-range pictures with halved lines of chroma follow JPEG, all others MPEG.
    const AVPixFmtDescriptor* const format =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const bool isHalvedTwice = format && format->log2_chroma_w == 1 && format->log2_chroma_h == 1;
    return isHalvedTwice && isFullRange(frame) ? AVCHROMA_LOC_CENTER : AVCHROMA_LOC_LEFT;
}

AVColorSpace YuvToRgb::matrixOf(const AVFrame& frame)
{
    switch (frame.colorspace) {
    case AVCOL_SPC_BT709:
    case AVCOL_SPC_FCC:
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
    case AVCOL_SPC_SMPTE240M:
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
    case AVCOL_SPC_YCGCO:
        return frame.colorspace;
    default:
        return frame.width > standardColumns || frame.height > standardLines ? AVCOL_SPC_BT709
                                                                             : AVCOL_SPC_SMPTE170M;
    }
}

bool YuvToRgb::isJpegFormat(int format)
{
    switch (format) {
    case AV_PIX_FMT_YUVJ411P:
    case AV_PIX_FMT_YUVJ420P:
    case AV_PIX_FMT_YUVJ422P:
    case AV_PIX_FMT_YUVJ440P:
    case AV_PIX_FMT_YUVJ444P:
        return true;
    default:
        return false;
    }
}

FOR_SEVERAL_PROCESSORS
void dropAlpha(const QRgb* __restrict source, uchar* __restrict target, ptrdiff_t count)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        target[3 * i] = static_cast<uchar>(source[i] >> 16);
        target[3 * i + 1] = static_cast<uchar>(source[i] >> 8);
        target[3 * i + 2] = static_cast<uchar>(source[i]);
    }
}

void YuvToRgb::convert(const AVFrame& frame, QImage& image) const
{
    LineConverter lines(frame, m_matrix);
    if (image.format() == QImage::Format_ARGB32) {
        for (int line = 0; line < frame.height; ++line) {
            lines.convert(line, reinterpret_cast<QRgb*>(image.scanLine(line)));
        }
        return;
    }
    std::vector<QRgb> pixels(static_cast<size_t>(frame.width));
    for (int line = 0; line < frame.height; ++line) {
        lines.convert(line, pixels.data());
        dropAlpha(pixels.data(), image.scanLine(line), frame.width);
    }
}

} // namespace QtAV
