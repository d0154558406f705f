#pragma once

#include "qtav/src/ColourMap.h"
#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/YuvLines.h"

#include <array>
#include <memory>
#include <vector>

namespace QtAV {

/// Reads a picture of any format line by line as R'G'B' in floating point, for pictures whose
/// colours cannot be converted by a matrix on bytes, and for those with more bits than the screen.
class RgbLines
{
public:
    /// The picture must outlive this object.
    explicit RgbLines(const AVFrame& frame);
    ~RgbLines();
    RgbLines(const RgbLines&) = delete;
    RgbLines& operator=(const RgbLines&) = delete;

    /// True for luma and chroma that YuvToRgb reads, and for red, green and blue in planes or
    /// packed, of any depth up to 16 bits, without a palette.
    static bool reads(AVPixelFormat format);

    /// Reads the pixels of a line, from 0 to 1 except for values out of range.
    void read(int line, RgbLine& target);

    bool hasAlpha() const;
    /// The alpha of the most recently read line, 0 to 1.
    const std::vector<float>& alpha() const { return m_alpha; }

private:
    void readYuv(int line, RgbLine& target);
    void readConstantLuminance(int line, RgbLine& target);
    void readRgb(int line, RgbLine& target);
    void readComponent(int component, int line, std::vector<float>& target);
    void readAlpha(int line);

    const AVFrame& m_frame;
    const AVPixFmtDescriptor& m_format;
    std::unique_ptr<YuvLines> m_yuv; ///< null for red, green and blue
    /// R'G'B' from luma, Cb and Cr with 15 bits: three rows of factors, then the offsets to
    /// subtract.
    std::array<float, 9> m_factors{};
    float m_black = 0.0F;
    float m_lumaScale = 0.0F;
    float m_chromaScale = 0.0F;
    std::vector<uint16_t> m_samples;
    std::vector<float> m_alpha;
};

} // namespace QtAV
