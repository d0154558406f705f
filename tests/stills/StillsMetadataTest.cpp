#include "tests/stills/StillsProgram.h"

#include "tests/support/Samples.h"
#include "tests/support/TaggedSample.h"
#include "tests/support/TestDir.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using stillsprogram::filesIn;
using stillsprogram::shortSample;
using stillsprogram::words;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::tagSample;
using testsupport::TestDir;

namespace {

/// What another program reads from a picture, by group and name as in "EXIF:Make".
QJsonObject tagsOf(const QString& path)
{
    const ProgramResult result = testsupport::runProgram(
        QStringLiteral("exiftool"),
        {QStringLiteral("-json"), QStringLiteral("-G0"), QStringLiteral("-n"), path});
    if (!result.succeeded()) {
        qWarning("%s", result.standardError.constData());
    }
    return QJsonDocument::fromJson(result.standardOutput).array().at(0).toObject();
}

QString textOf(const QJsonObject& tags, const char* key)
{
    return tags.value(QLatin1String(key)).toVariant().toString();
}

/// Takes one picture of a video into the folder; returns its path, or an empty text.
QString takeOne(const QString& video, const QStringList& options, const QString& folder)
{
    const ProgramResult result =
        stillsprogram::run(QStringList{video, QStringLiteral("-o"), folder} + options);
    if (!result.succeeded() || !result.standardError.contains("1 picture")) {
        qWarning("%s", result.standardError.constData());
        return {};
    }
    return folder + QLatin1Char('/') + filesIn(folder).value(0);
}

} // namespace

class StillsMetadataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictures_tellTheirMoment_data();
    void pictures_tellTheirMoment();
    void place_isToldOnlyWhereAsked();
    void nothing_isTold_withNone();
    void videosThatSayNothing_givePosition_data();
    void videosThatSayNothing_givePosition();
    void hostileVideos_givePictures();
};

void StillsMetadataTest::pictures_tellTheirMoment_data()
{
    QTest::addColumn<QString>("container");
    QTest::addColumn<QString>("format");
    for (const char* const format : {"jpg", "png", "tiff", "webp"}) {
        QTest::addRow("%s from MOV", format)
            << QStringLiteral("mov") << QString::fromLatin1(format);
        QTest::addRow("%s from MKV", format)
            << QStringLiteral("mkv") << QString::fromLatin1(format);
    }
}

void StillsMetadataTest::pictures_tellTheirMoment()
{
    QFETCH(const QString, container);
    QFETCH(const QString, format);
    const TestDir dir;
    const TestDir out;
    const QString video = dir.filePath(QStringLiteral("a film.") + container);
    QVERIFY(tagSample(shortSample, video,
                      {QStringLiteral("creation_time=2024-05-06T10:34:56.250Z"),
                       QStringLiteral("artist=Zoë"), QStringLiteral("make=Maker"),
                       QStringLiteral("model=Model")}));
    const QString path =
        takeOne(video, words("--at 1.5 --format") + QStringList{format}, out.path());
    const QJsonObject tags = tagsOf(path);
    QCOMPARE(textOf(tags, "EXIF:DateTimeOriginal"), QStringLiteral("2024:05:06 10:34:57"));
    QCOMPARE(textOf(tags, "EXIF:SubSecTimeOriginal"), QStringLiteral("770"));
    QCOMPARE(textOf(tags, "EXIF:OffsetTimeOriginal"), QStringLiteral("+00:00"));
    QCOMPARE(textOf(tags, "XMP:CreateDate"), QStringLiteral("2024:05:06 10:34:57.770+00:00"));
    QCOMPARE(textOf(tags, "XMP:Source"), QStringLiteral("a film.") + container);
    QCOMPARE(textOf(tags, "XMP:Position"), QStringLiteral("1.52"));
    QCOMPARE(textOf(tags, "EXIF:Artist"), QStringLiteral("Zoë"));
    QCOMPARE(textOf(tags, "EXIF:Make"), QStringLiteral("Maker"));
    QCOMPARE(textOf(tags, "EXIF:Model"), QStringLiteral("Model"));
    const QString program = textOf(tags, "EXIF:Software");
    QVERIFY2(program.startsWith(QLatin1String("Morvantile ")), qPrintable(program));
    QCOMPARE(stillsprogram::numbersIn(out.path()), QList<int>{38});
}

void StillsMetadataTest::place_isToldOnlyWhereAsked()
{
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("a.mov"));
    QVERIFY(tagSample(shortSample, video,
                      {QStringLiteral("com.apple.quicktime.location.ISO6709=+48.2085-016.3730/")}));
    const TestDir usual;
    const QJsonObject without = tagsOf(takeOne(video, words("--at 1"), usual.path()));
    QCOMPARE(textOf(without, "XMP:Position"), QStringLiteral("1"));
    QCOMPARE(textOf(without, "EXIF:GPSLatitude"), QString());
    QCOMPARE(textOf(without, "XMP:VideoPath"), QString());
    const TestDir all;
    const QJsonObject with = tagsOf(takeOne(video, words("--at 1 --metadata all"), all.path()));
    QCOMPARE(textOf(with, "EXIF:GPSLatitude"), QStringLiteral("48.2085"));
    QCOMPARE(textOf(with, "EXIF:GPSLongitude"), QStringLiteral("16.373"));
    QCOMPARE(textOf(with, "EXIF:GPSLongitudeRef"), QStringLiteral("W"));
    QCOMPARE(textOf(with, "XMP:VideoPath"), video);
}

void StillsMetadataTest::nothing_isTold_withNone()
{
    const TestDir out;
    const QString path =
        takeOne(samplePath(shortSample), words("--at 1 --metadata none"), out.path());
    const QJsonObject tags = tagsOf(path);
    for (const QString& key : tags.keys()) {
        QVERIFY2(!key.startsWith(QLatin1String("EXIF:")), qPrintable(key));
        QVERIFY2(!key.startsWith(QLatin1String("XMP:")), qPrintable(key));
    }
    QVERIFY(!QImage(path).isNull());
}

void StillsMetadataTest::videosThatSayNothing_givePosition_data()
{
    QTest::addColumn<QString>("video");
    for (const char* const video :
         {"mpeg2.ts", "raw.h264", "mpeg4_bframes.avi", "animated.gif", "truncated.mp4",
          "bit_flipped.mkv", "no_duration.webm", "dv.dv"}) {
        QTest::newRow(video) << QString::fromLatin1(video);
    }
}

void StillsMetadataTest::videosThatSayNothing_givePosition()
{
    QFETCH(const QString, video);
    const TestDir out;
    const QString path = takeOne(samplePath(video), words("--at 0"), out.path());
    QVERIFY(!path.isEmpty());
    const QJsonObject tags = tagsOf(path);
    QCOMPARE(textOf(tags, "XMP:Source"), video);
    QVERIFY(tags.contains(QStringLiteral("XMP:Position")));
}

void StillsMetadataTest::hostileVideos_givePictures()
{
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("a.mkv"));
    const QString bad =
        QStringLiteral("]]></rdf:RDF>\x1b[2J<!--'\"&") + QString(50000, QLatin1Char('x'));
    QVERIFY(tagSample(shortSample, video,
                      {QStringLiteral("artist=") + bad, QStringLiteral("model=") + bad,
                       QStringLiteral("make=") + bad, QStringLiteral("location=") + bad,
                       QStringLiteral("creationdate=") + bad}));
    const TestDir out;
    const QString path = takeOne(video, words("--at 1 --metadata all"), out.path());
    const QJsonObject tags = tagsOf(path);
    QVERIFY(textOf(tags, "EXIF:Artist").startsWith(QLatin1String("]]></rdf:RDF> [2J<!--'\"&xxx")));
    QCOMPARE(textOf(tags, "EXIF:Artist").size(), 1000);
    QCOMPARE(textOf(tags, "XMP:Position"), QStringLiteral("1"));
    QCOMPARE(stillsprogram::numbersIn(out.path()), QList<int>{25});
}

QTEST_GUILESS_MAIN(StillsMetadataTest)
#include "StillsMetadataTest.moc"
