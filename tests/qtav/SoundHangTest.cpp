#include "qtav/player/SoundWorker.h"

#include "tests/qtav/Playing.h"
#include "tests/qtav/SoundServer.h"

#include <QTest>

using namespace playing;
using QtAV::SoundWorker;

namespace {

constexpr int lastOfBeeps = 199; ///< the last frame's number in flashes_and_beeps.mp4

} // namespace

/// Players whose sound server blocks starting a device: Qt Multimedia then waits in a function that
/// does not return, forever if the server dies. Like SoundSyncTest, not for thread sanitizer. The
/// server dies in the last case, and the process ends although threads still wait for it.
class SoundHangTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void picture_playsOn_whileTheServerIsFrozen_andSoundReturns();
    void player_canEnd_whileTheServerIsFrozen();
    void picture_playsOn_whenTheServerDies_whileADeviceStarts();

private:
    [[nodiscard]] bool playWithSound(Stage& stage);

    SoundServer m_server;
};

void SoundHangTest::initTestCase()
{
    QVERIFY(m_server.start());
}

bool SoundHangTest::playWithSound(Stage& stage)
{
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    stage.player.play(testsupport::samplePath(QStringLiteral("flashes_and_beeps.mp4")));
    return QTest::qWaitFor([this] { return m_server.streamCount() == 1; }, patienceMs);
}

void SoundHangTest::picture_playsOn_whileTheServerIsFrozen_andSoundReturns()
{
    Stage stage;
    QVERIFY(playWithSound(stage));
    m_server.freeze();
    QVERIFY(stage.seek(5000));
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QCOMPARE(stage.number(), lastOfBeeps);
    m_server.thaw();
    stage.player.play();
    QTRY_COMPARE_WITH_TIMEOUT(m_server.streamCount(), 1, patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(SoundWorker::count(), 1, patienceMs);
}

void SoundHangTest::player_canEnd_whileTheServerIsFrozen()
{
    {
        Stage stage;
        QVERIFY(playWithSound(stage));
        m_server.freeze();
        QVERIFY(stage.seek(5000));
    }
    m_server.thaw();
    QTRY_COMPARE_WITH_TIMEOUT(SoundWorker::count(), 0, patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_server.streamCount(), 0, patienceMs);
}

void SoundHangTest::picture_playsOn_whenTheServerDies_whileADeviceStarts()
{
    {
        Stage stage;
        QVERIFY(playWithSound(stage));
        m_server.freeze();
        QVERIFY(stage.seek(5000));
        QTest::qWait(int(SoundWorker::longestWork.count()));
        m_server.kill();
        QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
        QCOMPARE(stage.number(), lastOfBeeps);
    }
    qInfo("%d threads were left behind.", SoundWorker::count());
}

QTEST_GUILESS_MAIN(SoundHangTest)
#include "SoundHangTest.moc"
