#include "qtav/src/FieldPairs.h"

#include "tests/qtav/PacketReading.h"
#include "tests/support/Samples.h"

#include <QTest>

#include <functional>

using packetreading::addFiles;
using QtAV::FieldPairs;
using QtAV::PacketPtr;

namespace {

/// The packets of a sample as FFmpeg delivers them.
struct Stored
{
    explicit Stored(const QString& file)
        : container(packetreading::open(file))
        , packets(packetreading::packetsOf(*container))
    {}

    const AVCodecParameters& codec() const
    {
        return *container->stream(container->videoStreams().constFirst()).codecpar;
    }

    std::unique_ptr<QtAV::Container> container;
    std::vector<PacketPtr> packets;
};

/// The data of what comes out when the packets with these numbers are pushed.
QList<QByteArray> joined(FieldPairs& pairs, const Stored& stored,
                         const std::function<bool(size_t)>& isPushed)
{
    QList<QByteArray> all;
    const auto takeAll = [&] {
        while (const PacketPtr packet = pairs.pop()) {
            all.append(QByteArray(reinterpret_cast<const char*>(packet->data), packet->size));
        }
    };
    for (size_t i = 0; i < stored.packets.size(); ++i) {
        if (isPushed(i)) {
            pairs.push(PacketPtr(av_packet_clone(stored.packets[i].get())));
            takeAll();
        }
    }
    pairs.finish();
    takeAll();
    return all;
}

QByteArray dataOf(const Stored& stored, size_t i)
{
    const AVPacket& packet = *stored.packets[i];
    return QByteArray(reinterpret_cast<const char*>(packet.data), packet.size);
}

/// Frames of which each is two packets of a sample.
QList<QByteArray> framesFrom(const Stored& stored, size_t first)
{
    QList<QByteArray> all;
    for (size_t i = first; i + 1 < stored.packets.size(); i += 2) {
        all.append(dataOf(stored, i) + dataOf(stored, i + 1));
    }
    return all;
}

bool isKey(const Stored& stored, size_t i)
{
    return stored.packets[i]->flags & AV_PKT_FLAG_KEY;
}

} // namespace

/// Two fields in packets of their own.
class FieldPairsTest : public QObject
{
    Q_OBJECT

private slots:
    void fields_areJoinedToFrames_whereverReadingBegins_data();
    void fields_areJoinedToFrames_whereverReadingBegins();
    void fields_areJoinedToFrames_ifBothAreKeyPackets();
    void keyFrames_areNotJoinedAcross_ifReadingBeginsAtASecondField();
    void otherFields_areJoined_ifOneIsMissing();
    void joinedFields_lastAsLongAsBoth();
    void wholeFrames_stayAsTheyAre_data();
    void wholeFrames_stayAsTheyAre();
    void resetting_dropsAFieldThatWaits();
};

void FieldPairsTest::fields_areJoinedToFrames_whereverReadingBegins_data()
{
    addFiles({"h264_fields_single.ts", "h264_fields_paired.m2ts", "h264_fields.h264"});
}

/// From the first key packet on, at which decoding begins.
void FieldPairsTest::fields_areJoinedToFrames_whereverReadingBegins()
{
    QFETCH(QString, file);
    const Stored stored(file);
    QCOMPARE(int(stored.packets.size()), 2 * testsupport::sampleNamed(file).frames);
    for (size_t begin = 0; begin + 28 < stored.packets.size(); ++begin) {
        FieldPairs pairs(stored.codec());
        const QList<QByteArray> all = joined(pairs, stored, [=](size_t i) { return i >= begin; });
        size_t key = begin;
        while (!isKey(stored, key)) {
            ++key;
        }
        const QList<QByteArray> expected = framesFrom(stored, key);
        QCOMPARE(all.mid(all.size() - expected.size()), expected);
    }
}

/// As encoders write them that compress each field by itself.
void FieldPairsTest::fields_areJoinedToFrames_ifBothAreKeyPackets()
{
    const Stored stored(QStringLiteral("h264_fields.h264"));
    for (const PacketPtr& packet : stored.packets) {
        packet->flags |= AV_PKT_FLAG_KEY;
    }
    FieldPairs pairs(stored.codec());
    QCOMPARE(joined(pairs, stored, [](size_t) { return true; }), framesFrom(stored, 0));
}

/// Where all frames are key frames of which nothing depends on another, all have the same number.
void FieldPairsTest::keyFrames_areNotJoinedAcross_ifReadingBeginsAtASecondField()
{
    const Stored stored(QStringLiteral("h264_fields.h264"));
    const AVPacket& top = *stored.packets[0];
    AVPacket& bottom = *stored.packets[1];
    bottom.flags |= AV_PKT_FLAG_KEY;
    FieldPairs pairs(stored.codec());
    for (const AVPacket* field : std::initializer_list<const AVPacket*>{&bottom, &top, &bottom}) {
        pairs.push(PacketPtr(av_packet_clone(field)));
    }
    QCOMPARE(pairs.pop()->size, bottom.size);
    QCOMPARE(pairs.pop()->size, top.size + bottom.size);
}

void FieldPairsTest::otherFields_areJoined_ifOneIsMissing()
{
    const Stored stored(QStringLiteral("h264_fields_single.ts"));
    for (const size_t missing : {0, 1, 2, 3, 4, 5, 26, 27}) {
        FieldPairs pairs(stored.codec());
        const QList<QByteArray> all = joined(pairs, stored, [=](size_t i) { return i != missing; });
        const size_t alone = missing ^ 1;
        QList<QByteArray> expected = framesFrom(stored, 0);
        expected[int(missing / 2)] = dataOf(stored, alone);
        QCOMPARE(all, expected);
    }
}

void FieldPairsTest::joinedFields_lastAsLongAsBoth()
{
    Stored stored(QStringLiteral("h264_fields_single.ts"));
    const qint64 pts = stored.packets[0]->pts;
    FieldPairs pairs(stored.codec());
    pairs.push(std::move(stored.packets[0]));
    QVERIFY(!pairs.pop());
    pairs.push(std::move(stored.packets[1]));
    const PacketPtr frame = pairs.pop();
    QVERIFY(frame);
    QCOMPARE(frame->duration, 3600);
    QCOMPARE(frame->pts, pts);
}

void FieldPairsTest::wholeFrames_stayAsTheyAre_data()
{
    addFiles({"h264.ts", "fields_h264_bff.ts", "raw.h264"});
}

void FieldPairsTest::wholeFrames_stayAsTheyAre()
{
    QFETCH(QString, file);
    const Stored stored(file);
    FieldPairs pairs(stored.codec());
    QList<QByteArray> expected;
    for (size_t i = 0; i < stored.packets.size(); ++i) {
        expected.append(dataOf(stored, i));
    }
    QCOMPARE(joined(pairs, stored, [](size_t) { return true; }), expected);
}

void FieldPairsTest::resetting_dropsAFieldThatWaits()
{
    Stored stored(QStringLiteral("h264_fields_single.ts"));
    FieldPairs pairs(stored.codec());
    pairs.push(std::move(stored.packets[0]));
    pairs.reset();
    pairs.finish();
    QVERIFY(!pairs.pop());
}

QTEST_GUILESS_MAIN(FieldPairsTest)
#include "FieldPairsTest.moc"
