#include "qtav/src/ColourMap.h"

#include "qtav/src/SeveralProcessors.h"

#include <algorithm>
#include <cmath>

namespace QtAV {

namespace {

/// A table with this many steps is precise enough and still fits into the processor's cache.
constexpr int steps = 4096;

/// Maximum distance of a shown colour from the nearest colour inside, at black and at white: less
/// than ten of 255.
constexpr float outsideAtBlack = 0.002F;
constexpr float outsideAtWhite = 0.06F;

template <typename Function>
std::vector<float> tableOf(const Function& function)
{
    std::vector<float> table(steps + 1);
    for (int i = 0; i <= steps; ++i) {
        table[static_cast<size_t>(i)] = static_cast<float>(function(double(i) / steps));
    }
    return table;
}

double lightOf(Colours::Transfer transfer, double value)
{
    switch (transfer) {
    case Colours::Transfer::Pq:
        return pqToNits(value) / standardWhiteNits;
    case Colours::Transfer::Hlg:
        return hlgToScene(value);
    case Colours::Transfer::Standard:
        break;
    }
    return srgbToLinear(value);
}

inline int entryFor(float value)
{
    return static_cast<int>(std::min(std::max(value, 0.0F), 1.0F) * steps + 0.5F);
}

FOR_SEVERAL_PROCESSORS
void lookUp(const float* __restrict table, float* __restrict values, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        values[i] = table[entryFor(values[i])];
    }
}

/// Separate from the look-up, so that several are computed at once.
FOR_SEVERAL_PROCESSORS
void takeRoots(float* __restrict values, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        values[i] = std::sqrt(std::max(values[i], 0.0F));
    }
}

FOR_SEVERAL_PROCESSORS
void applySystem(const float* __restrict table, float scale, float* __restrict red,
                 float* __restrict green, float* __restrict blue, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        const float luminance = 0.2627F * red[i] + 0.6780F * green[i] + 0.0593F * blue[i];
        const float factor = scale * table[entryFor(std::sqrt(luminance))];
        red[i] *= factor;
        green[i] *= factor;
        blue[i] *= factor;
    }
}

FOR_SEVERAL_PROCESSORS
void applyGain(const float* __restrict table, float brightest, float* __restrict red,
               float* __restrict green, float* __restrict blue, size_t count)
{
    const float scale = 1.0F / brightest;
    for (size_t i = 0; i < count; ++i) {
        const float most = std::max(red[i], std::max(green[i], blue[i]));
        const float factor = table[entryFor(std::sqrt(most * scale))];
        red[i] *= factor;
        green[i] *= factor;
        blue[i] *= factor;
    }
}

FOR_SEVERAL_PROCESSORS
void applyMatrix(std::array<float, 9> m, float* __restrict red, float* __restrict green,
                 float* __restrict blue, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        const float r = m[0] * red[i] + m[1] * green[i] + m[2] * blue[i];
        const float g = m[3] * red[i] + m[4] * green[i] + m[5] * blue[i];
        const float b = m[6] * red[i] + m[7] * green[i] + m[8] * blue[i];
        red[i] = r;
        green[i] = g;
        blue[i] = b;
    }
}

inline float cut(float value)
{
    return std::min(std::max(value, 0.0F), 1.0F);
}

/// Moves slightly towards the point where an outside colour enters on the way to its grey.
inline float softened(float inside, float faded)
{
    const float most = outsideAtBlack + outsideAtWhite * inside;
    return inside + std::min(std::max(faded - inside, -most), most);
}

/// Clips colours outside. Also fades them a little, more so the further outside they are: otherwise
/// surfaces of strong colour would lose all detail.
FOR_SEVERAL_PROCESSORS
void cutSoftly(float* __restrict red, float* __restrict green, float* __restrict blue, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        const float r = red[i];
        const float g = green[i];
        const float b = blue[i];
        const float grey = cut(0.2126F * r + 0.7152F * g + 0.0722F * b);
        const float least = std::min(r, std::min(g, b));
        const float most = std::max(r, std::max(g, b));
        // How much of the colour's distance from its grey fits inside.
        const float below = grey / std::max(grey - least, 1e-6F);
        const float above = (1.0F - grey) / std::max(most - grey, 1e-6F);
        const float part = std::min(1.0F, std::min(below, above));
        red[i] = softened(cut(r), cut(grey + (r - grey) * part));
        green[i] = softened(cut(g), cut(grey + (g - grey) * part));
        blue[i] = softened(cut(b), cut(grey + (b - grey) * part));
    }
}

} // namespace

ColourMap::ColourMap(const Colours& colours)
    : m_colours(colours)
    , m_isHdr(colours.transfer != Colours::Transfer::Standard)
    , m_brightest(1.0F)
    , m_light(tableOf([&](double value) { return lightOf(colours.transfer, value); }))
    , m_values(tableOf([](double root) { return linearToSrgb(root * root); }))
    , m_matrix()
{
    const std::array<double, 9> matrix = matrixToStandard(colours.primaries);
    std::transform(matrix.begin(), matrix.end(), m_matrix.begin(),
                   [](double factor) { return static_cast<float>(factor); });
    if (!m_isHdr) {
        return;
    }
    const double brightest =
        (colours.transfer == Colours::Transfer::Pq ? pqToNits(1.0) : colours.peakNits) /
        standardWhiteNits;
    m_brightest = static_cast<float>(brightest);
    m_gain = tableOf([&](double root) {
        const double nits = root * root * brightest * standardWhiteNits;
        return nits > 0.0 ? toneMapped(nits, colours.peakNits, standardWhiteNits) / nits : 1.0;
    });
    // The system gamma of a display with 1000 cd/m² is 1.2.
    if (colours.transfer == Colours::Transfer::Hlg) {
        m_system = tableOf([](double root) { return std::pow(root * root, 0.2); });
    }
}

void ColourMap::apply(RgbLine& line) const
{
    const size_t count = line.red.size();
    float* const red = line.red.data();
    float* const green = line.green.data();
    float* const blue = line.blue.data();
    for (float* const channel : {red, green, blue}) {
        lookUp(m_light.data(), channel, count);
    }
    if (!m_system.empty()) {
        applySystem(m_system.data(), m_brightest, red, green, blue, count);
    }
    if (m_isHdr) {
        applyGain(m_gain.data(), m_brightest, red, green, blue, count);
    }
    if (m_colours.primaries != Colours::Primaries::Standard) {
        applyMatrix(m_matrix, red, green, blue, count);
    }
    if (m_isHdr) {
        cutSoftly(red, green, blue, count);
    }
    for (float* const channel : {red, green, blue}) {
        takeRoots(channel, count);
        lookUp(m_values.data(), channel, count);
    }
}

} // namespace QtAV
