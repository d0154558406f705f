// A player with a window that reads commands from standard input, one per line. Each is answered by
// one line of JSON once its picture has been painted:
//
//   open PATH        play() and pause(): up to the first frame
//   stop
//   seek MS          to a position in milliseconds
//   forward          a step to the very next frame
//   backward         a step to the very frame before
//   play MS          plays for so long, then pauses
//   cache MS         fills a frame cache around a position, without the window
//
// Opening, seeking and stepping answer {"painted": ms, "position": ms}, which is how long it took
// to the picture on screen and which picture it is; "seek" adds "finished", the time to
// seekFinished(). "play" answers how many frames were painted and dropped, "cache" how many there
// are and what they take. Where something failed, the answer is {"error": text}. compare_player.py
// runs this beside another player.

#include "app/GraphicsPolicy.h"
#include "app/MemoryPolicy.h"
#include "bench/support/Sandbox.h"
#include "qtav/player/FrameSource.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <iostream>
#include <string>
#include <thread>
#include <utility>

using QtAV::AVPlayer;

namespace {

/// A longer time counts as a failure.
constexpr int patienceMs = 120000;

/// Shows frames in a window and reports when one has been painted.
class Screen : public QtAV::VideoRenderer
{
    Q_OBJECT

public:
    Screen(QtAV::VideoOutput::Drawing drawing, const QSize& size)
        : m_output(drawing)
    {
        m_output.widget()->installEventFilter(this);
        connect(&m_output, &VideoRenderer::screenSizeChanged, this,
                &VideoRenderer::screenSizeChanged);
        m_output.widget()->resize(size);
        m_output.widget()->show();
    }

    void present(const QtAV::VideoFrame& frame) override
    {
        m_awaitsPaint = frame.isValid();
        m_output.present(frame);
    }

    QSize screenSize() const override { return m_output.screenSize(); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // The filter is called before the painting: what is queued here runs after it.
        const bool isPaint = event->type() == QEvent::Paint && m_output.isUpToDate();
        if (isPaint && std::exchange(m_awaitsPaint, false)) {
            QMetaObject::invokeMethod(this, &Screen::painted, Qt::QueuedConnection);
        }
        return VideoRenderer::eventFilter(watched, event);
    }

Q_SIGNALS:
    void painted();

private:
    QtAV::VideoOutput m_output;
    bool m_awaitsPaint = false;
};

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

QJsonObject failure(const QString& text)
{
    return {{QStringLiteral("error"), text}};
}

/// Carries out the commands. While it waits, the event loop runs as in the program.
class Session : public QObject
{
    Q_OBJECT

public:
    Session(QtAV::VideoOutput::Drawing drawing, const QSize& size)
        : m_screen(drawing, size)
    {
        m_player.setRenderer(&m_screen);
    }

    void setFrameCacheSize(qint64 bytes) { m_player.setFrameCacheSize(bytes); }

    QJsonObject answer(const QString& command, const QString& argument)
    {
        if (command == QLatin1String("open")) {
            return open(argument);
        }
        if (command == QLatin1String("seek")) {
            return seek(argument.toLongLong());
        }
        if (command == QLatin1String("forward")) {
            return untilPainted([this] { m_player.stepForward(); });
        }
        if (command == QLatin1String("backward")) {
            return untilPainted([this] { m_player.stepBackward(); });
        }
        if (command == QLatin1String("play")) {
            return play(argument.toInt());
        }
        if (command == QLatin1String("stop")) {
            return stop();
        }
        if (command == QLatin1String("cache")) {
            return fillCache(argument.toLongLong());
        }
        return failure(QStringLiteral("unknown command %1").arg(command));
    }

private:
    QJsonObject open(const QString& path)
    {
        return untilPainted([this, path] {
            m_player.play(path);
            m_player.pause();
        });
    }

    QJsonObject stop()
    {
        m_player.stop();
        return {};
    }

    QJsonObject seek(qint64 ms)
    {
        QElapsedTimer timer;
        double finished = 0.0;
        const auto note = [&timer, &finished] { finished = milliseconds(timer); };
        const auto connection = connect(&m_player, &AVPlayer::seekFinished, this, note);
        timer.start();
        QJsonObject result = untilPainted([this, ms] { m_player.setPosition(ms); });
        disconnect(connection);
        result.insert(QStringLiteral("finished"), finished);
        return result;
    }

    QJsonObject untilPainted(const std::function<void()>& action)
    {
        QEventLoop loop;
        QTimer patience;
        patience.setSingleShot(true);
        bool isPainted = false;
        connect(&m_screen, &Screen::painted, &loop, [&isPainted, &loop] {
            isPainted = true;
            loop.quit();
        });
        connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
        patience.start(patienceMs);
        QElapsedTimer timer;
        timer.start();
        action();
        loop.exec();
        const double elapsed = milliseconds(timer);
        if (!isPainted) {
            return failure(QStringLiteral("no picture: %1").arg(m_player.errorString()));
        }
        return {{QStringLiteral("painted"), elapsed},
                {QStringLiteral("position"), m_player.displayedFrame().timestamp() * 1000.0}};
    }

    QJsonObject play(int ms)
    {
        int painted = 0;
        const int droppedBefore = m_player.statistics().droppedFrames;
        const auto count = [&painted] { ++painted; };
        const auto connection = connect(&m_screen, &Screen::painted, this, count);
        m_player.play();
        QEventLoop loop;
        QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
        m_player.pause();
        disconnect(connection);
        return {{QStringLiteral("painted"), painted},
                {QStringLiteral("dropped"), m_player.statistics().droppedFrames - droppedBefore}};
    }

    QJsonObject fillCache(qint64 ms) const
    {
        const auto isCancelled = [] { return false; };
        QtAV::FrameSource source;
        QString error;
        if (!source.open(m_player.file(), m_player.frameCacheSize(), isCancelled, error)) {
            return failure(error);
        }
        const QtAV::FrameResult found = source.frameAt(ms, isCancelled);
        source.setFocus(found.frame.timestamp());
        while (source.prepare(QtAV::FrameSource::longestRest, isCancelled)) {
        }
        return {{QStringLiteral("frames"), source.cache().frameCount()},
                {QStringLiteral("bytes"), source.cache().byteCount()}};
    }

    Screen m_screen;
    AVPlayer m_player;
};

/// Reads commands and lets the session's thread answer them one after another.
void readCommands(Session& session)
{
    std::string line;
    while (std::getline(std::cin, line)) {
        const QString text = QString::fromStdString(line);
        const QString command = text.section(QLatin1Char(' '), 0, 0);
        const QString argument = text.section(QLatin1Char(' '), 1);
        QJsonObject answer;
        QMetaObject::invokeMethod(
            &session, [&] { answer = session.answer(command, argument); },
            Qt::BlockingQueuedConnection);
        std::cout << QJsonDocument(answer).toJson(QJsonDocument::Compact).constData() << std::endl;
    }
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

} // namespace

int main(int argc, char** argv)
{
    MemoryPolicy::returnFreedMemory();
    const bench::Sandbox sandbox(bench::Sandbox::Display::Own);
    const bool drawsWithOpenGL = std::any_of(argv + 1, argv + argc, [](const char* argument) {
        return qstrcmp(argument, "--opengl") == 0;
    });
    if (!drawsWithOpenGL) {
        GraphicsPolicy::avoidImitatedOpenGL();
    }
    const QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption openGL(QStringLiteral("opengl"),
                                    QStringLiteral("Draw with OpenGL instead of the processor."));
    const QCommandLineOption width(QStringLiteral("width"), QStringLiteral("Of the window."),
                                   QStringLiteral("pixels"), QStringLiteral("960"));
    const QCommandLineOption height(QStringLiteral("height"), QStringLiteral("Of the window."),
                                    QStringLiteral("pixels"), QStringLiteral("540"));
    const QCommandLineOption cache(QStringLiteral("cache"),
                                   QStringLiteral("Most memory for the frame cache."),
                                   QStringLiteral("MiB"));
    parser.addOptions({openGL, width, height, cache});
    parser.process(app);

    using Drawing = QtAV::VideoOutput::Drawing;
    Session session(drawsWithOpenGL ? Drawing::OpenGL : Drawing::Raster,
                    QSize(parser.value(width).toInt(), parser.value(height).toInt()));
    if (parser.isSet(cache)) {
        session.setFrameCacheSize(parser.value(cache).toLongLong() << 20);
    }
    std::thread reader([&session] { readCommands(session); });
    const int result = QApplication::exec();
    reader.join();
    return result;
}

#include "player_times.moc"
