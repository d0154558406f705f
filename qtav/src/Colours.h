#pragma once

#include <QtAV/StoredColours.h>

#include "qtav/src/FFmpegHandles.h"

#include <array>

namespace QtAV {

/// The white of a standard picture within one of high dynamic range, in cd/m² (ITU-R BT.2408).
constexpr double standardWhiteNits = 203.0;

/// What a picture's values stand for, and how bright they can be.
struct Colours : StoredColours
{
    /// The brightest light of a picture with high dynamic range, in cd/m²; meaningless for others.
    double peakNits = 0.0;

    [[nodiscard]] bool isStandard() const;
    bool operator==(const Colours& other) const;
    bool operator!=(const Colours& other) const { return !(*this == other); }
};

/// What a container states about the colours of a stream, as the properties of a picture without
/// pixels. Null when memory runs out.
[[nodiscard]] FramePtr statedColours(const AVStream& stream);

/// Replaces values that no version of this program's FFmpeg defines by "unspecified".
void forgetUnknownColours(AVFrame& frame);

/// Adds what a picture does not state about its colours itself. Decoders drop some of what the
/// container states.
void completeColours(AVFrame& frame, const AVFrame& stated);

/// The colours that a picture states. The peak is that of the content (MaxCLL), otherwise that of
/// the mastering display, otherwise 1000 cd/m².
[[nodiscard]] Colours coloursOf(const AVFrame& frame);

/// The matrix that converts linear light with these primaries to linear light with sRGB's, as three
/// rows.
[[nodiscard]] std::array<double, 9> matrixToStandard(Colours::Primaries primaries);

/// The inverse of matrixToStandard().
[[nodiscard]] std::array<double, 9> matrixFromStandard(Colours::Primaries primaries);

/// Converts a PQ value from 0 to 1 to light in cd/m², and back.
[[nodiscard]] double pqToNits(double value);
[[nodiscard]] double nitsToPq(double nits);

/// Converts an HLG value from 0 to 1 to light of the scene from 0 to 1, and back.
[[nodiscard]] double hlgToScene(double value);
[[nodiscard]] double sceneToHlg(double light);

/// Converts linear light from 0 to 1 to an sRGB value, and back.
[[nodiscard]] double linearToSrgb(double light);
[[nodiscard]] double srgbToLinear(double value);

/// How bright light is shown if white of a standard picture is the maximum: the electrical transfer
/// of ITU-R BT.2390 from the peak of the picture to that white, all in cd/m².
[[nodiscard]] double toneMapped(double nits, double peakNits, double whiteNits);

} // namespace QtAV
