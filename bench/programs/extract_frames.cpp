// Takes frames at positions given on standard input, one a line in milliseconds, out of one open
// FrameGrabber, saves each as a file of its own and answers with one line for each:
//
//   POSITION <tab> TIME OF THE FRAME <tab> EXTRACTION <tab> EXTRACTION TO FILE <tab> FILE
//
// The times are in milliseconds, the last two as a clock measured them. compare.py runs it beside
// other programs.

#include "bench/support/FrameSource.h"
#include "bench/support/OutputProfiles.h"
#include "bench/support/Sandbox.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>

#include <iostream>
#include <string>

namespace {

struct Options
{
    QString video;
    QDir folder;
    int precision = bench::FrameSource::automaticPrecision;
    bool keepsVideoSize = false;
};

Options parsed(const QGuiApplication& app)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("video"), QStringLiteral("Video to take from."));
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Where files go."));
    const QCommandLineOption precision(QStringLiteral("precision"),
                                       QStringLiteral("The grabber's precision."),
                                       QStringLiteral("ms"));
    const QCommandLineOption videoSize(QStringLiteral("video-size"),
                                       QStringLiteral("Keep the size instead of 640x480."));
    parser.addOptions({precision, videoSize});
    parser.process(app);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 2) {
        parser.showHelp(2);
    }
    Options options{arguments.at(0), QDir(arguments.at(1))};
    if (parser.isSet(precision)) {
        options.precision = parser.value(precision).toInt();
    }
    options.keepsVideoSize = parser.isSet(videoSize);
    return options;
}

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Answers one position; returns false on failure.
bool answer(qint64 position, const QDir& folder, bench::FrameSource& source,
            bench::OutputProfiles& profiles)
{
    const QString path = folder.filePath(QStringLiteral("%1.jpeg").arg(position));
    QElapsedTimer timer;
    timer.start();
    const QtAV::VideoFrame frame = source.frameAt(position);
    const double extraction = milliseconds(timer);
    if (!frame.isValid()) {
        std::cerr << qPrintable(source.error()) << std::endl;
        return false;
    }
    if (!profiles.save(frame, path)) {
        std::cerr << "cannot write " << qPrintable(path) << std::endl;
        return false;
    }
    const double toFile = milliseconds(timer);
    std::cout << position << '\t' << frame.timestamp() * 1000.0 << '\t' << extraction << '\t'
              << toFile << '\t' << qPrintable(path) << std::endl;
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const bench::Sandbox sandbox;
    const QGuiApplication app(argc, argv);
    const Options options = parsed(app);
    bench::FrameSource source(options.video, options.precision);
    bench::OutputProfiles profiles;
    if (options.keepsVideoSize) {
        profiles.keepVideoSize();
    }
    qint64 position = 0;
    while (std::cin >> position) {
        if (!answer(position, options.folder, source, profiles)) {
            return 1;
        }
    }
    return 0;
}
