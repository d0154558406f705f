#include "imaging/LightCurve.h"

#include <algorithm>
#include <cmath>

using QtAV::StoredColours;
using Transfer = StoredColours::Transfer;

namespace {

/// Both from 0 to 1.
double sRgbCodeOf(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

/// The function at 0/65535, 1/65535, … and 1, with the last value repeated.
template <typename Function>
std::vector<float> tableOf(const Function& function)
{
    std::vector<float> table(LightCurve::largestCode + 2);
    for (int i = 0; i < LightCurve::largestCode + 2; ++i) {
        const double x = std::min(1.0, static_cast<double>(i) / LightCurve::largestCode);
        table[static_cast<std::size_t>(i)] = static_cast<float>(function(x));
    }
    return table;
}

/// The argument at which a rising function reaches a value, both from 0 to 1.
template <typename Function>
double reachedAt(const Function& function, double value)
{
    double low = 0.0;
    double high = 1.0;
    for (int step = 0; step < 32; ++step) {
        const double middle = (low + high) / 2.0;
        (function(middle) < value ? low : high) = middle;
    }
    return high;
}

} // namespace

const LightCurve& LightCurve::sRgb()
{
    static const LightCurve curve = [] {
        LightCurve made;
        made.m_lights = tableOf([](double code) { return StoredColours().lightOf(code); });
        made.m_codes = tableOf(&sRgbCodeOf);
        return made;
    }();
    return curve;
}

const LightCurve& LightCurve::of(Transfer transfer)
{
    static const LightCurve pq = made(Transfer::Pq);
    static const LightCurve hlg = made(Transfer::Hlg);
    switch (transfer) {
    case Transfer::Pq:
        return pq;
    case Transfer::Hlg:
        return hlg;
    case Transfer::Standard:
        break;
    }
    return sRgb();
}

LightCurve LightCurve::made(Transfer transfer)
{
    StoredColours colours;
    colours.transfer = transfer;
    LightCurve curve;
    curve.m_isOfRoots = true;
    curve.m_lights = tableOf([&](double code) { return colours.lightOf(code); });
    // Uses the table instead of the curve, whose powers take a hundred times as long.
    const auto lightOf = [&](double code) {
        const double place = code * LightCurve::largestCode;
        const auto index = static_cast<std::size_t>(place);
        const double part = place - static_cast<double>(index);
        const double low = curve.m_lights[index];
        return low + part * (curve.m_lights[index + 1] - low);
    };
    curve.m_codes = tableOf([&](double root) { return reachedAt(lightOf, std::pow(root, 4)); });
    return curve;
}

/// Linear interpolation in the table, exact to a tenth of a 16-bit step for sRGB.
float LightCurve::codeOf(float light) const
{
    const float place =
        (m_isOfRoots ? std::sqrt(std::sqrt(light)) : light) * LightCurve::largestCode;
    const auto index = static_cast<std::size_t>(place);
    const float part = place - static_cast<float>(index);
    return m_codes[index] + part * (m_codes[index + 1] - m_codes[index]);
}
