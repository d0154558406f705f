#pragma once

#include <array>

namespace QtAV {

/// What the values of a picture's own R'G'B' stand for, as far as it is not taken for sRGB. A plain
/// value, for any thread.
struct StoredColours
{
    enum class Transfer {
        Standard, ///< as sRGB's
        Pq,       ///< of SMPTE ST 2084: absolute light
        Hlg,      ///< hybrid log-gamma
    };
    enum class Primaries {
        Standard, ///< as sRGB's, or so near that all players take them for these
        P3,       ///< of displays and cameras, white as sRGB's
        Bt2020,
    };

    Transfer transfer = Transfer::Standard;
    Primaries primaries = Primaries::Standard;

    bool isHdr() const { return transfer != Transfer::Standard; }
    bool operator==(const StoredColours& other) const
    {
        return transfer == other.transfer && primaries == other.primaries;
    }

    /// The light of its brightest value in cd/m²: 10,000 for PQ, 1,000 for HLG, which is relative
    /// and meant for such a display here, and that of sRGB's white else.
    [[nodiscard]] double brightestNits() const;

    /// The light of a grey, as a part of the brightest, for a value; all from 0 to 1.
    [[nodiscard]] double lightOf(double value) const;

    /// The values, 0 to 1, that show a colour of sRGB as bright as a picture with standard range:
    /// its white at 203 cd/m².
    ///
    /// @param rgb  sRGB's own values, 0 to 1
    [[nodiscard]] std::array<double, 3> valuesOf(const std::array<double, 3>& rgb) const;
};

} // namespace QtAV
