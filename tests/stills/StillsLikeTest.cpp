#include "tests/stills/StillsProgram.h"

#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

using stillsprogram::contentOf;
using stillsprogram::filesIn;
using stillsprogram::numbersIn;
using stillsprogram::shortSample;
using stillsprogram::words;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

/// A folder with a copy of the sample and a folder "out" with one still of it.
struct Studio
{
    TestDir dir;
    QString video = dir.filePath(QStringLiteral("film.mp4"));
    QString out = dir.filePath(QStringLiteral("out"));
    QString still;

    /// Returns false if the still could not be made.
    [[nodiscard]] bool make(const QStringList& options)
    {
        if (!QFile::copy(samplePath(shortSample), video)) {
            return false;
        }
        const ProgramResult result =
            stillsprogram::run(QStringList{video, QStringLiteral("-o"), out} + options);
        still = QDir(out).filePath(filesIn(out).value(0));
        return result.succeeded() && filesIn(out).size() == 1;
    }

    /// The path of the picture made by the options together with --like, in a new folder; empty if
    /// there is none.
    [[nodiscard]] QString again(const QStringList& options, const QString& folder) const
    {
        const QString path = dir.filePath(folder);
        const ProgramResult result = stillsprogram::run(
            QStringList{QStringLiteral("--like"), still, QStringLiteral("-o"), path} + options);
        if (!result.succeeded()) {
            qWarning("%s", result.standardError.constData());
            return {};
        }
        return QDir(path).filePath(filesIn(path).value(0));
    }
};

} // namespace

class StillsLikeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void like_makesTheSameFileAgain_data();
    void like_makesTheSameFileAgain();
    void like_findsTheVideo_whateverSpacesItsNameHas_data();
    void like_findsTheVideo_whateverSpacesItsNameHas();
    void otherOptions_win();
    void like_takesOtherVideos_whereTheyAreNamed();
    void like_findsAVideoThatLiesElsewhere_byItsPath();
    void like_fails_withoutTheVideo();
    void like_fails_forWhatIsNoStill();
    void like_excludesWhatContradictsIt();
};

void StillsLikeTest::like_makesTheSameFileAgain_data()
{
    QTest::addColumn<QString>("options");
    for (const char* const options :
         {"--at 1.5", "--at last", "--frames 42 --format png", "--at 2 --size 160x90 --quality 63",
          "--at 2 --size 1000x1000 --enlarge --format tiff", "--at 3 --format webp",
          "--at 1 --metadata all"}) {
        QTest::newRow(options) << QString::fromLatin1(options);
    }
}

void StillsLikeTest::like_makesTheSameFileAgain()
{
    QFETCH(const QString, options);
    Studio studio;
    QVERIFY(studio.make(options.split(QLatin1Char(' '))));
    const bool tellsAll = options.contains(QLatin1String("--metadata all"));
    const QString path =
        studio.again(tellsAll ? words("--metadata all") : QStringList(), QStringLiteral("again"));
    QVERIFY(!path.isEmpty());
    QCOMPARE(QFileInfo(path).suffix(), QFileInfo(studio.still).suffix());
    if (options.contains(QLatin1String("--frames"))) {
        // Only its file contains the frame's number.
        QCOMPARE(QImage(path), QImage(studio.still));
    } else {
        QVERIFY(contentOf(path) == contentOf(studio.still));
    }
}

void StillsLikeTest::like_findsTheVideo_whateverSpacesItsNameHas_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("doubled") << QStringLiteral("Show  - 01.mkv");
    QTest::newRow("at the ends") << QStringLiteral(" Show .mkv ");
    QTest::newRow("ideographic") << QStringLiteral("映画　第1話.mp4");
    QTest::newRow("narrow") << QStringLiteral("a\u202fb\u00a0c.mp4");
}

void StillsLikeTest::like_findsTheVideo_whateverSpacesItsNameHas()
{
    QFETCH(const QString, name);
    for (const QString& folder : {QString(), QStringLiteral("a  b\u3000c/")}) {
        const TestDir dir;
        const QString video = dir.filePath(folder + name);
        QVERIFY(QDir().mkpath(QFileInfo(video).path()));
        QVERIFY(QFile::copy(samplePath(shortSample), video));
        const QString out = dir.filePath(QStringLiteral("out"));
        // Beside the still's folder it is found by its name, elsewhere by its path.
        const char* const stored = folder.isEmpty() ? "without-place" : "all";
        QVERIFY(stillsprogram::run({video, QStringLiteral("--at=1"), QStringLiteral("--metadata"),
                                    QLatin1String(stored), QStringLiteral("-o"), out})
                    .succeeded());
        const QString still = QDir(out).filePath(filesIn(out).value(0));
        const ProgramResult again = stillsprogram::run(
            QStringList{QStringLiteral("--like"), still, QStringLiteral("-o"), out});
        QVERIFY2(again.succeeded(), again.standardError.constData());
        QCOMPARE(numbersIn(out), (QList<int>{25, 25}));
    }
}

void StillsLikeTest::otherOptions_win()
{
    Studio studio;
    QVERIFY(studio.make(words("--at 1 --size 160x160 --format png")));
    QCOMPARE(numbersIn(studio.out), QList<int>{25});
    const QString large = studio.again(words("--size 300x300"), QStringLiteral("large"));
    QCOMPARE(QImage(large).size(), QSize(300, 225));
    QVERIFY(large.endsWith(QLatin1String(".png")));
    const QString jpeg = studio.again(words("--format jpg"), QStringLiteral("jpeg"));
    QVERIFY(contentOf(jpeg).startsWith("\xff\xd8\xff"));
    QCOMPARE(QImage(jpeg).size(), QSize(160, 120));
    const QString later = studio.again(words("--at 2 --size 320x240"), QStringLiteral("later"));
    QVERIFY(!later.isEmpty());
    QCOMPARE(numbersIn(studio.dir.filePath(QStringLiteral("later"))), QList<int>{50});
}

void StillsLikeTest::like_takesOtherVideos_whereTheyAreNamed()
{
    Studio studio;
    QVERIFY(studio.make(words("--at 1.5")));
    QVERIFY(QFile::remove(studio.video));
    const QString path =
        studio.again({samplePath(QStringLiteral("h264_bframes.mkv"))}, QStringLiteral("again"));
    QVERIFY(path.endsWith(QLatin1String("h264_bframes-00.00.01.520.jpg")));
    QCOMPARE(numbersIn(studio.dir.filePath(QStringLiteral("again"))), QList<int>{38});
}

void StillsLikeTest::like_findsAVideoThatLiesElsewhere_byItsPath()
{
    const TestDir elsewhere;
    for (const bool tellsPath : {true, false}) {
        const QString out = elsewhere.filePath(QString::number(int(tellsPath)));
        const ProgramResult made =
            stillsprogram::run({samplePath(shortSample), QStringLiteral("--at"),
                                QStringLiteral("1"), QStringLiteral("--metadata"),
                                tellsPath ? QStringLiteral("all") : QStringLiteral("without-place"),
                                QStringLiteral("-o"), out});
        QVERIFY(made.succeeded());
        const ProgramResult again =
            stillsprogram::run({QStringLiteral("--like"), QDir(out).filePath(filesIn(out).value(0)),
                                QStringLiteral("-o"), out});
        QCOMPARE(again.exitCode, tellsPath ? 0 : 2);
        QCOMPARE(filesIn(out).size(), tellsPath ? 2 : 1);
    }
}

void StillsLikeTest::like_fails_withoutTheVideo()
{
    Studio studio;
    QVERIFY(studio.make(words("--at 1.5")));
    QVERIFY(QFile::remove(studio.video));
    const ProgramResult result = stillsprogram::run({QStringLiteral("--like"), studio.still});
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.standardError.contains("'film.mp4' is not beside it; name the video as well"));
    QCOMPARE(result.standardError.count('\n'), 1);
}

void StillsLikeTest::like_fails_forWhatIsNoStill()
{
    const TestDir dir;
    const QString plain = dir.filePath(QStringLiteral("plain.png"));
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(plain));
    for (const QString& path : {plain, dir.path(), dir.filePath(QStringLiteral("missing.jpg")),
                                samplePath(shortSample), QString()}) {
        const ProgramResult result = stillsprogram::run({QStringLiteral("--like"), path});
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.standardError.startsWith("stills: --like: "),
                 result.standardError.constData());
        QCOMPARE(result.standardError.count('\n'), 1);
    }
}

void StillsLikeTest::like_excludesWhatContradictsIt()
{
    for (const QStringList& more : {words("--profile x"), words("--skip-start 5s")}) {
        const ProgramResult result = stillsprogram::run(words("--like a.jpg") + more);
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.standardError.contains("--like"), result.standardError.constData());
    }
}

QTEST_GUILESS_MAIN(StillsLikeTest)
#include "StillsLikeTest.moc"
