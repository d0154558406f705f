#include "tests/qtav/Playing.h"

#include <QTest>

#include <algorithm>
#include <initializer_list>
#include <random>

using namespace decoding;
using namespace playing;
using QtAV::AVPlayer;
using testsupport::Sample;

namespace {

#ifdef __SANITIZE_THREAD__
// The threads do the same for all files, and thread sanitizer takes minutes for what some decoders
// copy: one file for the steps and one for the moves is enough.
constexpr int mostFiles = 1;
constexpr int moveCount = 200;
#else
constexpr int mostFiles = 100;
constexpr int moveCount = 1000;
#endif

void addRows(const QStringList& files)
{
    QTest::addColumn<QString>("file");
    for (const QString& file : files.mid(0, mostFiles)) {
        QTest::newRow(qPrintable(file)) << file;
    }
}

QStringList namesOf(std::initializer_list<const char*> files)
{
    QStringList names;
    for (const char* file : files) {
        names.append(QString::fromLatin1(file));
    }
    return names;
}

} // namespace

/// Which frame a player shows after seeks and steps, with the files of several formats.
class AVPlayerSeekTest : public QObject
{
    Q_OBJECT

private slots:
    void steps_meetEveryFrameOnce_toTheEndAndBack_data();
    void steps_meetEveryFrameOnce_toTheEndAndBack();
    void steps_addUpToALimit_whenNobodyWaits();
    void step_pauses_whilePlaying_andGoesFromTheFrameOnScreen();
    void mixedStepsAndSeeks_endOnTheRightFrame_data();
    void mixedStepsAndSeeks_endOnTheRightFrame();
    void positions_areClamped();
    void seek_showsTheFirstFrameAtOrAfter_data();
    void seek_showsTheFirstFrameAtOrAfter();
    void seek_beforeTheFileIsOpen_isCarriedOut();
    void seek_playsOn_whilePlaying();
    void newestSeek_wins_andAloneIsAnswered_data();
    void newestSeek_wins_andAloneIsAnswered();
    void newestSeek_wins_whenOthersAreAnswered();
    void seeks_leaveTheEnd_andReturnToIt();
    void truncatedFile_canBeSoughtAndStepped();
};

void AVPlayerSeekTest::steps_meetEveryFrameOnce_toTheEndAndBack_data()
{
    addRows(namesOf({"h264_gop250.mp4", "mpeg2.ts", "h264_bframes.mp4", "variable_rate.mp4",
                     "variable_rate.mkv", "h264_open_gop_bframes.mp4", "hevc_open_gop.mp4",
                     "h264.ts", "mpeg4_packed_bframes.avi"}));
}

void AVPlayerSeekTest::steps_meetEveryFrameOnce_toTheEndAndBack()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    Stage stage;
    QVERIFY(stage.open(file));
    QList<Shown> expected = expectedFrom(sample, 0);
    for (int n = 1; n < sample.frames; ++n) {
        QVERIFY(stage.stepForward());
    }
    QCOMPARE(stage.screen.shown, expected);
    stage.player.stepForward(); // there is none
    stage.settle();
    QCOMPARE(stage.screen.shown.size(), sample.frames);

    stage.screen.shown = {stage.screen.shown.constLast()};
    for (int n = 1; n < sample.frames; ++n) {
        QVERIFY(stage.stepBackward());
    }
    std::reverse(expected.begin(), expected.end());
    QCOMPARE(stage.screen.shown, expected);
    stage.player.stepBackward(); // there is none
    stage.settle();
    QCOMPARE(stage.screen.shown.size(), sample.frames);
}

void AVPlayerSeekTest::steps_addUpToALimit_whenNobodyWaits()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("h264_bframes.mp4")));
    for (int i = 0; i < 30; ++i) {
        stage.player.stepForward();
    }
    for (int i = 0; i < 10; ++i) {
        stage.player.stepBackward();
    }
    stage.settle();
    QTRY_COMPARE_WITH_TIMEOUT(stage.number(), 20, patienceMs);
    QVERIFY(stage.screen.shown.size() <= 41);
}

void AVPlayerSeekTest::step_pauses_whilePlaying_andGoesFromTheFrameOnScreen()
{
    Stage stage;
    stage.player.play(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")));
    QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 10, patienceMs);
    const int number = stage.number();
    QVERIFY(stage.stepBackward());
    QVERIFY(stage.player.isPaused());
    QCOMPARE(stage.number(), number - 1);
    stage.player.play();
    QTRY_VERIFY_WITH_TIMEOUT(stage.number() > number + 2, patienceMs);
    const int later = stage.number();
    QVERIFY(stage.stepForward());
    QCOMPARE(stage.number(), later + 1);
}

void AVPlayerSeekTest::mixedStepsAndSeeks_endOnTheRightFrame_data()
{
    addRows(namesOf({"mpeg2.ts", "h264.ts", "h264_bframes.mp4", "variable_rate.mp4",
                     "h264_open_gop_bframes.mp4", "hevc_open_gop.mp4"}));
}

/// Many moves: to the next frame, to the previous one, to any, and to any followed by a few steps
/// without waiting. The cache has room for few frames, so that most are decoded again.
void AVPlayerSeekTest::mixedStepsAndSeeks_endOnTheRightFrame()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    const int last = sample.frames - 1;
    Stage stage;
    stage.player.setFrameCacheSize(30 * 320 * 240 * 3 / 2);
    QVERIFY(stage.open(file));
    int n = 0;
    std::mt19937 random(11);
    for (int moves = 0; moves < moveCount; ++moves) {
        const auto choice = random() % 10;
        if (choice < 4 && n < last) {
            QVERIFY(stage.stepForward());
            ++n;
        } else if (choice < 8 && n > 0) {
            QVERIFY(stage.stepBackward());
            --n;
        } else {
            n = int(random() % quint32(sample.frames));
            const qint64 ms = testsupport::frameTimeMs(sample, n);
            if (choice < 9) {
                QVERIFY(stage.seek(ms));
            } else {
                const int steps = int(random() % 7) - 3;
                stage.player.setPosition(ms);
                for (int i = 0; i < std::abs(steps); ++i) {
                    steps > 0 ? stage.player.stepForward() : stage.player.stepBackward();
                }
                n = std::clamp(n + steps, 0, last);
            }
        }
        const Shown expected{sample.firstNumber + n, testsupport::frameTimeMs(sample, n)};
        QSignalSpy presented(&stage.screen, &Screen::presented);
        while (!(shown(stage.screen.frame) == expected) && presented.wait(patienceMs)) {
        }
        QCOMPARE(shown(stage.screen.frame), expected);
        QCOMPARE(stage.player.displayPosition(), expected.ms);
    }
}

void AVPlayerSeekTest::positions_areClamped()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(stage.seek(2000));
    stage.player.setPosition(-600);
    QCOMPARE(stage.player.position(), qint64(0));
    QSignalSpy sought(&stage.player, &AVPlayer::seekFinished);
    QVERIFY(sought.wait(patienceMs));
    QCOMPARE(stage.number(), 0);
    stage.player.setPosition(3600000);
    QCOMPARE(stage.player.position(), stage.player.duration());
    QVERIFY(sought.wait(patienceMs));
    QCOMPARE(stage.number(), 99);
    QCOMPARE(stage.player.position(), qint64(3960));
    QVERIFY(stage.stepBackward());
    QCOMPARE(stage.number(), 98);
}

void AVPlayerSeekTest::seek_showsTheFirstFrameAtOrAfter_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"variable_rate.mp4", "h264_23976fps.mkv", "h264.ts", "wmv2.wmv",
                             "h264_bframes.avi", "sound_earlier.mkv", "no_cues.webm"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void AVPlayerSeekTest::seek_showsTheFirstFrameAtOrAfter()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    Stage stage;
    QVERIFY(stage.open(file));
    std::mt19937 random(3);
    for (int i = 0; i < 20; ++i) {
        const int n = 1 + int(random() % quint32(sample.frames - 1));
        const qint64 ms = testsupport::frameTimeMs(sample, n);
        const qint64 before = testsupport::frameTimeMs(sample, n - 1);
        QVERIFY(stage.seek(ms));
        QCOMPARE(shown(stage.screen.frame), expectedFrom(sample, n).constFirst());
        QVERIFY(stage.seek(before + 1));
        QCOMPARE(shown(stage.screen.frame), expectedFrom(sample, n).constFirst());
        QVERIFY(stage.seek(before));
        QCOMPARE(shown(stage.screen.frame), expectedFrom(sample, n - 1).constFirst());
    }
}

void AVPlayerSeekTest::seek_beforeTheFileIsOpen_isCarriedOut()
{
    Stage stage;
    QSignalSpy sought(&stage.player, &AVPlayer::seekFinished);
    stage.player.play(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    stage.player.pause();
    stage.player.setPosition(1000);
    stage.player.setPosition(2000);
    QVERIFY(sought.wait(patienceMs));
    stage.settle();
    QCOMPARE(sought.count(), 1);
    QCOMPARE(stage.number(), 50);
}

void AVPlayerSeekTest::seek_playsOn_whilePlaying()
{
    Stage stage;
    stage.player.play(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")));
    QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 3, patienceMs);
    for (const int n : {300, 100, 480, 20}) {
        stage.screen.shown.clear();
        QVERIFY(stage.seek(n * 40));
        QVERIFY(stage.player.isPlaying());
        QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 4, patienceMs);
        QCOMPARE(stage.screen.shown.constFirst().number, n);
        for (int i = 1; i < stage.screen.shown.size(); ++i) {
            QVERIFY(stage.screen.shown.at(i).number > stage.screen.shown.at(i - 1).number);
        }
    }
}

void AVPlayerSeekTest::newestSeek_wins_andAloneIsAnswered_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<qint64>("newest");
    QTest::addColumn<bool>("plays");
    const QString whole = QStringLiteral("h264_gop250.mp4");
    QTest::newRow("paused") << whole << qint64(12000) << false;
    QTest::newRow("playing") << whole << qint64(12000) << true;
    QTest::newRow("to the end") << whole << qint64(20760) << false;
    QTest::newRow("past the end") << whole << qint64(3600000) << false;
    QTest::newRow("past the end, playing") << whole << qint64(3600000) << true;
    for (const char* file : {"truncated.mp4", "truncated.ts", "truncated.mkv", "truncated.avi"}) {
        const QByteArray name(file);
        QTest::newRow((name + ", what is there").constData())
            << QString::fromLatin1(file) << qint64(800) << false;
        QTest::newRow((name + ", what is missing").constData())
            << QString::fromLatin1(file) << qint64(3600000) << false;
        QTest::newRow((name + ", what is missing, playing").constData())
            << QString::fromLatin1(file) << qint64(3600000) << true;
    }
}

void AVPlayerSeekTest::newestSeek_wins_andAloneIsAnswered()
{
    QFETCH(QString, file);
    QFETCH(qint64, newest);
    QFETCH(bool, plays);
    Stage quiet;
    QVERIFY(quiet.open(file));
    QVERIFY(quiet.seek(newest));
    const Shown expected = shown(quiet.screen.frame);
    QVERIFY(expected.ms > 0);

    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(file));
    if (plays) {
        stage.player.play();
        QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 2, patienceMs);
    }
    QSignalSpy sought(&stage.player, &AVPlayer::seekFinished);
    std::mt19937 random(5);
    stage.screen.shown.clear();
    for (int i = 0; i < 200; ++i) {
        stage.player.seek(qint64(random() % 20000));
    }
    stage.player.seek(newest);
    QVERIFY(sought.wait(patienceMs));
    QCOMPARE(sought.at(0).at(0).toLongLong(), expected.ms);
    QCOMPARE(stage.screen.shown.constFirst(), expected);
    stage.settle();
    QCOMPARE(sought.count(), 1);
    if (!plays) {
        QCOMPARE(stage.screen.shown.size(), 1);
    } else if (newest > stage.player.duration()) {
        QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    } else {
        QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 3, patienceMs);
    }
}

/// With the event loop between them each may be answered, but the last one is.
void AVPlayerSeekTest::newestSeek_wins_whenOthersAreAnswered()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("h264_gop250.mp4")));
    QSignalSpy sought(&stage.player, &AVPlayer::seekFinished);
    std::mt19937 random(5);
    for (int i = 0; i < 200; ++i) {
        stage.player.seek(qint64(random() % 20000));
        QCoreApplication::processEvents();
    }
    stage.player.seek(4000);
    QTRY_COMPARE_WITH_TIMEOUT(stage.number(), 100, patienceMs);
    const int answers = sought.count();
    QVERIFY(answers <= 201);
    stage.settle();
    QCOMPARE(sought.count(), answers);
}

void AVPlayerSeekTest::seeks_leaveTheEnd_andReturnToIt()
{
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(stage.seek(3800));
    for (int round = 0; round < 3; ++round) {
        stage.player.play();
        QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
        QCOMPARE(stage.number(), 99);
        QVERIFY(stage.seek(5000)); // past the end, and there already
        QCOMPARE(stage.number(), 99);
        QVERIFY(stage.stepBackward());
        QCOMPARE(stage.number(), 98);
        QVERIFY(stage.seek(3720));
        QCOMPARE(stage.number(), 93);
        QVERIFY(stage.player.isPaused());
        QCOMPARE(stage.player.mediaStatus(), QtAV::LoadedMedia);
    }
}

void AVPlayerSeekTest::truncatedFile_canBeSoughtAndStepped()
{
    for (const char* file : {"truncated.mp4", "truncated.ts", "truncated.mkv", "truncated.avi"}) {
        Stage stage;
        stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
        QVERIFY(stage.open(QString::fromLatin1(file)));
        QVERIFY(stage.seek(3600000));
        const qint64 last = stage.player.displayPosition();
        QVERIFY(last > 0);
        QVERIFY(stage.stepBackward());
        QVERIFY(stage.player.displayPosition() < last);
        QVERIFY(stage.stepForward());
        QCOMPARE(stage.player.displayPosition(), last);
        stage.player.play();
        QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    }
}

QTEST_GUILESS_MAIN(AVPlayerSeekTest)
#include "AVPlayerSeekTest.moc"
