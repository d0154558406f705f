#include "bench/bare/BareConversion.h"
#include "bench/bare/BareJpeg.h"
#include "bench/benchmarks/Registrations.h"
#include "bench/support/BenchMedia.h"
#include "bench/support/FrameSource.h"
#include "bench/support/OutputProfiles.h"
#include "bench/support/Sandbox.h"
#include "imaging/ImageProcessingManager.h"
#include "profiles/WatermarkProfile.h"

#include <benchmark/benchmark.h>
#include <opencv2/imgproc.hpp>

#include <string>

namespace bench {

namespace {

QString stillPath(const std::string& size)
{
    return mediaPath(QString::fromStdString(size + "_yuv420p.nut"));
}

QtAV::VideoFrame stillFrame(benchmark::State& state, const std::string& size)
{
    FrameSource source(stillPath(size));
    QtAV::VideoFrame frame = source.frameAt(0);
    if (!frame.isValid()) {
        state.SkipWithError(qPrintable(source.error()));
    }
    return frame;
}

void processImage(benchmark::State& state, const std::string& size, WatermarkProfile* watermark)
{
    const QtAV::VideoFrame frame = stillFrame(state, size);
    if (!frame.isValid()) {
        return;
    }
    const QImage image = frame.toImage(frame.imageFormat());
    OutputProfiles profiles;
    for ([[maybe_unused]] auto _ : state) {
        QImage result =
            ImageProcessingManager::instance()->processImage(image, profiles.image(), watermark);
        benchmark::DoNotOptimize(result.constBits());
    }
}

void processImageWithWatermark(benchmark::State& state, const std::string& size)
{
    WatermarkProfile watermark;
    watermark.setText(QStringLiteral("The watermark of a benchmark"));
    watermark.setTextShadowXOffset(2);
    watermark.setTextShadowYOffset(2);
    processImage(state, size, &watermark);
}

void saveImage(benchmark::State& state, const QString& path, const QString& type)
{
    const QtAV::VideoFrame frame = stillFrame(state, "1080p");
    if (!frame.isValid()) {
        return;
    }
    OutputProfiles profiles;
    profiles.fileName()->setFileOutputType(type);
    auto* const manager = ImageProcessingManager::instance();
    const QImage image =
        manager->processImage(frame.toImage(frame.imageFormat()), profiles.image(), nullptr);
    for ([[maybe_unused]] auto _ : state) {
        if (!manager->saveImage(path, image, profiles.image(), profiles.fileName())) {
            state.SkipWithError("saveImage failed");
            return;
        }
    }
}

void frameToJpeg(benchmark::State& state, const QString& path, const std::string& size, Shape shape)
{
    const QtAV::VideoFrame frame = stillFrame(state, size);
    if (!frame.isValid()) {
        return;
    }
    OutputProfiles profiles(shape);
    for ([[maybe_unused]] auto _ : state) {
        if (!profiles.save(frame, path)) {
            state.SkipWithError("the file could not be saved");
            return;
        }
    }
}

/// The part of a frame that is taken for a shape, and its final size.
struct Geometry
{
    cv::Rect region;
    cv::Size size;
};

Geometry geometryOf(const cv::Mat& frame, Shape shape)
{
    if (shape == Shape::Fit) {
        return {{0, 0, frame.cols, frame.rows}, {640, 360}};
    }
    const int width = frame.rows * 4 / 3;
    return {{(frame.cols - width) / 2, 0, width, frame.rows}, {640, 480}};
}

/// The still as converted by FFmpeg; on failure an empty matrix, and the benchmark is skipped. The
/// matrix uses the conversion's memory.
cv::Mat bareFrame(benchmark::State& state, BareConversion& conversion)
{
    if (!conversion.isValid() || !conversion.run()) {
        state.SkipWithError(conversion.isValid() ? "sws_scale failed"
                                                 : qPrintable(conversion.error()));
        return {};
    }
    return {conversion.size().height(), conversion.size().width(), CV_8UC4, conversion.pixels(),
            static_cast<size_t>(conversion.bytesPerLine())};
}

void bareResize(benchmark::State& state, const std::string& size, Shape shape)
{
    BareConversion conversion(stillPath(size), ScalerFlags::Default);
    const cv::Mat frame = bareFrame(state, conversion);
    if (frame.empty()) {
        return;
    }
    const Geometry geometry = geometryOf(frame, shape);
    cv::Mat result;
    for ([[maybe_unused]] auto _ : state) {
        cv::resize(frame(geometry.region), result, geometry.size, 0.0, 0.0, cv::INTER_AREA);
        benchmark::ClobberMemory();
    }
}

void bareJpeg(benchmark::State& state, const std::string& size, Shape shape)
{
    BareConversion conversion(stillPath(size), ScalerFlags::Default);
    const cv::Mat frame = bareFrame(state, conversion);
    if (frame.empty()) {
        return;
    }
    const Geometry geometry = geometryOf(frame, shape);
    cv::Mat picture;
    cv::resize(frame(geometry.region), picture, geometry.size, 0.0, 0.0, cv::INTER_AREA);
    BareJpeg jpeg({picture.cols, picture.rows});
    constexpr int quality = 90;
    for ([[maybe_unused]] auto _ : state) {
        if (jpeg.encode(picture.data, picture.step[0], quality) == 0) {
            state.SkipWithError("tjCompress2 failed");
            return;
        }
    }
}

template <typename Function>
void add(const std::string& name, Function function)
{
    // Wall time, because other threads and the disk may be involved.
    benchmark::RegisterBenchmark(name.c_str(), function)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

void addRoad(const Sandbox& sandbox, const std::string& size, Shape shape)
{
    const std::string variant = size + (shape == Shape::Fit ? "_fit" : "_fill");
    const QString path = sandbox.filePath(QStringLiteral("road.jpeg"));
    add("FrameToJpeg/" + variant,
        [=](benchmark::State& state) { frameToJpeg(state, path, size, shape); });
    add("BareResize/" + variant, [=](benchmark::State& state) { bareResize(state, size, shape); });
    add("BareJpeg/" + variant, [=](benchmark::State& state) { bareJpeg(state, size, shape); });
}

} // namespace

void registerOutput(const Sandbox& sandbox)
{
    for (const std::string size : {"1080p", "2160p"}) {
        add("ProcessImage/" + size,
            [size](benchmark::State& state) { processImage(state, size, nullptr); });
        add("ProcessImage/" + size + "_watermark",
            [size](benchmark::State& state) { processImageWithWatermark(state, size); });
        addRoad(sandbox, size, Shape::Fit);
        addRoad(sandbox, size, Shape::Fill);
    }
    for (const QString& type : {QStringLiteral("jpeg"), QStringLiteral("png")}) {
        const QString path = sandbox.filePath(QStringLiteral("saved.") + type);
        add("SaveImage/" + type.toStdString(),
            [path, type](benchmark::State& state) { saveImage(state, path, type); });
    }
}

} // namespace bench
