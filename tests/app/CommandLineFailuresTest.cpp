#include "product/ProductInfo.h"
#include "tests/app/CommandLine.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <algorithm>
#include <memory>

using commandline::copySample;
using commandline::imagesIn;
using commandline::longSample;
using commandline::numbersIn;
using testsupport::ProgramResult;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;

// Prefix of the names of Qt's libraries.
#define QT "Qt" QT_STRINGIFY(QT_VERSION_MAJOR)

namespace {

std::unique_ptr<QProcess> start(const QStringList& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(commandline::environment());
    process->start(commandline::program(), arguments);
    return process;
}

/// Whether every finished image in the folder can be read up to its last line.
bool areComplete(const QString& folder)
{
    const QStringList images = QDir(folder).entryList({QStringLiteral("*.png")}, QDir::Files);
    return std::all_of(images.begin(), images.end(), [&folder](const QString& name) {
        return QImage(QDir(folder).filePath(name)).size() == QSize(640, 480);
    });
}

/// The program's message for wrong arguments, or null.
QByteArray complaint(const QStringList& arguments)
{
    const ProgramResult result = commandline::run(arguments);
    const ProgramResult help = commandline::run({QStringLiteral("--help")});
    const bool hasHelp = result.standardOutput.endsWith(help.standardOutput);
    if (!result.succeeded() || !help.succeeded() || !hasHelp) {
        return {};
    }
    return result.standardOutput.chopped(help.standardOutput.size());
}

} // namespace

class CommandLineFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noArguments_areAnError_withTheHelp();
    void missingVideo_isAnError_withTheHelp();
    void missingDestination_isAnError_withTheHelp();
    void countAndMs_areAnError_withTheHelp();
    void firstError_isTheOneReported();
    void unknownOption_endsWithAnError();
    void help_listsTheOptionsInOrder();
    void version_isPrinted_data();
    void version_isPrinted();
    void displayless_platformsAreNotNeeded();
    void program_needsNoWidgetsAndNoSound();
    void unopenableFile_givesNothing_data();
    void unopenableFile_givesNothing();
    void brokenFile_endsInTime_withCompleteImages_data();
    void brokenFile_endsInTime_withCompleteImages();
    void unwritableDestination_givesNothing();
    void imageBeyondTheMemory_isAnError_withFileAndPosition();
    void vanishedDestination_endsWell();
    void twoRunsAtOnce_loseAndReplaceNothing();
    void killedRun_leavesNoHalfImage();
};

void CommandLineFailuresTest::noArguments_areAnError_withTheHelp()
{
    QCOMPARE(complaint({}), QByteArray("A file name is required\n"));
    QCOMPARE(complaint({QStringLiteral("--ms"), QStringLiteral("100")}),
             QByteArray("A file name is required\n"));
}

void CommandLineFailuresTest::missingVideo_isAnError_withTheHelp()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("missing видео.mp4"));
    QCOMPARE(complaint({path}), QByteArray("File not found: ") + path.toUtf8() + '\n');
    QCOMPARE(complaint({QStringLiteral("no/such.mp4")}),
             QByteArray("File not found: no/such.mp4\n"));
}

void CommandLineFailuresTest::missingDestination_isAnError_withTheHelp()
{
    QCOMPARE(complaint({samplePath(longSample), QStringLiteral("no//such/")}),
             QByteArray("Output folder is incorrect or does not exist: no//such/\n"));
}

void CommandLineFailuresTest::countAndMs_areAnError_withTheHelp()
{
    const TestDir dir;
    QCOMPARE(complaint({copySample(longSample, dir.path()), QStringLiteral("--count"),
                        QStringLiteral("5"), QStringLiteral("--ms"), QStringLiteral("100")}),
             QByteArray("Please only set count or milliseconds\n"));
    QVERIFY(imagesIn(dir.path()).isEmpty());
}

void CommandLineFailuresTest::firstError_isTheOneReported()
{
    const QStringList both{QStringLiteral("-c"), QStringLiteral("5"), QStringLiteral("-m"),
                           QStringLiteral("100")};
    QCOMPARE(complaint(both + QStringList{QStringLiteral("no.mp4"), QStringLiteral("no")}),
             QByteArray("File not found: no.mp4\n"));
    QCOMPARE(complaint(both + QStringList{samplePath(longSample), QStringLiteral("no")}),
             QByteArray("Output folder is incorrect or does not exist: no\n"));
}

void CommandLineFailuresTest::unknownOption_endsWithAnError()
{
    const ProgramResult result =
        commandline::run({samplePath(longSample), QStringLiteral("--speed"), QStringLiteral("5")});
    QVERIFY(result.end == ProgramResult::End::Exited);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.standardError.contains("Unknown option 'speed'."));
    QCOMPARE(result.standardOutput, QByteArray());
}

void CommandLineFailuresTest::help_listsTheOptionsInOrder()
{
    const ProgramResult result = commandline::run({QStringLiteral("-help")});
    QVERIFY(result.succeeded());
    // The parser determines line breaks and indentation.
    const QString help = QString::fromUtf8(result.standardOutput).simplified();
    const QStringList parts{
        QStringLiteral("[options] source [destination]"),
        QStringLiteral("Morvantile Command line options"),
        QStringLiteral("-h, --help"),
        QStringLiteral("-v, --version"),
        QStringLiteral("-c, --count <image count> The number of thumbnails/images to create from "
                       "a video file. Use this or --ms."),
        QStringLiteral("-m, --ms <milliseconds> The number of milliseconds to skip each time to "
                       "to create from a video file. Use this or --count"),
        QStringLiteral("--skipfront <milliseconds> How many milliseconds to ignore from the front "
                       "of a video before processing."),
        QStringLiteral("--skipback <milliseconds> How many milliseconds to ignore from the back "
                       "of a video."),
        QStringLiteral("--height <height> Output image height."),
        QStringLiteral("--width <width> Output image width."),
        QStringLiteral("--videoaspectratio With this option the images will be resized within the "
                       "height and width specified as maximum values, retaining aspect ratio of "
                       "the source video."),
        QStringLiteral("--fileprefix <prefix> Specifies a prefix to append to the image file "
                       "names."),
        QStringLiteral("--filename <name> Specify the output file name instead of using the video "
                       "file name for output."),
        QStringLiteral("--filesuffix <suffix> Specifies a suffix to append to the image file "
                       "names."),
        QStringLiteral("--filetype <type> Specifies the file type of the output image. jpeg, jpg, "
                       "png, bmp, tiff, tif."),
        QStringLiteral("--log <file name> Logs any errors messages to the file specified"),
        QStringLiteral("source Video file to process."),
        QStringLiteral("destination Destination directory.")};
    int position = 0;
    for (const QString& part : parts) {
        position = help.indexOf(part, position);
        QVERIFY2(position >= 0, qPrintable(part));
        position += part.size();
    }
}

void CommandLineFailuresTest::version_isPrinted_data()
{
    QTest::addColumn<QString>("option");
    for (const char* const option : {"--version", "-version", "-v"}) {
        QTest::newRow(option) << QString::fromLatin1(option);
    }
}

void CommandLineFailuresTest::version_isPrinted()
{
    QFETCH(const QString, option);
    const ProgramResult result = commandline::run({option});
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardOutput, "Morvantile " + ProductInfo::version().toUtf8() + "\n");
}

/// The other runs have no display either, but here the environment requests one.
void CommandLineFailuresTest::displayless_platformsAreNotNeeded()
{
    const TestDir dir;
    QProcessEnvironment environment = commandline::environment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    QVERIFY(testsupport::runProgram(commandline::program(), {copySample(longSample, dir.path())},
                                    60000, environment)
                .succeeded());
    QCOMPARE(imagesIn(dir.path()).size(), 4);
}

/// Servers install it without desktop libraries.
void CommandLineFailuresTest::program_needsNoWidgetsAndNoSound()
{
    const ProgramResult result =
        testsupport::runProgram(QStringLiteral("ldd"), {commandline::program()});
    QVERIFY(result.succeeded());
    QVERIFY(result.standardOutput.contains(QT "Gui"));
    for (const char* const library : {QT "Widgets", QT "Svg", QT "OpenGL", QT "Multimedia"}) {
        QVERIFY2(!result.standardOutput.contains(library), library);
    }
}

void CommandLineFailuresTest::unopenableFile_givesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder") << QDir::tempPath();
    for (const Sample& sample : testsupport::noVideoSamples()) {
        QTest::newRow(qUtf8Printable(sample.file)) << samplePath(sample.file);
    }
    for (const Sample& sample : testsupport::brokenSamples()) {
        if (sample.has(testsupport::Trait::Unopenable)) {
            QTest::newRow(qUtf8Printable(sample.file)) << samplePath(sample.file);
        }
    }
}

void CommandLineFailuresTest::unopenableFile_givesNothing()
{
    QFETCH(const QString, path);
    const TestDir destination;
    const ProgramResult result = commandline::run({path, destination.path()});
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardOutput, QByteArray());
    QVERIFY(imagesIn(destination.path()).isEmpty());
}

void CommandLineFailuresTest::brokenFile_endsInTime_withCompleteImages_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    for (const Sample& sample : testsupport::brokenSamples()) {
        QTest::newRow(qUtf8Printable(sample.file)) << samplePath(sample.file);
    }
}

/// The time limit is that for running the program.
void CommandLineFailuresTest::brokenFile_endsInTime_withCompleteImages()
{
    QFETCH(QString, path);
    const TestDir destination;
    if (path.isEmpty()) {
        path = destination.filePath(QStringLiteral("empty.mp4"));
        QFile empty(path);
        QVERIFY(empty.open(QIODevice::WriteOnly));
    }
    const ProgramResult result = commandline::run(
        {path, destination.path(), QStringLiteral("--ms"), QStringLiteral("300"),
         QStringLiteral("--skipfront"), QStringLiteral("0"), QStringLiteral("--skipback"),
         QStringLiteral("0"), QStringLiteral("--filetype"), QStringLiteral("png")});
    QVERIFY(result.succeeded());
    QVERIFY(areComplete(destination.path()));
    for (const QString& image : imagesIn(destination.path())) {
        QVERIFY2(image.endsWith(QLatin1String(".png")), qPrintable(image));
    }
}

/// Nobody, not even the superuser, can create a file in /proc.
void CommandLineFailuresTest::unwritableDestination_givesNothing()
{
    const ProgramResult result =
        commandline::run({samplePath(longSample), QStringLiteral("/proc")});
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardOutput, QByteArray());
}

void CommandLineFailuresTest::imageBeyondTheMemory_isAnError_withFileAndPosition()
{
    if (!testsupport::MemoryLimit::isPossible()) {
        QSKIP("Memory cannot be limited here.");
    }
    const TestDir destination;
    const QString video = samplePath(longSample);
    // A gibibyte, for images of nearly two gibibytes.
    const ProgramResult result = testsupport::runProgram(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("ulimit -d 1048576; exec \"$@\""),
         QStringLiteral("sh"), commandline::program(), video, destination.path(),
         QStringLiteral("--width"), QStringLiteral("25000"), QStringLiteral("--height"),
         QStringLiteral("25000"), QStringLiteral("--ms"), QStringLiteral("10000")},
        60000, commandline::environment());
    QVERIFY(result.succeeded());
    QVERIFY(imagesIn(destination.path()).isEmpty());
    for (const int number : {1, 2}) {
        const QString image = QStringLiteral("h264_gop250-0000%1.jpeg").arg(number);
        const QString line = QStringLiteral("%1: Could not make %2 from %3 s: Not enough "
                                            "memory\n")
                                 .arg(video, destination.filePath(image))
                                 .arg(10 * number - 8);
        QVERIFY2(result.standardError.contains(line.toUtf8()), result.standardError.constData());
    }
}

void CommandLineFailuresTest::vanishedDestination_endsWell()
{
    const TestDir dir;
    const QString destination = dir.filePath(QStringLiteral("images"));
    QVERIFY(QDir().mkpath(destination));
    const auto process =
        start({samplePath(longSample), destination, QStringLiteral("--ms"), QStringLiteral("600")});
    QTRY_VERIFY_WITH_TIMEOUT(!imagesIn(destination).isEmpty(), 30000);
    QVERIFY(QDir().rename(destination, dir.filePath(QStringLiteral("away"))));
    QVERIFY(process->waitForFinished(60000));
    QCOMPARE(process->exitStatus(), QProcess::NormalExit);
    QCOMPARE(process->exitCode(), 0);
    QVERIFY(!QFile::exists(destination));
    QVERIFY(!numbersIn(dir.filePath(QStringLiteral("away"))).contains(-1));
}

void CommandLineFailuresTest::twoRunsAtOnce_loseAndReplaceNothing()
{
    const TestDir destination;
    const QStringList arguments{samplePath(longSample), destination.path(), QStringLiteral("--ms"),
                                QStringLiteral("1000")};
    const auto first = start(arguments);
    const auto second = start(arguments);
    QVERIFY(first->waitForFinished(60000));
    QVERIFY(second->waitForFinished(60000));
    QCOMPARE(first->exitCode(), 0);
    QCOMPARE(second->exitCode(), 0);

    QList<int> expected;
    for (int frame = 50; frame < 470; frame += 25) {
        expected << frame << frame;
    }
    QList<int> numbers = numbersIn(destination.path());
    std::sort(numbers.begin(), numbers.end());
    QCOMPARE(numbers, expected);
}

/// Killed at increasing delays, so that some kills happen while an image is written.
void CommandLineFailuresTest::killedRun_leavesNoHalfImage()
{
    const TestDir destination;
    const auto finished = [&destination] {
        return QDir(destination.path()).entryList({QStringLiteral("*.png")}, QDir::Files).size();
    };
    int moment = 1;
    for (int run = 0; run < 15; ++run) {
        const int before = finished();
        const auto process =
            start({samplePath(longSample), destination.path(), QStringLiteral("--ms"),
                   QStringLiteral("600"), QStringLiteral("--filetype"), QStringLiteral("png")});
        QTRY_VERIFY_WITH_TIMEOUT(finished() > before, 30000);
        QTest::qSleep(moment);
        moment += 9;
        process->kill();
        QVERIFY(process->waitForFinished(30000));
        QVERIFY(areComplete(destination.path()));
    }
    QVERIFY(finished() >= 15);
    for (const QString& name : imagesIn(destination.path())) {
        QVERIFY2(name.endsWith(QLatin1String(".png")) || name.startsWith(QLatin1Char('.')),
                 qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(CommandLineFailuresTest)
#include "CommandLineFailuresTest.moc"
