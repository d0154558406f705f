#include "utils/CImageResizer.h"

#include "utils/CImageInterpolationKernel.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr int CubicSupport = 2;
constexpr float CubicSlope = -0.5F;
constexpr int LanczosSupport = 3;
/// Samples of a kernel function for one unit of x: how finely a position between two pixels is
/// told apart. At 128 steps the deviation stays below one level of 255.
constexpr int SamplesPerUnit = 128;

using Sample = std::array<float, 4>;

/// Rows of samples, four channels each.
class SampleGrid
{
public:
    SampleGrid(int width, int height)
        : m_width(width)
        , m_samples(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    {}

    Sample& at(int x, int y) { return m_samples[index(x, y)]; }
    const Sample& at(int x, int y) const { return m_samples[index(x, y)]; }

private:
    [[nodiscard]] std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }

    int m_width;
    std::vector<Sample> m_samples;
};

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

/// The kernel's function at `x`, up to a factor that normalising the taps takes out again: the
/// table's middle column is the function times its value at 0.
float weightAt(const Filter& filter, double x)
{
    const int size = filter.kernel.size();
    const auto sample = static_cast<int>(std::lround((x / (2.0 * filter.support) + 0.5) * size));
    return sample >= 0 && sample < size ? filter.kernel.coeff(size / 2, sample) : 0.0F;
}

/// Adds a weight for the source position, where positions beyond an edge stand for the edge.
void addWeight(Taps& taps, int position, int length, float weight)
{
    const int clamped = qBound(0, position, length - 1);
    const auto slot = static_cast<std::size_t>(clamped - taps.first);
    if (slot >= taps.weights.size())
        taps.weights.resize(slot + 1, 0.0F);
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
    for (float& weight : taps.weights)
        weight /= sum;
    return taps;
}

std::vector<Taps> axisTaps(int sourceLength, int outputLength)
{
    const CBicubicKernel cubic(2 * CubicSupport * SamplesPerUnit, CubicSlope);
    const CLanczosKernel lanczos(2 * LanczosSupport * SamplesPerUnit, LanczosSupport);
    const Filter filter =
        outputLength < sourceLength ? Filter{lanczos, LanczosSupport} : Filter{cubic, CubicSupport};
    std::vector<Taps> taps;
    taps.reserve(static_cast<std::size_t>(outputLength));
    for (int output = 0; output < outputLength; ++output)
        taps.push_back(tapsFor(output, sourceLength, outputLength, filter));
    return taps;
}

enum class Axis { Horizontal, Vertical };

/// The weighted mean of the samples from (x, y) on, along the axis.
Sample applyKernel(const SampleGrid& source, const Taps& taps, int x, int y, Axis axis)
{
    Q_ASSERT_X(x >= 0 && y >= 0, "applyKernel", "x >= 0 && y >= 0");
    const int stepX = axis == Axis::Horizontal ? 1 : 0;
    const int stepY = 1 - stepX;
    Sample sum{};
    for (const float weight : taps.weights) {
        const Sample& sample = source.at(x, y);
        for (std::size_t channel = 0; channel < sum.size(); ++channel)
            sum[channel] += weight * sample[channel];
        x += stepX;
        y += stepY;
    }
    return sum;
}

SampleGrid samplesOf(const QImage& premultiplied)
{
    SampleGrid grid(premultiplied.width(), premultiplied.height());
    for (int y = 0; y < premultiplied.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(premultiplied.constScanLine(y));
        for (int x = 0; x < premultiplied.width(); ++x) {
            const QRgb pixel = line[x];
            grid.at(x, y) = {static_cast<float>(qRed(pixel)), static_cast<float>(qGreen(pixel)),
                             static_cast<float>(qBlue(pixel)), static_cast<float>(qAlpha(pixel))};
        }
    }
    return grid;
}

/// The sample as a premultiplied pixel. The kernels' negative lobes overshoot at hard edges: alpha
/// is held within its range, and colours within alpha.
QRgb pixelOf(const Sample& sample)
{
    const auto rounded = [](float value, int limit) {
        return qBound(0, static_cast<int>(std::lround(value)), limit);
    };
    const int alpha = rounded(sample[3], 255);
    return qRgba(rounded(sample[0], alpha), rounded(sample[1], alpha), rounded(sample[2], alpha),
                 alpha);
}

SampleGrid resampledRows(const QImage& source, int width)
{
    const SampleGrid samples = samplesOf(source);
    const std::vector<Taps> columns = axisTaps(source.width(), width);
    SampleGrid rows(width, source.height());
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < width; ++x) {
            const Taps& taps = columns[static_cast<std::size_t>(x)];
            rows.at(x, y) = applyKernel(samples, taps, taps.first, y, Axis::Horizontal);
        }
    }
    return rows;
}

/// Not empty, and within what Qt's older interfaces can count in an image: 2 GiB of pixels.
bool isReasonable(const QSize& size)
{
    constexpr auto limit = static_cast<qint64>(std::numeric_limits<int>::max());
    return !size.isEmpty() && qint64(size.width()) * size.height() <= limit / qint64(sizeof(QRgb));
}

int roundedSide(float side)
{
    constexpr auto largest = static_cast<float>(std::numeric_limits<int>::max() / 2);
    return static_cast<int>(std::lround(std::min(side, largest)));
}

QSize physicalDefaultSize(const QSvgRenderer& renderer)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double ratio = screen != nullptr ? screen->devicePixelRatio() : 1.0;
    const QSize size = renderer.defaultSize();
    return {static_cast<int>(std::lround(size.width() * ratio)),
            static_cast<int>(std::lround(size.height() * ratio))};
}

} // namespace

QSize scaled(const QSize& size, const QSize& bounds)
{
    if (size.isEmpty() || bounds.isEmpty())
        return {0, 0};
    const float widthRatio = static_cast<float>(size.width()) / static_cast<float>(bounds.width());
    const float heightRatio =
        static_cast<float>(size.height()) / static_cast<float>(bounds.height());
    const bool exceedsBoth = widthRatio > 1.0F && heightRatio > 1.0F;
    const float divisor =
        exceedsBoth ? std::max(widthRatio, heightRatio) : std::min(widthRatio, heightRatio);
    return {roundedSide(static_cast<float>(size.width()) / divisor),
            roundedSide(static_cast<float>(size.height()) / divisor)};
}

QImage CImageResizer::resize(const QImage& image, const QSize& size, ResizeMethod method,
                             AspectRatio aspect)
{
    const Qt::AspectRatioMode mode = aspect == Keep ? Qt::KeepAspectRatio : Qt::IgnoreAspectRatio;
    switch (method) {
    case Fast:
        return image.scaled(size, mode, Qt::FastTransformation);
    case Filtered:
        return image.scaled(size, mode, Qt::SmoothTransformation);
    case Bicubic:
        return bicubicInterpolation(image, size, aspect);
    }
    return {};
}

QImage CImageResizer::bicubicInterpolation(const QImage& image, const QSize& size,
                                           AspectRatio aspect)
{
    const QSize target = aspect == Keep ? scaled(image.size(), size) : size;
    if (image.isNull() || !isReasonable(target))
        return {};
    const bool hasAlpha = image.hasAlphaChannel();
    QImage result(target, hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (result.isNull())
        return {};

    const SampleGrid rows =
        resampledRows(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), target.width());
    const std::vector<Taps> lines = axisTaps(image.height(), target.height());
    for (int y = 0; y < target.height(); ++y) {
        const Taps& taps = lines[static_cast<std::size_t>(y)];
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < target.width(); ++x)
            line[x] = pixelOf(applyKernel(rows, taps, x, taps.first, Axis::Vertical));
    }
    return result;
}

QImage CImageResizer::svg(const QString& name, QSize* outSize, const QSize& requested)
{
    const auto store = [outSize](const QSize& size) {
        if (outSize != nullptr)
            *outSize = size;
    };
    QSvgRenderer renderer(QStringLiteral(":/%1.svg").arg(name));
    if (!renderer.isValid()) {
        store({-1, -1});
        return {};
    }
    const bool isRequested = requested.width() >= 0 && requested.height() >= 0;
    QImage image(isRequested ? requested : physicalDefaultSize(renderer),
                 QImage::Format_ARGB32_Premultiplied);
    if (!image.isNull()) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
    }
    store(image.size());
    return image;
}
