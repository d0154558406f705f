#include "tests/qtav/Playing.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace decoding;
using namespace playing;
using QtAV::AVPlayer;
using testsupport::Sample;

/// The commands of a player: opening, playing, pausing, ending, capturing.
class AVPlayerTest : public QObject
{
    Q_OBJECT

private slots:
    void newPlayer_isStopped_andHasNothing();
    void play_showsEveryFrame_andPausesOnTheLast();
    void play_startsOver_fromTheEnd();
    void play_startsOver_fromTheLastFrame_howeverItCameThere_data();
    void play_startsOver_fromTheLastFrame_howeverItCameThere();
    void duration_grows_whenFramesComeBehindIt();
    void playback_stops_atTheEnd_whenToldSo();
    void playback_ends_forEachFormat_data();
    void playback_ends_forEachFormat();
    void pause_andPlay_changeTheState_andAreSignalled();
    void pause_holds_whileTheFileIsBeingOpened();
    void stop_closesTheFile_andBlackensTheScreen();
    void otherFile_replacesTheFirst_whenPlayed();
    void unplayableFile_endsInvalidAndStopped_data();
    void unplayableFile_endsInvalidAndStopped();
    void goodFile_plays_afterAnUnplayableOne();
    void step_pausesWithAReason_whereTheFileIsLost();
    void calls_doNothing_withoutAFile();
    void capture_givesTheFrameOnScreen_asADecoderDoes_data();
    void capture_givesTheFrameOnScreen_asADecoderDoes();
    void capture_fails_withoutAFrame();
    void statistics_tellTheSizeOnScreen();
    void renderer_mayGo_beforeThePlayer();
};

void AVPlayerTest::newPlayer_isStopped_andHasNothing()
{
    AVPlayer player;
    QCOMPARE(player.state(), AVPlayer::StoppedState);
    QVERIFY(!player.isPlaying());
    QVERIFY(!player.isPaused());
    QVERIFY(!player.isLoaded());
    QCOMPARE(player.mediaStatus(), QtAV::NoMedia);
    QCOMPARE(player.duration(), qint64(0));
    QCOMPARE(player.position(), qint64(0));
    QCOMPARE(player.displayPosition(), qint64(0));
    QCOMPARE(player.statistics().video_only.width, 0);
    QCOMPARE(player.frameCacheSize(), qint64(224) << 20);
    QVERIFY(player.videoCapture());
    QCOMPARE(player.audio()->volume(), 1.0);
}

void AVPlayerTest::play_showsEveryFrame_andPausesOnTheLast()
{
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("h264_bframes.mp4"));
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QSignalSpy started(&stage.player, &AVPlayer::started);
    QSignalSpy states(&stage.player, &AVPlayer::stateChanged);
    QSignalSpy durations(&stage.player, &AVPlayer::durationChanged);
    QSignalSpy intervals(&stage.player, &AVPlayer::notifyIntervalChanged);
    stage.player.play(testsupport::samplePath(sample.file));
    QVERIFY(stage.player.isPlaying());
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QVERIFY(stage.player.isPaused());
    QCOMPARE(started.count(), 1);
    QCOMPARE(states.count(), 2);
    QCOMPARE(durations.count(), 1);
    QCOMPARE(durations.at(0).at(0).toLongLong(), qint64(4000));
    QCOMPARE(intervals.count(), 1);
    QCOMPARE(stage.player.notifyInterval(), 40);
    // A machine under load may drop some, but shows none twice or out of order.
    const QList<Shown> all = stage.screen.shown;
    for (int i = 1; i < all.size(); ++i) {
        QVERIFY(all.at(i).number > all.at(i - 1).number);
    }
    QCOMPARE(all.size() + stage.player.statistics().droppedFrames, sample.frames);
    QCOMPARE(all.constLast(), expectedFrom(sample, 0).constLast());
}

void AVPlayerTest::play_startsOver_fromTheEnd()
{
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    QVERIFY(stage.seek(1900));
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    stage.screen.shown.clear();
    stage.player.play();
    QVERIFY(stage.player.isPlaying());
    QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 3, patienceMs);
    QCOMPARE(stage.screen.shown.constFirst().number, 0);
    QCOMPARE(stage.player.mediaStatus(), QtAV::LoadedMedia);
    QVERIFY(stage.screen.shown.constLast().number < 40);
}

void AVPlayerTest::play_startsOver_fromTheLastFrame_howeverItCameThere_data()
{
    QTest::addColumn<qint64>("position");
    QTest::addColumn<int>("steps");
    QTest::newRow("by a seek") << qint64(1960) << 0;
    QTest::newRow("by a seek past the end") << qint64(3600000) << 0;
    QTest::newRow("by a step") << qint64(1920) << 1;
    QTest::newRow("by steps against the end") << qint64(1920) << 3;
}

void AVPlayerTest::play_startsOver_fromTheLastFrame_howeverItCameThere()
{
    QFETCH(qint64, position);
    QFETCH(int, steps);
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    QVERIFY(stage.seek(position));
    for (int i = 0; i < steps; ++i) {
        stage.player.stepForward();
    }
    QTRY_COMPARE_WITH_TIMEOUT(stage.number(), 49, patienceMs);
    stage.settle();
    stage.screen.shown.clear();
    stage.player.play();
    QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 3, patienceMs);
    QCOMPARE(stage.screen.shown.constFirst().number, 0);
    QVERIFY(stage.player.isPlaying());
    // Not forever.
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QVERIFY(stage.player.isPaused());
}

/// As with a recording in progress: the rest of the file appears after it was opened.
void AVPlayerTest::duration_grows_whenFramesComeBehindIt()
{
    QFile whole(testsupport::samplePath(QStringLiteral("mpeg2.ts")));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QTemporaryDir folder;
    QFile grown(folder.filePath(QStringLiteral("grown.ts")));
    QVERIFY(grown.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QVERIFY(grown.write(whole.read(whole.size() / 2 / 188 * 188)) > 0);

    Stage stage;
    stage.player.play(grown.fileName());
    stage.player.pause();
    QVERIFY(stage.waitForStatus(QtAV::LoadedMedia));
    const qint64 half = stage.player.duration();
    QVERIFY(half > 0);
    QSignalSpy durations(&stage.player, &AVPlayer::durationChanged);
    QVERIFY(grown.write(whole.readAll()) > 0);
    qint64 last = -1;
    while (stage.player.displayPosition() <= half && stage.player.displayPosition() > last) {
        last = stage.player.displayPosition();
        QVERIFY(stage.stepForward());
    }
    QVERIFY(stage.player.displayPosition() > half);
    QVERIFY(!durations.isEmpty());
    QCOMPARE(durations.constLast().at(0).toLongLong(), stage.player.duration());
    QVERIFY(stage.player.duration() >= stage.player.displayPosition());
    // The player can seek to what is known to exist.
    const int number = stage.number();
    QVERIFY(stage.stepBackward());
    QVERIFY(stage.seek(stage.player.duration()));
    QVERIFY(stage.number() >= number);
}

void AVPlayerTest::playback_stops_atTheEnd_whenToldSo()
{
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Stop);
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    QVERIFY(stage.seek(1900));
    QSignalSpy stopped(&stage.player, &AVPlayer::stopped);
    stage.player.play();
    QVERIFY(stopped.wait(patienceMs));
    QCOMPARE(stage.player.state(), AVPlayer::StoppedState);
    QVERIFY(!stage.player.isLoaded());
}

void AVPlayerTest::playback_ends_forEachFormat_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"variable_rate.mkv", "mpeg2.ts", "h264_one_frame.mp4", "sound.mp4",
                             "edit_list.mp4", "raw.h264", "mpeg4_packed_bframes.avi"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void AVPlayerTest::playback_ends_forEachFormat()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(file));
    QVERIFY(stage.seek(testsupport::frameTimeMs(sample, std::max(0, sample.frames - 8))));
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QVERIFY(stage.player.isPaused());
    QCOMPARE(stage.screen.shown.constLast(), expectedFrom(sample, 0).constLast());
}

void AVPlayerTest::pause_andPlay_changeTheState_andAreSignalled()
{
    Stage stage;
    QSignalSpy paused(&stage.player, &AVPlayer::paused);
    stage.player.play(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")));
    QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() >= 3, patienceMs);
    stage.player.pause();
    QVERIFY(stage.player.isPaused());
    QVERIFY(!stage.player.isPlaying());
    QCOMPARE(paused.count(), 1);
    stage.player.pause(); // a second time changes nothing
    QCOMPARE(paused.count(), 1);
    const int before = stage.screen.shown.size();
    stage.settle();
    QCOMPARE(stage.screen.shown.size(), before);
    stage.player.pause(false);
    QVERIFY(stage.player.isPlaying());
    QCOMPARE(paused.count(), 2);
    QCOMPARE(paused.at(1).at(0).toBool(), false);
    QTRY_VERIFY_WITH_TIMEOUT(stage.screen.shown.size() > before, patienceMs);
    QCOMPARE(stage.screen.shown.at(before).number, stage.screen.shown.at(before - 1).number + 1);
}

void AVPlayerTest::pause_holds_whileTheFileIsBeingOpened()
{
    Stage stage;
    stage.player.play(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")));
    QCOMPARE(stage.player.mediaStatus(), QtAV::LoadingMedia);
    stage.player.pause();
    QVERIFY(stage.player.isPaused());
    QVERIFY(stage.waitForStatus(QtAV::LoadedMedia));
    stage.settle();
    QCOMPARE(stage.screen.shown.size(), 1);
    QCOMPARE(stage.screen.shown.constFirst().number, 0);
    QVERIFY(stage.player.isPaused());
}

void AVPlayerTest::stop_closesTheFile_andBlackensTheScreen()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    QVERIFY(stage.screen.frame.isValid());
    QSignalSpy stopped(&stage.player, &AVPlayer::stopped);
    stage.player.stop();
    QCOMPARE(stopped.count(), 1);
    QVERIFY(!stage.screen.frame.isValid());
    QCOMPARE(stage.player.state(), AVPlayer::StoppedState);
    QCOMPARE(stage.player.mediaStatus(), QtAV::NoMedia);
    QCOMPARE(stage.player.duration(), qint64(0));
    QCOMPARE(stage.player.displayPosition(), qint64(0));
    stage.player.stop(); // a second time does nothing
    QCOMPARE(stopped.count(), 1);
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::LoadedMedia));
}

void AVPlayerTest::otherFile_replacesTheFirst_whenPlayed()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    stage.player.play(testsupport::samplePath(QStringLiteral("vp8.webm")));
    stage.player.play(testsupport::samplePath(QStringLiteral("edit_list.mp4")));
    stage.player.pause();
    stage.screen.shown.clear();
    QVERIFY(stage.waitForStatus(QtAV::LoadedMedia));
    QCOMPARE(stage.screen.shown.constFirst().number, 35);
    QCOMPARE(stage.player.file(), testsupport::samplePath(QStringLiteral("edit_list.mp4")));
}

void AVPlayerTest::unplayableFile_endsInvalidAndStopped_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"empty.mp4", "text.mp4", "random_bytes.mp4", "folder.mp4",
                             "truncated_without_moov.mp4", "sound_only.mp3", "missing.mp4"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void AVPlayerTest::unplayableFile_endsInvalidAndStopped()
{
    QFETCH(QString, file);
    Stage stage;
    QSignalSpy statuses(&stage.player, &AVPlayer::mediaStatusChanged);
    stage.player.play(testsupport::samplePath(file));
    QVERIFY(stage.waitForStatus(QtAV::InvalidMedia));
    QCOMPARE(statuses.count(), 2); // loading, invalid
    QCOMPARE(stage.player.state(), AVPlayer::StoppedState);
    QVERIFY(!stage.player.isLoaded());
    QVERIFY(!stage.player.errorString().isEmpty());
    QVERIFY(stage.screen.shown.isEmpty());
    // A second try fails the same way.
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::InvalidMedia));
}

void AVPlayerTest::goodFile_plays_afterAnUnplayableOne()
{
    Stage stage;
    stage.player.play(testsupport::samplePath(QStringLiteral("text.mp4")));
    QVERIFY(stage.waitForStatus(QtAV::InvalidMedia));
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    QVERIFY(stage.player.errorString().isEmpty());
    QCOMPARE(stage.number(), 0);
}

void AVPlayerTest::step_pausesWithAReason_whereTheFileIsLost()
{
    const testsupport::TestDir dir;
    const QString path = dir.filePath(QStringLiteral("video.mp4"));
    QVERIFY(QFile::copy(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")), path));
    Stage stage;
    stage.player.play(path);
    stage.player.pause();
    QVERIFY(stage.waitForStatus(QtAV::LoadedMedia));
    QVERIFY(QFile::resize(path, 0));
    QSignalSpy failed(&stage.player, &AVPlayer::failed);
    constexpr int moreSteps = 400; // than frames are decoded ahead
    for (int i = 0; failed.isEmpty() && i < moreSteps; ++i) {
        stage.player.stepForward();
        QTest::qWait(10);
    }
    QVERIFY(!failed.isEmpty());
    QVERIFY(!stage.player.errorString().isEmpty());
    QCOMPARE(failed.first().first().toString(), stage.player.errorString());
    QVERIFY(stage.player.isPaused());
    QVERIFY(stage.number() >= 0);
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    QVERIFY(stage.player.errorString().isEmpty());
}

void AVPlayerTest::calls_doNothing_withoutAFile()
{
    Stage stage;
    QSignalSpy states(&stage.player, &AVPlayer::stateChanged);
    QSignalSpy sought(&stage.player, &AVPlayer::seekFinished);
    stage.player.play();
    stage.player.pause();
    stage.player.pause(false);
    stage.player.setPosition(1000);
    stage.player.stepForward();
    stage.player.stepBackward();
    stage.player.stop();
    stage.settle();
    QCOMPARE(states.count(), 0);
    QCOMPARE(sought.count(), 0);
    QVERIFY(!stage.screen.frame.isValid());
}

void AVPlayerTest::capture_givesTheFrameOnScreen_asADecoderDoes_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("n");
    QTest::newRow("B-frames") << QStringLiteral("h264_bframes.mp4") << 61;
    QTest::newRow("10 bit") << QStringLiteral("hevc_10bit.mkv") << 33;
    QTest::newRow("turned") << QStringLiteral("turned_90_anamorphic.mp4") << 20;
    QTest::newRow("alpha") << QStringLiteral("vp9_alpha.webm") << 31;
    QTest::newRow("transport stream") << QStringLiteral("mpeg2.ts") << 50;
}

void AVPlayerTest::capture_givesTheFrameOnScreen_asADecoderDoes()
{
    QFETCH(QString, file);
    QFETCH(int, n);
    const Sample& sample = testsupport::sampleNamed(file);
    Stage stage;
    QVERIFY(stage.open(file));
    QVERIFY(stage.seek(testsupport::frameTimeMs(sample, n)));
    QSignalSpy captured(stage.player.videoCapture(), &QtAV::VideoCapture::imageCaptured);
    stage.player.videoCapture()->capture();
    QCOMPARE(captured.count(), 0); // answered later
    QVERIFY(captured.wait(patienceMs));
    QCOMPARE(captured.count(), 1);
    const auto image = captured.at(0).at(0).value<QImage>();
    QCOMPARE(image.hasAlphaChannel(), sample.has(testsupport::Trait::Alpha));
    QCOMPARE(image.size(), sample.displaySize);

    // The result of decoding the whole file for that frame.
    Player decoded(testsupport::samplePath(file));
    QVERIFY(decoded.isReady());
    int count = 0;
    QImage expected;
    while (const auto packet = decoded.nextVideoPacket()) {
        const bool succeeded = decoded.decoder->decode(*packet);
        const QtAV::VideoFrame frame = succeeded ? decoded.decoder->frame() : QtAV::VideoFrame();
        if (frame.isValid() && count++ == n) {
            expected = frame.toImage(frame.imageFormat());
        }
    }
    QVERIFY(!expected.isNull());
    QVERIFY(image == expected);
}

void AVPlayerTest::capture_fails_withoutAFrame()
{
    Stage stage;
    QSignalSpy failed(stage.player.videoCapture(), &QtAV::VideoCapture::failed);
    stage.player.videoCapture()->capture();
    QVERIFY(failed.wait(patienceMs));
    QVERIFY(stage.open(QStringLiteral("h264_baseline.mp4")));
    stage.player.stop();
    stage.player.videoCapture()->capture();
    QVERIFY(failed.wait(patienceMs));
}

void AVPlayerTest::statistics_tellTheSizeOnScreen()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("turned_90_anamorphic.mp4")));
    QCOMPARE(stage.player.statistics().video_only.width, 320);
    QCOMPARE(stage.player.statistics().video_only.height, 360);
    stage.player.stop();
    QCOMPARE(stage.player.statistics().video_only.width, 0);
}

void AVPlayerTest::renderer_mayGo_beforeThePlayer()
{
    AVPlayer player;
    {
        Screen screen;
        player.setRenderer(&screen);
        QCOMPARE(player.renderer(), &screen);
    }
    QVERIFY(!player.renderer());
    player.play(testsupport::samplePath(QStringLiteral("h264_baseline.mp4")));
    QTRY_VERIFY_WITH_TIMEOUT(player.displayedFrame().isValid(), patienceMs);
}

QTEST_GUILESS_MAIN(AVPlayerTest)
#include "AVPlayerTest.moc"
