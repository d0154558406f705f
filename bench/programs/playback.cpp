// Plays a video in a window with the raster renderer and prints how many frames were shown and
// painted, how many came too late, and what share of one core all that took.

#include "app/MemoryPolicy.h"
#include "bench/support/Sandbox.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <ctime>

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    using QObject::QObject;
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

double cpuSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

/// Plays until the end or for this many seconds; returns false, with a message, on failure.
bool play(const QString& path, QSize size, int seconds)
{
    QtAV::VideoOutput output(QtAV::VideoOutput::Drawing::Raster);
    PaintCounter paints;
    output.widget()->installEventFilter(&paints);
    output.widget()->resize(size);
    output.widget()->show();

    QtAV::AVPlayer player;
    player.setRenderer(&output);
    player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    int shown = 0;
    QElapsedTimer time;
    double cpuBefore = 0.0;
    QObject::connect(&player, &QtAV::AVPlayer::positionChanged, &paints, [&shown] { ++shown; });
    QObject::connect(&player, &QtAV::AVPlayer::started, &paints, [&] {
        time.start();
        cpuBefore = cpuSeconds();
        paints.count = 0;
        QTimer::singleShot(seconds * 1000, qApp, &QCoreApplication::quit);
    });
    QObject::connect(&player, &QtAV::AVPlayer::mediaStatusChanged, qApp,
                     [](QtAV::MediaStatus status) {
                         if (status == QtAV::EndOfMedia || status == QtAV::InvalidMedia) {
                             QCoreApplication::quit();
                         }
                     });
    player.play(path);
    QCoreApplication::exec();
    if (!player.isLoaded()) {
        std::fprintf(stderr, "%s\n", qPrintable(player.errorString()));
        return false;
    }
    const double elapsed = double(time.elapsed()) / 1000.0;
    const double cpu = cpuSeconds() - cpuBefore;
    const int dropped = player.statistics().droppedFrames;
    std::printf("%.1f s: %d frames shown, %d painted, %d dropped (%.2f %%), %.0f %% of a core\n",
                elapsed, shown, paints.count, dropped, 100.0 * dropped / (shown + dropped),
                100.0 * cpu / elapsed);
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    MemoryPolicy::returnFreedMemory();
    const bench::Sandbox sandbox;
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("video"), QStringLiteral("Video to play."));
    const QCommandLineOption secondsOption(QStringLiteral("seconds"),
                                           QStringLiteral("Longest time to play."),
                                           QStringLiteral("n"), QStringLiteral("60"));
    const QCommandLineOption widthOption(QStringLiteral("width"),
                                         QStringLiteral("Of the window, which is 16 to 9."),
                                         QStringLiteral("pixels"), QStringLiteral("1280"));
    parser.addOptions({secondsOption, widthOption});
    parser.process(app);
    const int seconds = parser.value(secondsOption).toInt();
    const int width = parser.value(widthOption).toInt();
    if (parser.positionalArguments().size() != 1 || seconds < 1 || width < 16) {
        parser.showHelp(2);
    }
    const QSize size(width, width * 9 / 16);
    return play(parser.positionalArguments().constFirst(), size, seconds) ? 0 : 1;
}
