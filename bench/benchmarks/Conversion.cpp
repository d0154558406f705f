#include "bench/bare/BareConversion.h"
#include "bench/benchmarks/Registrations.h"
#include "bench/support/BenchMedia.h"
#include "bench/support/FrameSource.h"

#include <benchmark/benchmark.h>

#include <string>

namespace bench {

namespace {

QString stillPath(const std::string& name)
{
    return mediaPath(QString::fromStdString(name + ".nut"));
}

/// Conversion of a frame of a video to a size, or to its own size if that is empty.
void toImage(benchmark::State& state, const QString& video, qint64 position, const QSize& size)
{
    FrameSource source(video, 0);
    const QtAV::VideoFrame frame = source.frameAt(position);
    if (!frame.isValid()) {
        state.SkipWithError(qPrintable(source.error()));
        return;
    }
    for ([[maybe_unused]] auto _ : state) {
        QImage image = frame.toImage(QImage::Format_ARGB32, size, QRectF());
        benchmark::DoNotOptimize(image.constBits());
    }
}

void bareConversion(benchmark::State& state, const std::string& still, ScalerFlags flags)
{
    BareConversion conversion(stillPath(still), flags);
    if (!conversion.isValid()) {
        state.SkipWithError(qPrintable(conversion.error()));
        return;
    }
    for ([[maybe_unused]] auto _ : state) {
        if (!conversion.run()) {
            state.SkipWithError("sws_scale failed");
            return;
        }
        benchmark::ClobberMemory();
    }
}

template <typename Function>
void add(const std::string& name, Function function)
{
    // Wall time, because the work may be done by other threads.
    benchmark::RegisterBenchmark(name.c_str(), function)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

/// The size of the picture in a window.
constexpr QSize window(1280, 720);

/// High dynamic range, at its own size and at that of a window.
void registerHdr(const std::string& size)
{
    for (const char* const transfer : {"smpte2084", "arib-std-b67"}) {
        const std::string still = size + '_' + transfer;
        const QString video = mediaPath(QString::fromStdString(still + ".mkv"));
        add("ToImage/" + still,
            [video](benchmark::State& state) { toImage(state, video, 0, QSize()); });
        add("ToImageOfWindow/" + still,
            [video](benchmark::State& state) { toImage(state, video, 0, window); });
    }
}

/// A combing picture, made whole from its neighbours.
void registerInterlaced()
{
    const QString video = mediaPath(QStringLiteral("1080i_mpeg2.ts"));
    add("ToImage/1080i_deinterlaced",
        [video](benchmark::State& state) { toImage(state, video, 1000, QSize()); });
}

} // namespace

void registerConversion()
{
    for (const char* const size : {"1080p", "2160p"}) {
        for (const char* const format : {"yuv420p", "nv12", "yuv420p10le"}) {
            const std::string still = std::string(size) + '_' + format;
            add("ToImage/" + still,
                [still](benchmark::State& state) { toImage(state, stillPath(still), 0, QSize()); });
            add("ToImageOfWindow/" + still,
                [still](benchmark::State& state) { toImage(state, stillPath(still), 0, window); });
            add("BareSwsScale/" + still, [still](benchmark::State& state) {
                bareConversion(state, still, ScalerFlags::Default);
            });
            add("BareSwsScaleExact/" + still, [still](benchmark::State& state) {
                bareConversion(state, still, ScalerFlags::Exact);
            });
        }
        registerHdr(size);
    }
    registerInterlaced();
}

} // namespace bench
