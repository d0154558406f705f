#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QImage>

#include <cstddef>
#include <cstdint>

namespace QtAV {

/// Converts luma and chroma to full-range R'G'B' by a picture's own matrix and range.
///
/// FFmpeg's fast conversions are up to 3 of 255 off and repeat chroma samples; its exact ones cost
/// several times as much. This one calculates with 15 bits, interpolates chroma for the position at
/// which it was sampled, and deviates by at most 1 of 255 from the standards' formulas. Pictures
/// with more than eight bits are dithered: their mean deviates less.
class YuvToRgb
{
public:
    /// Prepares for pictures with the matrix, range and format of `frame`.
    explicit YuvToRgb(const AVFrame& frame);

    /// True for the supported formats: planar YUV with or without alpha, 8 to 16 bits, chroma in
    /// full or half width and height, grey, NV12 and NV21.
    static bool reads(AVPixelFormat format);

    /// The matrix to use: the picture's own, or the one that its size implies.
    static AVColorSpace matrixOf(const AVFrame& frame);

    /// Where chroma was sampled: as stated by the picture, or as implied by its range.
    static AVChromaLocation chromaLocationOf(const AVFrame& frame);

    /// True for formats that imply full range.
    static bool isJpegFormat(int format);
    static bool isFullRange(const AVFrame& frame);

    /// The shares of red and blue in luma.
    struct Shares
    {
        double red;
        double blue;
    };
    static Shares sharesOf(AVColorSpace space);

    /// Fills an image of the picture's stored size, in Format_ARGB32, or Format_RGB888 without
    /// alpha.
    void convert(const AVFrame& frame, QImage& image) const;

    /// Factors in 1/8192 and the luma level of black, for samples of 15 bits.
    struct Matrix
    {
        int16_t luma;
        int16_t crToRed;
        int16_t cbToGreen;
        int16_t crToGreen;
        int16_t cbToBlue;
        int16_t black;
    };

private:
    Matrix m_matrix;
};

/// Converts pixels of Format_ARGB32 to Format_RGB888.
void dropAlpha(const QRgb* source, uchar* target, ptrdiff_t count);

} // namespace QtAV
