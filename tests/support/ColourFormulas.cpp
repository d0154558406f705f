#include "tests/support/ColourFormulas.h"

#include <algorithm>
#include <cmath>

namespace testsupport {

namespace {

using Matrix3 = std::array<Rgb, 3>;
using Chromaticities = std::array<std::array<double, 2>, 3>;

constexpr Chromaticities bt709{{{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}}};
constexpr Chromaticities bt2020{{{0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}}};
constexpr Chromaticities displayP3{{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}}};

Rgb times(const Matrix3& m, const Rgb& v)
{
    Rgb result{};
    for (size_t i = 0; i < 3; ++i) {
        result[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
    }
    return result;
}

Matrix3 inverse(const Matrix3& m)
{
    const auto minor = [&m](size_t row, size_t column) {
        const size_t r1 = (row + 1) % 3;
        const size_t r2 = (row + 2) % 3;
        const size_t c1 = (column + 1) % 3;
        const size_t c2 = (column + 2) % 3;
        return m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
    };
    const double determinant =
        m[0][0] * minor(0, 0) + m[0][1] * minor(0, 1) + m[0][2] * minor(0, 2);
    Matrix3 result{};
    for (size_t row = 0; row < 3; ++row) {
        for (size_t column = 0; column < 3; ++column) {
            result[row][column] = minor(column, row) / determinant;
        }
    }
    return result;
}

/// XYZ of linear red, green and blue with the white point D65.
Matrix3 toXyz(const Chromaticities& primaries)
{
    Matrix3 columns{};
    for (size_t i = 0; i < 3; ++i) {
        const auto [x, y] = primaries[i];
        columns[0][i] = x / y;
        columns[1][i] = 1.0;
        columns[2][i] = (1.0 - x - y) / y;
    }
    const Rgb white{0.3127 / 0.3290, 1.0, (1.0 - 0.3127 - 0.3290) / 0.3290};
    const Rgb scale = times(inverse(columns), white);
    for (Rgb& row : columns) {
        for (size_t i = 0; i < 3; ++i) {
            row[i] *= scale[i];
        }
    }
    return columns;
}

/// ITU-R BT.2390, section 5.4, without black lift.
double shownNits(double nits, double peakNits)
{
    const double value = std::min(pqOf(nits) / pqOf(peakNits), 1.0);
    const double most = pqOf(whiteNits) / pqOf(peakNits);
    const double knee = 1.5 * most - 0.5;
    if (value < knee || most >= 1.0) {
        return std::min(nits, whiteNits);
    }
    const double t = (value - knee) / (1.0 - knee);
    const double result = (2 * t * t * t - 3 * t * t + 1) * knee +
                          (t * t * t - 2 * t * t + t) * (1 - knee) +
                          (-2 * t * t * t + 3 * t * t) * most;
    return nitsOfPq(result * pqOf(peakNits));
}

/// The weights of red and blue in luma, by ITU-R BT.601, BT.709 and BT.2020.
std::array<double, 2> sharesOf(Matrix matrix)
{
    switch (matrix) {
    case Matrix::Bt601:
        return {0.299, 0.114};
    case Matrix::Bt709:
        return {0.2126, 0.0722};
    case Matrix::Bt2020:
        break;
    }
    return {0.2627, 0.0593};
}

} // namespace

double pqOf(double nits)
{
    const double y = std::pow(std::max(nits, 0.0) / 10000.0, 0.1593017578125);
    return std::pow((0.8359375 + 18.8515625 * y) / (1.0 + 18.6875 * y), 78.84375);
}

double nitsOfPq(double value)
{
    const double e = std::pow(std::max(value, 0.0), 1.0 / 78.84375);
    return 10000.0 * std::pow(std::max(e - 0.8359375, 0.0) / (18.8515625 - 18.6875 * e),
                              1.0 / 0.1593017578125);
}

Rgb nitsOfHlg(const Rgb& values)
{
    constexpr double a = 0.17883277;
    const auto sceneOf = [](double value) {
        return value <= 0.5 ? value * value / 3.0
                            : (std::exp((value - 0.55991073) / a) + 1.0 - 4.0 * a) / 12.0;
    };
    const Rgb scene{sceneOf(values[0]), sceneOf(values[1]), sceneOf(values[2])};
    const double luminance = 0.2627 * scene[0] + 0.6780 * scene[1] + 0.0593 * scene[2];
    const double system = 1000.0 * std::pow(luminance, 0.2);
    return {system * scene[0], system * scene[1], system * scene[2]};
}

double srgbOf(double light)
{
    const double l = std::clamp(light, 0.0, 1.0);
    return 255.0 * (l <= 0.0031308 ? 12.92 * l : 1.055 * std::pow(l, 1.0 / 2.4) - 0.055);
}

double lightOfSrgb(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

Rgb toStandardPrimaries(Primaries primaries, const Rgb& light)
{
    if (primaries == Primaries::Standard) {
        return light;
    }
    const Chromaticities& own = primaries == Primaries::P3 ? displayP3 : bt2020;
    return times(inverse(toXyz(bt709)), times(toXyz(own), light));
}

Rgb toneMapped(const Rgb& nits, double peakNits)
{
    const double most = std::max({nits[0], nits[1], nits[2], 1e-9});
    const double gain = shownNits(most, peakNits) / most / whiteNits;
    return toStandardPrimaries(Primaries::Bt2020, {nits[0] * gain, nits[1] * gain, nits[2] * gain});
}

Rgb lightOf(const Rgb& values, Transfer transfer, Primaries primaries, double peakNits)
{
    switch (transfer) {
    case Transfer::Pq:
        return toneMapped({nitsOfPq(values[0]), nitsOfPq(values[1]), nitsOfPq(values[2])},
                          peakNits);
    case Transfer::Hlg:
        return toneMapped(nitsOfHlg(values), peakNits);
    case Transfer::Standard:
        break;
    }
    return toStandardPrimaries(
        primaries, {lightOfSrgb(values[0]), lightOfSrgb(values[1]), lightOfSrgb(values[2])});
}

Rgb valuesOf(const PatchCodes& codes, const ColourSample& sample)
{
    const auto [red, blue] = sharesOf(sample.matrix);
    const double scale = 1 << (sample.bits - 8);
    const double top = scale * 256 - 1;
    const double lumaRange = sample.fullRange ? top : 219 * scale;
    const double chromaRange = sample.fullRange ? top : 224 * scale;
    const double y = (codes.y - (sample.fullRange ? 0 : 16 * scale)) / lumaRange;
    const double cb = (codes.cb - 128 * scale) / chromaRange;
    const double cr = (codes.cr - 128 * scale) / chromaRange;
    const double r = y + 2 * (1 - red) * cr;
    const double b = y + 2 * (1 - blue) * cb;
    const double g = (y - red * r - blue * b) / (1 - red - blue);
    return {std::clamp(r, 0.0, 1.0), std::clamp(g, 0.0, 1.0), std::clamp(b, 0.0, 1.0)};
}

} // namespace testsupport
