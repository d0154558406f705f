#pragma once

#include "tests/support/ColourSamples.h"

#include <array>

/// The standards' colour formulas in double precision.
namespace testsupport {

using Rgb = std::array<double, 3>;

/// The light of white in an SDR picture made from high dynamic range, in cd/m².
constexpr double whiteNits = 203.0;

/// SMPTE ST 2084: converts light in cd/m² to a value, and back.
[[nodiscard]] double pqOf(double nits);
[[nodiscard]] double nitsOfPq(double value);

/// Light in cd/m² for HLG values, by ITU-R BT.2100 for a display of 1000 cd/m².
[[nodiscard]] Rgb nitsOfHlg(const Rgb& values);

/// IEC 61966-2-1: converts linear light of 0 to 1 to a value of 0 to 255, clipped; and a value of 0
/// to 1 to linear light.
[[nodiscard]] double srgbOf(double light);
[[nodiscard]] double lightOfSrgb(double value);

/// Linear light with sRGB's primaries; values below 0 or above 1 are outside the gamut.
[[nodiscard]] Rgb toStandardPrimaries(Primaries primaries, const Rgb& light);

/// Light of BT.2020 in cd/m², tone-mapped by ITU-R BT.2390 using the brightest channel, as linear
/// light with sRGB's primaries.
[[nodiscard]] Rgb toneMapped(const Rgb& nits, double peakNits);

/// Linear light with sRGB's primaries for R'G'B' of 0 to 1 with the properties of a sample.
[[nodiscard]] Rgb lightOf(const Rgb& values, Transfer transfer, Primaries primaries,
                          double peakNits);

/// R'G'B' of 0 to 1 for a sample's codes, clipped.
[[nodiscard]] Rgb valuesOf(const PatchCodes& codes, const ColourSample& sample);

} // namespace testsupport
