// Takes many frames at random positions out of one open FrameGrabber, saves each as a file, and
// prints the peak of resident memory in either half of the run: a leak shows as a second half that
// peaks higher than the first. Linux only, since the peak is read from /proc.

#include "bench/support/FrameSource.h"
#include "bench/support/OutputProfiles.h"
#include "bench/support/Positions.h"
#include "bench/support/Sandbox.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

/// Makes the kernel reset the peak.
bool resetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("5") == 1;
}

/// Peak of resident memory in KiB since the last reset; nothing if the kernel does not report it.
std::optional<long> peak()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray prefix = QByteArrayLiteral("VmHWM:");
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(prefix)) {
            return line.mid(prefix.size()).simplified().split(' ').constFirst().toLong();
        }
    }
    return std::nullopt;
}

using Iterator = std::vector<qint64>::const_iterator;

/// Takes a frame at each of the positions and saves it; returns false on the first failure.
bool takeFrames(bench::FrameSource& source, const QString& path, Iterator position, Iterator end)
{
    bench::OutputProfiles profiles;
    for (; position != end; ++position) {
        const QtAV::VideoFrame frame = source.frameAt(*position);
        if (!frame.isValid()) {
            std::fprintf(stderr, "%s\n", qPrintable(source.error()));
            return false;
        }
        if (!profiles.save(frame, path)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return false;
        }
    }
    return true;
}

/// The peak in KiB while taking these frames; nothing on failure.
std::optional<long> peakOf(bench::FrameSource& source, const QString& path, Iterator begin,
                           Iterator end)
{
    if (!resetPeak()) {
        std::fprintf(stderr, "the kernel does not reset the peak of memory\n");
        return std::nullopt;
    }
    return takeFrames(source, path, begin, end) ? peak() : std::nullopt;
}

} // namespace

int main(int argc, char** argv)
{
    const bench::Sandbox sandbox;
    const QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("video"), QStringLiteral("Video to take from."));
    const QCommandLineOption countOption(QStringLiteral("count"), QStringLiteral("Frames to take."),
                                         QStringLiteral("n"), QStringLiteral("10000"));
    parser.addOption(countOption);
    parser.process(app);
    const int count = parser.value(countOption).toInt();
    if (parser.positionalArguments().size() != 1 || count < 2) {
        parser.showHelp(2);
    }

    bench::FrameSource source(parser.positionalArguments().constFirst());
    const std::vector<qint64> positions = bench::randomPositions(source.duration(), count);
    const QString path = sandbox.filePath(QStringLiteral("frame.jpeg"));
    const auto middle = positions.begin() + count / 2;
    const std::optional<long> first = peakOf(source, path, positions.begin(), middle);
    const std::optional<long> second =
        first ? peakOf(source, path, middle, positions.end()) : std::nullopt;
    if (!second) {
        return 1;
    }
    std::printf("%d extractions: peak %.1f MiB in the first half, %.1f MiB in the second, "
                "ratio %.3f\n",
                count, static_cast<double>(*first) / 1024.0, static_cast<double>(*second) / 1024.0,
                static_cast<double>(*second) / static_cast<double>(*first));
    return 0;
}
