#include "tests/stills/StillsProgram.h"

#include "stills/FileNameCodec.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

using stillsprogram::filesIn;
using stillsprogram::numbersIn;
using stillsprogram::objects;
using stillsprogram::shortSample;
using stillsprogram::words;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

QString copySample(const QString& to, const QString& sample = shortSample)
{
    QDir().mkpath(QFileInfo(to).path());
    if (!QFile::copy(samplePath(sample), to)) {
        qFatal("Cannot copy the sample to %s", qUtf8Printable(to));
    }
    return to;
}

/// The names and times of all files, which show whether any was written again.
QStringList state(const QString& folder)
{
    QStringList files;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
        files += file.fileName() + file.lastModified().toString(Qt::ISODateWithMs);
    }
    return files;
}

} // namespace

class StillsFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictures_goBesideTheVideo();
    void folder_isMade_whereItIsMissing();
    void names_followTheTemplate_data();
    void names_followTheTemplate();
    void stems_areFull();
    void names_neverLeaveTheFolder();
    void longNames_areCut();
    void secondRun_takesTheNextNames();
    void skipExisting_makesOnlyWhatIsMissing_data();
    void skipExisting_makesOnlyWhatIsMissing();
    void skipExisting_decodesNothing_whenAllIsThere();
    void skipExisting_makesNoSecondPicture_ofAFrame();
    void overwrite_replaces_butNotWhatThisRunWrote();
    void videosOfOneStem_getNumbers_inShardsToo();
    void videosOfOneFolder_keepTheirPictures_howeverItIsSpelled();
    void folders_areSearched();
    void lists_areRead();
    void namesThatAreNoText_work();
    void profiles_areUsed();
    void wrongProfiles_areWrongUsage();
};

void StillsFilesTest::initTestCase()
{
    stills::FileNameCodec::install();
}

void StillsFilesTest::pictures_goBesideTheVideo()
{
    const TestDir dir;
    const QString video = copySample(dir.filePath(QStringLiteral("film.mp4")));
    const ProgramResult result = stillsprogram::run(words("--at 1,2") + QStringList{video});
    QVERIFY(result.succeeded());
    QCOMPARE(filesIn(dir.path()), words("film-00.00.01.000.jpg film-00.00.02.000.jpg film.mp4"));
    QCOMPARE(result.standardError, QByteArray("2 pictures beside the videos\n"));
}

void StillsFilesTest::folder_isMade_whereItIsMissing()
{
    const TestDir dir;
    const QString folder = dir.filePath(QStringLiteral("a/b/c"));
    const ProgramResult result = stillsprogram::run(
        {samplePath(shortSample), QStringLiteral("-c1"), QStringLiteral("-o"), folder});
    QVERIFY(result.succeeded());
    QCOMPARE(numbersIn(folder), QList<int>{50});
    QCOMPARE(result.standardError, "1 picture in " + folder.toUtf8() + "\n");
}

void StillsFilesTest::names_followTheTemplate_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("names");
    const auto row = [](const char* options, const char* names) {
        QTest::newRow(options) << QString::fromLatin1(options) << QString::fromLatin1(names);
    };
    row("--at 25%,3", "h264_bframes-00.00.01.000.jpg h264_bframes-00.00.03.000.jpg");
    row("--frames 30", "h264_bframes-00.00.01.200.jpg");
    row("--at 1,2 --names {number:3}", "001.jpg 002.jpg");
    row("--at 1 --names {stem}_{width}x{height}", "h264_bframes_320x240.jpg");
    row("--at 1,2 --names x", "x-2.jpg x.jpg");
    row("--frames 7 --names {{{frame}}}", "{7}.jpg");
    row("--at 1.01 --names {time}", "00.00.01.010.jpg");
    row("--at last --names {stem}", "h264_bframes.jpg");
    row("--at last", "h264_bframes-00.00.03.960.jpg");
    row("--at 1,last --names {number}", "1.jpg 2.jpg");
}

void StillsFilesTest::names_followTheTemplate()
{
    QFETCH(const QString, options);
    QFETCH(const QString, names);
    const TestDir dir;
    const ProgramResult result =
        stillsprogram::run(options.split(QLatin1Char(' ')) +
                           QStringList{samplePath(shortSample), QStringLiteral("-o"), dir.path()});
    QVERIFY2(result.succeeded(), result.standardError.constData());
    QCOMPARE(filesIn(dir.path()), names.split(QLatin1Char(' ')));
}

void StillsFilesTest::stems_areFull()
{
    const TestDir dir;
    const QString video = copySample(dir.filePath(QStringLiteral("my.holiday.mp4")));
    QVERIFY(stillsprogram::run(words("--at 1") + QStringList{video}).succeeded());
    QVERIFY(QFile::exists(dir.filePath(QStringLiteral("my.holiday-00.00.01.000.jpg"))));
}

void StillsFilesTest::names_neverLeaveTheFolder()
{
    const TestDir dir;
    const QString out = dir.filePath(QStringLiteral("out"));
    const ProgramResult result =
        stillsprogram::run({samplePath(shortSample), QStringLiteral("-c1"), QStringLiteral("-o"),
                            out, QStringLiteral("--names"), QStringLiteral("../../{stem}/x")});
    QVERIFY(result.succeeded());
    QCOMPARE(filesIn(out), QStringList{QStringLiteral("___.._h264_bframes_x.jpg")});
    QCOMPARE(filesIn(dir.path()), QStringList());
}

void StillsFilesTest::longNames_areCut()
{
    const TestDir dir;
    const QString video =
        copySample(dir.filePath(QString(80, QChar(0x6620)) + QStringLiteral(".mp4")));
    const QString out = dir.filePath(QStringLiteral("out"));
    for (int i = 0; i < 2; ++i) {
        const ProgramResult result =
            stillsprogram::run(words("--at 1,2 -o") + QStringList{out, video});
        QVERIFY2(result.succeeded(), result.standardError.constData());
    }
    QCOMPARE(filesIn(out).size(), 4);
    QVERIFY(filesIn(out).first().endsWith(QStringLiteral("00.00.01.000-2.jpg")));
}

void StillsFilesTest::secondRun_takesTheNextNames()
{
    const TestDir dir;
    const QStringList arguments =
        words("--at 1 -o") + QStringList{dir.path(), samplePath(shortSample)};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(stillsprogram::run(arguments).succeeded());
    }
    QCOMPARE(filesIn(dir.path()),
             words("h264_bframes-00.00.01.000-2.jpg h264_bframes-00.00.01.000-3.jpg "
                   "h264_bframes-00.00.01.000.jpg"));
}

void StillsFilesTest::skipExisting_makesOnlyWhatIsMissing_data()
{
    QTest::addColumn<QString>("options");
    for (const char* const options :
         {"--count 8", "--every 500ms", "--at 1,2,3,last", "--frames 3,50-52", "--keyframes",
          "--every 500ms --names {stem}-{number:3}", "--every 500ms --names {frame}",
          "--at 1,2 --names {time}-{width}", "--at 1,last --names {number}"}) {
        QTest::newRow(options) << QString::fromLatin1(options);
    }
}

void StillsFilesTest::skipExisting_makesOnlyWhatIsMissing()
{
    QFETCH(const QString, options);
    const TestDir dir;
    const QStringList arguments =
        options.split(QLatin1Char(' ')) +
        QStringList{samplePath(shortSample), QStringLiteral("--skip-existing")};
    QVERIFY(stillsprogram::runJson(arguments, dir.path()).succeeded());
    const QStringList names = filesIn(dir.path());
    const QList<int> numbers = numbersIn(dir.path());
    QVERIFY(names.size() > 1);
    QVERIFY(QFile::remove(dir.filePath(names.at(1))));
    const ProgramResult second = stillsprogram::runJson(arguments, dir.path());
    QVERIFY(second.succeeded());
    QCOMPARE(filesIn(dir.path()), names);
    QCOMPARE(numbersIn(dir.path()), numbers);
    const QJsonObject summary = objects(second.standardOutput, QStringLiteral("summary")).first();
    QCOMPARE(summary.value(QLatin1String("delivered")).toInt(), 1);
    QCOMPARE(summary.value(QLatin1String("skipped")).toInt(), names.size() - 1);
    const QStringList before = state(dir.path());
    QVERIFY(stillsprogram::runJson(arguments, dir.path()).succeeded());
    QCOMPARE(state(dir.path()), before);
}

void StillsFilesTest::skipExisting_decodesNothing_whenAllIsThere()
{
    const TestDir dir;
    const QString video = copySample(dir.filePath(QStringLiteral("film.mp4")));
    const QString out = dir.filePath(QStringLiteral("out"));
    const QStringList arguments =
        words("--every 500ms --skip-existing -o") + QStringList{out, video};
    QVERIFY(stillsprogram::run(arguments).succeeded());
    // The rest of the video states its length, but none of its frames can be decoded.
    QFile file(video);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray content = file.readAll();
    const int start = content.indexOf("mdat") + 4;
    const int next = content.indexOf("moov", start);
    const int end = next > 0 ? next - 4 : content.size();
    QVERIFY(start > 4 && end > start);
    QVERIFY(file.seek(start));
    QVERIFY(file.write(QByteArray(end - start, '\0')) == end - start);
    file.close();
    const ProgramResult second = stillsprogram::run(arguments);
    QVERIFY2(second.succeeded(), second.standardError.constData());
    QVERIFY(second.standardError.contains("0 pictures in " + out.toUtf8() + " (8 skipped)"));
}

void StillsFilesTest::skipExisting_makesNoSecondPicture_ofAFrame()
{
    // One frame per second: four positions mean the same frame.
    const TestDir dir;
    const QStringList arguments{samplePath(QStringLiteral("h264_1fps.mp4")),
                                QStringLiteral("--every"),
                                QStringLiteral("250ms"),
                                QStringLiteral("--skip-existing"),
                                QStringLiteral("-o"),
                                dir.path()};
    QVERIFY(stillsprogram::run(arguments).succeeded());
    const QStringList names = filesIn(dir.path());
    QCOMPARE(names.size(), 20);
    QVERIFY(stillsprogram::run(arguments).succeeded());
    QCOMPARE(filesIn(dir.path()), names);
    QVERIFY(QFile::remove(dir.filePath(names.at(7))));
    QVERIFY(stillsprogram::run(arguments).succeeded());
    QCOMPARE(filesIn(dir.path()), names);
}

void StillsFilesTest::overwrite_replaces_butNotWhatThisRunWrote()
{
    const TestDir dir;
    const QStringList arguments = words("--at 1,2 --names x --overwrite -o") +
                                  QStringList{dir.path(), samplePath(shortSample)};
    for (int i = 0; i < 2; ++i) {
        QVERIFY(stillsprogram::run(arguments).succeeded());
        QCOMPARE(filesIn(dir.path()), words("x-2.jpg x.jpg"));
        QCOMPARE(numbersIn(dir.path()), (QList<int>{50, 25}));
    }
}

void StillsFilesTest::videosOfOneStem_getNumbers_inShardsToo()
{
    const TestDir dir;
    const QString a = copySample(dir.filePath(QStringLiteral("a/film.mp4")));
    const QString b = copySample(dir.filePath(QStringLiteral("b/film.mp4")));
    for (const char* const options : {"--overwrite", "--skip-existing", "--quiet"}) {
        const TestDir out;
        QVERIFY(
            stillsprogram::run(words(options) + QStringList{QStringLiteral("--at=1"),
                                                            QStringLiteral("-o"), out.path(), a, b})
                .succeeded());
        QCOMPARE(filesIn(out.path()), words("film-00.00.01.000.jpg film-2-00.00.01.000.jpg"));
    }
    const TestDir out;
    for (const char* const shard : {"--shard=2/2", "--shard=1/2"}) {
        QVERIFY(
            stillsprogram::run(words(shard) + QStringList{QStringLiteral("--at=1"),
                                                          QStringLiteral("-o"), out.path(), a, b})
                .succeeded());
    }
    QCOMPARE(filesIn(out.path()), words("film-00.00.01.000.jpg film-2-00.00.01.000.jpg"));
}

void StillsFilesTest::videosOfOneFolder_keepTheirPictures_howeverItIsSpelled()
{
    const TestDir dir;
    copySample(dir.filePath(QStringLiteral("d/a.mp4")));
    copySample(dir.filePath(QStringLiteral("d/a.mov")));
    for (const char* const option : {"--overwrite", "--skip-existing"}) {
        QProcess process;
        process.setWorkingDirectory(dir.path());
        process.start(stillsprogram::program(),
                      words("--at 1 d/a.mp4 ./d/a.mov") + QStringList{QLatin1String(option)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(filesIn(dir.filePath(QStringLiteral("d"))),
                 words("a-00.00.01.000.jpg a-2-00.00.01.000.jpg a.mov a.mp4"));
    }
}

void StillsFilesTest::folders_areSearched()
{
    const TestDir dir;
    copySample(dir.filePath(QStringLiteral("in/b.mp4")));
    copySample(dir.filePath(QStringLiteral("in/sub/a.mp4")));
    copySample(dir.filePath(QStringLiteral("in/notes.txt")), QStringLiteral("text.mp4"));
    const QString out = dir.filePath(QStringLiteral("out"));
    const QStringList arguments{dir.filePath(QStringLiteral("in")), QStringLiteral("-c1"),
                                QStringLiteral("-o"), out};
    const ProgramResult refused = stillsprogram::run(arguments);
    QCOMPARE(refused.exitCode, 1);
    QVERIFY(refused.standardError.contains("--recursive"));
    QVERIFY(stillsprogram::run(arguments + words("-r")).succeeded());
    QCOMPARE(filesIn(out), words("a-00.00.02.000.jpg b-00.00.02.000.jpg"));
}

void StillsFilesTest::lists_areRead()
{
    const TestDir dir;
    QFile list(dir.filePath(QStringLiteral("list.txt")));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write(copySample(dir.filePath(QStringLiteral("in/a.mp4"))).toUtf8() + "\n");
    list.write(copySample(dir.filePath(QStringLiteral("in/b c.mp4"))).toUtf8() + "\n");
    list.close();
    const QString out = dir.filePath(QStringLiteral("out"));
    QVERIFY(stillsprogram::run(words("-c1 --files-from") +
                               QStringList{list.fileName(), QStringLiteral("-o"), out})
                .succeeded());
    QCOMPARE(filesIn(out).size(), 2);
    QProcess process;
    process.setStandardInputFile(list.fileName());
    process.start(stillsprogram::program(),
                  words("-c1 --files-from - --skip-existing -o") + QStringList{out});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardError().contains("2 skipped"));
}

void StillsFilesTest::namesThatAreNoText_work()
{
    if (!stills::FileNameCodec::isWhole) {
        QSKIP("This version of Qt takes all names for UTF-8.");
    }
    const TestDir dir;
    const QString name = QFile::decodeName(QByteArray("in/bad\xff.mp4"));
    const QString video = copySample(dir.filePath(name));
    const ProgramResult result =
        stillsprogram::run({QStringLiteral("--json"), QStringLiteral("--at=1"), video});
    QVERIFY2(result.succeeded(), result.standardError.constData());
    QVERIFY(result.standardOutput.contains("bad\\udcff.mp4\""));
    QVERIFY(result.standardOutput.contains("bad\\udcff-00.00.01.000.jpg\""));
    const QString picture = QFile::decodeName(QByteArray("in/bad\xff-00.00.01.000.jpg"));
    QVERIFY(QFile::exists(dir.filePath(picture)));
    QProcessEnvironment plain = stillsprogram::environment();
    plain.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    const ProgramResult again =
        testsupport::runProgram(stillsprogram::program(),
                                {QStringLiteral("-r"), QStringLiteral("--at=1"),
                                 QStringLiteral("--skip-existing"), dir.path()},
                                60000, plain);
    QVERIFY(again.succeeded());
    QVERIFY(again.standardError.contains("1 skipped"));
}

void StillsFilesTest::profiles_areUsed()
{
    const TestDir dir;
    const QStringList start{samplePath(shortSample), QStringLiteral("--at"), QStringLiteral("1,2"),
                            QStringLiteral("-o"), dir.path()};
    QVERIFY(stillsprogram::run(
                start + QStringList{QStringLiteral("--name-profile"), QStringLiteral("standard")})
                .succeeded());
    QCOMPARE(filesIn(dir.path()), words("h264_bframes-00001.jpeg h264_bframes-00002.jpeg"));
    QVERIFY(stillsprogram::run(start + QStringList{QStringLiteral("--profile"),
                                                   QStringLiteral("[Unnamed Settings]"),
                                                   QStringLiteral("--names=p{number}")})
                .succeeded());
    QCOMPARE(QImage(dir.filePath(QStringLiteral("p1.jpg"))).size(), QSize(640, 480));
}

void StillsFilesTest::wrongProfiles_areWrongUsage()
{
    const TestDir dir;
    for (const char* const option : {"--profile", "--name-profile", "--watermark"}) {
        const ProgramResult result =
            stillsprogram::run({QString::fromLatin1(option), QStringLiteral("nosuch"),
                                samplePath(shortSample), QStringLiteral("-o"), dir.path()});
        QCOMPARE(result.exitCode, 2);
        QVERIFY(result.standardError.contains("'nosuch'"));
        QCOMPARE(result.standardError.count('\n'), 1);
    }
    QCOMPARE(filesIn(dir.path()), QStringList());
}

QTEST_GUILESS_MAIN(StillsFilesTest)

#include "StillsFilesTest.moc"
