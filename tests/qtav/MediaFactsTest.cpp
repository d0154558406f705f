#include <QtAV/AVDemuxer.h>

#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"
#include "tests/support/TaggedSample.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTest>

using QtAV::AVDemuxer;
using QtAV::MediaFacts;
using testsupport::samplePath;
using testsupport::tagSample;
using testsupport::TestDir;

namespace {

/// The facts of a file; empty, with a failed check, if it cannot be opened.
MediaFacts factsOf(const QString& path)
{
    AVDemuxer demuxer;
    demuxer.setMedia(path);
    return demuxer.load() ? demuxer.facts() : MediaFacts();
}

} // namespace

class MediaFactsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void facts_areThoseOfTheFile_beforeThoseOfTheVideo()
    {
        const TestDir dir;
        const QString path = dir.filePath(QStringLiteral("a.mkv"));
        QVERIFY(tagSample(QStringLiteral("h264_bframes.mkv"), path,
                          {QStringLiteral("creation_time=2024-05-06T10:34:56.25Z"),
                           QStringLiteral("ARTIST=Zoë"), QStringLiteral("MAKE=of the file"),
                           QStringLiteral("s:make=of the video"),
                           QStringLiteral("s:model=of the video")}));
        const MediaFacts facts = factsOf(path);
        QCOMPARE(facts.tags.value(QStringLiteral("creation_time")),
                 QStringLiteral("2024-05-06T10:34:56.250000Z"));
        QCOMPARE(facts.tags.value(QStringLiteral("artist")), QStringLiteral("Zoë"));
        QCOMPARE(facts.tags.value(QStringLiteral("make")), QStringLiteral("of the file"));
        QCOMPARE(facts.tags.value(QStringLiteral("model")), QStringLiteral("of the video"));
        QCOMPARE(facts.tickNumerator, 1);
        QCOMPARE(facts.tickDenominator, 1000);
    }

    void facts_tellWhatCamerasWrite()
    {
        const TestDir dir;
        const QString path = dir.filePath(QStringLiteral("a.mov"));
        QVERIFY(tagSample(QStringLiteral("h264_bframes.mp4"), path,
                          {QStringLiteral("com.apple.quicktime.model=Camera"),
                           QStringLiteral("com.apple.quicktime.location.ISO6709=+48.2+016.3/")}));
        const MediaFacts facts = factsOf(path);
        QCOMPARE(facts.tags.value(QStringLiteral("com.apple.quicktime.model")),
                 QStringLiteral("Camera"));
        QCOMPARE(facts.tags.value(QStringLiteral("com.apple.quicktime.location.iso6709")),
                 QStringLiteral("+48.2+016.3/"));
    }

    void facts_tellTheRateAndTheCodec()
    {
        const MediaFacts facts = factsOf(samplePath(QStringLiteral("h264_bframes.mp4")));
        QCOMPARE(facts.rateNumerator, 25 * facts.rateDenominator);
        QCOMPARE(facts.codec, QStringLiteral("h264"));
        QVERIFY(facts.chapters.isEmpty());
    }

    void chapters_areInTheOrderOfTheirStarts_onTheTimelineOfTheFile_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::newRow("Matroska") << QStringLiteral("mkv");
        QTest::newRow("MP4") << QStringLiteral("mp4");
    }

    void chapters_areInTheOrderOfTheirStarts_onTheTimelineOfTheFile()
    {
        QFETCH(const QString, suffix);
        const TestDir dir;
        const QString list = dir.filePath(QStringLiteral("chapters.txt"));
        QFile file(list);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(";FFMETADATA1\n"
                   "[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=1000\ntitle=One\n"
                   "[CHAPTER]\nTIMEBASE=1/1000\nSTART=1000\nEND=2500\ntitle=Two ä\n"
                   "[CHAPTER]\nTIMEBASE=1/1000\nSTART=2500\nEND=4000\n");
        file.close();
        const QString path = dir.filePath(QStringLiteral("a.") + suffix);
        const auto made = testsupport::runProgram(
            QStringLiteral("ffmpeg"),
            {QStringLiteral("-nostdin"), QStringLiteral("-loglevel"), QStringLiteral("error"),
             QStringLiteral("-i"), samplePath(QStringLiteral("h264_bframes.mp4")),
             QStringLiteral("-i"), list, QStringLiteral("-map_metadata"), QStringLiteral("1"),
             QStringLiteral("-c"), QStringLiteral("copy"), path});
        QVERIFY2(made.succeeded(), made.standardError.constData());
        const auto chapters = factsOf(path).chapters;
        QCOMPARE(chapters.size(), 3);
        QCOMPARE(chapters.at(0).startMs, 0);
        QCOMPARE(chapters.at(0).title, QStringLiteral("One"));
        QCOMPARE(chapters.at(1).startMs, 1000);
        QCOMPARE(chapters.at(1).title, QStringLiteral("Two ä"));
        QCOMPARE(chapters.at(2).startMs, 2500);
        QCOMPARE(chapters.at(2).title, QString());
    }

    void longTags_areCut_andVeryManyLeftOut()
    {
        const TestDir dir;
        const QString path = dir.filePath(QStringLiteral("a.mkv"));
        QStringList tags{QStringLiteral("comment=") + QString(100000, QLatin1Char('x'))};
        for (int i = 0; i < 400; ++i) {
            tags += QStringLiteral("key%1=value").arg(i);
        }
        QVERIFY(tagSample(QStringLiteral("h264_bframes.mkv"), path, tags));
        const MediaFacts facts = factsOf(path);
        QCOMPARE(facts.tags.size(), 256);
        for (const QString& value : facts.tags) {
            QVERIFY(value.size() <= 4096);
        }
    }

    void nothing_isKnown_withoutAFile()
    {
        const AVDemuxer demuxer;
        QVERIFY(demuxer.facts().tags.isEmpty());
        QCOMPARE(demuxer.facts().tickNumerator, 0);
        QVERIFY(factsOf(samplePath(QStringLiteral("random_bytes.mp4"))).tags.isEmpty());
    }

    void noTicks_areKnown_withoutAVideo()
    {
        const MediaFacts facts = factsOf(samplePath(QStringLiteral("sound_only.mp4")));
        QCOMPARE(facts.tickNumerator, 0);
    }
};

QTEST_GUILESS_MAIN(MediaFactsTest)
#include "MediaFactsTest.moc"
