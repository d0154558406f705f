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

/// Makes sRGB of pictures with high dynamic range or other primaries.
///
/// Light beyond white is brought down by ITU-R BT.2390's curve, by the brightest of the three
/// channels, so that no colour changes its hue; white of the result is 203 cd/m². Colours outside
/// sRGB become the nearest inside, with some of their differences kept.
///
/// Immutable once made, so that several threads may use it.
class ColourMap
{
public:
    /// The map for colours that are not standard.
    explicit ColourMap(const Colours& colours);

    const Colours& colours() const { return m_colours; }

    /// From the picture's own R'G'B' to that of sRGB, all 0 to 1; what lies outside is cut off.
    void apply(RgbLine& line) const;

private:
    using Table = std::vector<float>;

    Colours m_colours;
    bool m_isHdr;
    float m_brightest; ///< of light, white being 1
    Table m_light;     ///< by value
    Table m_system;    ///< HLG: what light of the display is to that of the scene, by its root
    Table m_gain;      ///< by the root of light, less than or equal to 1
    Table m_values;    ///< sRGB's value, by the root of light
    std::array<float, 9> m_matrix;
};

} // namespace QtAV
