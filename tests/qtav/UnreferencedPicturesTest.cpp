#include "qtav/src/UnreferencedPictures.h"

#include "qtav/src/PacketHandle.h"
#include "qtav/src/StreamParameters.h"
#include "tests/qtav/CodecRecord.h"
#include "tests/qtav/Decoding.h"

#include <QTest>

using codecrecord::dataOf;
using codecrecord::madeFor;
using QtAV::UnreferencedPictures;

namespace {

bool areAllOf(const UnreferencedPictures& pictures, const QByteArray& bytes)
{
    return pictures.areAllOf(dataOf(bytes), bytes.size());
}

} // namespace

class UnreferencedPicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void packets_areThoseThatTheDecoderSkips_data();
    void packets_areThoseThatTheDecoderSkips();
    void units_decide_data();
    void units_decide();
    void damagedLengths_countAsReferredTo();
    void otherCodecs_countAsReferredTo();
};

void UnreferencedPicturesTest::packets_areThoseThatTheDecoderSkips_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"h264_bframes.mp4", "h264.ts", "hevc_8bit.mp4", "hevc.ts", "mpeg4_bframes.avi"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

/// The decoder skips as many frames as there are such packets. More would mean pictures that only
/// FFmpeg treats as unreferenced, fewer would mean damage.
void UnreferencedPicturesTest::packets_areThoseThatTheDecoderSkips()
{
    QFETCH(QString, file);
    decoding::Player player(testsupport::samplePath(file));
    QVERIFY(player.isReady());
    const UnreferencedPictures pictures(*player.demuxer.videoCodecContext()->parameters()->codec);
    int packets = 0;
    int unreferenced = 0;
    while (const auto packet = player.nextVideoPacket()) {
        if (packet->isDrain()) {
            continue;
        }
        ++packets;
        const bool isSo = pictures.areAllOf(*QtAV::PacketHandle::of(*packet)->get());
        QVERIFY(!isSo || !packet->hasKeyFrame);
        unreferenced += isSo ? 1 : 0;
    }
    QVERIFY(unreferenced > 0);
    QVERIFY(player.demuxer.seek(0));
    player.decoder->flush();
    constexpr int nonReference = 8; // FFmpeg's AVDISCARD_NONREF
    player.decoder->setOptions(
        {{QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("skip_frame"), nonReference}}}});
    QCOMPARE(player.showRest().size(), packets - unreferenced);
}

void UnreferencedPicturesTest::units_decide_data()
{
    QTest::addColumn<int>("codec");
    QTest::addColumn<int>("lengthBytes");
    QTest::addColumn<QByteArray>("packet");
    QTest::addColumn<bool>("isUnreferenced");
    const auto row = [](const char* name, int codec, int lengthBytes, const char* hex, bool isSo) {
        QTest::newRow(name) << codec << lengthBytes << QByteArray::fromHex(hex) << isSo;
    };
    constexpr int h264 = AV_CODEC_ID_H264;
    constexpr int hevc = AV_CODEC_ID_HEVC;
    constexpr int mpeg4 = AV_CODEC_ID_MPEG4;
    row("H.264 slice nobody needs", h264, 4, "000000020199", true);
    row("H.264 slice behind information", h264, 4, "0000000206990000000301aabb", true);
    row("H.264 slice of a reference", h264, 4, "000000024199", false);
    row("H.264 slice nobody needs and one of a reference", h264, 2, "000201990002419a", false);
    row("H.264 key frame", h264, 4, "000000026599", false);
    row("H.264 parameters beside the slice", h264, 1, "0267990201aa", false);
    row("H.264 information alone", h264, 4, "000000020699", false);
    row("H.264 behind start codes", h264, 0, "000000010910000001019900000101aa", true);
    row("H.264 reference behind start codes", h264, 0, "00000001091000000121aa", false);
    row("HEVC slice nobody needs", hevc, 4, "00000003000199", true);
    row("HEVC slice of a reference", hevc, 4, "00000003020199", false);
    row("HEVC leading slice nobody needs", hevc, 4, "00000003100199", true);
    row("HEVC key frame", hevc, 4, "00000003260199", false);
    row("HEVC behind start codes", hevc, 0, "00000001460150000001000199", true);
    row("MPEG-4 B-picture", mpeg4, 0, "000001b69099", true);
    row("MPEG-4 B-picture behind user data", mpeg4, 0, "000001b244697658000001b69099", true);
    row("MPEG-4 picture that others refer to", mpeg4, 0, "000001b65099", false);
    row("MPEG-4 packed pictures", mpeg4, 0, "000001b65099000001b69099", false);
    row("MPEG-4 key frame", mpeg4, 0, "000001b3001007000001b61099", false);
    row("MPEG-4 cut off", mpeg4, 0, "000001b6", false);
}

void UnreferencedPicturesTest::units_decide()
{
    QFETCH(int, codec);
    QFETCH(int, lengthBytes);
    QFETCH(QByteArray, packet);
    QTEST(
        areAllOf(madeFor<UnreferencedPictures>(static_cast<AVCodecID>(codec), lengthBytes), packet),
        "isUnreferenced");
}

void UnreferencedPicturesTest::damagedLengths_countAsReferredTo()
{
    const QByteArray whole = QByteArray::fromHex("000000020199000000030199aa");
    const UnreferencedPictures pictures = madeFor<UnreferencedPictures>(AV_CODEC_ID_H264, 4);
    QVERIFY(areAllOf(pictures, whole));
    for (int size = 0; size < whole.size(); ++size) {
        const bool endsWithUnit = size == 6;
        QCOMPARE(areAllOf(pictures, whole.left(size)), endsWithUnit);
    }
    QVERIFY(!areAllOf(pictures, QByteArray::fromHex("ffffffff0199")));
    QVERIFY(!areAllOf(pictures, QByteArray::fromHex("000000000199")));
    QVERIFY(!pictures.areAllOf(nullptr, 0));
}

void UnreferencedPicturesTest::otherCodecs_countAsReferredTo()
{
    QVERIFY(!areAllOf(madeFor<UnreferencedPictures>(AV_CODEC_ID_MPEG2VIDEO),
                      QByteArray::fromHex("0000010199")));
    QVERIFY(!areAllOf(UnreferencedPictures(), QByteArray::fromHex("000000020199")));
}

QTEST_GUILESS_MAIN(UnreferencedPicturesTest)
#include "UnreferencedPicturesTest.moc"
