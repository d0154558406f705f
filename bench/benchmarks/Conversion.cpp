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

void toImage(benchmark::State& state, const std::string& still)
{
    FrameSource source(stillPath(still));
    const QtAV::VideoFrame frame = source.frameAt(0);
    if (!frame.isValid()) {
        state.SkipWithError(qPrintable(source.error()));
        return;
    }
    for ([[maybe_unused]] auto _ : state) {
        QImage image = frame.toImage(QImage::Format_ARGB32, QSize(), QRectF());
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
    // Real time: the work may go to other threads.
    benchmark::RegisterBenchmark(name.c_str(), function)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

} // namespace

void registerConversion()
{
    for (const char* const size : {"1080p", "2160p"}) {
        for (const char* const format : {"yuv420p", "nv12", "yuv420p10le"}) {
            const std::string still = std::string(size) + '_' + format;
            add("ToImage/" + still, [still](benchmark::State& state) { toImage(state, still); });
            add("BareSwsScale/" + still, [still](benchmark::State& state) {
                bareConversion(state, still, ScalerFlags::Default);
            });
            add("BareSwsScaleExact/" + still, [still](benchmark::State& state) {
                bareConversion(state, still, ScalerFlags::Exact);
            });
        }
    }
}

} // namespace bench
