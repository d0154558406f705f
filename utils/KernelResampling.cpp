#include "utils/KernelResampling.h"

#include "utils/CImageInterpolationKernel.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace {

using KernelResampling::Kernel;
using KernelResampling::Sample;

constexpr int cubicSupport = 2;
constexpr float cubicSlope = -0.5F;
constexpr int lanczosSupport = 3;
/// Samples of a kernel function per unit of x, which is the precision of positions between two
/// pixels. At 128 the deviation stays below one level of 255.
constexpr int samplesPerUnit = 128;

/// The source pixels (first, first + 1, …) that make one output pixel along one axis, and their
/// weights, which sum to 1.
struct Taps
{
    int first = 0;
    std::vector<float> weights;
};

/// A kernel with the length of its function's positive side.
struct Filter
{
    const CImageInterpolationKernel<float>& kernel;
    int support;
};

/// The kernel's function at `x`, up to a factor that normalising the taps removes: the table's
/// middle column is the function multiplied by its value at 0.
float weightAt(const Filter& filter, double x)
{
    const int size = filter.kernel.size();
    const auto sample = static_cast<int>(std::lround((x / (2.0 * filter.support) + 0.5) * size));
    return sample >= 0 && sample < size ? filter.kernel.coeff(size / 2, sample) : 0.0F;
}

/// Adds a weight for the source position; positions beyond an edge are replaced by the edge.
void addWeight(Taps& taps, int position, int length, float weight)
{
    const int clamped = qBound(0, position, length - 1);
    const auto slot = static_cast<std::size_t>(clamped - taps.first);
    if (slot >= taps.weights.size()) {
        taps.weights.resize(slot + 1, 0.0F);
    }
    taps.weights[slot] += weight;
}

Taps tapsFor(int output, int sourceLength, int outputLength, const Filter& filter)
{
    const double ratio = static_cast<double>(sourceLength) / outputLength;
    const double stretch = std::max(1.0, ratio);
    const double centre = (output + 0.5) * ratio - 0.5;
    const double reach = filter.support * stretch;
    const auto begin = static_cast<int>(std::ceil(centre - reach));
    const auto end = static_cast<int>(std::floor(centre + reach));

    Taps taps;
    taps.first = qBound(0, begin, sourceLength - 1);
    float sum = 0.0F;
    for (int position = begin; position <= end; ++position) {
        const float weight = weightAt(filter, (position - centre) / stretch);
        addWeight(taps, position, sourceLength, weight);
        sum += weight;
    }
    for (float& weight : taps.weights) {
        weight /= sum;
    }
    return taps;
}

std::vector<Taps> axisTaps(int sourceLength, int outputLength, const Filter& filter)
{
    std::vector<Taps> taps;
    taps.reserve(static_cast<std::size_t>(outputLength));
    for (int output = 0; output < outputLength; ++output) {
        taps.push_back(tapsFor(output, sourceLength, outputLength, filter));
    }
    return taps;
}

std::vector<Taps> axisTaps(int sourceLength, int outputLength, Kernel kernel)
{
    if (kernel == Kernel::Cubic) {
        const CBicubicKernel cubic(2 * cubicSupport * samplesPerUnit, cubicSlope);
        return axisTaps(sourceLength, outputLength, Filter{cubic, cubicSupport});
    }
    const CLanczosKernel lanczos(2 * lanczosSupport * samplesPerUnit, lanczosSupport);
    return axisTaps(sourceLength, outputLength, Filter{lanczos, lanczosSupport});
}

void addWeighted(Sample& sum, const Sample& sample, float weight)
{
    for (std::size_t channel = 0; channel < sum.size(); ++channel) {
        sum[channel] += weight * sample[channel];
    }
}

/// The weighted mean of the samples from x on in line y.
Sample applyKernel(const std::vector<Sample>& line, const Taps& taps, int x, int y)
{
    Q_ASSERT_X(x >= 0 && y >= 0, "applyKernel", "x >= 0 && y >= 0");
    Q_UNUSED(y)
    Sample sum{};
    auto source = static_cast<std::size_t>(x);
    for (const float weight : taps.weights) {
        addWeighted(sum, line[source++], weight);
    }
    return sum;
}

/// The weighted mean of lines that follow each other in `rows`.
void mixLines(const std::vector<Sample>& rows, const Taps& taps, std::vector<Sample>& result)
{
    std::fill(result.begin(), result.end(), Sample{});
    const Sample* sample = rows.data() + static_cast<std::size_t>(taps.first) * result.size();
    for (const float weight : taps.weights) {
        for (Sample& sum : result) {
            addWeighted(sum, *sample++, weight);
        }
    }
}

} // namespace

void KernelResampling::resample(const QSize& source, const QSize& target, const Kernels& kernels,
                                const ReadLine& readLine, const WriteLine& writeLine)
{
    const auto width = static_cast<std::size_t>(target.width());
    const std::vector<Taps> columns = axisTaps(source.width(), target.width(), kernels.horizontal);
    const std::vector<Taps> lines = axisTaps(source.height(), target.height(), kernels.vertical);
    std::vector<Sample> line(static_cast<std::size_t>(source.width()));
    std::vector<Sample> rows(width * static_cast<std::size_t>(source.height()));
    for (int y = 0; y < source.height(); ++y) {
        readLine(y, line.data());
        std::transform(
            columns.begin(), columns.end(),
            rows.begin() + static_cast<std::ptrdiff_t>(y) * target.width(),
            [&line, y](const Taps& taps) { return applyKernel(line, taps, taps.first, y); });
    }
    std::vector<Sample> result(width);
    for (int y = 0; y < target.height(); ++y) {
        mixLines(rows, lines[static_cast<std::size_t>(y)], result);
        writeLine(y, result.data());
    }
}
