#include "tests/qtav/Playing.h"
#include "tests/qtav/PretendedDevice.h"

#include <QSignalSpy>
#include <QTest>

using namespace playing;
using QtAV::AVPlayer;

/// Playing faster and slower.
class AVPlayerSpeedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speed_isClamped_andTold();
    void video_isPlayedToItsEnd_atTheLimits_data();
    void video_isPlayedToItsEnd_atTheLimits();
    void sound_isPlayed_betweenHalfAndDouble_data();
    void sound_isPlayed_betweenHalfAndDouble();
    void sound_goesOnFromThePicture_whenTheSpeedChanges();
    void sound_tellsTheTime_atItsSpeed();
};

void AVPlayerSpeedTest::speed_isClamped_andTold()
{
    AVPlayer player;
    const QSignalSpy changes(&player, &AVPlayer::speedChanged);
    QCOMPARE(player.speed(), 1.0);
    player.setSpeed(1.0);
    QCOMPARE(changes.count(), 0);
    player.setSpeed(100.0);
    QCOMPARE(player.speed(), 8.0);
    player.setSpeed(0.0);
    QCOMPARE(player.speed(), 0.1);
    player.setSpeed(qQNaN());
    QCOMPARE(player.speed(), 0.1);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.last().first().toDouble(), 0.1);
}

void AVPlayerSpeedTest::video_isPlayedToItsEnd_atTheLimits_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<int>("from");
    QTest::newRow("slow") << 0.1 << 3920;
    QTest::newRow("fast") << 8.0 << 0;
}

/// The frames come in order; some are dropped if there is no time for all.
void AVPlayerSpeedTest::video_isPlayedToItsEnd_atTheLimits()
{
    QFETCH(const double, speed);
    QFETCH(const int, from);
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(stage.seek(from));
    stage.screen.shown.clear();
    stage.player.setSpeed(speed);
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QCOMPARE(stage.number(), 99);
    for (int i = 1; i < stage.screen.shown.size(); ++i) {
        QVERIFY(stage.screen.shown.at(i).number > stage.screen.shown.at(i - 1).number);
    }
}

void AVPlayerSpeedTest::sound_isPlayed_betweenHalfAndDouble_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<bool>("isHeard");
    QTest::newRow("0.25") << 0.25 << false;
    QTest::newRow("0.5") << 0.5 << true;
    QTest::newRow("2") << 2.0 << true;
    QTest::newRow("3") << 3.0 << false;
}

void AVPlayerSpeedTest::sound_isPlayed_betweenHalfAndDouble()
{
    QFETCH(const double, speed);
    QFETCH(const bool, isHeard);
    const Devices devices;
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("sound.mp4")));
    const qint64 before = stage.player.position();
    stage.player.setSpeed(speed);
    stage.player.play();
    if (isHeard) {
        // On a busy machine the device may start after the picture.
        QTRY_VERIFY_WITH_TIMEOUT(devices.record.heardBytes > 0, patienceMs);
    }
    QTRY_VERIFY_WITH_TIMEOUT(stage.player.position() > before + 120, patienceMs);
    QCOMPARE(devices.record.heardBytes > 0, isHeard);
}

void AVPlayerSpeedTest::sound_goesOnFromThePicture_whenTheSpeedChanges()
{
    const Devices devices;
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("sound.mp4")));
    stage.player.play();
    QTRY_VERIFY_WITH_TIMEOUT(devices.record.heardBytes > 0, patienceMs);
    const int started = devices.record.started;
    stage.player.setSpeed(2.0);
    QVERIFY(stage.player.isPlaying());
    QTRY_VERIFY_WITH_TIMEOUT(devices.record.started > started, patienceMs);
    stage.player.setSpeed(4.0);
    const int startedBefore = devices.record.started;
    const qint64 position = stage.player.position();
    QTRY_VERIFY_WITH_TIMEOUT(stage.player.position() > position + 200, patienceMs);
    QCOMPARE(devices.record.started.load(), startedBefore);
}

/// If the pictures followed the heard time itself, not multiplied by the speed, they would need
/// twice as much sound.
void AVPlayerSpeedTest::sound_tellsTheTime_atItsSpeed()
{
    constexpr double bytesASecond = rate * 4.0;
    constexpr qint64 reachedMs = 1600; // the sound is 2.4 s long
    const Devices devices;
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("sound.mp4")));
    QVERIFY(stage.seek(0));
    stage.player.setSpeed(2.0);
    const qint64 before = devices.record.heardBytes;
    double heard = 0.0;
    connect(&stage.player, &AVPlayer::positionChanged, &stage.player, [&](qint64 ms) {
        if (ms >= reachedMs && heard <= 0.0) {
            heard = double(devices.record.heardBytes - before) / bytesASecond;
        }
    });
    stage.player.play();
    QTRY_VERIFY_WITH_TIMEOUT(heard > 0.0, patienceMs);
    QVERIFY2(heard > 0.5 && heard < 1.1, QByteArray::number(heard).constData());
}

QTEST_MAIN(AVPlayerSpeedTest)
#include "AVPlayerSpeedTest.moc"
