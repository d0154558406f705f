#pragma once

#include <QtAV/StoredColours.h>

#include <cstddef>
#include <vector>

/// Converts between the codes of a picture and the light that they stand for, using tables.
///
/// Immutable: callable from any thread.
class LightCurve
{
public:
    static constexpr int largestCode = 65535;

    /// The curve of sRGB, created on first use.
    [[nodiscard]] static const LightCurve& sRgb();

    /// The curve of stored values; each is created once, which takes some milliseconds. Throws
    /// std::bad_alloc.
    [[nodiscard]] static const LightCurve& of(QtAV::StoredColours::Transfer transfer);

    /// The light of a 16-bit code, 0 to 1; the highest code gives 1.
    [[nodiscard]] float lightOf(std::size_t code) const { return m_lights[code]; }

    /// The code for light, both from 0 to 1.
    [[nodiscard]] float codeOf(float light) const;

private:
    LightCurve() = default;
    [[nodiscard]] static LightCurve made(QtAV::StoredColours::Transfer transfer);

    std::vector<float> m_lights;
    /// The codes of 0/65535, 1/65535, … and 1, with one more for interpolation: of light itself or,
    /// if nearly all codes stand for very little light, of its fourth root.
    std::vector<float> m_codes;
    bool m_isOfRoots = false;
};
