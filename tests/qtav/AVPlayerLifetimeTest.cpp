#include "tests/qtav/Playing.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

#include <memory>
#include <optional>
#include <random>

using namespace playing;
using QtAV::AVPlayer;

namespace {

/// Runs the event loop this many times.
void turnEventLoop(int times)
{
    for (int i = 0; i < times; ++i) {
        QCoreApplication::processEvents();
    }
}

/// Thread sanitizer makes starting and ending threads many times as slow.
#ifdef __SANITIZE_THREAD__
constexpr int roundCount = 100;
#else
constexpr int roundCount = 500;
#endif

/// Resources of the process that would leak if they were not released.
struct Resources
{
    int files;
    int threads;

    bool operator==(const Resources& other) const
    {
        return files == other.files && threads == other.threads;
    }
};

char* toString(const Resources& resources)
{
    return QTest::toString(
        QStringLiteral("%1 open files, %2 threads").arg(resources.files).arg(resources.threads));
}

int entriesIn(const char* folder)
{
    return QDir(QString::fromLatin1(folder)).entryList(QDir::AllEntries | QDir::System).size();
}

/// Measured after everything being closed is closed; both are 0 on systems that do not report them.
Resources settledResources()
{
    const auto now = [] {
        return Resources{entriesIn("/proc/self/fd"), entriesIn("/proc/self/task")};
    };
    QElapsedTimer quiet;
    quiet.start();
    Resources last = now();
    while (quiet.elapsed() < 500) {
        QTest::qWait(20);
        const Resources next = now();
        if (!(next == last)) {
            quiet.restart();
        }
        last = next;
    }
    return last;
}

} // namespace

/// Players that end, and files that change, in the middle of every action. The sanitizers check
/// that nothing is used after its end.
class AVPlayerLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void player_canEnd_inTheMiddleOf_data();
    void player_canEnd_inTheMiddleOf();
    void player_canEnd_withAnsweredButUnreadCommands();
    void files_canBeOpenedAndClosed_manyTimes();
    void files_canReplaceEachOther_whileBeingOpened();
    void commands_inAnyOrder_leaveAPlayerThatWorks();
    void players_comeAndGo_withoutLeavingAnything();
    void frames_outliveThePlayer();
    void player_canBeStoppedAndPlayed_byItsOwnSignals();
};

void AVPlayerLifetimeTest::player_canEnd_inTheMiddleOf_data()
{
    QTest::addColumn<QString>("activity");
    QTest::addColumn<int>("turns");
    for (const char* activity : {"opening", "playing", "seeking", "stepping", "filling"}) {
        for (const int turns : {0, 1, 50}) {
            const QByteArray name = activity + QByteArray(", turns: ") + QByteArray::number(turns);
            QTest::newRow(name.constData()) << QString::fromLatin1(activity) << turns;
        }
    }
}

void AVPlayerLifetimeTest::player_canEnd_inTheMiddleOf()
{
    QFETCH(QString, activity);
    QFETCH(int, turns);
    for (int round = 0; round < 2; ++round) {
        auto stage = std::make_unique<Stage>();
        const QString file = QStringLiteral("h264_gop250.mp4");
        if (activity == QLatin1String("opening")) {
            stage->player.play(testsupport::samplePath(file));
        } else {
            QVERIFY(stage->open(file));
            if (activity == QLatin1String("playing")) {
                stage->player.play();
            } else if (activity == QLatin1String("seeking")) {
                stage->player.seek(4000 + round);
            } else if (activity == QLatin1String("stepping")) {
                stage->player.stepForward();
            } else {
                QVERIFY(stage->seek(4000));
            }
        }
        turnEventLoop(turns);
        stage.reset();
        turnEventLoop(1);
    }
}

void AVPlayerLifetimeTest::player_canEnd_withAnsweredButUnreadCommands()
{
    for (int round = 0; round < 20; ++round) {
        auto stage = std::make_unique<Stage>();
        QVERIFY(stage->open(QStringLiteral("h264_baseline.mp4")));
        // This answer shows that the decoding thread is running; the next ones are not awaited.
        QVERIFY(stage->seek(400));
        for (int i = 0; i < round; ++i) {
            stage->player.stepForward();
        }
    }
}

void AVPlayerLifetimeTest::files_canBeOpenedAndClosed_manyTimes()
{
    Stage stage;
    const QStringList files{QStringLiteral("vp8.webm"), QStringLiteral("mpeg2.ts"),
                            QStringLiteral("sound.mp4"), QStringLiteral("variable_rate.mkv")};
    std::optional<Resources> before;
    for (int round = 0; round < roundCount; ++round) {
        QVERIFY(stage.open(files.at(round % files.size())));
        QCOMPARE(stage.number(), 0);
        stage.player.stop();
        QVERIFY(!stage.screen.frame.isValid());
        if (round == files.size()) {
            before = settledResources();
        }
    }
    QCOMPARE(settledResources(), *before);
}

void AVPlayerLifetimeTest::files_canReplaceEachOther_whileBeingOpened()
{
    Stage stage;
    for (int round = 0; round < 30; ++round) {
        stage.player.play(testsupport::samplePath(QStringLiteral("mpeg2.ts")));
        turnEventLoop(round % 4);
        stage.player.play(testsupport::samplePath(QStringLiteral("text.mp4")));
        turnEventLoop(round % 3);
        stage.player.stop();
    }
    QVERIFY(stage.open(QStringLiteral("edit_list.mp4")));
    QCOMPARE(stage.number(), 35);
}

void AVPlayerLifetimeTest::commands_inAnyOrder_leaveAPlayerThatWorks()
{
    const QStringList files{QStringLiteral("h264_bframes.mp4"), QStringLiteral("sound.mp4"),
                            QStringLiteral("text.mp4"), QStringLiteral("mpeg2.ts")};
    Stage stage;
    std::mt19937 random(17);
    for (int i = 0; i < 500; ++i) {
        switch (random() % 9) {
        case 0:
            stage.player.play(testsupport::samplePath(files.at(int(random() % 4))));
            break;
        case 1:
            stage.player.play();
            break;
        case 2:
            stage.player.pause();
            break;
        case 3:
            stage.player.seek(qint64(random() % 5000));
            break;
        case 4:
            stage.player.stepForward();
            break;
        case 5:
            stage.player.stepBackward();
            break;
        case 6:
            if (random() % 4 == 0) {
                stage.player.stop();
            }
            break;
        case 7:
            stage.player.videoCapture()->capture();
            break;
        default:
            stage.player.audio()->setVolume(double(random() % 100) / 100.0);
            break;
        }
        turnEventLoop(int(random() % 5));
    }
    QVERIFY(stage.open(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(stage.seek(2000));
    QCOMPARE(stage.number(), 50);
}

/// Each round begins an action, and the next round may come before it is done.
void AVPlayerLifetimeTest::players_comeAndGo_withoutLeavingAnything()
{
    const QStringList files{QStringLiteral("h264_bframes.mp4"), QStringLiteral("sound.mp4"),
                            QStringLiteral("text.mp4"), QStringLiteral("mpeg2.ts"),
                            QStringLiteral("truncated.mkv")};
    std::optional<Resources> before;
    std::mt19937 random(29);
    auto stage = std::make_unique<Stage>();
    for (int round = 0; round < roundCount; ++round) {
        // By then, everything that is created once for all players exists.
        if (round == roundCount / 10) {
            stage.reset();
            before = settledResources();
            stage = std::make_unique<Stage>();
        }
        switch (random() % 4) {
        case 0:
            stage = std::make_unique<Stage>();
            break;
        case 1:
            stage->player.stop();
            break;
        default:
            break;
        }
        stage->player.play(testsupport::samplePath(files.at(int(random() % 5))));
        turnEventLoop(int(random() % 20));
        switch (random() % 4) {
        case 0:
            stage->player.seek(qint64(random() % 5000));
            break;
        case 1:
            stage->player.stepForward();
            break;
        case 2:
            stage->player.stepBackward();
            break;
        default:
            stage->player.pause();
            break;
        }
        turnEventLoop(int(random() % 20));
    }
    QVERIFY(stage->open(files.constFirst()));
    QVERIFY(stage->seek(2000));
    QCOMPARE(stage->number(), 50);
    stage.reset();
    QCOMPARE(settledResources(), *before);
}

void AVPlayerLifetimeTest::frames_outliveThePlayer()
{
    QtAV::VideoFrame frame;
    {
        Stage stage;
        QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
        QVERIFY(stage.seek(800));
        frame = stage.player.displayedFrame();
    }
    QCOMPARE(decoding::shown(frame).number, 20);
}

void AVPlayerLifetimeTest::player_canBeStoppedAndPlayed_byItsOwnSignals()
{
    Stage stage;
    int rounds = 0;
    connect(&stage.player, &AVPlayer::positionChanged, &stage.screen, [&](qint64 ms) {
        if (ms > 0 && rounds < 5) {
            ++rounds;
            stage.player.play(stage.player.file());
        }
    });
    stage.player.play(testsupport::samplePath(QStringLiteral("h264_baseline.mp4")));
    QTRY_COMPARE_WITH_TIMEOUT(rounds, 5, patienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(stage.number() > 2, patienceMs);
    QVERIFY(stage.player.isPlaying());
}

QTEST_GUILESS_MAIN(AVPlayerLifetimeTest)
#include "AVPlayerLifetimeTest.moc"
