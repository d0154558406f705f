#pragma once

#include <array>

namespace QtAV {

/// What the R'G'B' values of a picture stand for where they are not sRGB. A plain value, usable in
/// any thread.
struct StoredColours
{
    enum class Transfer {
        Standard, ///< that of sRGB
        Pq,       ///< of SMPTE ST 2084: absolute light
        Hlg,      ///< hybrid log-gamma
    };
    enum class Primaries {
        Standard, ///< those of sRGB, or so close that all players treat them as such
        P3,       ///< of displays and cameras, with the white of sRGB
        Bt2020,
    };

    Transfer transfer = Transfer::Standard;
    Primaries primaries = Primaries::Standard;

    bool isHdr() const { return transfer != Transfer::Standard; }
    bool operator==(const StoredColours& other) const
    {
        return transfer == other.transfer && primaries == other.primaries;
    }

    /// The light of the highest value in cd/m²: 10,000 for PQ; 1,000 for HLG, which is relative and
    /// assumed to be shown on such a display; otherwise that of sRGB's white.
    [[nodiscard]] double brightestNits() const;

    /// The light of a grey value relative to the brightest light; both from 0 to 1.
    [[nodiscard]] double lightOf(double value) const;

    /// The values from 0 to 1 that show an sRGB colour as bright as in a picture of standard range,
    /// whose white is 203 cd/m².
    ///
    /// @param rgb  sRGB values, 0 to 1
    [[nodiscard]] std::array<double, 3> valuesOf(const std::array<double, 3>& rgb) const;
};

} // namespace QtAV
