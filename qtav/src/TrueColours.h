#pragma once

#include "qtav/src/ColourMap.h"
#include "qtav/src/FFmpegHandles.h"

#include <QImage>

#include <memory>

namespace QtAV {

/// Converts pictures to sRGB for which a matrix on bytes is not enough: those with high dynamic
/// range, with other primaries or another kind of matrix, and red, green and blue with more or
/// fewer than eight bits. Also converts all pictures into images of 16 bits per channel.
class TrueColours
{
public:
    /// @param map  for the picture's colours; null if these are standard.
    explicit TrueColours(std::shared_ptr<const ColourMap> map);

    /// True if a picture with such colours needs this class and has a format that RgbLines reads.
    static bool isNeededFor(const AVFrame& frame, const Colours& colours);

    /// Fills an image of the picture's stored size, in Format_ARGB32, Format_RGB888, Format_RGBX64
    /// or Format_RGBA64. Eight-bit results of deeper pictures are dithered.
    void convert(const AVFrame& frame, QImage& image) const;

private:
    std::shared_ptr<const ColourMap> m_map;
};

} // namespace QtAV
