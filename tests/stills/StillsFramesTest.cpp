#include "tests/stills/StillsProgram.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/FramePositions.h"
#include "tests/support/Samples.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestDir.h"

#include <QImage>
#include <QJsonArray>
#include <QTest>

using stillsprogram::filesIn;
using stillsprogram::numbersIn;
using stillsprogram::objects;
using stillsprogram::shortSample;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

QStringList words(const QString& text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

int integer(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toInt(-1);
}

QString text(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

} // namespace

class StillsFramesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void options_chooseTheFrames_data();
    void options_chooseTheFrames();
    void keyFrames_areAllTaken();
    void firstFrameOfEachScene_isTaken();
    void allSamples_giveTheFramesThatWereAskedFor();
    void objects_sayWhatCame();
    void frameNumbers_areTold_whereTheNamesHaveThem();
    void positionsBehindTheEnd_areErrors();
    void framesThatThereAreNot_areErrors();
    void size_makesPicturesSmaller_neverLarger_data();
    void size_makesPicturesSmaller_neverLarger();
    void filter_decidesHowTheSizeChanges();
    void format_decidesTheType_data();
    void format_decidesTheType();
    void standardOutput_takesThePictures();
    void oneJob_givesTheSameBytes_asMany();
};

void StillsFramesTest::options_chooseTheFrames_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QList<int>>("frames");
    const auto row = [](const char* options, const QList<int>& frames) {
        QTest::newRow(options) << QString::fromLatin1(options) << frames;
    };
    row("", {5, 15, 25, 35, 45, 55, 65, 75, 85, 95});
    row("--count 1", {50});
    row("--count 4", {13, 38, 63, 88});
    row("--every 1s", {0, 25, 50, 75});
    row("--every 500ms", {0, 13, 25, 38, 50, 63, 75, 88});
    row("--every 1s --skip-start 1s --skip-end 1s", {25, 50});
    row("--every 1s --skip-start 50%", {50, 75});
    row("--at 1.5", {38});
    row("--at 0:01.5,50%,last --at 100ms", {3, 38, 50, 99});
    row("--at 0,0.0,0:00", {0});
    row("--frames 0,7,20-22", {0, 7, 20, 21, 22});
    row("--frames 99", {99});
}

void StillsFramesTest::options_chooseTheFrames()
{
    QFETCH(const QString, options);
    QFETCH(const QList<int>, frames);
    const TestDir dir;
    const ProgramResult result =
        stillsprogram::run(QStringList{samplePath(shortSample)} + words(options) +
                           words(QStringLiteral("-o ") + dir.path()));
    QVERIFY2(result.succeeded(), result.standardError.constData());
    QCOMPARE(numbersIn(dir.path()), frames);
    QCOMPARE(result.standardOutput, QByteArray());
}

void StillsFramesTest::keyFrames_areAllTaken()
{
    for (const char* const name : {"h264_bframes.mp4", "h264_gop250.mp4", "mpeg2.ts", "vp9.webm"}) {
        const testsupport::Sample& sample = testsupport::sampleNamed(QString::fromLatin1(name));
        const TestDir dir;
        const ProgramResult result =
            stillsprogram::run({samplePath(sample.file), QStringLiteral("--keyframes"),
                                QStringLiteral("-o"), dir.path()});
        QVERIFY2(result.succeeded(), result.standardError.constData());
        QCOMPARE(numbersIn(dir.path()), testsupport::keyFrames(sample));
    }
}

void StillsFramesTest::firstFrameOfEachScene_isTaken()
{
    const TestDir dir;
    const QString sample = QStringLiteral("three_scenes.mp4");
    const ProgramResult result = stillsprogram::run(
        {samplePath(sample), QStringLiteral("--scenes"), QStringLiteral("-o"), dir.path()});
    QVERIFY2(result.succeeded(), result.standardError.constData());
    QCOMPARE(numbersIn(dir.path()), (QList<int>{0, 50, 100}));
}

void StillsFramesTest::allSamples_giveTheFramesThatWereAskedFor()
{
    const TestDir dir;
    QStringList arguments{QStringLiteral("--count"), QStringLiteral("3")};
    for (const testsupport::Sample& sample : testsupport::videoSamplesToRepeat()) {
        arguments += samplePath(sample.file);
    }
    const ProgramResult result = stillsprogram::runJson(arguments, dir.path());
    QVERIFY2(result.succeeded(), result.standardError.constData());
    testsupport::Mistakes mistakes;
    int pictures = 0;
    for (const QJsonObject& picture : objects(result.standardOutput, QStringLiteral("image"))) {
        const testsupport::Sample& sample =
            testsupport::sampleNamed(QFileInfo(text(picture, "video")).fileName());
        const int frame = testsupport::frameFrom(sample, integer(picture, "asked_ms"));
        const QImage image(text(picture, "path"));
        mistakes.compare(sample.file + QStringLiteral(" at ") +
                             QString::number(integer(picture, "asked_ms")),
                         QString::number(testsupport::frameNumber(image).value_or(-1)),
                         QString::number(sample.firstNumber + frame));
        mistakes.compare(sample.file + QStringLiteral(": width"), QString::number(image.width()),
                         QString::number(testsupport::displaySizeOf(sample, frame).width()));
        ++pictures;
    }
    QVERIFY(pictures > testsupport::videoSamplesToRepeat().size());
    QVERIFY2(mistakes.isEmpty(), qPrintable(mistakes.text()));
}

void StillsFramesTest::objects_sayWhatCame()
{
    const TestDir dir;
    const QString video = samplePath(shortSample);
    const ProgramResult result = stillsprogram::runJson(
        {video, QStringLiteral("--at"), QStringLiteral("1.01,3")}, dir.path());
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardError, QByteArray());
    const QList<QJsonObject> all = objects(result.standardOutput);
    QCOMPARE(all.size(), 4);
    const QJsonObject picture = all.at(0);
    QCOMPARE(text(picture, "type"), QStringLiteral("image"));
    QCOMPARE(text(picture, "video"), video);
    QCOMPARE(integer(picture, "asked_ms"), 1010);
    QCOMPARE(integer(picture, "time_ms"), 1040);
    QVERIFY(picture.value(QLatin1String("frame")).isNull());
    QCOMPARE(integer(picture, "width"), 320);
    QCOMPARE(integer(picture, "height"), 240);
    QCOMPARE(text(picture, "path"), dir.filePath(QStringLiteral("h264_bframes-00.00.01.010.jpg")));
    QCOMPARE(text(all.at(2), "type"), QStringLiteral("video"));
    QCOMPARE(integer(all.at(2), "duration_ms"), 4000);
    QCOMPARE(integer(all.at(2), "delivered"), 2);
    QCOMPARE(integer(all.at(2), "skipped"), 0);
    QCOMPARE(integer(all.at(2), "failed"), 0);
    QCOMPARE(text(all.at(3), "type"), QStringLiteral("summary"));
    QCOMPARE(integer(all.at(3), "videos"), 1);
    QCOMPARE(integer(all.at(3), "delivered"), 2);
    QCOMPARE(all.at(3).value(QLatin1String("interrupted")), QJsonValue(false));
    QVERIFY(integer(all.at(3), "elapsed_ms") >= 0);
}

void StillsFramesTest::frameNumbers_areTold_whereTheNamesHaveThem()
{
    const TestDir dir;
    const ProgramResult result = stillsprogram::runJson(
        {samplePath(shortSample), QStringLiteral("--every"), QStringLiteral("1s"),
         QStringLiteral("--names"), QStringLiteral("{frame:3}")},
        dir.path());
    QVERIFY(result.succeeded());
    QCOMPARE(filesIn(dir.path()), words(QStringLiteral("000.jpg 025.jpg 050.jpg 075.jpg")));
    for (const QJsonObject& picture : objects(result.standardOutput, QStringLiteral("image"))) {
        const QImage image(text(picture, "path"));
        QCOMPARE(testsupport::frameNumber(image).value_or(-1), integer(picture, "frame"));
    }
}

void StillsFramesTest::positionsBehindTheEnd_areErrors()
{
    const TestDir dir;
    const ProgramResult result = stillsprogram::runJson(
        {samplePath(shortSample), QStringLiteral("--at"), QStringLiteral("1,1:00")}, dir.path());
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(numbersIn(dir.path()), QList<int>{25});
    const auto errors = objects(result.standardOutput, QStringLiteral("error"));
    QCOMPARE(errors.size(), 1);
    QCOMPARE(integer(errors.first(), "asked_ms"), 60000);
    QVERIFY(result.standardError.contains("at 1:00.000: The video ends at 0:04.000"));
}

void StillsFramesTest::framesThatThereAreNot_areErrors()
{
    const TestDir dir;
    const ProgramResult result =
        stillsprogram::run({samplePath(shortSample), QStringLiteral("--frames"),
                            QStringLiteral("99-101"), QStringLiteral("-o"), dir.path()});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(numbersIn(dir.path()), QList<int>{99});
    QVERIFY(result.standardError.contains("no frame 100"));
    QVERIFY(result.standardError.endsWith("(2 errors)\n"));
}

void StillsFramesTest::size_makesPicturesSmaller_neverLarger_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QSize>("size");
    QTest::newRow("as it is") << QString() << QSize(320, 240);
    QTest::newRow("smaller") << QStringLiteral("--size 160x160") << QSize(160, 120);
    QTest::newRow("larger") << QStringLiteral("--size 1920x1080") << QSize(320, 240);
    QTest::newRow("same") << QStringLiteral("--size 320x240") << QSize(320, 240);
    QTest::newRow("one side") << QStringLiteral("--size 1000x120") << QSize(160, 120);
    QTest::newRow("enlarged") << QStringLiteral("--size 1000x480 --enlarge") << QSize(640, 480);
}

void StillsFramesTest::size_makesPicturesSmaller_neverLarger()
{
    QFETCH(const QString, options);
    QFETCH(const QSize, size);
    const TestDir dir;
    const ProgramResult result = stillsprogram::run(
        words(options) + QStringList{samplePath(shortSample), QStringLiteral("-c1"),
                                     QStringLiteral("-o"), dir.path()});
    QVERIFY2(result.succeeded(), result.standardError.constData());
    QCOMPARE(QImage(dir.filePath(filesIn(dir.path()).constFirst())).size(), size);
}

void StillsFramesTest::filter_decidesHowTheSizeChanges()
{
    const auto made = [](const char* options) {
        const TestDir dir;
        const ProgramResult result = stillsprogram::run(
            words(QString::fromLatin1(options)) +
            QStringList{samplePath(shortSample), QStringLiteral("--at"), QStringLiteral("1"),
                        QStringLiteral("--size"), QStringLiteral("700x525"),
                        QStringLiteral("--enlarge"), QStringLiteral("--format"),
                        QStringLiteral("png"), QStringLiteral("-o"), dir.path()});
        return result.succeeded() ? QImage(dir.filePath(filesIn(dir.path()).constFirst()))
                                  : QImage();
    };
    const QImage area = made("");
    QCOMPARE(area.size(), QSize(700, 525));
    QCOMPARE(made("--filter area"), area);
    const QImage nearest = made("--filter nearest");
    const QImage lanczos = made("--filter lanczos");
    const QImage bicubic = made("--filter=bicubic");
    const QImage light = made("--filter lanczos --linear-light");
    for (const QImage& image : {nearest, lanczos, bicubic, light}) {
        QCOMPARE(image.size(), area.size());
        QVERIFY(image != area);
        QCOMPARE(testsupport::frameNumber(image).value_or(-1), 25);
    }
    QVERIFY(lanczos != bicubic);
    QVERIFY(lanczos != light);
}

void StillsFramesTest::format_decidesTheType_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("jpg") << QStringLiteral("jpg") << QByteArray("\xff\xd8\xff");
    QTest::newRow("jpeg") << QStringLiteral("jpeg") << QByteArray("\xff\xd8\xff");
    QTest::newRow("capitals") << QStringLiteral("PNG") << QByteArray("\x89PNG");
    QTest::newRow("bmp") << QStringLiteral("bmp") << QByteArray("BM");
    QTest::newRow("tif") << QStringLiteral("tif") << QByteArray("II");
    QTest::newRow("tiff") << QStringLiteral("tiff") << QByteArray("II");
    QTest::newRow("webp") << QStringLiteral("webp") << QByteArray("RIFF");
}

void StillsFramesTest::format_decidesTheType()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, start);
    const TestDir dir;
    const ProgramResult result = stillsprogram::run(
        {samplePath(shortSample), QStringLiteral("--frames"), QStringLiteral("42"),
         QStringLiteral("--format"), format, QStringLiteral("-o"), dir.path()});
    QVERIFY2(result.succeeded(), result.standardError.constData());
    QCOMPARE(filesIn(dir.path()).constFirst(),
             QStringLiteral("h264_bframes-00.00.01.680.") + format.toLower());
    QFile file(dir.filePath(filesIn(dir.path()).constFirst()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith(start));
    QCOMPARE(numbersIn(dir.path()), QList<int>{42});
}

void StillsFramesTest::standardOutput_takesThePictures()
{
    const ProgramResult one = stillsprogram::run(
        {samplePath(shortSample), QStringLiteral("--frames"), QStringLiteral("42"),
         QStringLiteral("-o"), QStringLiteral("-"), QStringLiteral("--format=png")});
    QVERIFY(one.succeeded());
    QCOMPARE(testsupport::frameNumber(QImage::fromData(one.standardOutput)).value_or(-1), 42);
    QVERIFY(one.standardError.contains("1 picture on standard output"));
    const ProgramResult two = stillsprogram::run(
        {samplePath(shortSample), QStringLiteral("--frames"), QStringLiteral("42,43"),
         QStringLiteral("-o"), QStringLiteral("-"), QStringLiteral("--format=png")});
    QVERIFY(two.standardOutput.startsWith(one.standardOutput));
    QCOMPARE(two.standardOutput.count("\x89PNG"), 2);
}

void StillsFramesTest::oneJob_givesTheSameBytes_asMany()
{
    QByteArray outputs[2];
    for (int i = 0; i < 2; ++i) {
        const ProgramResult result = stillsprogram::run(
            {samplePath(shortSample), QStringLiteral("--every"), QStringLiteral("200ms"),
             QStringLiteral("-j"), i == 0 ? QStringLiteral("1") : QStringLiteral("4"),
             QStringLiteral("--memory"), QStringLiteral("1M"), QStringLiteral("-o"),
             QStringLiteral("-")});
        QVERIFY(result.succeeded());
        outputs[i] = result.standardOutput;
    }
    QVERIFY(!outputs[0].isEmpty());
    QVERIFY(outputs[0] == outputs[1]);
}

QTEST_GUILESS_MAIN(StillsFramesTest)

#include "StillsFramesTest.moc"
