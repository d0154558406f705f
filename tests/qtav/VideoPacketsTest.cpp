#include "qtav/src/VideoPackets.h"

#include "tests/qtav/PacketReading.h"
#include "tests/support/Samples.h"

#include <QTest>

using packetreading::addFiles;
using packetreading::keyPlaces;
using packetreading::OpenVideo;
using packetreading::Read;
using packetreading::sortedTimes;
using QtAV::PacketAnswer;
using testsupport::Sample;
using testsupport::sampleNamed;

namespace {

QList<qint64> frameTimes(const Sample& sample)
{
    QList<qint64> times;
    for (int n = 0; n < sample.frames; ++n) {
        times.append(testsupport::frameTimeMs(sample, n));
    }
    return times;
}

/// The packets that can be decoded, starting with a key packet: earlier pictures refer to packets
/// that were not read. If reading began between the headers of the key picture and the picture
/// itself, the headers are missing, so that its packet is shorter.
QList<Read> decodable(const QList<Read>& packets)
{
    QList<Read> all;
    for (const Read& read : packets) {
        if (read.ticks >= packets.constFirst().ticks) {
            all.append(read);
        }
    }
    if (!all.isEmpty()) {
        all.first().size = 0;
    }
    return all;
}

} // namespace

/// The packets of one video stream: their times, their flags and the ways to them.
class VideoPacketsTest : public QObject
{
    Q_OBJECT

private slots:
    void packets_bearTheTimesOfTheFrames_data();
    void packets_bearTheTimesOfTheFrames();
    void keyPackets_areTheRealOnes_data();
    void keyPackets_areTheRealOnes();
    void packedPictures_comeInPacketsOfTheirOwn();
    void reading_givesTheSameTimes_fromTheMiddle_data();
    void reading_givesTheSameTimes_fromTheMiddle();
    void rewinding_givesTheFirstPacketAgain_afterTheEnd_data();
    void rewinding_givesTheFirstPacketAgain_afterTheEnd();
    void reopening_givesTheFirstPacketAgain_inTheMiddle();
    void sound_isGivenBesideThePictures_onDemand();
    void missingTimes_areToldOfTheContainersThatHaveThem();
    void rawStreams_knowTheirLength();
};

void VideoPacketsTest::packets_bearTheTimesOfTheFrames_data()
{
    addFiles({"mpeg1_untimed_keys.mpg",
              "mpeg1_untimed_keys_vcd.mpg",
              "mpeg1_untimed_no_bframes.mpg",
              "mpeg2_untimed_keys.mpg",
              "mpeg2_untimed_keys.vob",
              "mpeg2_untimed_keys_svcd.mpg",
              "mpeg2_untimed_keys_sound.vob",
              "mpeg2_untimed_no_bframes.vob",
              "mpeg2_ntsc.mpg",
              "mpeg2_clock_wraps.ts",
              "h264_clock_wraps.ts",
              "mpeg4_bframes.avi",
              "mpeg4_packed_bframes.avi",
              "mpeg4_xvid_packed.avi",
              "mpeg4_xvid_unpacked.avi",
              "mpeg4_vfw.mkv",
              "mpeg4_vfw_unpacked.mkv",
              "mpeg4_vfw_packed.mkv",
              "h264_vfw.mkv",
              "h264_bframes.avi",
              "mjpeg.avi",
              "raw.h264",
              "raw.hevc",
              "raw.m2v",
              "h264_fields_single.ts",
              "h264_fields_single.m2ts",
              "h264_fields_paired.ts",
              "h264_fields_paired.m2ts",
              "h264_fields.h264",
              "h264_bframes.mp4",
              "h264_bframes.mkv",
              "variable_rate.mkv",
              "vp8.webm"});
}

void VideoPacketsTest::packets_bearTheTimesOfTheFrames()
{
    QFETCH(QString, file);
    OpenVideo video(file);
    const QList<Read> all = video.readRest();
    for (const Read& read : all) {
        QVERIFY(read.ticks != AV_NOPTS_VALUE);
    }
    QCOMPARE(sortedTimes(all), frameTimes(sampleNamed(file)));
}

void VideoPacketsTest::keyPackets_areTheRealOnes_data()
{
    addFiles({"h264_all_flagged_key.mp4", "h264_bframes.mp4", "mpeg4_xvid_packed.avi",
              "mpeg4_xvid_unpacked.avi", "mpeg4_packed_bframes.avi", "mpeg4_vfw_packed.mkv",
              "mpeg2_untimed_keys.vob", "raw.h264", "raw.m2v", "h264_fields_single.ts",
              "h264_fields_single.m2ts", "h264_fields_paired.m2ts", "h264_fields.h264"});
}

void VideoPacketsTest::keyPackets_areTheRealOnes()
{
    QFETCH(QString, file);
    OpenVideo video(file);
    const QList<int> expected = testsupport::keyFrames(sampleNamed(file));
    QVERIFY(expected.size() > 1);
    QCOMPARE(keyPlaces(video.readRest()), expected);
}

/// Each packet shows one picture: packed parts are split.
void VideoPacketsTest::packedPictures_comeInPacketsOfTheirOwn()
{
    OpenVideo video(QStringLiteral("mpeg4_xvid_packed.avi"));
    int packets = 0;
    QtAV::PacketPtr packet;
    while (video.packets.read(packet) == PacketAnswer::Packet) {
        int pictures = 0;
        for (qsizetype i = QtAV::behindStartCode(packet->data, 0, packet->size); i < packet->size;
             i = QtAV::behindStartCode(packet->data, i, packet->size)) {
            pictures += packet->data[i] == 0xb6 ? 1 : 0;
        }
        QVERIFY2(pictures == 1, QByteArray::number(packets).constData());
        ++packets;
    }
    QCOMPARE(packets, 250);
}

void VideoPacketsTest::reading_givesTheSameTimes_fromTheMiddle_data()
{
    addFiles({"mpeg1_untimed_keys.mpg",
              "mpeg1_untimed_keys_vcd.mpg",
              "mpeg2_untimed_keys.mpg",
              "mpeg2_untimed_keys.vob",
              "mpeg2_untimed_keys_svcd.mpg",
              "mpeg2_untimed_keys_sound.vob",
              "mpeg2_untimed_no_bframes.vob",
              "mpeg2.mpg",
              "mpeg2.ts",
              "h264.ts",
              "mpeg4_xvid_packed.avi",
              "mpeg4_bframes.avi",
              "h264_bframes.avi",
              "raw.h264",
              "raw.m2v",
              "h264_fields_single.ts",
              "h264_fields_single.m2ts",
              "h264_fields_paired.ts",
              "h264_fields_paired.m2ts",
              "h264_fields.h264",
              "h264_bframes.mp4",
              "h264_bframes.mkv"});
}

/// From the first key packet on, because those before it cannot be decoded.
void VideoPacketsTest::reading_givesTheSameTimes_fromTheMiddle()
{
    QFETCH(QString, file);
    OpenVideo video(file);
    const QList<Read> all = video.readRest();
    const qint64 lastMs = sortedTimes(all).constLast();
    int readsFromTheMiddle = 0;
    for (qint64 ms = lastMs; ms >= 0; ms -= 130) {
        QVERIFY(video.packets.seekNear(ms));
        QList<Read> rest = video.readRest();
        while (!rest.isEmpty() && !rest.constFirst().isKey) {
            rest.removeFirst();
        }
        QCOMPARE(decodable(rest), decodable(all.mid(all.size() - rest.size())));
        readsFromTheMiddle += !rest.isEmpty() && rest.size() < all.size() ? 1 : 0;
    }
    QVERIFY(readsFromTheMiddle > 5);
}

void VideoPacketsTest::rewinding_givesTheFirstPacketAgain_afterTheEnd_data()
{
    addFiles({"mpeg1_untimed_keys.mpg", "mpeg2_untimed_keys.vob", "mpeg2_untimed_keys_sound.vob",
              "h264_clock_wraps.ts", "mpeg4_xvid_packed.avi", "h264_bframes.avi", "raw.h264",
              "raw.hevc", "h264_bframes.mp4", "edit_list.mp4", "h264_bframes.mkv", "vp8.webm",
              "h264_bframes.flv", "animated.gif", "theora.ogv"});
}

void VideoPacketsTest::rewinding_givesTheFirstPacketAgain_afterTheEnd()
{
    QFETCH(QString, file);
    OpenVideo video(file);
    const QList<Read> all = video.readRest();
    QVERIFY(all.size() > 1);
    QtAV::PacketPtr packet;
    QCOMPARE(video.packets.read(packet), PacketAnswer::End);
    for (int round = 0; round < 2; ++round) {
        QVERIFY(video.packets.rewind());
        QCOMPARE(video.readRest(), all);
    }
}

void VideoPacketsTest::reopening_givesTheFirstPacketAgain_inTheMiddle()
{
    OpenVideo video(QStringLiteral("mpeg2_untimed_keys.vob"));
    const QList<Read> all = video.readRest();
    QVERIFY(video.packets.seekNear(5000));
    QtAV::PacketPtr packet;
    QCOMPARE(video.packets.read(packet), PacketAnswer::Packet);
    QVERIFY(video.packets.reopen());
    QCOMPARE(video.readRest(), all);
}

void VideoPacketsTest::sound_isGivenBesideThePictures_onDemand()
{
    OpenVideo video(QStringLiteral("mpeg2_untimed_keys_sound.vob"));
    const QList<Read> all = video.readRest();
    const int sound = video.container->audioStreams().constFirst();
    video.packets.setAudioStream(sound);
    QVERIFY(video.packets.rewind());
    QList<Read> pictures;
    int sounds = 0;
    QtAV::PacketPtr packet;
    while (video.packets.read(packet) == PacketAnswer::Packet) {
        if (packet->stream_index == sound) {
            ++sounds;
        } else {
            pictures.append(packetreading::described(*packet, video.packets.timeline()));
        }
    }
    QCOMPARE(pictures, all);
    QVERIFY(sounds > 300); // ten seconds of 24 ms each
}

void VideoPacketsTest::missingTimes_areToldOfTheContainersThatHaveThem()
{
    QVERIFY(OpenVideo(QStringLiteral("mpeg2_untimed_keys.vob")).packets.hasMissingTimes());
    QVERIFY(!OpenVideo(QStringLiteral("h264.ts")).packets.hasMissingTimes());
    QVERIFY(!OpenVideo(QStringLiteral("mpeg4_xvid_packed.avi")).packets.hasMissingTimes());
    QVERIFY(!OpenVideo(QStringLiteral("h264_bframes.mp4")).packets.hasMissingTimes());
}

void VideoPacketsTest::rawStreams_knowTheirLength()
{
    const OpenVideo raw(QStringLiteral("raw.h264"));
    QVERIFY(raw.packets.isRawStream());
    QCOMPARE(raw.packets.rawLengthMs(), 75 * 40);
    const OpenVideo other(QStringLiteral("h264_bframes.mp4"));
    QVERIFY(!other.packets.isRawStream());
    QCOMPARE(other.packets.rawLengthMs(), 0);
}

QTEST_GUILESS_MAIN(VideoPacketsTest)
#include "VideoPacketsTest.moc"
