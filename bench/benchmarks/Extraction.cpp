#include "bench/benchmarks/Registrations.h"
#include "bench/support/BenchMedia.h"
#include "bench/support/FrameSource.h"
#include "bench/support/Positions.h"

#include <benchmark/benchmark.h>

#include <QFileInfo>

#include <string>

namespace bench {

namespace {

struct Sample
{
    const char* name;
    /// Number of positions per run: few if one takes seconds. Every run uses the same ones, because
    /// the time of an extraction depends on its distance from a key frame.
    int positions;
};

constexpr Sample samples[] = {{"1080p_h264_gop250.mp4", 20},
                              {"1080p_h264_gop30.mp4", 40},
                              {"2160p_hevc_gop120.mp4", 8},
                              {"720p_mpeg2.ts", 100}};

void extractAtRandomPositions(benchmark::State& state, const Sample& sample)
{
    FrameSource source(mediaPath(QString::fromLatin1(sample.name)));
    const std::vector<qint64> positions = randomPositions(source.duration(), sample.positions);
    // The first extraction after opening decodes every frame on its way; only later ones count.
    if (!source.frameAt(0).isValid()) {
        state.SkipWithError(qPrintable(source.error()));
        return;
    }
    auto position = positions.begin();
    for ([[maybe_unused]] auto _ : state) {
        const QtAV::VideoFrame frame = source.frameAt(*position);
        if (!frame.isValid()) {
            state.SkipWithError(qPrintable(source.error()));
            return;
        }
        if (++position == positions.end()) {
            position = positions.begin();
        }
    }
}

} // namespace

void registerExtraction()
{
    for (const Sample& sample : samples) {
        const QString name = QFileInfo(QString::fromLatin1(sample.name)).completeBaseName();
        benchmark::RegisterBenchmark(
            ("Extract/" + name.toStdString()).c_str(),
            [&sample](benchmark::State& state) { extractAtRandomPositions(state, sample); })
            ->Iterations(sample.positions)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
}

} // namespace bench
