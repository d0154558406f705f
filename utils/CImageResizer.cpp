#include "utils/CImageResizer.h"

#include "utils/KernelResampling.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using KernelResampling::Kernel;
using KernelResampling::Sample;

Kernel kernelFor(int sourceLength, int outputLength)
{
    return outputLength < sourceLength ? Kernel::Lanczos : Kernel::Cubic;
}

void readPixels(const QImage& premultiplied, int y, Sample* samples)
{
    const auto* line = reinterpret_cast<const QRgb*>(premultiplied.constScanLine(y));
    for (int x = 0; x < premultiplied.width(); ++x) {
        const QRgb pixel = line[x];
        samples[x] = {static_cast<float>(qRed(pixel)), static_cast<float>(qGreen(pixel)),
                      static_cast<float>(qBlue(pixel)), static_cast<float>(qAlpha(pixel))};
    }
}

/// Converts the sample to a premultiplied pixel. The kernels' negative lobes overshoot at hard
/// edges: alpha is clamped to its range, and colours to alpha.
QRgb pixelOf(const Sample& sample)
{
    const auto rounded = [](float value, int limit) {
        return qBound(0, static_cast<int>(std::lround(value)), limit);
    };
    const int alpha = rounded(sample[3], 255);
    return qRgba(rounded(sample[0], alpha), rounded(sample[1], alpha), rounded(sample[2], alpha),
                 alpha);
}

/// Not empty, and at most 2 GiB of pixels, which is what Qt's older interfaces can count.
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
    if (size.isEmpty() || bounds.isEmpty()) {
        return {0, 0};
    }
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
    if (image.isNull() || !isReasonable(target)) {
        return {};
    }
    const bool hasAlpha = image.hasAlphaChannel();
    QImage result(target, hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (result.isNull()) {
        return {};
    }

    const QImage source = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    KernelResampling::resample(
        image.size(), target,
        {kernelFor(image.width(), target.width()), kernelFor(image.height(), target.height())},
        [&source](int y, Sample* line) { readPixels(source, y, line); },
        [&result](int y, const Sample* line) {
            auto* const pixels = reinterpret_cast<QRgb*>(result.scanLine(y));
            std::transform(line, line + result.width(), pixels, pixelOf);
        });
    return result;
}

QImage CImageResizer::svg(const QString& name, QSize* outSize, const QSize& requested)
{
    const auto store = [outSize](const QSize& size) {
        if (outSize != nullptr) {
            *outSize = size;
        }
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
