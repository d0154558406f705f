#include "tests/stills/StillsProgram.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QImage>
#include <QTest>

using stillsprogram::filesIn;
using stillsprogram::objects;
using stillsprogram::words;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

/// 4 seconds, 25 frames a second, 320x240.
} // namespace

class StillsSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sheet_showsTheFrames_inTheirOrder();
    void sheet_comesAlone_orBesideThePictures();
    void sheet_isNamedAsAskedFor();
    void sheet_hasTheSizeThatItsOptionsMake();
    void sheet_isSkipped_whenItExists();
    void sheet_goesToStandardOutput();
    void videosWithoutPictures_haveNoSheet();
};

void StillsSheetTest::sheet_showsTheFrames_inTheirOrder()
{
    const TestDir dir;
    const ProgramResult result = stillsprogram::runJson(
        words("--count 6 --columns 3 --sheet --sheet-gap 10 --no-sheet-times --sheet-title= "
              "-f png") +
            QStringList{samplePath(stillsprogram::shortSample)},
        dir.path());
    QVERIFY2(result.succeeded(), result.standardError.constData());
    const QImage sheet(dir.filePath(QStringLiteral("h264_bframes-sheet.png")));
    QCOMPARE(sheet.size(), QSize(3 * 320 + 2 * 10 + 40, 2 * 240 + 10 + 40));
    const QList<int> frames{9, 25, 42, 59, 75, 92};
    for (int i = 0; i < frames.size(); ++i) {
        const QRect place(20 + (i % 3) * 330, 20 + (i / 3) * 250, 320, 240);
        QCOMPARE(testsupport::frameNumber(sheet.copy(place)).value_or(-1), frames.at(i));
    }
    const QJsonObject object = objects(result.standardOutput, QStringLiteral("sheet")).first();
    QCOMPARE(object.value(QLatin1String("pictures")).toInt(), 6);
    QCOMPARE(object.value(QLatin1String("width")).toInt(), sheet.width());
    QCOMPARE(object.value(QLatin1String("height")).toInt(), sheet.height());
    QCOMPARE(object.value(QLatin1String("path")).toString(),
             dir.filePath(QStringLiteral("h264_bframes-sheet.png")));
}

void StillsSheetTest::sheet_comesAlone_orBesideThePictures()
{
    const TestDir alone;
    const QStringList arguments =
        words("--count 4 --sheet") + QStringList{samplePath(stillsprogram::shortSample)};
    const ProgramResult result =
        stillsprogram::run(arguments + QStringList{QStringLiteral("-o"), alone.path()});
    QVERIFY(result.succeeded());
    QCOMPARE(filesIn(alone.path()), words("h264_bframes-sheet.jpg"));
    QCOMPARE(result.standardError, "1 contact sheet in " + alone.path().toUtf8() + "\n");
    const TestDir both;
    const ProgramResult second =
        stillsprogram::run(arguments + words("--with-pictures -o") + QStringList{both.path()});
    QVERIFY(second.succeeded());
    QCOMPARE(filesIn(both.path()).size(), 5);
    QVERIFY(second.standardError.startsWith("4 pictures and 1 contact sheet in "));
}

void StillsSheetTest::sheet_isNamedAsAskedFor()
{
    const TestDir dir;
    QVERIFY(stillsprogram::run(words("--sheet=all-{stem} -c2 -o") +
                               QStringList{dir.path(), samplePath(stillsprogram::shortSample)})
                .succeeded());
    QCOMPARE(filesIn(dir.path()), words("all-h264_bframes.jpg"));
}

void StillsSheetTest::sheet_hasTheSizeThatItsOptionsMake()
{
    const TestDir dir;
    QVERIFY(stillsprogram::run(words("--sheet --size 100x100 --columns 2 --sheet-gap 8 "
                                     "--no-sheet-times --sheet-title= -c2 -o") +
                               QStringList{dir.path(), samplePath(stillsprogram::shortSample)})
                .succeeded());
    QCOMPARE(QImage(dir.filePath(QStringLiteral("h264_bframes-sheet.jpg"))).size(),
             QSize(2 * 100 + 8 + 32, 75 + 32));
}

void StillsSheetTest::sheet_isSkipped_whenItExists()
{
    const TestDir dir;
    const QStringList arguments = words("--sheet -c2 --skip-existing -o") +
                                  QStringList{dir.path(), samplePath(stillsprogram::shortSample)};
    QVERIFY(stillsprogram::run(arguments).succeeded());
    const ProgramResult second = stillsprogram::run(arguments);
    QVERIFY(second.succeeded());
    QVERIFY(second.standardError.contains("0 contact sheets"));
    QVERIFY(second.standardError.contains("1 skipped"));
    QCOMPARE(filesIn(dir.path()).size(), 1);
}

void StillsSheetTest::sheet_goesToStandardOutput()
{
    const ProgramResult result = stillsprogram::run(
        words("--sheet -c2 -f png -o -") + QStringList{samplePath(stillsprogram::shortSample)});
    QVERIFY(result.succeeded());
    QVERIFY(QImage::fromData(result.standardOutput).width() > 640);
}

void StillsSheetTest::videosWithoutPictures_haveNoSheet()
{
    const TestDir dir;
    const ProgramResult result =
        stillsprogram::run({QStringLiteral("--sheet"), samplePath(QStringLiteral("text.mp4")),
                            QStringLiteral("-o"), dir.path()});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(filesIn(dir.path()), QStringList());
    QVERIFY(result.standardError.endsWith("(1 error)\n"));
}

QTEST_GUILESS_MAIN(StillsSheetTest)

#include "StillsSheetTest.moc"
