#include "tests/app/CommandLine.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTest>

using commandline::copySample;
using commandline::imagesIn;
using commandline::longSample;
using commandline::numbersIn;
using testsupport::ProgramResult;
using testsupport::TestDir;

namespace {

/// 4 seconds, 25 frames a second, a key frame every second.
const QString shortSample = QStringLiteral("h264_bframes.mp4");

const QStringList noSkips{QStringLiteral("--skipfront"), QStringLiteral("0"),
                          QStringLiteral("--skipback"), QStringLiteral("0")};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QStringList numberedNames(const QString& base, int count, const QString& type)
{
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        const QString number = QString::number(i).rightJustified(5, QLatin1Char('0'));
        names.append(base + QLatin1Char('-') + number + QLatin1Char('.') + type);
    }
    return names;
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void run_takesAnImageEvery5000ms_nextToTheVideo();
    void run_printsNothing();
    void run_complainsOfNothing_inASessionWithoutARuntimeFolder();
    void run_printsDebugLines_onRequest();
    void images_goToTheDestination();
    void paths_mayBeRelative();
    void furtherArguments_areIgnored();
    void options_chooseTheFrames_data();
    void options_chooseTheFrames();
    void oneImage_isASingleShot_withoutNumber();
    void images_haveTheRequestedSize_data();
    void images_haveTheRequestedSize();
    void images_areNamedByTheOptions();
    void images_haveTheRequestedType_data();
    void images_haveTheRequestedType();
    void filenameAndLog_haveNoEffect();
    void existingImages_areKept();
    void savedDefaults_areNotConsulted();
    void turnedVideos_giveUprightImages_data();
    void turnedVideos_giveUprightImages();
    void names_mayHoldAnyCharacters_data();
    void names_mayHoldAnyCharacters();
};

void CommandLineTest::run_takesAnImageEvery5000ms_nextToTheVideo()
{
    const TestDir dir;
    const ProgramResult result = commandline::run({copySample(longSample, dir.path())});
    QVERIFY(result.succeeded());
    QCOMPARE(imagesIn(dir.path()),
             numberedNames(QStringLiteral("h264_gop250"), 4, QStringLiteral("jpeg")));
    QCOMPARE(numbersIn(dir.path()), (QList<int>{50, 175, 300, 425}));
    QCOMPARE(QImage(dir.filePath(QStringLiteral("h264_gop250-00001.jpeg"))).size(),
             QSize(640, 480));
}

void CommandLineTest::run_printsNothing()
{
    const TestDir dir;
    const ProgramResult result = commandline::run({copySample(shortSample, dir.path())});
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardOutput, QByteArray());
    QVERIFY2(!result.standardError.contains("BatchWorker"), result.standardError.constData());
    QVERIFY2(!result.standardError.contains("progress"), result.standardError.constData());
}

void CommandLineTest::run_complainsOfNothing_inASessionWithoutARuntimeFolder()
{
    const TestDir dir;
    const TestDir temporary;
    QProcessEnvironment environment = commandline::environment();
    environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    environment.insert(QStringLiteral("TMPDIR"), temporary.path());
    const ProgramResult result = testsupport::runProgram(
        commandline::program(), {copySample(shortSample, dir.path())}, 60000, environment);
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardError, QByteArray());
    QVERIFY(QDir(temporary.path()).isEmpty());
}

void CommandLineTest::run_printsDebugLines_onRequest()
{
    const TestDir dir;
    QProcessEnvironment environment = commandline::environment();
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("default.debug=true"));
    const ProgramResult result = testsupport::runProgram(
        commandline::program(), {copySample(shortSample, dir.path())}, 60000, environment);
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardOutput, QByteArray());
    QVERIFY(result.standardError.contains("BatchWorker::run"));
}

void CommandLineTest::images_goToTheDestination()
{
    const TestDir dir;
    const TestDir destination;
    const QString video = copySample(longSample, dir.path());
    QVERIFY(commandline::run({video, destination.path()}).succeeded());
    QVERIFY(imagesIn(dir.path()).isEmpty());
    QCOMPARE(numbersIn(destination.path()), (QList<int>{50, 175, 300, 425}));
}

void CommandLineTest::paths_mayBeRelative()
{
    const TestDir dir;
    copySample(longSample, dir.path(), QStringLiteral("video.mp4"));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("images")));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir.path()));
    const bool succeeded = commandline::run(words("video.mp4 images")).succeeded() &&
                           commandline::run(words("video.mp4")).succeeded();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(succeeded);
    QCOMPARE(numbersIn(dir.filePath(QStringLiteral("images"))), (QList<int>{50, 175, 300, 425}));
    QCOMPARE(numbersIn(dir.path()), (QList<int>{50, 175, 300, 425}));
}

void CommandLineTest::furtherArguments_areIgnored()
{
    const TestDir dir;
    const TestDir destination;
    const QString video = copySample(longSample, dir.path());
    QVERIFY(commandline::run({video, destination.path(), QStringLiteral("/nowhere")}).succeeded());
    QCOMPARE(imagesIn(destination.path()).size(), 4);
}

void CommandLineTest::options_chooseTheFrames_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QList<int>>("frames");
    // The second position is 10399 ms, near enough to the key frame.
    QTest::newRow("count") << "--count 2" << QList<int>{50, 250};
    QTest::newRow("count, one dash") << "-count 2" << QList<int>{50, 250};
    QTest::newRow("count, short") << "-c 2" << QList<int>{50, 250};
    QTest::newRow("count, joined") << "--count=2" << QList<int>{50, 250};
    QTest::newRow("ms") << "--ms 10000" << QList<int>{50, 300};
    QTest::newRow("ms, one dash") << "-ms 10000" << QList<int>{50, 300};
    QTest::newRow("ms, short") << "-m 10000" << QList<int>{50, 300};
    QTest::newRow("ms, no number") << "--ms often --skipback 16801" << QList<int>{50, 75};
    QTest::newRow("ms, negative") << "--ms=-7 --skipback 16801" << QList<int>{50, 75};
    QTest::newRow("skip front") << "--ms 10000 --skipfront 5000" << QList<int>{125, 375};
    QTest::newRow("skip back") << "--ms 10000 --skipback 9000" << QList<int>{50};
    QTest::newRow("both skips") << "-skipfront 1000 -skipback 14000" << QList<int>{25, 150};
    QTest::newRow("skips that are no numbers")
        << "--ms 15000 --skipfront x --skipback y" << QList<int>{0, 375};
    QTest::newRow("skips longer than the video") << "--skipfront 30000" << QList<int>{};
    QTest::newRow("one image") << "--count 1" << QList<int>{210};
    QTest::newRow("no image") << "--count 0" << QList<int>{210};
    QTest::newRow("count, no number") << "--count many" << QList<int>{210};
}

void CommandLineTest::options_chooseTheFrames()
{
    QFETCH(const QString, options);
    const TestDir dir;
    const QString video = copySample(longSample, dir.path());
    const QStringList arguments = options.split(QLatin1Char(' '));
    const ProgramResult result = commandline::run(arguments + QStringList{video});
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardOutput, QByteArray());
    QTEST(numbersIn(dir.path()), "frames");
}

void CommandLineTest::oneImage_isASingleShot_withoutNumber()
{
    const TestDir dir;
    const QString video = copySample(longSample, dir.path());
    QVERIFY(commandline::run({video, QStringLiteral("--count"), QStringLiteral("1")}).succeeded());
    QCOMPARE(imagesIn(dir.path()), QStringList{QStringLiteral("h264_gop250-.jpeg")});
}

void CommandLineTest::images_haveTheRequestedSize_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QSize>("size");
    // The video is 4:3, and by default the ratio is kept.
    QTest::newRow("both") << "--width 200 --height 150" << QSize(200, 150);
    QTest::newRow("wide bounds") << "--width 200 --height 90" << QSize(120, 90);
    QTest::newRow("high bounds") << "--width 200 --height 900" << QSize(200, 150);
    QTest::newRow("width alone") << "--width 320" << QSize(320, 240);
    QTest::newRow("height alone") << "--height 240" << QSize(320, 240);
    QTest::newRow("with the switch")
        << "--width 200 --height 90 --videoaspectratio" << QSize(120, 90);
}

void CommandLineTest::images_haveTheRequestedSize()
{
    QFETCH(const QString, options);
    const TestDir dir;
    const QString video = copySample(longSample, dir.path());
    const QStringList arguments = options.split(QLatin1Char(' ')) + words("--count 1");
    QVERIFY(commandline::run(arguments + QStringList{video}).succeeded());
    const QImage image(dir.filePath(QStringLiteral("h264_gop250-.jpeg")));
    QTEST(image.size(), "size");
    QCOMPARE(testsupport::frameNumber(image).value_or(-1), 210);
}

void CommandLineTest::images_areNamedByTheOptions()
{
    const TestDir dir;
    const QString video = copySample(longSample, dir.path(), QStringLiteral("my.long video.mp4"));
    const QStringList options{QStringLiteral("--ms"),         QStringLiteral("10000"),
                              QStringLiteral("--fileprefix"), QStringLiteral("été "),
                              QStringLiteral("--filesuffix"), QStringLiteral("_at_"),
                              QStringLiteral("--filetype"),   QStringLiteral("png")};
    QVERIFY(commandline::run(options + QStringList{video}).succeeded());
    const QStringList expected{QStringLiteral("été my.long video_at_00001.png"),
                               QStringLiteral("été my.long video_at_00002.png")};
    QCOMPARE(imagesIn(dir.path()), expected);
}

void CommandLineTest::images_haveTheRequestedType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("jpeg") << "jpeg" << QByteArray("jpeg");
    QTest::newRow("jpg") << "jpg" << QByteArray("jpeg");
    QTest::newRow("png") << "png" << QByteArray("png");
    QTest::newRow("bmp") << "bmp" << QByteArray("bmp");
    QTest::newRow("tiff") << "tiff" << QByteArray("tiff");
    QTest::newRow("tif") << "tif" << QByteArray("tiff");
    QTest::newRow("capitals") << "PNG" << QByteArray("png");
}

void CommandLineTest::images_haveTheRequestedType()
{
    QFETCH(const QString, type);
    const TestDir dir;
    const QString video = copySample(longSample, dir.path());
    QVERIFY(commandline::run({video, QStringLiteral("-c"), QStringLiteral("2"),
                              QStringLiteral("--filetype"), type})
                .succeeded());
    QCOMPARE(imagesIn(dir.path()), numberedNames(QStringLiteral("h264_gop250"), 2, type));
    QCOMPARE(numbersIn(dir.path()), (QList<int>{50, 250}));
    QTEST(QImageReader::imageFormat(dir.filePath(imagesIn(dir.path()).first())), "format");
}

void CommandLineTest::filenameAndLog_haveNoEffect()
{
    const TestDir dir;
    const QString video = copySample(longSample, dir.path());
    const QString log = dir.filePath(QStringLiteral("errors.log"));
    const ProgramResult result = commandline::run(
        {video, QStringLiteral("--filename"), QStringLiteral("x"), QStringLiteral("--fileprefix"),
         QStringLiteral("p_"), QStringLiteral("--log"), log});
    QVERIFY(result.succeeded());
    QCOMPARE(imagesIn(dir.path()),
             numberedNames(QStringLiteral("p_h264_gop250"), 4, QStringLiteral("jpeg")));
}

void CommandLineTest::existingImages_areKept()
{
    const TestDir dir;
    const QString video = copySample(longSample, dir.path());
    QVERIFY(commandline::run({video}).succeeded());
    QVERIFY(commandline::run({video, QStringLiteral("--ms"), QStringLiteral("10000")}).succeeded());
    QCOMPARE(numbersIn(dir.path()), (QList<int>{50, 175, 300, 425, 50, 300}));
}

void CommandLineTest::savedDefaults_areNotConsulted()
{
    const TestDir dir;
    const QString video = copySample(longSample, dir.path());
    const QString folder = dir.filePath(QStringLiteral("config/Morvantile/Morvantile"));
    QVERIFY(QDir().mkpath(folder));
    QFile defaults(folder + QStringLiteral("/batchModeDefaults.ini"));
    QVERIFY(defaults.open(QIODevice::WriteOnly));
    defaults.write("[General]\nintervalType=1\nintervalImages=2\nskipFront=0\n");
    defaults.close();
    QProcessEnvironment environment = commandline::environment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.filePath(QStringLiteral("config")));
    QVERIFY(
        testsupport::runProgram(commandline::program(), {video}, 60000, environment).succeeded());
    QCOMPARE(numbersIn(dir.path()), (QList<int>{50, 175, 300, 425}));
}

void CommandLineTest::turnedVideos_giveUprightImages_data()
{
    QTest::addColumn<QString>("sample");
    for (const char* const sample : {"turned_90.mp4", "turned_180.mp4", "turned_270.mp4",
                                     "mirrored_left_right.mp4", "transposed.mp4"}) {
        QTest::newRow(sample) << QString::fromLatin1(sample);
    }
}

void CommandLineTest::turnedVideos_giveUprightImages()
{
    QFETCH(const QString, sample);
    const TestDir dir;
    const QString video = copySample(sample, dir.path());
    QVERIFY(commandline::run(noSkips + words("--ms 1000") + QStringList{video}).succeeded());
    QCOMPARE(numbersIn(dir.path()), (QList<int>{0, 25}));
    QVERIFY(testsupport::isUpright(QImage(dir.filePath(imagesIn(dir.path()).first()))));
}

void CommandLineTest::names_mayHoldAnyCharacters_data()
{
    QTest::addColumn<QString>("base");
    for (const char* const base :
         {"two words", "dots.in.the.name", "single ' and double \" quotes", "Übergröße 映像 видео",
          "100% %1 %d %03d", "colon:bar|star*", "-dash first", "back\\slash", "[brackets] {braces}",
          "#hash & ampersand?", " space at both ends "}) {
        QTest::newRow(base) << QString::fromUtf8(base);
    }
}

void CommandLineTest::names_mayHoldAnyCharacters()
{
    QFETCH(const QString, base);
    const TestDir dir;
    const QString folder = dir.filePath(QStringLiteral("in ") + base);
    const QString destination = dir.filePath(QStringLiteral("to ") + base);
    QVERIFY(QDir().mkpath(folder) && QDir().mkpath(destination));
    const QString video = copySample(longSample, folder, base + QStringLiteral(".mp4"));
    QVERIFY(commandline::run({video, destination}).succeeded());
    QCOMPARE(imagesIn(destination), numberedNames(base, 4, QStringLiteral("jpeg")));
    QCOMPARE(numbersIn(destination), (QList<int>{50, 175, 300, 425}));
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
