#pragma once

#include <QImage>

#include <optional>

/// Reads what the sample videos write into their pictures.
///
/// The top sixth of a picture is two rows of 16 blocks. The upper row is a white block, the 14 bits
/// of the frame's number (white for 1, highest first) and a black block; the lower row is its
/// negative. So the rows confirm each other, a blend of two frames is not taken for either, and
/// the outer blocks tell an upright picture from a turned or mirrored one.
namespace testsupport {

/// The number in an upright picture of any size from 32x24 up, stretched or not. Nothing when the
/// blocks cannot be read beyond doubt, which includes turned and mirrored pictures.
[[nodiscard]] std::optional<int> frameNumber(const QImage& picture);

/// How a picture lies: what was done to an upright one to get it. Turns are clockwise.
enum class Orientation {
    Upright,
    Turned90,
    Turned180,
    Turned270,
    MirroredLeftRight,
    MirroredUpDown,
    Transposed,     ///< mirrored at the diagonal from the upper left
    AntiTransposed, ///< mirrored at the diagonal from the upper right
};

/// How the picture lies; nothing when no orientation shows a number.
[[nodiscard]] std::optional<Orientation> orientation(const QImage& picture);

/// True for a picture with a readable number that is neither turned nor mirrored.
[[nodiscard]] bool isUpright(const QImage& picture);

} // namespace testsupport
