#include "tests/qtav/Decoding.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/Sanitizers.h"

#include <QFile>
#include <QTemporaryFile>
#include <QTest>

#include <memory>

using namespace decoding;
using testsupport::Sample;
using testsupport::Trait;

namespace {

// FFmpeg's AVDISCARD_NONREF.
constexpr int nonReference = 8;

QVariantHash skipping(int discard)
{
    return {
        {QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("skip_frame"), discard},
                                                 {QStringLiteral("skip_loop_filter"), discard}}}};
}

/// A copy of the sample with noise in its third video packet, behind the first `intact` bytes. Null
/// if that fails.
std::unique_ptr<QTemporaryFile> damagedCopy(const QString& name, int intact)
{
    Player whole(testsupport::samplePath(name));
    QFile source(testsupport::samplePath(name));
    auto copy = std::make_unique<QTemporaryFile>();
    if (!whole.isReady() || !source.open(QIODevice::ReadOnly) || !copy->open()) {
        return nullptr;
    }
    QByteArray packet;
    for (int i = 0; i < 3; ++i) {
        packet = whole.nextVideoPacket()->data;
    }
    QByteArray content = source.readAll();
    const int at = content.indexOf(packet);
    if (at < 0) {
        return nullptr;
    }
    const int damaged = packet.size() - intact;
    content.replace(at + intact, damaged, QByteArray(damaged, '\x5a'));
    copy->write(content);
    copy->close();
    return copy;
}

} // namespace

class VideoDecoderTest : public QObject
{
    Q_OBJECT

private slots:
    void create_givesNull_forUnknownNames();
    void open_fails_withoutACodecContext();
    void decode_fails_whileTheDecoderIsClosed();
    void decode_fails_forPacketsThatWereNeverRead();
    void frame_isTakenAway_byAskingForIt();
    void keyFrame_comesOutAtOnce_whereverItLies_data();
    void keyFrame_comesOutAtOnce_whereverItLies();
    void frames_areTheSame_whenTheKeyFrameMayComeLater_data();
    void frames_areTheSame_whenTheKeyFrameMayComeLater();
    void lastKeyFrame_comesOutOnce_howeverOftenItIsDecoded_data();
    void lastKeyFrame_comesOutOnce_howeverOftenItIsDecoded();
    void target_isTheSamePicture_whenNonReferenceFramesBeforeItAreSkipped_data();
    void target_isTheSamePicture_whenNonReferenceFramesBeforeItAreSkipped();
    void skipping_leavesFramesOut_fromTheNextPacketOn();
    void options_areIgnored_whenUnknown();
    void drainPackets_giveNoFrame_whenNoneIsHeld();
    void decoder_staysUsable_afterDamagedPackets();
    void av1_goesOn_atTheNextKeyFrame_afterAnError();
    void decoder_startsOver_whenGivenPacketsAfterTheEnd();
};

void VideoDecoderTest::create_givesNull_forUnknownNames()
{
    const std::unique_ptr<QtAV::VideoDecoder> known(QtAV::VideoDecoder::create("FFmpeg"));
    QVERIFY(known);
    for (const char* name : {"", "ffmpeg", "CUDA", "VAAPI"}) {
        const std::unique_ptr<QtAV::VideoDecoder> unknown(QtAV::VideoDecoder::create(name));
        QVERIFY2(!unknown, name);
    }
}

void VideoDecoderTest::open_fails_withoutACodecContext()
{
    const std::unique_ptr<QtAV::VideoDecoder> decoder(QtAV::VideoDecoder::create("FFmpeg"));
    QVERIFY(!decoder->open());
    decoder->setCodecContext(nullptr);
    QVERIFY(!decoder->open());
    QVERIFY(!decoder->isOpen());
}

void VideoDecoderTest::decode_fails_whileTheDecoderIsClosed()
{
    Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    const auto packet = player.nextVideoPacket();
    QVERIFY(packet);
    player.decoder->close();
    QVERIFY(!player.decoder->decode(*packet));
    QVERIFY(!player.decoder->frame().isValid());
    QVERIFY(player.decoder->open());
    QCOMPARE(shown(player.decodeKeyFrame(*packet)), (Shown{0, 0}));
}

void VideoDecoderTest::decode_fails_forPacketsThatWereNeverRead()
{
    Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(player.isReady());
    QVERIFY(!player.decoder->decode(QtAV::Packet()));
}

void VideoDecoderTest::frame_isTakenAway_byAskingForIt()
{
    Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(player.decoder->decode(*player.nextVideoPacket()));
    QVERIFY(player.decoder->frame().isValid());
    QVERIFY(!player.decoder->frame().isValid());
}

void VideoDecoderTest::keyFrame_comesOutAtOnce_whereverItLies_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("threads");
    const QList<int> threadCounts = testsupport::isSanitized ? QList<int>{4} : QList<int>{1, 4};
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        for (const int threads : threadCounts) {
            QTest::addRow("%s, %d threads", qPrintable(sample.file), threads)
                << sample.file << threads;
        }
    }
}

void VideoDecoderTest::keyFrame_comesOutAtOnce_whereverItLies()
{
    QFETCH(QString, file);
    QFETCH(int, threads);
    const Sample& sample = testsupport::sampleNamed(file);
    const QList<int> keyFrames = testsupport::keyFrames(sample);
    Player player(testsupport::samplePath(file), threads);
    QVERIFY(player.isReady());

    constexpr int mostKeyFrames = 2;
    const int stride = std::max(1, int(keyFrames.size()) / mostKeyFrames);
    for (int i = 0; i < keyFrames.size(); i += stride) {
        const int key = keyFrames.at(i);
        const bool isWhole = !sample.has(Trait::IntraRefresh) || i == 0;
        QVERIFY(player.demuxer.seek(testsupport::frameTimeMs(sample, key)));
        player.decoder->flush();
        const auto packet = player.nextVideoPacket();
        QVERIFY(packet && packet->hasKeyFrame);
        const QtAV::VideoFrame frame = player.decodeKeyFrame(*packet);
        if (!isWhole) {
            continue;
        }
        QVERIFY(frame.isValid());
        QList<Shown> all{shown(frame)};
        all += player.showRest();
        QCOMPARE(all, expectedFrom(sample, key));
    }
}

void VideoDecoderTest::frames_areTheSame_whenTheKeyFrameMayComeLater_data()
{
    keyFrame_comesOutAtOnce_whereverItLies_data();
}

void VideoDecoderTest::frames_areTheSame_whenTheKeyFrameMayComeLater()
{
    QFETCH(QString, file);
    QFETCH(int, threads);
    const Sample& sample = testsupport::sampleNamed(file);
    const QList<int> keyFrames = testsupport::keyFrames(sample);
    Player player(testsupport::samplePath(file), threads);
    QVERIFY(player.isReady());
    player.decoder->setOptions(
        {{QStringLiteral("start"), QVariantHash{{QStringLiteral("key_frame_at_once"), false}}}});

    constexpr int mostKeyFrames = 2;
    const int stride = std::max(1, int(keyFrames.size()) / mostKeyFrames);
    for (int i = 0; i < keyFrames.size(); i += stride) {
        if (sample.has(Trait::IntraRefresh) && i > 0) {
            continue;
        }
        const int key = keyFrames.at(i);
        QVERIFY(player.demuxer.seek(testsupport::frameTimeMs(sample, key)));
        player.decoder->flush();
        QCOMPARE(player.showRest(), expectedFrom(sample, key));
    }
}

void VideoDecoderTest::lastKeyFrame_comesOutOnce_howeverOftenItIsDecoded_data()
{
    QTest::addColumn<int>("threads");
    QTest::addColumn<bool>("atOnce");
    for (const int threads : {1, 2, 4}) {
        QTest::addRow("%d threads, at once", threads) << threads << true;
        QTest::addRow("%d threads, with what follows", threads) << threads << false;
    }
}

/// This file's last group has only the key frame and one picture that leads up to it.
void VideoDecoderTest::lastKeyFrame_comesOutOnce_howeverOftenItIsDecoded()
{
    QFETCH(int, threads);
    QFETCH(bool, atOnce);
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("mpeg4_bframes.avi"));
    const int last = sample.frames - 1;
    QCOMPARE(testsupport::keyFrames(sample).constLast(), last);
    Player player(testsupport::samplePath(sample.file), threads);
    QVERIFY(player.isReady());
    player.decoder->setOptions(
        {{QStringLiteral("start"), QVariantHash{{QStringLiteral("key_frame_at_once"), atOnce}}}});

    for (int time = 0; time < 3; ++time) {
        QVERIFY(player.demuxer.seek(testsupport::frameTimeMs(sample, last)));
        player.decoder->flush();
        QCOMPARE(player.showRest(), expectedFrom(sample, last));
    }
}

void VideoDecoderTest::target_isTheSamePicture_whenNonReferenceFramesBeforeItAreSkipped_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        // A stream with gradual refresh gives its first picture when FFmpeg considers it complete,
        // which can be later if pictures are skipped. FrameReader then searches again.
        if (!sample.has(Trait::Large) && !sample.has(Trait::IntraRefresh)) {
            QTest::newRow(qPrintable(sample.file)) << sample.file;
        }
    }
}

void VideoDecoderTest::target_isTheSamePicture_whenNonReferenceFramesBeforeItAreSkipped()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    Player player(testsupport::samplePath(file));
    QVERIFY(player.isReady());

    const auto decodeTo = [&player](qint64 targetMs, int discard) {
        QtAV::VideoFrame frame;
        if (!player.demuxer.seek(targetMs)) {
            return frame;
        }
        player.decoder->flush();
        while (const auto packet = player.nextVideoPacket()) {
            const bool isBefore = static_cast<qint64>(packet->pts * 1000.0) < targetMs;
            player.decoder->setOptions(skipping(isBefore ? discard : 0));
            if (player.decoder->decode(*packet)) {
                frame = player.decoder->frame();
            }
            if (frame.isValid() && static_cast<qint64>(frame.timestamp() * 1000.0) >= targetMs) {
                break;
            }
        }
        return frame;
    };

    const int stride = std::max(1, sample.frames / 12);
    for (int n = 0; n < sample.frames; n += stride) {
        const qint64 target = testsupport::frameTimeMs(sample, n);
        const QtAV::VideoFrame whole = decodeTo(target, 0);
        const QtAV::VideoFrame quick = decodeTo(target, nonReference);
        QCOMPARE(quick.timestamp(), whole.timestamp());
        QCOMPARE(quick.toImage(), whole.toImage());
    }
}

void VideoDecoderTest::skipping_leavesFramesOut_fromTheNextPacketOn()
{
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("h264_bframes.mp4"));
    Player player(testsupport::samplePath(sample.file));
    player.decoder->setOptions(skipping(nonReference));
    const int skipped = player.showRest().size();
    QVERIFY2(skipped < sample.frames, "nothing was skipped");
    QVERIFY(player.demuxer.seek(0));
    player.decoder->flush();
    player.decoder->setOptions(skipping(0));
    QCOMPARE(player.showRest().size(), sample.frames);
}

void VideoDecoderTest::options_areIgnored_whenUnknown()
{
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("h264_bframes.mp4"));
    Player player(testsupport::samplePath(sample.file));
    const QVariantHash options{
        {QStringLiteral("vaapi"), QVariantHash{{QStringLiteral("display"), QStringLiteral("X11")}}},
        {QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("no_such_key"), 1}}},
        {QStringLiteral("no section"), 5}};
    player.decoder->setOptions(options);
    QCOMPARE(player.decoder->options(), options);
    QCOMPARE(player.showRest(), expectedFrom(sample, 0));
}

void VideoDecoderTest::drainPackets_giveNoFrame_whenNoneIsHeld()
{
    Player player(testsupport::samplePath(QStringLiteral("h264_one_frame.mp4")));
    QVERIFY(player.isReady());
    QCOMPARE(player.showRest().size(), 1);
    QVERIFY(player.demuxer.packet().isDrain());
    QVERIFY(player.demuxer.packet().isValid());
    QVERIFY(player.decoder->decode(player.demuxer.packet()));
    QVERIFY(!player.decoder->frame().isValid());
}

void VideoDecoderTest::decoder_staysUsable_afterDamagedPackets()
{
    const QString name = QStringLiteral("h264_bframes.mp4");
    const Sample& sample = testsupport::sampleNamed(name);
    const auto copy = damagedCopy(name, 0);
    QVERIFY(copy);
    Player player(copy->fileName());
    QVERIFY(player.isReady());
    bool failed = false;
    for (int i = 0; i < 20; ++i) {
        failed = !player.decoder->decode(*player.nextVideoPacket()) || failed;
    }
    QVERIFY(failed);
    const int lastKey = testsupport::keyFrames(sample).constLast();
    QVERIFY(lastKey > 0);
    QVERIFY(player.demuxer.seek(testsupport::frameTimeMs(sample, lastKey)));
    player.decoder->flush();
    QCOMPARE(player.showRest(), expectedFrom(sample, lastKey));
}

void VideoDecoderTest::av1_goesOn_atTheNextKeyFrame_afterAnError()
{
    const QString name = QStringLiteral("av1.mp4");
    const Sample& sample = testsupport::sampleNamed(name);
    const auto copy = damagedCopy(name, 12);
    QVERIFY(copy);
    Player player(copy->fileName(), 4);
    QVERIFY(player.isReady());
    bool failed = false;
    for (int i = 0; i < 8; ++i) {
        failed = !player.decoder->decode(*player.nextVideoPacket()) || failed;
    }
    QVERIFY(failed);
    const auto expected = expectedFrom(sample, testsupport::keyFrames(sample).constLast());
    const auto shown = player.showRest();
    QVERIFY(shown.size() >= expected.size());
    QCOMPARE(shown.mid(shown.size() - expected.size()), expected);
}

void VideoDecoderTest::decoder_startsOver_whenGivenPacketsAfterTheEnd()
{
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("h264_bframes.mp4"));
    Player player(testsupport::samplePath(sample.file));
    QCOMPARE(player.showRest(), expectedFrom(sample, 0));
    QVERIFY(player.demuxer.seek(0));
    QCOMPARE(player.showRest().size(), sample.frames);
}

QTEST_GUILESS_MAIN(VideoDecoderTest)
#include "VideoDecoderTest.moc"
