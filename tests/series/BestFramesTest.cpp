#include "series/BestFrames.h"

#include "series/SeriesRunner.h"
#include "tests/support/Samples.h"
#include "tests/support/SharpFrames.h"
#include "tests/support/TestDir.h"

#include <QTest>

using testsupport::makeVideoOfSharpFrames;
using testsupport::TestDir;

namespace {

constexpr qint64 frameMs = 40;

const auto never = [] { return false; };

QList<int> numbersOf(const QVector<BestFrame>& frames)
{
    QList<int> numbers;
    for (const BestFrame& frame : frames) {
        numbers.append(static_cast<int>(frame.ms / frameMs));
    }
    return numbers;
}

BestFrames bestIn(const QString& video, qint64 fromMs, qint64 toMs, int count)
{
    return series::findBest(video, QtAV::Deinterlacing::Automatic, {fromMs, toMs}, count,
                            {160, 160}, never);
}

/// Receives the results of a series.
class Output : public SeriesOutput
{
public:
    void take(SeriesPicture picture) override
    {
        numbers.append(static_cast<int>(*picture.timeMs / frameMs));
    }
    void end(int, const QString& text) override { error = text; }

    QList<int> numbers;
    QString error;
};

} // namespace

class BestFramesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeVideo_givesSharpFrames_spread();
    void stretch_givesItsOwnFrames_withPictures();
    void blackStretch_givesNone();
    void series_givesTheSame_withinItsSkips();
    void series_saysSo_whenNoFrameIsGood();
    void brokenFile_isAnError();
    void cancelled_endsWithoutAnError();
};

void BestFramesTest::wholeVideo_givesSharpFrames_spread()
{
    const TestDir dir;
    const QList<int> numbers = numbersOf(bestIn(makeVideoOfSharpFrames(dir), 0, 4001, 4).frames);
    QCOMPARE(numbers.size(), 4);
    for (int part = 0; part < 4; ++part) {
        const int number = numbers.at(part);
        QVERIFY2(number / 25 == part && number % 10 == 5 && number != 75,
                 qPrintable(QString::number(number)));
        QVERIFY(number < 40 || number > 59);
    }
}

void BestFramesTest::stretch_givesItsOwnFrames_withPictures()
{
    const TestDir dir;
    const BestFrames best = bestIn(makeVideoOfSharpFrames(dir), 400, 1200, 5);
    QCOMPARE(numbersOf(best.frames), (QList<int>{15, 25}));
    QCOMPARE(best.frames.first().picture.size(), QSize(160, 90));
    QVERIFY(best.error.isEmpty());
}

void BestFramesTest::blackStretch_givesNone()
{
    const TestDir dir;
    const BestFrames best = bestIn(makeVideoOfSharpFrames(dir), 1600, 2400, 5);
    QVERIFY(best.frames.isEmpty());
    QVERIFY(best.error.isEmpty());
}

void BestFramesTest::series_givesTheSame_withinItsSkips()
{
    const TestDir dir;
    SeriesJob job;
    job.video = makeVideoOfSharpFrames(dir);
    job.positions.kind = FramePositions::Kind::Best;
    job.positions.count = 2;
    job.positions.front.value = 400;
    job.positions.back.value = 2800;
    Output output;
    QVERIFY(series::run({job}, output, never));
    QCOMPARE(output.error, QString());
    QCOMPARE(output.numbers, (QList<int>{15, 25}));
}

void BestFramesTest::series_saysSo_whenNoFrameIsGood()
{
    const TestDir dir;
    SeriesJob job;
    job.video = makeVideoOfSharpFrames(dir);
    job.positions.kind = FramePositions::Kind::Best;
    job.positions.front.value = 1600;
    job.positions.back.value = 1601;
    Output output;
    QVERIFY(series::run({job}, output, never));
    QVERIFY(output.numbers.isEmpty());
    QVERIFY2(output.error.contains(QStringLiteral("black")), qPrintable(output.error));
}

void BestFramesTest::brokenFile_isAnError()
{
    const QString broken = testsupport::samplePath(QStringLiteral("random_bytes.mp4"));
    QVERIFY(!bestIn(broken, 0, 1000, 5).error.isEmpty());
}

void BestFramesTest::cancelled_endsWithoutAnError()
{
    const TestDir dir;
    const QString video = makeVideoOfSharpFrames(dir);
    int asked = 0;
    const auto soon = [&asked] { return ++asked > 5; };
    const BestFrames best =
        series::findBest(video, QtAV::Deinterlacing::Automatic, {0, 4000}, 5, {160, 160}, soon);
    QVERIFY(best.frames.isEmpty());
}

QTEST_GUILESS_MAIN(BestFramesTest)
#include "BestFramesTest.moc"
