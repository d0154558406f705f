#include "qtav/src/RgbLines.h"

#include "qtav/src/SeveralProcessors.h"
#include "qtav/src/YuvToRgb.h"

#include <algorithm>
#include <cmath>

namespace QtAV {

namespace {

FOR_SEVERAL_PROCESSORS
void combine(const int16_t* __restrict lumas, const int16_t* __restrict cbs,
             const int16_t* __restrict crs, float black, std::array<float, 9> m,
             float* __restrict red, float* __restrict green, float* __restrict blue, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        const float luma = static_cast<float>(lumas[i]) - black;
        const auto cb = static_cast<float>(cbs[i]);
        const auto cr = static_cast<float>(crs[i]);
        red[i] = m[0] * luma + m[1] * cb + m[2] * cr;
        green[i] = m[3] * luma + m[4] * cb + m[5] * cr;
        blue[i] = m[6] * luma + m[7] * cb + m[8] * cr;
    }
}

FOR_SEVERAL_PROCESSORS
void scaleBytes(const uint8_t* __restrict source, float* __restrict target, size_t count,
                float scale)
{
    for (size_t i = 0; i < count; ++i) {
        target[i] = static_cast<float>(source[i]) * scale;
    }
}

FOR_SEVERAL_PROCESSORS
void scaleWords(const uint16_t* __restrict source, float* __restrict target, size_t count,
                float scale)
{
    for (size_t i = 0; i < count; ++i) {
        target[i] = static_cast<float>(source[i]) * scale;
    }
}

bool isYuv(AVPixelFormat format)
{
    return YuvToRgb::reads(format);
}

/// The matrix rows that give R'G'B' from luma and chroma, both in their own scale.
std::array<double, 9> rowsFor(AVColorSpace space)
{
    if (space == AVCOL_SPC_YCGCO) {
        return {1.0, -1.0, 1.0, 1.0, 1.0, 0.0, 1.0, -1.0, -1.0};
    }
    const YuvToRgb::Shares shares = YuvToRgb::sharesOf(space);
    const double green = 1.0 - shares.red - shares.blue;
    return {1.0,
            0.0,
            2.0 * (1.0 - shares.red),
            1.0,
            -2.0 * (1.0 - shares.blue) * shares.blue / green,
            -2.0 * (1.0 - shares.red) * shares.red / green,
            1.0,
            2.0 * (1.0 - shares.blue),
            0.0};
}

// BT.2020's transfer function, by which constant luminance is defined.
constexpr double alpha = 1.09929682680944;
constexpr double beta = 0.018053968510807;

double toScene(double value)
{
    return value < 4.5 * beta ? value / 4.5 : std::pow((value + alpha - 1.0) / alpha, 1.0 / 0.45);
}

double fromScene(double light)
{
    return light < beta ? 4.5 * light : alpha * std::pow(light, 0.45) - (alpha - 1.0);
}

} // namespace

RgbLines::RgbLines(const AVFrame& frame)
    : m_frame(frame)
    , m_format(*av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format)))
    , m_samples(static_cast<size_t>(frame.width))
    , m_alpha(hasAlpha() ? static_cast<size_t>(frame.width) : 0)
{
    if (!isYuv(static_cast<AVPixelFormat>(frame.format))) {
        return;
    }
    m_yuv = std::make_unique<YuvLines>(frame);
    const bool isFull = YuvToRgb::isFullRange(frame);
    // The widest sample, scaled to 15 bits, is 1 in full range.
    constexpr double unit = 1 << (YuvLines::sampleBits - 8);
    const int depth = m_yuv->depth();
    const double whole = double((1 << depth) - 1) * std::pow(2.0, YuvLines::sampleBits - depth);
    m_lumaScale = static_cast<float>(1.0 / (isFull ? whole : 219.0 * unit));
    m_chromaScale = static_cast<float>(1.0 / (isFull ? whole : 224.0 * unit));
    m_black = static_cast<float>(isFull ? 0.0 : 16.0 * unit);
    const std::array<double, 9> rows = rowsFor(YuvToRgb::matrixOf(frame));
    for (size_t i = 0; i < rows.size(); ++i) {
        m_factors[i] = static_cast<float>(rows[i]) * (i % 3 == 0 ? m_lumaScale : m_chromaScale);
    }
}

RgbLines::~RgbLines() = default;

bool RgbLines::reads(AVPixelFormat format)
{
    const AVPixFmtDescriptor* const d = av_pix_fmt_desc_get(format);
    if (!d) {
        return false;
    }
    if (isYuv(format)) {
        return true;
    }
    constexpr uint64_t excluded = AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_HWACCEL |
                                  AV_PIX_FMT_FLAG_BAYER | AV_PIX_FMT_FLAG_FLOAT;
    return (d->flags & AV_PIX_FMT_FLAG_RGB) && !(d->flags & excluded) && d->nb_components >= 3 &&
           d->comp[0].depth <= 16;
}

bool RgbLines::hasAlpha() const
{
    return m_format.flags & AV_PIX_FMT_FLAG_ALPHA;
}

void RgbLines::read(int line, RgbLine& target)
{
    if (!m_yuv) {
        readRgb(line, target);
    } else if (YuvToRgb::matrixOf(m_frame) == AVCOL_SPC_BT2020_CL) {
        readConstantLuminance(line, target);
    } else {
        readYuv(line, target);
    }
    if (hasAlpha()) {
        readAlpha(line);
    }
}

void RgbLines::readYuv(int line, RgbLine& target)
{
    m_yuv->moveTo(line);
    m_yuv->widen();
    combine(m_yuv->luma(), m_yuv->cb(), m_yuv->cr(), m_black, m_factors, target.red.data(),
            target.green.data(), target.blue.data(), target.red.size());
}

/// Here luma is computed from light, so green follows from light too.
void RgbLines::readConstantLuminance(int line, RgbLine& target)
{
    m_yuv->moveTo(line);
    m_yuv->widen();
    const int16_t* const lumas = m_yuv->luma();
    const int16_t* const cbs = m_yuv->cb();
    const int16_t* const crs = m_yuv->cr();
    for (size_t i = 0; i < target.red.size(); ++i) {
        const double luma = double(static_cast<float>(lumas[i]) - m_black) * double(m_lumaScale);
        const double cb = double(cbs[i]) * double(m_chromaScale);
        const double cr = double(crs[i]) * double(m_chromaScale);
        const double blue = luma + cb * (cb <= 0.0 ? 1.9404 : 1.5816);
        const double red = luma + cr * (cr <= 0.0 ? 1.7184 : 0.9936);
        const double light =
            (toScene(luma) - 0.2627 * toScene(red) - 0.0593 * toScene(blue)) / 0.6780;
        target.red[i] = static_cast<float>(red);
        target.green[i] = static_cast<float>(fromScene(light));
        target.blue[i] = static_cast<float>(blue);
    }
}

void RgbLines::readRgb(int line, RgbLine& target)
{
    readComponent(0, line, target.red);
    readComponent(1, line, target.green);
    readComponent(2, line, target.blue);
}

/// Planes in native byte order are read directly; all others sample by sample.
void RgbLines::readComponent(int component, int line, std::vector<float>& target)
{
    const AVComponentDescriptor& c = m_format.comp[component];
    const int bytes = c.depth > 8 ? 2 : 1;
    const float scale = 1.0F / static_cast<float>((1 << c.depth) - 1);
    constexpr uint64_t unusual = AV_PIX_FMT_FLAG_BE | AV_PIX_FMT_FLAG_BITSTREAM;
    const bool isPlain = c.step == bytes && c.shift == 0 && !(m_format.flags & unusual);
    if (!isPlain) {
        av_read_image_line2(m_samples.data(), const_cast<const uint8_t**>(m_frame.data),
                            m_frame.linesize, &m_format, 0, line, component, m_frame.width, 0, 2);
        scaleWords(m_samples.data(), target.data(), target.size(), scale);
        return;
    }
    const uint8_t* const samples =
        m_frame.data[c.plane] + ptrdiff_t(line) * m_frame.linesize[c.plane] + c.offset;
    if (bytes == 2) {
        scaleWords(reinterpret_cast<const uint16_t*>(samples), target.data(), target.size(), scale);
    } else {
        scaleBytes(samples, target.data(), target.size(), scale);
    }
}

void RgbLines::readAlpha(int line)
{
    readComponent(3, line, m_alpha);
}

} // namespace QtAV
