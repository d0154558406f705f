#pragma once

#include <QImage>

#include <optional>

/// Reads the frame numbers in the pictures of sample videos.
///
/// The top sixth of a picture is two rows of 16 blocks. The upper row is a white block, the 14 bits
/// of the frame's number (white for 1, highest first) and a black block; the lower row is its
/// negative. So the rows confirm each other, a blend of two frames is not taken for either, and
/// the outer blocks tell an upright picture from a turned or mirrored one.
namespace testsupport {

/// The number in an upright picture of any size from 32x24 up, stretched or not. Nothing if the
/// blocks cannot be read reliably, which includes rotated and mirrored pictures.
[[nodiscard]] std::optional<int> frameNumber(const QImage& picture);

/// The orientation of a picture: how an upright one was transformed. Rotations are clockwise.
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

/// The orientation of the picture; nothing if no orientation shows a number.
[[nodiscard]] std::optional<Orientation> orientation(const QImage& picture);

/// True for a picture with a readable number that is neither rotated nor mirrored.
[[nodiscard]] bool isUpright(const QImage& picture);

} // namespace testsupport
