#include "qtav/player/SoundThread.h"
#include "qtav/player/SoundPlayer.h"

#include "tests/qtav/Playing.h"
#include "tests/qtav/PretendedDevice.h"

#include <QTest>

#include <array>

using namespace playing;
using QtAV::SoundPlayer;
using QtAV::SoundThread;

namespace {

/// A time after which a device that has been held up is given up.
void waitUntilItIsGivenUp()
{
    QTest::qWait(int(SoundThread::longestWork.count()));
}

} // namespace

/// Players with sound devices that do not return from a function for as long as a test wants.
class SoundThreadTest : public QObject
{
    Q_OBJECT

private slots:
    void picture_playsOn_whenTheDeviceHoldsItUp_data();
    void picture_playsOn_whenTheDeviceHoldsItUp();
    void player_canEnd_whenTheDeviceHoldsItUp_data();
    void player_canEnd_whenTheDeviceHoldsItUp();
    void threads_areFew_whenAllDevicesHoldThemUp();
};

void SoundThreadTest::picture_playsOn_whenTheDeviceHoldsItUp_data()
{
    QTest::addColumn<bool>("atStart");
    QTest::newRow("when it starts") << true;
    QTest::newRow("when it stops") << false;
}

/// Without sound at first, which comes back on another thread when it is wanted anew.
void SoundThreadTest::picture_playsOn_whenTheDeviceHoldsItUp()
{
    QFETCH(bool, atStart);
    Devices devices;
    Gate& gate = atStart ? devices.record.start : devices.record.stop;
    {
        Stage stage;
        stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
        if (atStart) {
            gate.shut();
        }
        stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 1, patienceMs);
        if (!atStart) {
            gate.shut();
            stage.player.pause();
        }
        QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 1, patienceMs);
        stage.player.play();
        QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
        QCOMPARE(stage.number(), 74);
        waitUntilItIsGivenUp();

        stage.player.play(testsupport::samplePath(QStringLiteral("flashes_and_beeps.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 2, patienceMs);
        QCOMPARE(SoundThread::count(), 2);
        if (atStart) {
            QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 2, patienceMs);
        }
        const qint64 heard = devices.record.heardBytes;
        gate.open();
        QTRY_VERIFY_WITH_TIMEOUT(devices.record.heardBytes > heard, patienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(SoundThread::count(), 1, patienceMs);
    }
    QCOMPARE(SoundThread::count(), 0);
}

void SoundThreadTest::player_canEnd_whenTheDeviceHoldsItUp_data()
{
    picture_playsOn_whenTheDeviceHoldsItUp_data();
}

void SoundThreadTest::player_canEnd_whenTheDeviceHoldsItUp()
{
    QFETCH(bool, atStart);
    Devices devices;
    Gate& gate = atStart ? devices.record.start : devices.record.stop;
    {
        Stage stage;
        if (atStart) {
            gate.shut();
        }
        stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 1, patienceMs);
        gate.shut();
        stage.player.stop();
    }
    QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 1, patienceMs);
    QCOMPARE(SoundThread::count(), 1);
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(SoundThread::count(), 0, patienceMs);
}

void SoundThreadTest::threads_areFew_whenAllDevicesHoldThemUp()
{
    Devices devices;
    devices.record.start.shut();
    const QString path = testsupport::samplePath(QStringLiteral("sound.mp4"));
    {
        std::array<SoundPlayer, SoundThread::maximumCount> players;
        for (SoundPlayer& player : players) {
            player.open(path);
            player.play(0.0);
        }
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.start.waiting(), SoundThread::maximumCount,
                                  patienceMs);
        waitUntilItIsGivenUp();
        for (SoundPlayer& player : players) {
            player.play(1.0);
        }
        QCOMPARE(SoundThread::count(), SoundThread::maximumCount);
        // Who was let go does what was wished in the meantime.
        devices.record.start.open();
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 2 * SoundThread::maximumCount,
                                  patienceMs);
    }
    QCOMPARE(SoundThread::count(), 0);
}

QTEST_GUILESS_MAIN(SoundThreadTest)
#include "SoundThreadTest.moc"
