#include "video/VideoInfo.h"

#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/video/MakeVideo.h"

#include <QFile>
#include <QTest>

using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;

class VideoInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields_areEmpty_beforeAnyLoad();
    void load_fillsLengthAndCodedSize_overAllSamples_data();
    void load_fillsLengthAndCodedSize_overAllSamples();
    void load_givesExactLength_whenTheFileStatesIt();
    void load_givesTheSame_whenRepeated();
    void load_fillsLengthAlone_whenThereIsNoVideo_data();
    void load_fillsLengthAlone_whenThereIsNoVideo();
    void load_changesNothing_whenTheFileIsMissing();
    void loaded_staysTrue_whenALaterLoadFails();
    void interruptedLoad_changesNothing();
    void interrupt_isAsked_untilItIsRemoved();
    void facts_travelToAnotherObject();
};

void VideoInfoTest::fields_areEmpty_beforeAnyLoad()
{
    const VideoInfo info;
    QCOMPARE(info.duration, 0);
    QCOMPARE(info.width, 0);
    QCOMPARE(info.height, 0);
    QVERIFY(!info.loaded);
}

void VideoInfoTest::load_fillsLengthAndCodedSize_overAllSamples_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::allVideoSamples()) {
        QTest::newRow(qUtf8Printable(sample.file)) << sample.file;
    }
}

void VideoInfoTest::load_fillsLengthAndCodedSize_overAllSamples()
{
    QFETCH(const QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    VideoInfo info;
    info.loadFromVideo(samplePath(file));
    QVERIFY(info.loaded);
    QCOMPARE(QSize(info.width, info.height), sample.codedSize);
    QVERIFY2(info.duration >= testsupport::frameTimeMs(sample, sample.frames - 1),
             qPrintable(QString::number(info.duration)));
}

void VideoInfoTest::load_givesExactLength_whenTheFileStatesIt()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("exact.mov"));
    testsupport::makeVideo(path, 3, 1234);
    VideoInfo info;
    info.loadFromVideo(path);
    QCOMPARE(info.duration, 3702);
    QCOMPARE(QSize(info.width, info.height), QSize(64, 48));
}

void VideoInfoTest::load_givesTheSame_whenRepeated()
{
    const QString path = samplePath(QStringLiteral("h264_bframes.mp4"));
    VideoInfo info;
    info.loadFromVideo(path);
    const qint64 duration = info.duration;
    info.loadFromVideo(path);
    QVERIFY(info.loaded);
    QCOMPARE(info.duration, duration);
    QCOMPARE(QSize(info.width, info.height), QSize(320, 240));
}

void VideoInfoTest::load_fillsLengthAlone_whenThereIsNoVideo_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::noVideoSamples()) {
        QTest::newRow(qUtf8Printable(sample.file)) << sample.file;
    }
}

void VideoInfoTest::load_fillsLengthAlone_whenThereIsNoVideo()
{
    QFETCH(const QString, file);
    VideoInfo info;
    QTest::ignoreMessage(QtDebugMsg, "Error loading VideoInfo");
    info.loadFromVideo(samplePath(file));
    QVERIFY(info.duration > 0);
    QCOMPARE(info.width, 0);
    QCOMPARE(info.height, 0);
    QVERIFY(!info.loaded);
}

void VideoInfoTest::load_changesNothing_whenTheFileIsMissing()
{
    const TestDir dir;
    VideoInfo info;
    info.duration = 7;
    info.width = 8;
    QTest::ignoreMessage(QtDebugMsg, "Error loading VideoInfo");
    info.loadFromVideo(dir.filePath(QStringLiteral("missing.mp4")));
    QCOMPARE(info.duration, 7);
    QCOMPARE(info.width, 8);
    QCOMPARE(info.height, 0);
    QVERIFY(!info.loaded);
}

void VideoInfoTest::loaded_staysTrue_whenALaterLoadFails()
{
    const TestDir dir;
    VideoInfo info;
    info.loadFromVideo(samplePath(QStringLiteral("h264_bframes.mp4")));
    const qint64 duration = info.duration;
    QTest::ignoreMessage(QtDebugMsg, "Error loading VideoInfo");
    info.loadFromVideo(dir.filePath(QStringLiteral("missing.mp4")));
    QVERIFY(info.loaded);
    QCOMPARE(info.duration, duration);
}

void VideoInfoTest::interruptedLoad_changesNothing()
{
    VideoInfo info;
    info.duration = 7;
    info.setInterrupt([] { return true; });
    QTest::ignoreMessage(QtDebugMsg, "Error loading VideoInfo");
    info.loadFromVideo(samplePath(QStringLiteral("h264_bframes.mp4")));
    QCOMPARE(info.duration, 7);
    QCOMPARE(info.width, 0);
    QVERIFY(!info.loaded);
}

void VideoInfoTest::interrupt_isAsked_untilItIsRemoved()
{
    VideoInfo info;
    int questions = 0;
    info.setInterrupt([&questions] {
        ++questions;
        return false;
    });
    info.loadFromVideo(samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(info.loaded);
    QVERIFY(questions > 0);
    questions = 0;
    info.setInterrupt({});
    info.loadFromVideo(samplePath(QStringLiteral("h264_bframes.mp4")));
    QCOMPARE(questions, 0);
}

void VideoInfoTest::facts_travelToAnotherObject()
{
    VideoInfo info;
    QVERIFY(!info.facts().loaded);
    info.loadFromVideo(samplePath(QStringLiteral("h264_bframes.mp4")));
    VideoInfo other;
    other.setFacts(info.facts());
    QVERIFY(other.loaded);
    QVERIFY(other.duration > 0);
    QCOMPARE(other.duration, info.duration);
    QCOMPARE(QSize(other.width, other.height), QSize(320, 240));
}

QTEST_GUILESS_MAIN(VideoInfoTest)
#include "VideoInfoTest.moc"
