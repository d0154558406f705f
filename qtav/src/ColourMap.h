#pragma once

#include "qtav/src/Colours.h"

#include <array>
#include <vector>

namespace QtAV {

/// A line of a picture: red, green and blue of each pixel.
struct RgbLine
{
    explicit RgbLine(int width)
        : red(static_cast<size_t>(width))
        , green(static_cast<size_t>(width))
        , blue(static_cast<size_t>(width))
    {}

    std::vector<float> red;
    std::vector<float> green;
    std::vector<float> blue;
};

/// Converts pictures with high dynamic range or other primaries to sRGB.
///
/// Light beyond white is compressed by ITU-R BT.2390's curve. The curve is applied to the brightest
/// of the three channels, so that no colour changes its hue; white of the result is 203 cd/m².
/// Colours outside sRGB become the nearest ones inside, and keep some of their differences.
///
/// Immutable once made, so several threads may use it.
class ColourMap
{
public:
    /// The map for colours that are not standard.
    explicit ColourMap(const Colours& colours);

    const Colours& colours() const { return m_colours; }

    /// Converts the picture's own R'G'B' to that of sRGB, all 0 to 1; values outside are clipped.
    void apply(RgbLine& line) const;

private:
    using Table = std::vector<float>;

    Colours m_colours;
    bool m_isHdr;
    float m_brightest; ///< of light, relative to white
    Table m_light;     ///< by value
    Table m_system;    ///< HLG: the ratio of display light to scene light, by the root of the
                       ///< latter
    Table m_gain;      ///< by the root of light, at most 1
    Table m_values;    ///< the sRGB value, by the root of light
    std::array<float, 9> m_matrix;
};

} // namespace QtAV
