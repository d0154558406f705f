#pragma once

#include <QtAV/StoredColours.h>

#include "qtav/src/FFmpegHandles.h"

#include <array>

namespace QtAV {

/// The white of a standard picture within one of high dynamic range, in cd/m² (ITU-R BT.2408).
constexpr double standardWhiteNits = 203.0;

/// What a picture's values stand for, and how bright they become.
struct Colours : StoredColours
{
    /// The brightest light of a picture with high dynamic range, in cd/m²; of no meaning for
    /// others.
    double peakNits = 0.0;

    [[nodiscard]] bool isStandard() const;
    bool operator==(const Colours& other) const;
    bool operator!=(const Colours& other) const { return !(*this == other); }
};

/// What a container says of the colours of a stream, borne by a picture without pixels.
[[nodiscard]] FramePtr statedColours(const AVStream& stream);

/// Gives a picture what it does not say of its colours itself. Decoders drop some of what the
/// container says.
void completeColours(AVFrame& frame, const AVFrame& stated);

/// What a picture says of itself. The peak is that of the content (MaxCLL), else that of the
/// display on which it was mastered, else 1000 cd/m².
[[nodiscard]] Colours coloursOf(const AVFrame& frame);

/// The matrix by which linear light with the primaries becomes that with sRGB's; three rows.
[[nodiscard]] std::array<double, 9> matrixToStandard(Colours::Primaries primaries);

/// The other way round.
[[nodiscard]] std::array<double, 9> matrixFromStandard(Colours::Primaries primaries);

/// Light in cd/m² for a PQ value of 0 to 1, and back.
[[nodiscard]] double pqToNits(double value);
[[nodiscard]] double nitsToPq(double nits);

/// Light of the scene, 0 to 1, for an HLG value of 0 to 1, and back.
[[nodiscard]] double hlgToScene(double value);
[[nodiscard]] double sceneToHlg(double light);

/// sRGB's transfer of linear light, 0 to 1, and back.
[[nodiscard]] double linearToSrgb(double light);
[[nodiscard]] double srgbToLinear(double value);

/// How bright light is shown where white of a standard picture is the brightest: the electrical
/// transfer of ITU-R BT.2390 from pictures with the peak to that white, all in cd/m².
[[nodiscard]] double toneMapped(double nits, double peakNits, double whiteNits);

} // namespace QtAV
