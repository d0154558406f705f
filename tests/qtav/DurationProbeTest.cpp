#include "qtav/src/DurationProbe.h"

#include "tests/qtav/PacketReading.h"

#include <QTest>

#include <chrono>
#include <thread>

using packetreading::OpenVideo;
using QtAV::DurationProbe;

namespace {

/// The container polls at least this often.
constexpr std::chrono::milliseconds longerThanAPacket{120};

} // namespace

class DurationProbeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void probe_readsThrough_whatStatesNoLength();
    void probe_isCancelled_betweenPacketsThatComeAtOnce();
};

void DurationProbeTest::probe_readsThrough_whatStatesNoLength()
{
    OpenVideo video(QStringLiteral("browser_recording.webm"));
    const DurationProbe::Length length = DurationProbe(*video.container, &video.packets).run();
    QVERIFY(length.isMeasured);
    QVERIFY2(length.ms > 2000, QByteArray::number(length.ms).constData());
}

void DurationProbeTest::probe_isCancelled_betweenPacketsThatComeAtOnce()
{
    OpenVideo video(QStringLiteral("browser_recording.webm"));
    const qint64 whole = DurationProbe(*video.container, &video.packets).run().ms;
    int polls = 0;
    constexpr int allowed = 6;
    video.container->setInterrupt([&polls] {
        // Makes the next packet come late, so that it is preceded by the next poll.
        std::this_thread::sleep_for(longerThanAPacket);
        return ++polls > allowed;
    });
    std::this_thread::sleep_for(longerThanAPacket);
    const qint64 read = DurationProbe(*video.container, &video.packets).run().ms;
    QCOMPARE(polls, allowed + 1);
    QVERIFY2(read < whole, QByteArray::number(read).constData());
}

QTEST_GUILESS_MAIN(DurationProbeTest)
#include "DurationProbeTest.moc"
