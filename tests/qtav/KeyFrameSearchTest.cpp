#include "qtav/src/KeyFrameSearch.h"

#include "tests/qtav/PacketReading.h"
#include "tests/qtav/PretendedDisk.h"
#include "tests/support/Samples.h"

#include <QTest>

#include <algorithm>

using packetreading::addFiles;
using packetreading::OpenVideo;
using packetreading::Read;
using QtAV::KeyFrameSearch;
using QtAV::PacketAnswer;
using testsupport::frameTimeMs;
using testsupport::Sample;
using testsupport::sampleNamed;

namespace {

qint64 durationMs(const Sample& sample)
{
    return frameTimeMs(sample, sample.frames - 1) + 40;
}

} // namespace

/// The search for the key frame from which a position is decoded.
class KeyFrameSearchTest : public QObject
{
    Q_OBJECT

private slots:
    void search_findsTheLastKeyFrameAtOrBeforeAFrame_data();
    void search_findsTheLastKeyFrameAtOrBeforeAFrame();
    void search_findsTheLastKeyFrame_withoutADuration();
    void reading_goesOnWhereTheSearchEnded_data();
    void reading_goesOnWhereTheSearchEnded();
    void end_isReached_whenNoKeyFrameFollows_data();
    void end_isReached_whenNoKeyFrameFollows();
    void end_isNotReached_farBeforeIt();
    void firstKeyFrame_isFound_forAPositionBeforeIt_data();
    void firstKeyFrame_isFound_forAPositionBeforeIt();
    void nextSearch_landsAsFarBackAsTheLast();
    void memory_isLimited_alsoForPacketsOfOtherStreams_data();
    void memory_isLimited_alsoForPacketsOfOtherStreams();
    void search_isCancelled_whileTheDiskHangs_data();
    void search_isCancelled_whileTheDiskHangs();
};

void KeyFrameSearchTest::search_findsTheLastKeyFrameAtOrBeforeAFrame_data()
{
    addFiles({"h264.ts",
              "h264_clock_wraps.ts",
              "mpeg2.ts",
              "hevc.ts",
              "sound_earlier.ts",
              "mpeg2.mpg",
              "mpeg1_untimed_keys.mpg",
              "mpeg2_untimed_keys.vob",
              "mpeg2_untimed_keys_sound.vob",
              "mpeg4_bframes.avi",
              "mpeg4_xvid_packed.avi",
              "h264_bframes.avi",
              "h264_bframes.mp4",
              "h264_all_flagged_key.mp4",
              "h264_open_gop_bframes.mp4",
              "h264_fragmented.mp4",
              "h264_bframes.mkv",
              "sound_earlier.mkv",
              "no_cues.webm",
              "h264_bframes.flv",
              "flv1.flv",
              "raw.h264",
              "raw.hevc",
              "raw.m2v"});
}

void KeyFrameSearchTest::search_findsTheLastKeyFrameAtOrBeforeAFrame()
{
    QFETCH(QString, file);
    const Sample& sample = sampleNamed(file);
    const QList<int> keyFrames = testsupport::keyFrames(sample);
    QVERIFY(keyFrames.size() > 1);
    OpenVideo video(file);
    // Backwards, so that each search has to go back.
    for (int n = sample.frames - 1; n >= 0; --n) {
        KeyFrameSearch search(video.packets, durationMs(sample), 0);
        QCOMPARE(search.run(frameTimeMs(sample, n)), PacketAnswer::Packet);
        QVERIFY(!search.packets().empty());
        const Read found =
            packetreading::described(*search.packets().front(), video.packets.timeline());
        QVERIFY(found.isKey);
        const int keyFrame = *std::prev(std::upper_bound(keyFrames.cbegin(), keyFrames.cend(), n));
        QCOMPARE(found.ms, frameTimeMs(sample, keyFrame));
    }
}

void KeyFrameSearchTest::search_findsTheLastKeyFrame_withoutADuration()
{
    const QString file = QStringLiteral("h264.ts");
    const Sample& sample = sampleNamed(file);
    OpenVideo video(file);
    KeyFrameSearch search(video.packets, 0, 0);
    QCOMPARE(search.run(3600 * 1000), PacketAnswer::Packet);
    const Read found =
        packetreading::described(*search.packets().front(), video.packets.timeline());
    QCOMPARE(found.ms, frameTimeMs(sample, testsupport::keyFrames(sample).constLast()));
    QVERIFY(search.reachedEnd());
}

void KeyFrameSearchTest::reading_goesOnWhereTheSearchEnded_data()
{
    addFiles({"h264.ts", "mpeg2_untimed_keys.vob", "mpeg4_xvid_packed.avi", "h264_bframes.mp4",
              "h264_bframes.mkv", "h264_bframes.flv", "raw.h264"});
}

/// Nothing is missing or repeated between what the search kept and what is read next.
void KeyFrameSearchTest::reading_goesOnWhereTheSearchEnded()
{
    QFETCH(QString, file);
    const Sample& sample = sampleNamed(file);
    OpenVideo video(file);
    const QList<Read> all = video.readRest();
    for (const int n : {sample.frames - 1, sample.frames / 2, 1}) {
        KeyFrameSearch search(video.packets, durationMs(sample), 0);
        QCOMPARE(search.run(frameTimeMs(sample, n)), PacketAnswer::Packet);
        const QList<Read> read =
            packetreading::described(search.packets(), video.packets.timeline()) + video.readRest();
        QCOMPARE(read, all.mid(all.size() - read.size()));
    }
}

void KeyFrameSearchTest::end_isReached_whenNoKeyFrameFollows_data()
{
    reading_goesOnWhereTheSearchEnded_data();
}

void KeyFrameSearchTest::end_isReached_whenNoKeyFrameFollows()
{
    QFETCH(QString, file);
    const Sample& sample = sampleNamed(file);
    OpenVideo video(file);
    for (const qint64 behindMs : {0, 1000, 3600 * 1000}) {
        KeyFrameSearch search(video.packets, durationMs(sample), 0);
        QCOMPARE(search.run(durationMs(sample) + behindMs), PacketAnswer::Packet);
        QVERIFY(search.reachedEnd());
        const QList<Read> found =
            packetreading::described(search.packets(), video.packets.timeline());
        const int keyFrame = testsupport::keyFrames(sample).constLast();
        QCOMPARE(found.constFirst().ms, frameTimeMs(sample, keyFrame));
        QCOMPARE(packetreading::sortedTimes(found).constLast(),
                 frameTimeMs(sample, sample.frames - 1));
    }
}

void KeyFrameSearchTest::end_isNotReached_farBeforeIt()
{
    for (const char* name : {"h264.ts", "mpeg2_untimed_keys.vob", "h264_bframes.mp4", "raw.h264"}) {
        const QString file = QString::fromLatin1(name);
        OpenVideo video(file);
        KeyFrameSearch search(video.packets, durationMs(sampleNamed(file)), 0);
        QCOMPARE(search.run(1000), PacketAnswer::Packet);
        QVERIFY2(!search.reachedEnd(), name);
    }
}

void KeyFrameSearchTest::firstKeyFrame_isFound_forAPositionBeforeIt_data()
{
    addFiles({"sound_earlier.ts", "sound_earlier.mkv", "sound_earlier.mp4", "video_from_3s.ts",
              "video_from_3s.mkv", "video_from_3s.mp4"});
}

void KeyFrameSearchTest::firstKeyFrame_isFound_forAPositionBeforeIt()
{
    QFETCH(QString, file);
    const Sample& sample = sampleNamed(file);
    const qint64 firstMs = frameTimeMs(sample, 0);
    QVERIFY(firstMs > 400);
    OpenVideo video(file);
    for (const qint64 ms : {firstMs - 1, firstMs / 2, qint64(0)}) {
        KeyFrameSearch search(video.packets, durationMs(sample), 0);
        QCOMPARE(search.run(ms), PacketAnswer::Packet);
        const Read found =
            packetreading::described(*search.packets().front(), video.packets.timeline());
        QVERIFY(found.isKey);
        QCOMPARE(found.ms, firstMs);
    }
}

/// A seek in a transport stream initially lands behind its target.
void KeyFrameSearchTest::nextSearch_landsAsFarBackAsTheLast()
{
    const Sample& sample = sampleNamed(QStringLiteral("h264.ts"));
    OpenVideo video(sample.file);
    KeyFrameSearch first(video.packets, durationMs(sample), 0);
    QCOMPARE(first.run(2900), PacketAnswer::Packet);
    QVERIFY(first.stepBackMs() > 0);
    KeyFrameSearch second(video.packets, durationMs(sample), first.stepBackMs());
    QCOMPARE(second.run(2900), PacketAnswer::Packet);
    QCOMPARE(second.stepBackMs(), first.stepBackMs());
    QCOMPARE(packetreading::described(second.packets(), video.packets.timeline()),
             packetreading::described(first.packets(), video.packets.timeline()));
}

void KeyFrameSearchTest::memory_isLimited_alsoForPacketsOfOtherStreams_data()
{
    addFiles({"sound.mp4", "sound_later.mkv", "sound_earlier.ts", "h264_bframes.mkv"});
}

void KeyFrameSearchTest::memory_isLimited_alsoForPacketsOfOtherStreams()
{
    QFETCH(const QString, file);
    constexpr qint64 limit = 3000;
    const Sample& sample = sampleNamed(file);
    OpenVideo video(file);
    // Deep in the first group of pictures, behind more than the maximum kept.
    KeyFrameSearch search(video.packets, durationMs(sample), 0, limit);
    QCOMPARE(search.run(frameTimeMs(sample, 20)), PacketAnswer::Packet);
    const AVPacket& first = *search.packets().front();
    QCOMPARE(first.stream_index, video.packets.stream());
    QVERIFY(first.flags & AV_PKT_FLAG_KEY);
    qint64 bytes = 0;
    for (const QtAV::PacketPtr& packet : search.packets()) {
        QVERIFY2(bytes < limit, "more was read than may be kept");
        bytes += packet->size + QtAV::bytesBesideData;
    }
    QVERIFY(bytes >= limit);
}

void KeyFrameSearchTest::search_isCancelled_whileTheDiskHangs_data()
{
    addFiles({"h264.ts", "mpeg2_untimed_keys.vob", "h264_bframes.mkv", "h264_bframes.flv",
              "raw.h264", "mpeg4_bframes.avi", "h264_bframes.mp4"});
}

/// Afterwards, a search that is not interrupted finds its key frame.
void KeyFrameSearchTest::search_isCancelled_whileTheDiskHangs()
{
    QFETCH(QString, file);
    const Sample& sample = sampleNamed(file);
    OpenVideo video(file);
    const QList<Read> all = video.readRest(); // so that no buffer holds the target
    video.container->setInterrupt([] { return true; });
    {
        const pretended::HangingDisk disk;
        KeyFrameSearch cancelled(video.packets, durationMs(sample), 0);
        QCOMPARE(cancelled.run(500), PacketAnswer::Cancelled);
        QVERIFY(video.packets.wasInterrupted());
    }
    video.container->setInterrupt([] { return false; });
    KeyFrameSearch search(video.packets, durationMs(sample), 0);
    QCOMPARE(search.run(500), PacketAnswer::Packet);
    const QList<Read> read =
        packetreading::described(search.packets(), video.packets.timeline()) + video.readRest();
    QVERIFY(read.constFirst().isKey);
    QVERIFY(read.constFirst().ms <= 500);
    QCOMPARE(read, all.mid(all.size() - read.size()));
}

QTEST_GUILESS_MAIN(KeyFrameSearchTest)
#include "KeyFrameSearchTest.moc"
