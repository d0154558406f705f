#include "qtav/src/PresentationOrder.h"

#include "tests/qtav/PacketReading.h"

#include <QTest>

#include <algorithm>
#include <functional>

using packetreading::addFiles;
using packetreading::packetsOf;
using QtAV::PacketPtr;
using QtAV::PresentationOrder;
using Times = PresentationOrder::Times;

namespace {

/// The video packets of a sample with a container that times all of them.
struct Stream
{
    explicit Stream(const QString& file)
        : container(packetreading::open(file))
        , stream(container->stream(container->videoStreams().constFirst()))
        , packets(packetsOf(*container))
        , frameTicks(av_rescale_q(1, av_inv_q(AVRational{25, 1}), stream.time_base))
    {
        for (const PacketPtr& packet : packets) {
            times.append(packet->pts);
        }
    }

    [[nodiscard]] PresentationOrder order(Times mode) const
    {
        return {*stream.codecpar, stream.codecpar->video_delay, mode, stream.time_base};
    }

    [[nodiscard]] bool isKey(size_t place) const
    {
        return (packets[place]->flags & AV_PKT_FLAG_KEY) != 0;
    }

    std::unique_ptr<QtAV::Container> container;
    const AVStream& stream;
    std::vector<PacketPtr> packets;
    qint64 frameTicks;
    QList<qint64> times; ///< of presentation, in the order of decoding
};

void takeAll(PresentationOrder& order, QList<qint64>& times)
{
    while (const PacketPtr packet = order.pop()) {
        times.append(packet->pts);
    }
}

/// The times assigned to copies of the packets, from one of them on.
QList<qint64> timesFrom(const Stream& stream, PresentationOrder& order, size_t first = 0)
{
    QList<qint64> times;
    for (size_t place = first; place < stream.packets.size(); ++place) {
        order.push(PacketPtr(av_packet_clone(stream.packets[place].get())), stream.frameTicks);
        takeAll(order, times);
    }
    order.finish();
    takeAll(order, times);
    return times;
}

} // namespace

/// The times assigned to packets of containers without times.
class PresentationOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void gaps_areFilled_whenEverySecondTimeIsMissing_data();
    void gaps_areFilled_whenEverySecondTimeIsMissing();
    void gaps_areFilled_whenKeyPacketsHaveNoTimes_data();
    void gaps_areFilled_whenKeyPacketsHaveNoTimes();
    void keyPacket_getsItsOwnTime_whenItBearsThatOfTheNext_data();
    void keyPacket_getsItsOwnTime_whenItBearsThatOfTheNext();
    void knownTimes_stay_data();
    void knownTimes_stay();
    void decodingTimes_areGivenInOrderOfPresentation_data();
    void decodingTimes_areGivenInOrderOfPresentation();
    void order_isTheSame_fromAnotherKeyPacketOn();
    void streamWithoutTimes_doesNotHoldEverythingBack();
};

void PresentationOrderTest::gaps_areFilled_whenEverySecondTimeIsMissing_data()
{
    addFiles({"mpeg2.ts", "mpeg2_interlaced.ts", "mpeg4.mp4"});
}

void PresentationOrderTest::gaps_areFilled_whenEverySecondTimeIsMissing()
{
    QFETCH(QString, file);
    for (const size_t rest : {0, 1}) {
        Stream stream(file);
        for (size_t place = 0; place < stream.packets.size(); ++place) {
            if (place % 2 == rest) {
                stream.packets[place]->pts = AV_NOPTS_VALUE;
            }
        }
        PresentationOrder order = stream.order(Times::WithGaps);
        QCOMPARE(timesFrom(stream, order), stream.times);
    }
}

void PresentationOrderTest::gaps_areFilled_whenKeyPacketsHaveNoTimes_data()
{
    gaps_areFilled_whenEverySecondTimeIsMissing_data();
}

void PresentationOrderTest::gaps_areFilled_whenKeyPacketsHaveNoTimes()
{
    QFETCH(QString, file);
    Stream stream(file);
    for (size_t place = 0; place < stream.packets.size(); ++place) {
        if (stream.isKey(place)) {
            stream.packets[place]->pts = AV_NOPTS_VALUE;
        }
    }
    PresentationOrder order = stream.order(Times::WithGaps);
    QCOMPARE(timesFrom(stream, order), stream.times);
}

void PresentationOrderTest::keyPacket_getsItsOwnTime_whenItBearsThatOfTheNext_data()
{
    addFiles({"mpeg2.ts", "mpeg2_interlaced.ts"});
}

/// The first one does not follow another picture in whose packet its headers could begin.
void PresentationOrderTest::keyPacket_getsItsOwnTime_whenItBearsThatOfTheNext()
{
    QFETCH(QString, file);
    Stream stream(file);
    int keys = 0;
    for (size_t place = 1; place + 1 < stream.packets.size(); ++place) {
        if (stream.isKey(place)) {
            stream.packets[place]->pts = stream.packets[place + 1]->pts;
            stream.packets[place + 1]->pts = AV_NOPTS_VALUE;
            ++keys;
        }
    }
    QVERIFY(keys > 1);
    PresentationOrder order = stream.order(Times::WithGaps);
    QCOMPARE(timesFrom(stream, order), stream.times);
}

void PresentationOrderTest::knownTimes_stay_data()
{
    addFiles({"mpeg2.ts", "mpeg2_interlaced.ts", "mpeg4.mp4", "h264.ts"});
}

void PresentationOrderTest::knownTimes_stay()
{
    QFETCH(QString, file);
    const Stream stream(file);
    PresentationOrder order = stream.order(Times::WithGaps);
    QCOMPARE(timesFrom(stream, order), stream.times);
}

void PresentationOrderTest::decodingTimes_areGivenInOrderOfPresentation_data()
{
    addFiles({"h264_bframes.mp4", "h264.ts", "h264_open_gop_bframes.mp4", "hevc.ts", "mpeg2.ts",
              "mpeg2_interlaced.ts", "mpeg4.mp4"});
}

/// The n-th picture shown gets the n-th time.
void PresentationOrderTest::decodingTimes_areGivenInOrderOfPresentation()
{
    QFETCH(QString, file);
    Stream stream(file);
    QList<qint64> sorted = stream.times;
    std::sort(sorted.begin(), sorted.end());
    QList<qint64> expected;
    for (const qint64 time : stream.times) {
        expected.append(100 + 3 * sorted.indexOf(time));
    }
    qint64 ticks = 100;
    for (const PacketPtr& packet : stream.packets) {
        packet->pts = AV_NOPTS_VALUE;
        packet->dts = ticks;
        ticks += 3;
    }
    PresentationOrder order = stream.order(Times::OfDecoding);
    QCOMPARE(timesFrom(stream, order), expected);
}

/// Pictures shown before that key picture cannot be decoded.
void PresentationOrderTest::order_isTheSame_fromAnotherKeyPacketOn()
{
    Stream stream(QStringLiteral("mpeg2.ts"));
    for (size_t place = 0; place < stream.packets.size(); ++place) {
        if (place % 3 != 0) {
            stream.packets[place]->pts = AV_NOPTS_VALUE;
        }
    }
    PresentationOrder order = stream.order(Times::WithGaps);
    int keys = 0;
    for (size_t first = 0; first < stream.packets.size(); ++first) {
        if (!stream.isKey(first)) {
            continue;
        }
        order.reset();
        const QList<qint64> expected = stream.times.mid(int(first));
        const QList<qint64> times = timesFrom(stream, order, first);
        QCOMPARE(times.size(), expected.size());
        for (int i = 0; i < times.size(); ++i) {
            if (expected.at(i) >= expected.constFirst()) {
                QCOMPARE(times.at(i), expected.at(i));
            }
        }
        ++keys;
    }
    QVERIFY(keys > 5);
}

void PresentationOrderTest::streamWithoutTimes_doesNotHoldEverythingBack()
{
    constexpr int largestWait = 70;
    Stream stream(QStringLiteral("mpeg2_untimed_keys.vob"));
    PresentationOrder order = stream.order(Times::WithGaps);
    QList<qint64> times;
    int pushed = 0;
    for (const PacketPtr& packet : stream.packets) {
        packet->pts = AV_NOPTS_VALUE;
        order.push(PacketPtr(av_packet_clone(packet.get())), stream.frameTicks);
        takeAll(order, times);
        ++pushed;
        QVERIFY(pushed - times.size() <= largestWait);
    }
    QVERIFY(pushed > largestWait);
    order.finish();
    takeAll(order, times);
    QCOMPARE(times.size(), pushed);
    QCOMPARE(times.count(AV_NOPTS_VALUE), pushed);
}

QTEST_GUILESS_MAIN(PresentationOrderTest)
#include "PresentationOrderTest.moc"
