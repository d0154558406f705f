#include "qtav/src/YuvToRgb.h"

#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/YuvToRgbLines.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

// The loops below are compiled for several processors, and the best is taken when the program
// starts. That choice is made too early for the sanitizers.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) &&                             \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define FOR_SEVERAL_PROCESSORS __attribute__((target_clones("avx2", "ssse3", "default")))
#else
#define FOR_SEVERAL_PROCESSORS
#endif

namespace QtAV {

namespace {

// A sample has 15 bits, chroma less its middle; a result has 5 bits behind the binary point.
constexpr int SampleBits = 15;
constexpr int ChromaMiddle = 1 << (SampleBits - 1);
constexpr int FactorBits = 13;
constexpr int FractionBits = 5;

/// From this height up a picture that does not tell its matrix is in high definition.
constexpr int HighDefinitionLines = 720;

// The pattern that compilers turn into one rounding multiplication of 16-bit lanes.
inline int16_t multiplied(int16_t a, int16_t b)
{
    return static_cast<int16_t>((((int32_t(a) * b) >> 14) + 1) >> 1);
}

inline int16_t toByte(int16_t value)
{
    constexpr int16_t Half = 1 << (FractionBits - 1);
    const auto rounded = static_cast<int16_t>((value + Half) >> FractionBits);
    return std::min<int16_t>(std::max<int16_t>(rounded, 0), 255);
}

FOR_SEVERAL_PROCESSORS
void widen(const uint8_t* __restrict source, int16_t* __restrict target, int count)
{
    for (int i = 0; i < count; ++i)
        target[i] = static_cast<int16_t>(source[i] << (SampleBits - 8));
}

FOR_SEVERAL_PROCESSORS
void widenDeep(const uint16_t* __restrict source, int16_t* __restrict target, int count, int depth)
{
    // One bit more than wanted, so that 16 bits shift the same way as fewer do.
    const int shift = SampleBits + 1 - depth;
    for (int i = 0; i < count; ++i)
        target[i] = static_cast<int16_t>((uint32_t(source[i]) << shift) >> 1);
}

/// Two lines of chroma, mixed in quarters, the middle taken off.
FOR_SEVERAL_PROCESSORS
void mix(const uint8_t* __restrict near, const uint8_t* __restrict far, int nearQuarters,
         int16_t* __restrict target, int count)
{
    const int farQuarters = 4 - nearQuarters;
    for (int i = 0; i < count; ++i)
        target[i] =
            static_cast<int16_t>((near[i] * nearQuarters + far[i] * farQuarters - 512) * 32);
}

/// The same for every second byte.
FOR_SEVERAL_PROCESSORS
void mixInterleaved(const uint8_t* __restrict near, const uint8_t* __restrict far, int nearQuarters,
                    int16_t* __restrict target, int count)
{
    const int farQuarters = 4 - nearQuarters;
    for (ptrdiff_t i = 0; i < count; ++i) {
        const int sum = near[2 * i] * nearQuarters + far[2 * i] * farQuarters;
        target[i] = static_cast<int16_t>((sum - 512) * 32);
    }
}

FOR_SEVERAL_PROCESSORS
void mixDeep(const uint16_t* __restrict near, const uint16_t* __restrict far, int nearQuarters,
             int16_t* __restrict target, int count, int depth)
{
    const int farQuarters = 4 - nearQuarters;
    const int shift = SampleBits + 1 - depth;
    for (int i = 0; i < count; ++i) {
        const uint32_t sum = near[i] * uint32_t(nearQuarters) + far[i] * uint32_t(farQuarters);
        target[i] = static_cast<int16_t>(int32_t((sum << shift) >> 3) - ChromaMiddle);
    }
}

/// Twice as many samples: every second one on its own place, the others half-way to the next.
/// source[count] repeats the last.
FOR_SEVERAL_PROCESSORS
void doubleFromLeft(const int16_t* __restrict source, int16_t* __restrict target, int count)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        target[2 * i] = source[i];
        target[2 * i + 1] = static_cast<int16_t>((source[i] + source[i + 1] + 1) >> 1);
    }
}

/// Twice as many samples, a quarter to the left and to the right of the old ones.
/// source[-1] and source[count] repeat the outermost.
FOR_SEVERAL_PROCESSORS
void doubleFromCentre(const int16_t* __restrict source, int16_t* __restrict target, int count)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        target[2 * i] = static_cast<int16_t>((source[i] * 3 + source[i - 1] + 2) >> 2);
        target[2 * i + 1] = static_cast<int16_t>((source[i] * 3 + source[i + 1] + 2) >> 2);
    }
}

FOR_SEVERAL_PROCESSORS
void combine(const int16_t* __restrict lumas, const int16_t* __restrict cbs,
             const int16_t* __restrict crs, uint32_t* __restrict pixels, int count,
             YuvToRgb::Matrix m)
{
    for (int i = 0; i < count; ++i) {
        const int16_t luma = multiplied(static_cast<int16_t>(lumas[i] - m.black), m.luma);
        const int16_t red = toByte(static_cast<int16_t>(luma + multiplied(crs[i], m.crToRed)));
        const int16_t green = toByte(static_cast<int16_t>(luma - multiplied(cbs[i], m.cbToGreen) -
                                                          multiplied(crs[i], m.crToGreen)));
        const int16_t blue = toByte(static_cast<int16_t>(luma + multiplied(cbs[i], m.cbToBlue)));
        const auto low = static_cast<uint16_t>(blue | (green << 8));
        const auto high = static_cast<uint16_t>(red | 0xff00);
        pixels[i] = low | uint32_t(high) << 16;
    }
}

void setAlpha(const uint8_t* alphas, uint32_t* pixels, int count)
{
    for (int i = 0; i < count; ++i)
        pixels[i] = (pixels[i] & 0x00ffffffU) | uint32_t(alphas[i]) << 24;
}

void setAlphaDeep(const uint16_t* alphas, uint32_t* pixels, int count, int depth)
{
    const uint32_t most = (1U << depth) - 1;
    for (int i = 0; i < count; ++i) {
        const uint32_t alpha = std::min(255U, (uint32_t(alphas[i]) * 255U + most / 2) / most);
        pixels[i] = (pixels[i] & 0x00ffffffU) | alpha << 24;
    }
}

bool isFullRange(const AVFrame& frame)
{
    return frame.color_range == AVCOL_RANGE_JPEG || YuvToRgb::isJpegFormat(frame.format);
}

/// The shares of red and blue in luma.
struct Shares
{
    double red;
    double blue;
};

Shares sharesOf(AVColorSpace space)
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

int16_t factor(double value)
{
    return static_cast<int16_t>(std::lround(value * (1 << FactorBits)));
}

YuvToRgb::Matrix makeMatrix(AVColorSpace space, bool fullRange, int depth)
{
    const auto [red, blue] = sharesOf(space);
    const double green = 1.0 - red - blue;
    // The widest sample, brought to 15 bits, stands for 255 in full range.
    const double fullScale = 255.0 * (1 << (SampleBits - 8)) /
                             (double((1 << depth) - 1) * std::pow(2.0, SampleBits - depth));
    const double luma = fullRange ? fullScale : 255.0 / 219.0;
    const double chroma = fullRange ? fullScale : 255.0 / 224.0;
    return {factor(luma),
            factor(chroma * 2 * (1 - red)),
            factor(chroma * 2 * (1 - blue) * blue / green),
            factor(chroma * 2 * (1 - red) * red / green),
            factor(chroma * 2 * (1 - blue)),
            static_cast<int16_t>(fullRange ? 0 : 16 << (SampleBits - 8))};
}

/// Where chroma was sampled between the lines and columns of luma.
struct Siting
{
    enum class Vertical { Top, Centre, Bottom };
    bool isLeft = true;
    Vertical vertical = Vertical::Centre;
};

Siting sitingOf(const AVFrame& frame)
{
    switch (YuvToRgb::chromaLocationOf(frame)) {
    case AVCHROMA_LOC_CENTER:
        return {false, Siting::Vertical::Centre};
    case AVCHROMA_LOC_TOPLEFT:
        return {true, Siting::Vertical::Top};
    case AVCHROMA_LOC_TOP:
        return {false, Siting::Vertical::Top};
    case AVCHROMA_LOC_BOTTOMLEFT:
        return {true, Siting::Vertical::Bottom};
    case AVCHROMA_LOC_BOTTOM:
        return {false, Siting::Vertical::Bottom};
    default:
        return {true, Siting::Vertical::Centre};
    }
}

/// The two lines of chroma that a line of luma lies between.
struct ChromaLines
{
    int near;
    int far;
    int nearQuarters;
};

ChromaLines chromaLinesFor(int line, int lines, Siting::Vertical vertical)
{
    const int own = line / 2;
    const bool isUpper = line % 2 == 0;
    const int above = std::max(own - 1, 0);
    const int below = std::min(own + 1, lines - 1);
    switch (vertical) {
    case Siting::Vertical::Top:
        return isUpper ? ChromaLines{own, own, 4} : ChromaLines{own, below, 2};
    case Siting::Vertical::Bottom:
        return isUpper ? ChromaLines{own, above, 2} : ChromaLines{own, own, 4};
    case Siting::Vertical::Centre:
        break;
    }
    return {own, isUpper ? above : below, 3};
}

/// The lines of an interlaced picture belong to two moments: chroma stays with its own field.
ChromaLines fieldChromaLineFor(int line, int lines)
{
    const int own = std::min(2 * (line / 4) + line % 2, lines - 1);
    return {own, own, 4};
}

/// Reads one kind of picture line by line and converts each.
class LineConverter
{
public:
    LineConverter(const AVFrame& frame, const YuvToRgb::Matrix& matrix)
        : m_frame(frame)
        , m_format(*av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format)))
        , m_matrix(matrix)
        , m_siting(sitingOf(frame))
        , m_depth(m_format.comp[0].depth)
        , m_hasChroma(m_format.nb_components >= 3)
        , m_halvesWidth(m_format.log2_chroma_w == 1)
        , m_halvesHeight(m_format.log2_chroma_h == 1)
        , m_chromaWidth(AV_CEIL_RSHIFT(frame.width, m_format.log2_chroma_w))
        , m_chromaHeight(AV_CEIL_RSHIFT(frame.height, m_format.log2_chroma_h))
        , m_luma(static_cast<size_t>(frame.width))
        , m_narrowCb(static_cast<size_t>(m_chromaWidth) + 2)
        , m_narrowCr(static_cast<size_t>(m_chromaWidth) + 2)
        , m_cb(static_cast<size_t>(m_chromaWidth) * 2)
        , m_cr(static_cast<size_t>(m_chromaWidth) * 2)
    {}

    void convert(int line, uint32_t* pixels)
    {
        int done = 0;
        if (m_hasChroma && m_halvesWidth) {
            mixChroma(1, line, m_narrowCb.data() + 1);
            mixChroma(2, line, m_narrowCr.data() + 1);
            repeatEnds(m_narrowCb);
            repeatEnds(m_narrowCr);
            if (m_depth == 8 && m_siting.isLeft)
                done = convertHalvedLine(at(0, line), m_narrowCb.data() + 1, m_narrowCr.data() + 1,
                                         pixels, m_frame.width, m_matrix);
            widenChroma(m_narrowCb, m_cb, done);
            widenChroma(m_narrowCr, m_cr, done);
        } else if (m_hasChroma) {
            mixChroma(1, line, m_cb.data());
            mixChroma(2, line, m_cr.data());
        }
        convertFrom(done, line, pixels);
        if (m_format.nb_components == 4)
            addAlpha(line, pixels);
    }

private:
    const uint8_t* at(int component, int line) const
    {
        const AVComponentDescriptor& c = m_format.comp[component];
        return m_frame.data[c.plane] + ptrdiff_t(line) * m_frame.linesize[c.plane] + c.offset;
    }

    const uint16_t* deepAt(int component, int line) const
    {
        return reinterpret_cast<const uint16_t*>(at(component, line));
    }

    ChromaLines chromaLines(int line) const
    {
        if (!m_halvesHeight)
            return {line, line, 4};
        return isInterlaced(m_frame) ? fieldChromaLineFor(line, m_chromaHeight)
                                     : chromaLinesFor(line, m_chromaHeight, m_siting.vertical);
    }

    /// The chroma at a line of luma, as many samples as are stored.
    void mixChroma(int component, int line, int16_t* samples) const
    {
        const ChromaLines lines = chromaLines(line);
        if (m_depth > 8)
            mixDeep(deepAt(component, lines.near), deepAt(component, lines.far), lines.nearQuarters,
                    samples, m_chromaWidth, m_depth);
        else if (m_format.comp[component].step == 2)
            mixInterleaved(at(component, lines.near), at(component, lines.far), lines.nearQuarters,
                           samples, m_chromaWidth);
        else
            mix(at(component, lines.near), at(component, lines.far), lines.nearQuarters, samples,
                m_chromaWidth);
    }

    static void repeatEnds(std::vector<int16_t>& narrow)
    {
        narrow.front() = narrow[1];
        narrow.back() = narrow[narrow.size() - 2];
    }

    /// From the pixel `from` on, which is even.
    void widenChroma(const std::vector<int16_t>& narrow, std::vector<int16_t>& wide, int from) const
    {
        const int16_t* const source = narrow.data() + 1 + from / 2;
        int16_t* const target = wide.data() + from;
        const int count = m_chromaWidth - from / 2;
        if (m_siting.isLeft)
            doubleFromLeft(source, target, count);
        else
            doubleFromCentre(source, target, count);
    }

    void convertFrom(int from, int line, uint32_t* pixels)
    {
        const int count = m_frame.width - from;
        int16_t* const luma = m_luma.data() + from;
        if (m_depth == 8)
            widen(at(0, line) + from, luma, count);
        else
            widenDeep(deepAt(0, line) + from, luma, count, m_depth);
        combine(luma, m_cb.data() + from, m_cr.data() + from, pixels + from, count, m_matrix);
    }

    void addAlpha(int line, uint32_t* pixels) const
    {
        if (m_depth == 8)
            setAlpha(at(3, line), pixels, m_frame.width);
        else
            setAlphaDeep(deepAt(3, line), pixels, m_frame.width, m_depth);
    }

    const AVFrame& m_frame;
    const AVPixFmtDescriptor& m_format;
    const YuvToRgb::Matrix m_matrix;
    const Siting m_siting;
    const int m_depth;
    const bool m_hasChroma;
    const bool m_halvesWidth;
    const bool m_halvesHeight;
    const int m_chromaWidth;
    const int m_chromaHeight;
    std::vector<int16_t> m_luma;
    std::vector<int16_t> m_narrowCb; ///< a line of chroma with a neighbour at either end
    std::vector<int16_t> m_narrowCr;
    std::vector<int16_t> m_cb; ///< zero, the middle, in a grey picture
    std::vector<int16_t> m_cr;
};

} // namespace

YuvToRgb::YuvToRgb(const AVFrame& frame)
    : m_matrix(
          makeMatrix(matrixOf(frame), isFullRange(frame),
                     av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth))
{}

bool YuvToRgb::reads(AVPixelFormat format)
{
    if (format == AV_PIX_FMT_NV12 || format == AV_PIX_FMT_NV21)
        return true;
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(format);
    constexpr uint64_t Excluded = AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BE |
                                  AV_PIX_FMT_FLAG_BITSTREAM | AV_PIX_FMT_FLAG_HWACCEL |
                                  AV_PIX_FMT_FLAG_BAYER | AV_PIX_FMT_FLAG_FLOAT;
    const bool isGrey = d.nb_components == 1;
    const bool isPlanar = d.nb_components >= 3 && (d.flags & AV_PIX_FMT_FLAG_PLANAR);
    const AVComponentDescriptor& first = d.comp[0];
    const int bytes = first.depth > 8 ? 2 : 1;
    const bool isPlain = first.depth >= 8 && first.depth <= 16 && first.shift == 0;
    const bool isSeparate = !isPlanar || (d.comp[1].step == bytes && d.comp[1].plane == 1);
    return !(d.flags & Excluded) && (isGrey || isPlanar) && isPlain && isSeparate &&
           first.step == bytes && d.log2_chroma_w <= 1 && d.log2_chroma_h <= 1;
}

AVChromaLocation YuvToRgb::chromaLocationOf(const AVFrame& frame)
{
    if (frame.chroma_location != AVCHROMA_LOC_UNSPECIFIED)
        return frame.chroma_location;
    // JPEG's way, which full-range pictures follow, and MPEG's.
    return isFullRange(frame) ? AVCHROMA_LOC_CENTER : AVCHROMA_LOC_LEFT;
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
        return frame.colorspace;
    default:
        return frame.height >= HighDefinitionLines ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
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
        for (int line = 0; line < frame.height; ++line)
            lines.convert(line, reinterpret_cast<QRgb*>(image.scanLine(line)));
        return;
    }
    std::vector<QRgb> pixels(static_cast<size_t>(frame.width));
    for (int line = 0; line < frame.height; ++line) {
        lines.convert(line, pixels.data());
        dropAlpha(pixels.data(), image.scanLine(line), frame.width);
    }
}

} // namespace QtAV
