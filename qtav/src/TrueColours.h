#pragma once

#include "qtav/src/ColourMap.h"
#include "qtav/src/FFmpegHandles.h"

#include <QImage>

#include <memory>

namespace QtAV {

/// Converts pictures to sRGB for which a matrix on bytes is not enough: those with high dynamic
/// range, other primaries or a matrix of another kind, red, green and blue of more or fewer than
/// eight bits; and all into images of 16 bits a channel.
class TrueColours
{
public:
    /// @param map  of the picture's colours; null where these are standard.
    explicit TrueColours(std::shared_ptr<const ColourMap> map);

    /// True where a picture with such colours needs this, in one of the formats that RgbLines
    /// reads.
    static bool isNeededFor(const AVFrame& frame, const Colours& colours);

    /// Fills an image of the picture's stored size, in Format_ARGB32, Format_RGB888, Format_RGBX64
    /// or Format_RGBA64. Eight bits made of more are dithered.
    void convert(const AVFrame& frame, QImage& image) const;

private:
    std::shared_ptr<const ColourMap> m_map;
};

} // namespace QtAV
