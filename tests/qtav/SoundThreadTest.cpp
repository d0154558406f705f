#include "qtav/player/SoundPlayer.h"

#include "tests/qtav/Playing.h"
#include "tests/qtav/PretendedDevice.h"

#include <QTest>

#include <array>

using namespace playing;
using QtAV::SoundPlayer;
using QtAV::SoundWorker;

namespace {

/// Where devices wait in the function that the test's row names.
Gate& gateNamed(const QString& function, Record& record)
{
    if (function == QLatin1String("start")) {
        return record.start;
    }
    return function == QLatin1String("stop") ? record.stop : record.query;
}

/// Waits until a blocked device has been abandoned.
void waitUntilItIsGivenUp()
{
    QTest::qWait(int(SoundWorker::longestWork.count()));
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
    QTest::addColumn<QString>("function");
    QTest::newRow("when it starts") << QStringLiteral("start");
    QTest::newRow("when it stops") << QStringLiteral("stop");
    QTest::newRow("when it is asked what was heard") << QStringLiteral("query");
}

/// Initially without sound, which returns on another thread when it is requested again.
void SoundThreadTest::picture_playsOn_whenTheDeviceHoldsItUp()
{
    QFETCH(QString, function);
    const bool atStart = function == QLatin1String("start");
    Devices devices;
    Gate& gate = gateNamed(function, devices.record);
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
        }
        if (function == QLatin1String("stop")) {
            stage.player.pause();
        }
        QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 1, patienceMs);
        stage.player.play();
        QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
        QCOMPARE(stage.number(), 74);
        waitUntilItIsGivenUp();

        stage.player.play(testsupport::samplePath(QStringLiteral("flashes_and_beeps.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 2, patienceMs);
        QCOMPARE(SoundWorker::count(), 2);
        if (function != QLatin1String("stop")) {
            QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 2, patienceMs);
        }
        const qint64 heard = devices.record.heardBytes;
        gate.open();
        QTRY_VERIFY_WITH_TIMEOUT(devices.record.heardBytes > heard, patienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(SoundWorker::count(), 1, patienceMs);
    }
    QCOMPARE(SoundWorker::count(), 0);
}

void SoundThreadTest::player_canEnd_whenTheDeviceHoldsItUp_data()
{
    picture_playsOn_whenTheDeviceHoldsItUp_data();
}

void SoundThreadTest::player_canEnd_whenTheDeviceHoldsItUp()
{
    QFETCH(QString, function);
    const bool atStart = function == QLatin1String("start");
    Devices devices;
    Gate& gate = gateNamed(function, devices.record);
    {
        Stage stage;
        if (atStart) {
            gate.shut();
        }
        stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 1, patienceMs);
        gate.shut();
        if (function == QLatin1String("query")) {
            QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 1, patienceMs);
        }
        stage.player.stop();
    }
    QTRY_COMPARE_WITH_TIMEOUT(gate.waiting(), 1, patienceMs);
    QCOMPARE(SoundWorker::count(), 1);
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(SoundWorker::count(), 0, patienceMs);
}

void SoundThreadTest::threads_areFew_whenAllDevicesHoldThemUp()
{
    Devices devices;
    devices.record.start.shut();
    const QString path = testsupport::samplePath(QStringLiteral("sound.mp4"));
    {
        std::array<SoundPlayer, SoundPlayer::maximumThreads> players;
        for (SoundPlayer& player : players) {
            player.open(path);
            player.play(0.0);
        }
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.start.waiting(), SoundPlayer::maximumThreads,
                                  patienceMs);
        waitUntilItIsGivenUp();
        for (SoundPlayer& player : players) {
            player.play(1.0);
        }
        SoundPlayer oneMore;
        oneMore.open(path);
        oneMore.play(1.0);
        QCOMPARE(SoundWorker::count(), SoundPlayer::maximumThreads);
        // Once released, each carries out its latest request.
        devices.record.start.open();
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 2 * SoundPlayer::maximumThreads,
                                  patienceMs);
    }
    QCOMPARE(SoundWorker::count(), 0);
}

QTEST_GUILESS_MAIN(SoundThreadTest)
#include "SoundThreadTest.moc"
