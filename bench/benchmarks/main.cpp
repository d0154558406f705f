// Runs the benchmarks of this folder. `--help` lists Google Benchmark's options.

#include "bench/bare/BareConversion.h"
#include "bench/benchmarks/Registrations.h"
#include "bench/support/Sandbox.h"

#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>

#include <QGuiApplication>

int main(int argc, char** argv)
{
    const bench::Sandbox sandbox;
    const QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::AddCustomContext("ffmpeg", bench::ffmpegVersion().toStdString());
    benchmark::AddCustomContext("opencv", cv::getVersionString());

    bench::registerExtraction();
    bench::registerConversion();
    bench::registerOutput(sandbox);
    bench::registerProfiles();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
