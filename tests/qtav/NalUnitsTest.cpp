#include "qtav/src/NalUnits.h"

#include "tests/qtav/CodecRecord.h"
#include "tests/qtav/PacketReading.h"

#include <QTest>

using codecrecord::dataOf;
using codecrecord::madeFor;
using QtAV::behindStartCode;
using QtAV::NalUnits;

namespace {

struct Walk
{
    QStringList units; ///< in hexadecimal
    QList<int> types;
    QList<bool> references;
    bool isWhole = false;
};

/// Units do not end in zeros: zeros before a start code belong to the start code.
QByteArray withoutZerosBehind(QByteArray unit)
{
    while (unit.endsWith('\0')) {
        unit.chop(1);
    }
    return unit;
}

Walk walkThrough(NalUnits::Cursor cursor)
{
    Walk walk;
    while (const auto unit = cursor.next()) {
        const QByteArray bytes(reinterpret_cast<const char*>(unit->data), int(unit->size));
        walk.units.append(QString::fromLatin1(withoutZerosBehind(bytes).toHex()));
        walk.types.append(unit->type);
        walk.references.append(unit->isReference);
    }
    walk.isWhole = cursor.isWhole();
    return walk;
}

Walk walkThrough(const NalUnits& units, const QByteArray& packet)
{
    return walkThrough(units.of(dataOf(packet), packet.size()));
}

} // namespace

class NalUnitsTest : public QObject
{
    Q_OBJECT

private slots:
    void units_areParted_data();
    void units_areParted();
    void markedUnits_areParted_whateverTheStreamsPacketsLookLike();
    void references_areTold();
    void cutPacket_givesItsWholeUnits_andIsDamaged();
    void damagedLength_endsTheUnits_data();
    void damagedLength_endsTheUnits();
    void noData_givesNoUnits();
    void otherCodecs_areUnknown();
    void startCode_isFound_data();
    void startCode_isFound();
    void bothForms_giveTheSameSlices_data();
    void bothForms_giveTheSameSlices();
};

void NalUnitsTest::units_areParted_data()
{
    QTest::addColumn<int>("codec");
    QTest::addColumn<int>("lengthBytes");
    QTest::addColumn<QByteArray>("packet");
    QTest::addColumn<QStringList>("units");
    QTest::addColumn<QList<int>>("types");
    const auto row = [](const char* name, int codec, int lengthBytes, const char* hex,
                        const QStringList& units, const QList<int>& types) {
        QTest::newRow(name) << codec << lengthBytes << QByteArray::fromHex(hex) << units << types;
    };
    const QString delimiter = QStringLiteral("0910");
    const QString slice = QStringLiteral("65aabb");
    constexpr int h264 = AV_CODEC_ID_H264;
    constexpr int hevc = AV_CODEC_ID_HEVC;
    row("lengths of 4 bytes", h264, 4, "0000000209100000000365aabb", {delimiter, slice}, {9, 5});
    row("lengths of 3 bytes", h264, 3, "000002091000000365aabb", {delimiter, slice}, {9, 5});
    row("lengths of 2 bytes", h264, 2, "00020910000365aabb", {delimiter, slice}, {9, 5});
    row("lengths of 1 byte", h264, 1, "0209100365aabb", {delimiter, slice}, {9, 5});
    row("start code within a length's unit", h264, 1, "05650000014103410102",
        {QStringLiteral("6500000141"), QStringLiteral("410102")}, {5, 1});
    row("start codes of 3 bytes", h264, 0, "000001091000000165aabb", {delimiter, slice}, {9, 5});
    row("start codes of 4 bytes", h264, 0, "0000000109100000000165aabb", {delimiter, slice},
        {9, 5});
    row("zeros before the first start code", h264, 0, "000000000165aabb", {slice}, {5});
    row("HEVC with lengths", hevc, 4, "000000034601500000000426010203",
        {QStringLiteral("460150"), QStringLiteral("26010203")}, {35, 19});
    row("HEVC with start codes", hevc, 0, "0000000146015000000126010203",
        {QStringLiteral("460150"), QStringLiteral("26010203")}, {35, 19});
}

void NalUnitsTest::units_areParted()
{
    QFETCH(int, codec);
    QFETCH(int, lengthBytes);
    QFETCH(QByteArray, packet);
    const NalUnits units = madeFor<NalUnits>(static_cast<AVCodecID>(codec), lengthBytes);
    QVERIFY(units.areKnown());
    QCOMPARE(int(units.codec()), codec);
    const Walk walk = walkThrough(units, packet);
    QTEST(walk.units, "units");
    QTEST(walk.types, "types");
    QVERIFY(walk.isWhole);
}

void NalUnitsTest::markedUnits_areParted_whateverTheStreamsPacketsLookLike()
{
    const QByteArray bytes = QByteArray::fromHex("000000016764000000000168ee");
    const Walk walk =
        walkThrough(NalUnits::ofMarked(AV_CODEC_ID_H264, dataOf(bytes), bytes.size()));
    QCOMPARE(walk.types, (QList<int>{7, 8}));
    QVERIFY(walk.isWhole);
}

void NalUnitsTest::references_areTold()
{
    const Walk walk = walkThrough(madeFor<NalUnits>(AV_CODEC_ID_H264, 1),
                                  QByteArray::fromHex("0201990221990241990261990206aa"));
    QCOMPARE(walk.references, (QList<bool>{false, true, true, true, false}));
    QCOMPARE(walk.types, (QList<int>{1, 1, 1, 1, 6}));
}

void NalUnitsTest::cutPacket_givesItsWholeUnits_andIsDamaged()
{
    const QByteArray whole = QByteArray::fromHex("0000000209100000000365aabb");
    const NalUnits units = madeFor<NalUnits>(AV_CODEC_ID_H264, 4);
    for (int size = 0; size <= whole.size(); ++size) {
        const Walk walk = walkThrough(units, whole.left(size));
        const int wholeUnits = size < 6 ? 0 : size < whole.size() ? 1 : 2;
        QCOMPARE(walk.types.size(), wholeUnits);
        const bool endsWithUnit = size == 0 || size == 6 || size == whole.size();
        QCOMPARE(walk.isWhole, endsWithUnit);
    }
}

void NalUnitsTest::damagedLength_endsTheUnits_data()
{
    QTest::addColumn<int>("codec");
    QTest::addColumn<int>("lengthBytes");
    QTest::addColumn<QByteArray>("packet");
    QTest::addColumn<int>("units");
    const auto row = [](const char* name, int codec, int lengthBytes, const char* hex, int units) {
        QTest::newRow(name) << codec << lengthBytes << QByteArray::fromHex(hex) << units;
    };
    row("largest length", AV_CODEC_ID_H264, 4, "ffffffff6599", 0);
    row("one byte too long", AV_CODEC_ID_H264, 4, "000000036599", 0);
    row("nothing long", AV_CODEC_ID_H264, 4, "000000006599", 0);
    row("second one too long", AV_CODEC_ID_H264, 2, "000209100004658899", 1);
    row("second one nothing long", AV_CODEC_ID_H264, 2, "000209100000658899", 1);
    row("HEVC unit shorter than its header", AV_CODEC_ID_HEVC, 4, "0000000126", 0);
    row("HEVC marked unit shorter than its header", AV_CODEC_ID_HEVC, 0, "00000126", 0);
    row("two start codes in a row", AV_CODEC_ID_H264, 0, "00000100000165", 0);
}

void NalUnitsTest::damagedLength_endsTheUnits()
{
    QFETCH(int, codec);
    QFETCH(int, lengthBytes);
    QFETCH(QByteArray, packet);
    // On the heap with the exact size, so that sanitizers detect reads behind the end.
    const std::vector<uint8_t> bytes(packet.cbegin(), packet.cend());
    const NalUnits units = madeFor<NalUnits>(static_cast<AVCodecID>(codec), lengthBytes);
    NalUnits::Cursor cursor = units.of(bytes.data(), qsizetype(bytes.size()));
    const Walk walk = walkThrough(cursor);
    QTEST(int(walk.types.size()), "units");
    QVERIFY(!walk.isWhole);
    for (int i = 0; i < walk.types.size(); ++i) {
        QVERIFY(cursor.next());
    }
    QVERIFY(!cursor.next());
    QVERIFY(!cursor.next());
}

void NalUnitsTest::noData_givesNoUnits()
{
    for (const int lengthBytes : {0, 4}) {
        const NalUnits units = madeFor<NalUnits>(AV_CODEC_ID_H264, lengthBytes);
        QVERIFY(walkThrough(units.of(nullptr, 0)).units.isEmpty());
        QVERIFY(walkThrough(units.of(nullptr, 100)).units.isEmpty());
        QVERIFY(walkThrough(units, QByteArray()).units.isEmpty());
    }
}

void NalUnitsTest::otherCodecs_areUnknown()
{
    const QByteArray bytes = QByteArray::fromHex("00000165aabb");
    for (const NalUnits& units : {NalUnits(), madeFor<NalUnits>(AV_CODEC_ID_MPEG2VIDEO)}) {
        QVERIFY(!units.areKnown());
        QVERIFY(walkThrough(units, bytes).units.isEmpty());
    }
}

void NalUnitsTest::startCode_isFound_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("place");
    const auto row = [](const char* name, const char* hex, int from, int place) {
        QTest::newRow(name) << QByteArray::fromHex(hex) << from << place;
    };
    row("no bytes", "", 0, 0);
    row("two bytes", "0000", 0, 2);
    row("at the beginning", "00000165", 0, 3);
    row("behind other ones", "0100010001000001b3", 0, 8);
    row("behind a place", "000001b3000001b6", 3, 7);
    row("cut off by the place", "000001b3", 1, 4);
    row("not with a 2", "00000265", 0, 4);
    row("none", "aabbccdd", 0, 4);
}

void NalUnitsTest::startCode_isFound()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, from);
    QTEST(int(behindStartCode(dataOf(bytes), from, bytes.size())), "place");
}

void NalUnitsTest::bothForms_giveTheSameSlices_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("filter");
    QTest::newRow("H.264") << QStringLiteral("h264_bframes.mp4")
                           << QStringLiteral("h264_mp4toannexb");
    QTest::newRow("HEVC") << QStringLiteral("hevc_8bit.mp4") << QStringLiteral("hevc_mp4toannexb");
}

/// FFmpeg replaces the lengths by start codes, and adds parameter sets before key frames.
void NalUnitsTest::bothForms_giveTheSameSlices()
{
    QFETCH(QString, file);
    QFETCH(QString, filter);
    const auto container = packetreading::open(file);
    const AVStream& stream = container->stream(container->videoStreams().constFirst());
    AVBSFContext* context = nullptr;
    QVERIFY(av_bsf_alloc(av_bsf_get_by_name(filter.toLatin1().constData()), &context) >= 0);
    const QtAV::BitstreamFilterPtr marking(context);
    QVERIFY(avcodec_parameters_copy(context->par_in, stream.codecpar) >= 0);
    QVERIFY(av_bsf_init(context) >= 0);
    const NalUnits withLengths(*context->par_in);
    const NalUnits withStartCodes(*context->par_out);

    const auto slicesOf = [](const NalUnits& units, const AVPacket& packet) {
        const Walk walk = walkThrough(units.of(packet.data, packet.size));
        const int lastSliceType = units.codec() == AV_CODEC_ID_HEVC ? 31 : 5;
        QStringList slices;
        for (int i = 0; i < walk.units.size(); ++i) {
            if (walk.types.at(i) <= lastSliceType) {
                slices.append(walk.units.at(i));
            }
        }
        return walk.isWhole ? slices : QStringList();
    };
    int packets = 0;
    for (const QtAV::PacketPtr& packet : packetreading::packetsOf(*container)) {
        const QStringList expected = slicesOf(withLengths, *packet);
        QVERIFY(!expected.isEmpty());
        QVERIFY(av_bsf_send_packet(context, packet.get()) >= 0);
        const QtAV::PacketPtr marked = QtAV::makePacket();
        QVERIFY(av_bsf_receive_packet(context, marked.get()) >= 0);
        QCOMPARE(slicesOf(withStartCodes, *marked), expected);
        ++packets;
    }
    QVERIFY(packets >= 75);
}

QTEST_GUILESS_MAIN(NalUnitsTest)
#include "NalUnitsTest.moc"
