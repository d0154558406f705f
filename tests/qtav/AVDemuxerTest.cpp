#include "tests/qtav/Decoding.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <limits>

#include <sys/stat.h>

using namespace decoding;
using QtAV::AVDemuxer;
using testsupport::Sample;
using testsupport::Trait;

class AVDemuxerTest : public QObject
{
    Q_OBJECT

private slots:
    void newDemuxer_isEmpty();
    void load_fails_forWhatIsNoVideoFile_data();
    void load_fails_forWhatIsNoVideoFile();
    void load_doesNotWait_forPipes();
    void load_complainsOfNothing_inAWholeFile();
    void load_opensFiles_withAnyName_data();
    void load_opensFiles_withAnyName();
    void setMedia_unloads_onlyForAnotherFile();
    void unload_forgetsTheFile_butNotItsName();
    void load_succeeds_afterAFailure();
    void duration_isMeasured_whereTheHeaderDoesNotTell_data();
    void duration_isMeasured_whereTheHeaderDoesNotTell();
    void duration_stays_ifAnEditListHidesTheEnd_data();
    void duration_stays_ifAnEditListHidesTheEnd();
    void coverPicture_isNoVideoStream();
    void soundAlone_hasNoVideoStream();
    void streams_areChosenByTheirPlace();
    void sound_isReadOnlyWhenSelected();
    void codecContext_givesTheStoredSize();
    void seek_fails_withoutVideo();
    void seek_takesExtremePositions();
    void end_isReachedByDrainPackets_ofTheVideoStream();
    void brokenFiles_endInBoundedTime_data();
    void brokenFiles_endInBoundedTime();
    void packets_areInvalid_whenNeverRead();
};

void AVDemuxerTest::newDemuxer_isEmpty()
{
    AVDemuxer demuxer;
    QVERIFY(!demuxer.isLoaded());
    QVERIFY(demuxer.atEnd());
    QVERIFY(!demuxer.readFrame());
    QVERIFY(!demuxer.seek(0));
    QCOMPARE(demuxer.duration(), 0);
    QCOMPARE(demuxer.durationSource(), AVDemuxer::DurationSource::Unknown);
    QCOMPARE(demuxer.startTime(), 0);
    QCOMPARE(demuxer.stream(), -1);
    QCOMPARE(demuxer.videoStream(), -1);
    QVERIFY(demuxer.videoStreams().isEmpty());
    QVERIFY(!demuxer.videoCodecContext());
    QVERIFY(!demuxer.setStreamIndex(AVDemuxer::VideoStream, 0));
    QVERIFY(!demuxer.load());
    QVERIFY(!demuxer.errorString().isEmpty());
}

void AVDemuxerTest::load_fails_forWhatIsNoVideoFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << testsupport::samplePath(QStringLiteral("no such file.mp4"));
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("device") << QStringLiteral("/dev/zero");
    QTest::newRow("address") << QStringLiteral("http://127.0.0.1:9/video.mp4");
    for (const Sample& sample : testsupport::brokenSamples()) {
        if (sample.has(Trait::Unopenable)) {
            QTest::newRow(qPrintable(sample.file)) << testsupport::samplePath(sample.file);
        }
    }
}

void AVDemuxerTest::load_fails_forWhatIsNoVideoFile()
{
    QFETCH(QString, path);
    AVDemuxer demuxer;
    demuxer.setMedia(path);
    const bool opened = demuxer.load();
    // Noise may look like a container; then there is no video in it.
    QVERIFY(!opened || demuxer.videoStreams().isEmpty());
    if (!opened) {
        QVERIFY(!demuxer.errorString().isEmpty());
        QVERIFY(!demuxer.isLoaded());
    }
}

void AVDemuxerTest::load_doesNotWait_forPipes()
{
    const testsupport::TestDir dir;
    const QString path = dir.filePath(QStringLiteral("pipe.mp4"));
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    AVDemuxer demuxer;
    demuxer.setMedia(path);
    QVERIFY(!demuxer.load());
}

void AVDemuxerTest::load_complainsOfNothing_inAWholeFile()
{
    static int complaints;
    complaints = 0;
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
            complaints += type == QtDebugMsg || type == QtInfoMsg ? 0 : 1;
        });
    QtAV::AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(QStringLiteral("sound.mp4")));
    const bool isLoaded = demuxer.load();
    qInstallMessageHandler(previous);
    QVERIFY(isLoaded);
    QCOMPARE(complaints, 0);
}

void AVDemuxerTest::load_opensFiles_withAnyName_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"a b.c.mp4", "it's \"quoted\".mp4", "видео 视频.mp4", "100%d.mp4",
                             "http:x.mp4", "-flag.mp4", "a|b#c?d.mp4"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void AVDemuxerTest::load_opensFiles_withAnyName()
{
    QFETCH(QString, name);
    const testsupport::TestDir dir;
    const QString path = dir.filePath(name);
    QVERIFY(QFile::copy(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")), path));
    AVDemuxer demuxer;
    demuxer.setMedia(path);
    QVERIFY(demuxer.load());
    QCOMPARE(demuxer.videoStreams().size(), 1);
}

void AVDemuxerTest::setMedia_unloads_onlyForAnotherFile()
{
    AVDemuxer demuxer;
    const QString path = testsupport::samplePath(QStringLiteral("h264_bframes.mp4"));
    demuxer.setMedia(path);
    QVERIFY(demuxer.load());
    demuxer.setMedia(path);
    QVERIFY(demuxer.isLoaded());
    demuxer.setMedia(testsupport::samplePath(QStringLiteral("hevc_8bit.mp4")));
    QVERIFY(!demuxer.isLoaded());
}

void AVDemuxerTest::unload_forgetsTheFile_butNotItsName()
{
    AVDemuxer demuxer;
    const QString path = testsupport::samplePath(QStringLiteral("h264_bframes.mp4"));
    demuxer.setMedia(path);
    QVERIFY(demuxer.load());
    QVERIFY(demuxer.readFrame());
    demuxer.unload();
    QVERIFY(!demuxer.isLoaded());
    QCOMPARE(demuxer.fileName(), path);
    QCOMPARE(demuxer.duration(), 0);
    QVERIFY(!demuxer.packet().isValid());
    QVERIFY(demuxer.load());
}

void AVDemuxerTest::load_succeeds_afterAFailure()
{
    AVDemuxer demuxer;
    demuxer.setMedia(QStringLiteral("/no/such/file"));
    QVERIFY(!demuxer.load());
    demuxer.setMedia(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(demuxer.load());
    QVERIFY(demuxer.errorString().isEmpty());
}

void AVDemuxerTest::duration_isMeasured_whereTheHeaderDoesNotTell_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::allVideoSamples()) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

void AVDemuxerTest::duration_isMeasured_whereTheHeaderDoesNotTell()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(file));
    QVERIFY(demuxer.load());
    const qint64 last = testsupport::frameTimeMs(sample, sample.frames - 1);
    const qint64 beforeLast = testsupport::frameTimeMs(sample, std::max(0, sample.frames - 2));
    const qint64 end = std::max(last + (last - beforeLast), sample.soundEndMs);
    // Some containers state the start of the last frame, others its end; sound may last longer.
    constexpr qint64 longerSoundMs = 1100;
    QVERIFY2(demuxer.duration() >= beforeLast, qPrintable(QString::number(demuxer.duration())));
    QVERIFY2(demuxer.duration() <= end + longerSoundMs,
             qPrintable(QString::number(demuxer.duration())));
    // FFmpeg reads an FLV's length from its last tag, and does not tell that from a stated one.
    if (sample.has(Trait::NoStatedDuration) && !file.endsWith(QLatin1String(".flv"))) {
        QCOMPARE(demuxer.durationSource(), AVDemuxer::DurationSource::Scan);
    } else {
        QVERIFY(demuxer.durationSource() != AVDemuxer::DurationSource::Unknown);
    }
}

void AVDemuxerTest::duration_stays_ifAnEditListHidesTheEnd_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"edit_list_end.mp4", "edit_list_end_open_gop.mp4"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void AVDemuxerTest::duration_stays_ifAnEditListHidesTheEnd()
{
    QFETCH(QString, file);
    const qint64 expectedMs = 40 * testsupport::sampleNamed(file).frames;
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(file));
    QVERIFY(demuxer.load());
    QCOMPARE(demuxer.duration(), expectedMs);
    while (!demuxer.atEnd()) {
        static_cast<void>(demuxer.readFrame());
    }
    QCOMPARE(demuxer.duration(), expectedMs);
    QCOMPARE(demuxer.durationSource(), AVDemuxer::DurationSource::Header);
}

void AVDemuxerTest::coverPicture_isNoVideoStream()
{
    int found = 0;
    for (const Sample& sample : testsupport::allVideoSamples()) {
        if (!sample.has(Trait::CoverArt)) {
            continue;
        }
        ++found;
        AVDemuxer demuxer;
        demuxer.setMedia(testsupport::samplePath(sample.file));
        QVERIFY(demuxer.load());
        QCOMPARE(demuxer.videoStreams().size(), 1);
        QCOMPARE(demuxer.videoCodecContext()->width, sample.codedSize.width());
    }
    QVERIFY(found > 0);
}

void AVDemuxerTest::soundAlone_hasNoVideoStream()
{
    QVERIFY(!testsupport::noVideoSamples().isEmpty());
    for (const Sample& sample : testsupport::noVideoSamples()) {
        AVDemuxer demuxer;
        demuxer.setMedia(testsupport::samplePath(sample.file));
        QVERIFY2(demuxer.load(), qPrintable(sample.file));
        QVERIFY(demuxer.videoStreams().isEmpty());
        QVERIFY(!demuxer.audioStreams().isEmpty());
        QVERIFY(!demuxer.videoCodecContext());
        QVERIFY(demuxer.duration() > 0);
    }
}

void AVDemuxerTest::streams_areChosenByTheirPlace()
{
    for (const Sample& sample : testsupport::allVideoSamples()) {
        if (!sample.has(Trait::TwoVideoStreams)) {
            continue;
        }
        Player player(testsupport::samplePath(sample.file));
        QCOMPARE(player.demuxer.videoStreams().size(), 2);
        QVERIFY(!player.demuxer.setStreamIndex(AVDemuxer::VideoStream, 2));
        QVERIFY(player.demuxer.setStreamIndex(AVDemuxer::VideoStream, 1));
        QCOMPARE(player.demuxer.videoStream(), player.demuxer.videoStreams().at(1));
        player.decoder->setCodecContext(player.demuxer.videoCodecContext());
        QVERIFY(player.decoder->open());
        QVERIFY(player.demuxer.seek(0));
        QCOMPARE(player.showRest().constFirst().number, 1000);
        return;
    }
    QFAIL("no sample with two video streams");
}

void AVDemuxerTest::sound_isReadOnlyWhenSelected()
{
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(QStringLiteral("sound.mp4")));
    QVERIFY(demuxer.load());
    const auto readsSound = [&demuxer] {
        bool found = false;
        while (!demuxer.atEnd()) {
            if (demuxer.readFrame()) {
                found = found || demuxer.stream() != demuxer.videoStream();
            }
        }
        return found;
    };
    QCOMPARE(demuxer.audioStream(), -1);
    QVERIFY(!readsSound());
    QVERIFY(demuxer.setStreamIndex(AVDemuxer::AudioStream, 0));
    QVERIFY(demuxer.seek(0));
    QVERIFY(readsSound());
    QVERIFY(demuxer.setStreamIndex(AVDemuxer::AudioStream, -1));
    QVERIFY(demuxer.seek(0));
    QVERIFY(!readsSound());
}

void AVDemuxerTest::codecContext_givesTheStoredSize()
{
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(QStringLiteral("turned_90.mp4")));
    QVERIFY(demuxer.load());
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("turned_90.mp4"));
    QCOMPARE(demuxer.videoCodecContext()->width, sample.codedSize.width());
    QCOMPARE(demuxer.videoCodecContext()->height, sample.codedSize.height());
    QCOMPARE(demuxer.videoCodecContext()->codecName(), QStringLiteral("h264"));
}

void AVDemuxerTest::seek_fails_withoutVideo()
{
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(testsupport::noVideoSamples().constFirst().file));
    QVERIFY(demuxer.load());
    QVERIFY(!demuxer.seek(0));
}

void AVDemuxerTest::seek_takesExtremePositions()
{
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("mpeg2.ts"));
    const QList<int> keyFrames = testsupport::keyFrames(sample);
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(sample.file));
    QVERIFY(demuxer.load());
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    for (const qint64 ms : {-most - 1, qint64(-1)}) {
        QVERIFY(demuxer.seek(ms));
        QVERIFY(demuxer.readFrame());
        QCOMPARE(static_cast<qint64>(demuxer.packet().pts * 1000.0),
                 testsupport::frameTimeMs(sample, keyFrames.constFirst()));
    }
    QVERIFY(demuxer.seek(most));
    QVERIFY(demuxer.readFrame());
    QCOMPARE(static_cast<qint64>(demuxer.packet().pts * 1000.0),
             testsupport::frameTimeMs(sample, keyFrames.constLast()));
}

void AVDemuxerTest::end_isReachedByDrainPackets_ofTheVideoStream()
{
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(demuxer.load());
    double lastPts = -1;
    int drains = 0;
    while (!demuxer.atEnd()) {
        QVERIFY(demuxer.readFrame());
        const QtAV::Packet packet = demuxer.packet();
        QVERIFY(packet.isValid());
        QCOMPARE(demuxer.stream(), demuxer.videoStream());
        if (packet.isDrain()) {
            ++drains;
            QCOMPARE(packet.pts, lastPts);
            QVERIFY(!packet.hasKeyFrame);
        } else {
            QCOMPARE(drains, 0);
            lastPts = packet.pts;
        }
    }
    QVERIFY(drains > 0);
    QVERIFY(!demuxer.readFrame());
    QVERIFY(demuxer.atEnd());
}

void AVDemuxerTest::brokenFiles_endInBoundedTime_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::brokenSamples()) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

void AVDemuxerTest::brokenFiles_endInBoundedTime()
{
    QFETCH(QString, file);
    constexpr qint64 mostMs = 60000;
    QElapsedTimer timer;
    timer.start();
    Player player(testsupport::samplePath(file));
    for (const qint64 ms : {0, 1000, 1500, 3000, 100000}) {
        if (!player.isReady() || !player.demuxer.seek(ms)) {
            continue;
        }
        player.decoder->flush();
        const QList<Shown> all = player.showRest();
        for (int i = 1; i < all.size(); ++i) {
            QVERIFY(all.at(i).ms >= all.at(i - 1).ms);
        }
        QVERIFY(player.demuxer.atEnd());
    }
    QVERIFY(timer.elapsed() < mostMs);
}

void AVDemuxerTest::packets_areInvalid_whenNeverRead()
{
    QVERIFY(!QtAV::Packet().isValid());
    AVDemuxer demuxer;
    demuxer.setMedia(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(demuxer.load());
    QVERIFY(!demuxer.packet().isValid());
    QVERIFY(demuxer.readFrame());
    QtAV::Packet packet = demuxer.packet();
    QVERIFY(packet.isValid());
    const auto isInvalid = [&packet](auto change) {
        QtAV::Packet copy = packet;
        change(copy);
        return !copy.isValid();
    };
    QVERIFY(isInvalid([](QtAV::Packet& p) { p.isCorrupt = true; }));
    QVERIFY(isInvalid([](QtAV::Packet& p) { p.data.clear(); }));
    QVERIFY(isInvalid([](QtAV::Packet& p) { p.pts = -0.001; }));
    QVERIFY(isInvalid([](QtAV::Packet& p) { p.duration = -1; }));
}

QTEST_GUILESS_MAIN(AVDemuxerTest)
#include "AVDemuxerTest.moc"
