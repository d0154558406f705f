#include "tests/support/FrameNumber.h"

#include <QTransform>

#include <array>

namespace testsupport {

namespace {

constexpr int blockCount = 16;
constexpr int numberBits = blockCount - 2;
// The two rows together take a sixth of the picture's height.
constexpr int rowsPerHeight = 12;
constexpr QSize smallestPicture{32, 24};

// Limits for black and for white. A block between them is a blend or damaged.
constexpr int darkest = 95;
constexpr int brightest = 160;

/// Average brightness of the inner half of a block, unaffected by its neighbours.
int blockBrightness(const QImage& picture, int column, int row)
{
    const double blockWidth = double(picture.width()) / blockCount;
    const double blockHeight = double(picture.height()) / rowsPerHeight;
    const int left = int((column + 0.25) * blockWidth);
    const int right = std::max(left + 1, int((column + 0.75) * blockWidth));
    const int top = int((row + 0.25) * blockHeight);
    const int bottom = std::max(top + 1, int((row + 0.75) * blockHeight));
    qint64 sum = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            sum += qGray(picture.pixel(x, y));
        }
    }
    return int(sum / ((right - left) * (bottom - top)));
}

/// The bit of a column, if both rows agree on it.
std::optional<bool> columnBit(const QImage& picture, int column)
{
    const int upper = blockBrightness(picture, column, 0);
    const int lower = blockBrightness(picture, column, 1);
    if (upper > brightest && lower < darkest) {
        return true;
    }
    if (upper < darkest && lower > brightest) {
        return false;
    }
    return std::nullopt;
}

/// Reverts the orientation of the picture.
QImage laidBack(const QImage& picture, Orientation laid)
{
    const auto turned = [&](int degrees) {
        return picture.transformed(QTransform().rotate(degrees));
    };
    switch (laid) {
    case Orientation::Upright:
        return picture;
    case Orientation::Turned90:
        return turned(270);
    case Orientation::Turned180:
        return turned(180);
    case Orientation::Turned270:
        return turned(90);
    case Orientation::MirroredLeftRight:
        return picture.mirrored(true, false);
    case Orientation::MirroredUpDown:
        return picture.mirrored(false, true);
    case Orientation::Transposed:
        return turned(90).mirrored(true, false);
    case Orientation::AntiTransposed:
        return turned(90).mirrored(false, true);
    }
    return {};
}

} // namespace

std::optional<int> frameNumber(const QImage& picture)
{
    if (picture.width() < smallestPicture.width() || picture.height() < smallestPicture.height()) {
        return std::nullopt;
    }
    if (columnBit(picture, 0) != true || columnBit(picture, blockCount - 1) != false) {
        return std::nullopt;
    }
    int number = 0;
    for (int column = 1; column <= numberBits; ++column) {
        const auto bit = columnBit(picture, column);
        if (!bit) {
            return std::nullopt;
        }
        number = number * 2 + (*bit ? 1 : 0);
    }
    return number;
}

std::optional<Orientation> orientation(const QImage& picture)
{
    constexpr std::array all{Orientation::Upright,           Orientation::Turned90,
                             Orientation::Turned180,         Orientation::Turned270,
                             Orientation::MirroredLeftRight, Orientation::MirroredUpDown,
                             Orientation::Transposed,        Orientation::AntiTransposed};
    for (const Orientation candidate : all) {
        if (frameNumber(laidBack(picture, candidate))) {
            return candidate;
        }
    }
    return std::nullopt;
}

bool isUpright(const QImage& picture)
{
    return frameNumber(picture).has_value();
}

} // namespace testsupport
