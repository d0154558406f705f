#pragma once

#include "tests/support/ColourSamples.h"

#include <array>

/// What the standards make of colours, in double precision.
namespace testsupport {

using Rgb = std::array<double, 3>;

/// The light of white in a picture made of one with high dynamic range, in cd/m².
constexpr double whiteNits = 203.0;

/// SMPTE ST 2084: its value for light in cd/m², and back.
[[nodiscard]] double pqOf(double nits);
[[nodiscard]] double nitsOfPq(double value);

/// Light in cd/m² for HLG values, by ITU-R BT.2100 for a display of 1000 cd/m².
[[nodiscard]] Rgb nitsOfHlg(const Rgb& values);

/// IEC 61966-2-1: the value of 0 to 255 for linear light of 0 to 1, what lies outside cut off; and
/// linear light for a value of 0 to 1.
[[nodiscard]] double srgbOf(double light);
[[nodiscard]] double lightOfSrgb(double value);

/// Linear light with sRGB's primaries; what is below 0 or above 1 lies outside.
[[nodiscard]] Rgb toStandardPrimaries(Primaries primaries, const Rgb& light);

/// Light of BT.2020 in cd/m², brought down as ITU-R BT.2390 says, by the brightest channel, as
/// linear light with sRGB's primaries.
[[nodiscard]] Rgb toneMapped(const Rgb& nits, double peakNits);

/// Linear light with sRGB's primaries for R'G'B' of 0 to 1 with a sample's meaning.
[[nodiscard]] Rgb lightOf(const Rgb& values, Transfer transfer, Primaries primaries,
                          double peakNits);

/// R'G'B' of 0 to 1 for a sample's codes, what lies outside cut off.
[[nodiscard]] Rgb valuesOf(const PatchCodes& codes, const ColourSample& sample);

} // namespace testsupport
