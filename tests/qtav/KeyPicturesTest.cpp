#include "qtav/src/KeyPictures.h"

#include "tests/qtav/CodecRecord.h"
#include "tests/qtav/PacketReading.h"

#include <QTest>

using codecrecord::dataOf;
using codecrecord::madeFor;
using QtAV::KeyPictures;

namespace {

bool isIn(const KeyPictures& pictures, const QByteArray& packet)
{
    return pictures.isIn(dataOf(packet), packet.size());
}

void addRow(const char* name, int codec, int lengthBytes, const char* hex, bool isKey)
{
    QTest::newRow(name) << codec << lengthBytes << QByteArray::fromHex(hex) << isKey;
}

void addH264Rows()
{
    constexpr int h264 = AV_CODEC_ID_H264;
    addRow("H.264 refresh", h264, 4, "0000000365b804", true);
    addRow("H.264 refresh behind parameters", h264, 1, "0267420268020365b804", true);
    addRow("H.264 I slice", h264, 4, "0000000341b004", true);
    addRow("H.264 I slice of I slices", h264, 4, "00000003418880", true);
    addRow("H.264 SI slice", h264, 4, "00000003419480", true);
    addRow("H.264 P slice", h264, 4, "0000000341c004", false);
    addRow("H.264 P slice of P slices", h264, 4, "00000003419880", false);
    addRow("H.264 B slice", h264, 4, "0000000301a004", false);
    addRow("H.264 SP slice", h264, 4, "00000003419080", false);
    addRow("H.264 I slice in the middle", h264, 4, "00000003413080", true);
    addRow("H.264 P slice before an I slice", h264, 1, "0341c0040341b004", false);
    addRow("H.264 I slice before a P slice", h264, 1, "0341b0040341c004", true);
    addRow("H.264 recovery point before a P slice", h264, 1, "0506060184800341c004", true);
    addRow("H.264 other message before a P slice", h264, 1, "0506010184800341c004", false);
    addRow("H.264 recovery point as second message", h264, 1, "0806010184060184800341c004", true);
    addRow("H.264 recovery point behind a long type", h264, 1, "0906ff0701aa060184800341c004",
           true);
    addRow("H.264 message with a 6 in it", h264, 1, "07060503060184800341c004", false);
    addRow("H.264 message longer than its unit", h264, 1, "060605090601800341c004", false);
    addRow("H.264 marked refresh", h264, 0, "00000001091000000165b804", true);
    addRow("H.264 marked P slice", h264, 0, "00000001091000000141c004", false);
    addRow("H.264 slice without bits", h264, 1, "0141", false);
}

void addHevcRows()
{
    constexpr int hevc = AV_CODEC_ID_HEVC;
    addRow("HEVC refresh", hevc, 4, "000000032601af", true);
    addRow("HEVC clean random access", hevc, 4, "000000032a01af", true);
    addRow("HEVC broken link", hevc, 4, "000000032001af", true);
    addRow("HEVC last of the random access types", hevc, 4, "000000032e01af", true);
    addRow("HEVC first of the types behind them", hevc, 4, "000000033001af", false);
    addRow("HEVC trailing slice", hevc, 4, "000000030201d0", false);
    addRow("HEVC skipped leading slice", hevc, 4, "000000031001d0", false);
    addRow("HEVC recovery point before a slice", hevc, 1, "064e010601d080030201d0", true);
    addRow("HEVC other message before a slice", hevc, 1, "064e010101d080030201d0", false);
    addRow("HEVC marked refresh", hevc, 0, "000000014601500000012601af", true);
    addRow("HEVC marked slice", hevc, 0, "000000014601500000010201d0", false);
}

void addMpegRows()
{
    for (const int codec : {AV_CODEC_ID_MPEG1VIDEO, AV_CODEC_ID_MPEG2VIDEO}) {
        const QByteArray name = codec == AV_CODEC_ID_MPEG1VIDEO ? "MPEG-1 " : "MPEG-2 ";
        const auto row = [&](const char* what, const char* hex, bool isKey) {
            addRow((name + what).constData(), codec, 0, hex, isKey);
        };
        row("intra picture", "00000100000ffff8", true);
        row("predicted picture", "000001000017fff8", false);
        row("B-picture", "00000100001ffff8", false);
        row("intra picture that comes third", "00000100008ffff8", true);
        row("predicted picture that comes third", "000001000097fff8", false);
        row("intra picture behind headers", "000001b314010000000001b80008000000000100000ffff8",
            true);
        row("intra field before a predicted one", "00000100000ffff800000101000001000017fff8", true);
        row("cut off", "0000010000", false);
    }
}

void addMpeg4Rows()
{
    constexpr int mpeg4 = AV_CODEC_ID_MPEG4;
    const auto row = [](const char* name, const QByteArray& hex, bool isKey) {
        addRow(name, mpeg4, 0, hex.constData(), isKey);
    };
    const QByteArray slices(2 * 20, 'a');
    row("MPEG-4 intra picture", "000001b610" + slices, true);
    row("MPEG-4 predicted picture", "000001b650" + slices, false);
    row("MPEG-4 B-picture", "000001b690" + slices, false);
    row("MPEG-4 sprite", "000001b6d0" + slices, false);
    row("MPEG-4 intra picture behind headers", "000001b000000001b3001007000001b610" + slices, true);
    row("MPEG-4 intra picture before a B-picture", "000001b610" + slices + "000001b690" + slices,
        true);
    row("MPEG-4 predicted picture before an intra one",
        "000001b650" + slices + "000001b610" + slices, false);
    row("MPEG-4 empty picture behind a key frame's pack", "000001b6107f", false);
    row("MPEG-4 empty picture behind another pack", "000001b6507f", false);
    row("MPEG-4 cut off", slices + "000001b6", false);
}

} // namespace

class KeyPicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void bitstream_decides_data();
    void bitstream_decides();
    void longNumbersInMessages_endWithTheirUnit_data();
    void longNumbersInMessages_endWithTheirUnit();
    void noData_isNoKeyPicture();
    void otherCodecs_countAsKey();
    void keyPictures_areThoseThatTheContainerFlags_data();
    void keyPictures_areThoseThatTheContainerFlags();
};

void KeyPicturesTest::bitstream_decides_data()
{
    QTest::addColumn<int>("codec");
    QTest::addColumn<int>("lengthBytes");
    QTest::addColumn<QByteArray>("packet");
    QTest::addColumn<bool>("isKey");
    addH264Rows();
    addHevcRows();
    addMpegRows();
    addMpeg4Rows();
    addRow("VP8 key frame", AV_CODEC_ID_VP8, 0, "1002009d012a", true);
    addRow("VP8 other frame", AV_CODEC_ID_VP8, 0, "110200aabb", false);
}

void KeyPicturesTest::bitstream_decides()
{
    QFETCH(int, codec);
    QFETCH(int, lengthBytes);
    QFETCH(QByteArray, packet);
    const auto pictures = madeFor<KeyPictures>(static_cast<AVCodecID>(codec), lengthBytes);
    QTEST(isIn(pictures, packet), "isKey");
}

void KeyPicturesTest::longNumbersInMessages_endWithTheirUnit_data()
{
    QTest::addColumn<bool>("isOfType");
    QTest::newRow("length") << false;
    QTest::newRow("type") << true;
}

/// So many bytes of 255 that their sum exceeds 31 bits.
void KeyPicturesTest::longNumbersInMessages_endWithTheirUnit()
{
    QFETCH(const bool, isOfType);
    constexpr int manyBytes = 8421505 + 255;
    const QByteArray marker = QByteArray::fromHex("000001");
    const QByteArray message = QByteArray(1, '\x06') + QByteArray(isOfType ? 0 : 1, '\x05') +
                               QByteArray(manyBytes, '\xff') + QByteArray(64, '\x02');
    const QByteArray packet = marker + message + marker + QByteArray::fromHex("41c004");
    QVERIFY(!isIn(madeFor<KeyPictures>(AV_CODEC_ID_H264), packet));
}

void KeyPicturesTest::noData_isNoKeyPicture()
{
    for (const AVCodecID codec :
         {AV_CODEC_ID_H264, AV_CODEC_ID_HEVC, AV_CODEC_ID_MPEG1VIDEO, AV_CODEC_ID_MPEG2VIDEO,
          AV_CODEC_ID_MPEG4, AV_CODEC_ID_VP8, AV_CODEC_ID_VP9}) {
        const auto pictures = madeFor<KeyPictures>(codec);
        QVERIFY(!pictures.isIn(nullptr, 0));
        QVERIFY(!isIn(pictures, QByteArray()));
    }
}

void KeyPicturesTest::otherCodecs_countAsKey()
{
    const auto pictures = madeFor<KeyPictures>(AV_CODEC_ID_VP9);
    QVERIFY(isIn(pictures, QByteArray::fromHex("86")));
}

void KeyPicturesTest::keyPictures_areThoseThatTheContainerFlags_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"h264_bframes.mp4", "h264_bframes.mkv", "h264_bframes.flv", "h264.ts",
          "h264_open_gop_bframes.mp4", "h264_intra_only.mp4", "h264_intra_refresh.mp4",
          "h264_interlaced.mp4", "hevc_8bit.mp4", "hevc_open_gop.mp4", "hevc.ts", "mpeg4.mp4",
          "mpeg2_open_gop.mov", "mpeg2.ts", "mpeg2_interlaced.ts", "mpeg1.mpg", "vp8.webm"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void KeyPicturesTest::keyPictures_areThoseThatTheContainerFlags()
{
    QFETCH(QString, file);
    const auto container = packetreading::open(file);
    const KeyPictures pictures(*container->stream(container->videoStreams().constFirst()).codecpar);
    int packets = 0;
    int keys = 0;
    for (const QtAV::PacketPtr& packet : packetreading::packetsOf(*container)) {
        const bool isFlagged = packet->flags & AV_PKT_FLAG_KEY;
        QVERIFY2(pictures.isIn(*packet) == isFlagged, QByteArray::number(packets).constData());
        ++packets;
        keys += isFlagged ? 1 : 0;
    }
    QVERIFY(packets >= 50);
    QVERIFY(keys > 0);
}

QTEST_GUILESS_MAIN(KeyPicturesTest)
#include "KeyPicturesTest.moc"
