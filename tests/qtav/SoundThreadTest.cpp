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

/// Waits until a blocked device has been abandoned.
void waitUntilItIsGivenUp()
{
    QTest::qWait(int(SoundThread::LongestWork.count()));
}

} // namespace

/// Players with sound devices whose functions block as long as a test wants.
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

/// Initially without sound, which returns on another thread when it is requested again.
void SoundThreadTest::picture_playsOn_whenTheDeviceHoldsItUp()
{
    QFETCH(bool, atStart);
    Devices devices;
    Gate& gate = atStart ? devices.record.start : devices.record.stop;
    {
        Stage stage;
        stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
        if (atStart)
            gate.shut();
        stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 1, Patience);
        if (!atStart) {
            gate.shut();
            stage.player.pause();
        }
        QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 1, Patience);
        stage.player.play();
        QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
        QCOMPARE(stage.number(), 74);
        waitUntilItIsGivenUp();

        stage.player.play(testsupport::samplePath(QStringLiteral("flashes_and_beeps.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 2, Patience);
        QCOMPARE(SoundThread::count(), 2);
        if (atStart)
            QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 2, Patience);
        const qint64 heard = devices.record.heardBytes;
        gate.open();
        QTRY_VERIFY_WITH_TIMEOUT(devices.record.heardBytes > heard, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(SoundThread::count(), 1, Patience);
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
        if (atStart)
            gate.shut();
        stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 1, Patience);
        gate.shut();
        stage.player.stop();
    }
    QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 1, Patience);
    QCOMPARE(SoundThread::count(), 1);
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(SoundThread::count(), 0, Patience);
}

void SoundThreadTest::threads_areFew_whenAllDevicesHoldThemUp()
{
    Devices devices;
    devices.record.start.shut();
    const QString path = testsupport::samplePath(QStringLiteral("sound.mp4"));
    {
        std::array<SoundPlayer, SoundThread::Most> players;
        for (SoundPlayer& player : players) {
            player.open(path);
            player.play(0.0);
        }
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.start.waiting(), SoundThread::Most, Patience);
        waitUntilItIsGivenUp();
        for (SoundPlayer& player : players)
            player.play(1.0);
        QCOMPARE(SoundThread::count(), SoundThread::Most);
        // An unblocked worker carries out the latest request.
        devices.record.start.open();
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 2 * SoundThread::Most, Patience);
    }
    QCOMPARE(SoundThread::count(), 0);
}

QTEST_GUILESS_MAIN(SoundThreadTest)
#include "SoundThreadTest.moc"
