#pragma once

#include <QtAV/StoredColours.h>

#include <cstddef>
#include <vector>

/// How the codes of a picture and the light that they stand for belong together, in tables.
///
/// Immutable: callable from any thread.
class LightCurve
{
public:
    static constexpr int largestCode = 65535;

    /// That of sRGB, made when it is first asked for.
    [[nodiscard]] static const LightCurve& sRgb();

    /// That of a picture's own values; each is made once, which takes some milliseconds. Throws
    /// std::bad_alloc.
    [[nodiscard]] static const LightCurve& of(QtAV::StoredColours::Transfer transfer);

    /// The light of a code of 16 bits; 0 to 1, where 1 is that of the highest code.
    [[nodiscard]] float lightOf(std::size_t code) const { return m_lights[code]; }

    /// The code of light, both from 0 to 1.
    [[nodiscard]] float codeOf(float light) const;

private:
    LightCurve() = default;
    [[nodiscard]] static LightCurve made(QtAV::StoredColours::Transfer transfer);

    std::vector<float> m_lights;
    /// The codes of 0/65535, 1/65535, … and 1, and one more for interpolation: of light itself or,
    /// where nearly all codes stand for very little light, of its fourth root.
    std::vector<float> m_codes;
    bool m_isOfRoots = false;
};
