#include <QtAV/StoredColours.h>

#include "qtav/src/Colours.h"

#include <algorithm>
#include <cmath>

namespace QtAV {

namespace {

constexpr double hlgNits = 1000.0;
constexpr double hlgSystemGamma = 1.2;

std::array<double, 3> toPrimaries(StoredColours::Primaries primaries,
                                  const std::array<double, 3>& light)
{
    const std::array<double, 9> m = matrixFromStandard(primaries);
    return {m[0] * light[0] + m[1] * light[1] + m[2] * light[2],
            m[3] * light[0] + m[4] * light[1] + m[5] * light[2],
            m[6] * light[0] + m[7] * light[1] + m[8] * light[2]};
}

/// HLG values for light of the display, 0 to 1.
std::array<double, 3> hlgValuesOf(const std::array<double, 3>& light)
{
    const double luminance = 0.2627 * light[0] + 0.6780 * light[1] + 0.0593 * light[2];
    const double system =
        luminance > 0.0 ? std::pow(luminance, (1.0 - hlgSystemGamma) / hlgSystemGamma) : 0.0;
    return {sceneToHlg(light[0] * system), sceneToHlg(light[1] * system),
            sceneToHlg(light[2] * system)};
}

} // namespace

double StoredColours::brightestNits() const
{
    switch (transfer) {
    case Transfer::Pq:
        return pqToNits(1.0);
    case Transfer::Hlg:
        return hlgNits;
    case Transfer::Standard:
        break;
    }
    return standardWhiteNits;
}

double StoredColours::lightOf(double value) const
{
    switch (transfer) {
    case Transfer::Pq:
        return pqToNits(value) / pqToNits(1.0);
    case Transfer::Hlg:
        return std::pow(hlgToScene(value), hlgSystemGamma);
    case Transfer::Standard:
        break;
    }
    return srgbToLinear(value);
}

std::array<double, 3> StoredColours::valuesOf(const std::array<double, 3>& rgb) const
{
    std::array<double, 3> light{};
    std::transform(rgb.begin(), rgb.end(), light.begin(), srgbToLinear);
    light = toPrimaries(primaries, light);
    for (double& channel : light) {
        channel = std::clamp(channel, 0.0, 1.0) * standardWhiteNits / brightestNits();
    }
    if (transfer == Transfer::Hlg) {
        return hlgValuesOf(light);
    }
    for (double& channel : light) {
        channel =
            transfer == Transfer::Pq ? nitsToPq(channel * brightestNits()) : linearToSrgb(channel);
    }
    return light;
}

} // namespace QtAV
