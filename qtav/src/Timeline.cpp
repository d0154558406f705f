#include "qtav/src/Timeline.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QtAV {

namespace {

using Wide = Timeline::Wide;

Wide floorDivide(Wide numerator, Wide denominator)
{
    const Wide quotient = numerator / denominator;
    return numerator % denominator < 0 ? quotient - 1 : quotient;
}

// Damaged files state times of thousands of years; below this limit no product overflows.
constexpr qint64 mostTicks = qint64(1) << 52;

qint64 narrowed(Wide value)
{
    return static_cast<qint64>(std::clamp<Wide>(value, -mostTicks, mostTicks));
}

} // namespace

Timeline::Timeline(AVRational timeBase, qint64 startTicks, AVRational startTimeBase)
    : m_timeBase(timeBase)
    , m_startTicks(startTicks)
    , m_startTimeBase(startTimeBase)
{}

Timeline::Fraction Timeline::exactSeconds(qint64 ticks) const
{
    const Wide own = Wide(narrowed(ticks)) * m_timeBase.num * m_startTimeBase.den;
    const Wide start = Wide(narrowed(m_startTicks)) * m_startTimeBase.num * m_timeBase.den;
    return {std::max<Wide>(0, own - start), Wide(m_timeBase.den) * m_startTimeBase.den};
}

qint64 Timeline::milliseconds(qint64 ticks) const
{
    const Fraction exact = exactSeconds(ticks);
    return narrowed(exact.numerator * 1000 / exact.denominator);
}

double Timeline::seconds(qint64 ticks) const
{
    const Fraction exact = exactSeconds(ticks);
    const qint64 ms = narrowed(exact.numerator * 1000 / exact.denominator);
    // Beyond that, neighbouring numbers are too far apart for the steps below.
    double result = ms < mostTicks ? double(exact.numerator) / double(exact.denominator)
                                   : double(mostTicks) / 1000.0;
    while (static_cast<qint64>(result * 1000.0) < ms) {
        result = std::nextafter(result, std::numeric_limits<double>::infinity());
    }
    while (static_cast<qint64>(result * 1000.0) > ms) {
        result = std::nextafter(result, 0.0);
    }
    return result;
}

double Timeline::lengthSeconds(qint64 ticks) const
{
    return std::min(double(ticks) * av_q2d(m_timeBase), double(longestMs) / 1000.0);
}

qint64 Timeline::endMilliseconds(qint64 ticks, qint64 length) const
{
    return std::min(milliseconds(narrowed(ticks) + narrowed(length)), longestMs);
}

qint64 Timeline::lastTickOf(qint64 ms) const
{
    // The first tick of the next millisecond, rounded up, less one.
    const Wide numerator = (Wide(ms) + 1) * m_startTimeBase.den +
                           Wide(narrowed(m_startTicks)) * m_startTimeBase.num * 1000;
    const Wide denominator = Wide(1000) * m_startTimeBase.den * m_timeBase.num;
    return narrowed(-floorDivide(-numerator * m_timeBase.den, denominator) - 1);
}

} // namespace QtAV
