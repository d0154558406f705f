#include "series/SeriesTargets.h"

#include "tests/series/SeriesRecord.h"

#include <QTest>

namespace {

using seriestests::every;
using seriestests::spread;

using Kind = FramePosition::Kind;

QList<qint64> timesOf(const QVector<SeriesTarget>& targets)
{
    QList<qint64> times;
    for (const SeriesTarget& target : targets) {
        times.append(target.ms);
    }
    return times;
}

FramePositions listOf(const std::vector<FramePosition>& list)
{
    FramePositions positions;
    positions.kind = FramePositions::Kind::List;
    positions.list = list;
    return positions;
}

} // namespace

class SeriesPositionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_startsAtTheStart_andStopsBeforeTheEnd();
    void every_isOne_whenTheDistanceIsLongerThanTheVideo();
    void spread_takesTheMiddlesOfEqualParts();
    void spread_takesNoPositionTwice_whenThereAreMoreThanMilliseconds();
    void skips_shortenTheStretch_inTimeAndPerCent();
    void skips_leaveNothing_whenTheyMeet();
    void list_isSorted_withoutRepetitions();
    void list_puts_theLastFrame_last();
    void numbers_becomeTheTimesOfTheirFrames();
    void numbers_areMissing_whenTheVideoHasFewerFrames();
    void asksForNumbers_isTrue_forListsWithNumbersAlone();
};

void SeriesPositionsTest::every_startsAtTheStart_andStopsBeforeTheEnd()
{
    QCOMPARE(timesOf(targetsOf(every(1000), {3000})), QList<qint64>({0, 1000, 2000}));
    QCOMPARE(timesOf(targetsOf(every(1000), {3001})), QList<qint64>({0, 1000, 2000, 3000}));
}

void SeriesPositionsTest::every_isOne_whenTheDistanceIsLongerThanTheVideo()
{
    QCOMPARE(timesOf(targetsOf(every(5000), {3000})), QList<qint64>({0}));
}

void SeriesPositionsTest::spread_takesTheMiddlesOfEqualParts()
{
    QCOMPARE(timesOf(targetsOf(spread(1), {10000})), QList<qint64>({5000}));
    QCOMPARE(timesOf(targetsOf(spread(4), {10000})), QList<qint64>({1250, 3750, 6250, 8750}));
}

void SeriesPositionsTest::spread_takesNoPositionTwice_whenThereAreMoreThanMilliseconds()
{
    QCOMPARE(timesOf(targetsOf(spread(10), {3})), QList<qint64>({0, 1, 2}));
    QVERIFY(targetsOf(spread(10), {0}).isEmpty());
}

void SeriesPositionsTest::skips_shortenTheStretch_inTimeAndPerCent()
{
    FramePositions positions = every(1000);
    positions.front = {SeriesSkip::Unit::Milliseconds, 500};
    positions.back = {SeriesSkip::Unit::Percent, 25};
    QCOMPARE(timesOf(targetsOf(positions, {4000})), QList<qint64>({500, 1500, 2500}));

    positions.kind = FramePositions::Kind::Spread;
    positions.count = 1;
    QCOMPARE(timesOf(targetsOf(positions, {4000})), QList<qint64>({1750}));
}

void SeriesPositionsTest::skips_leaveNothing_whenTheyMeet()
{
    FramePositions positions = every(1000);
    positions.front = {SeriesSkip::Unit::Percent, 60};
    positions.back = {SeriesSkip::Unit::Percent, 60};
    QVERIFY(targetsOf(positions, {4000}).isEmpty());
    positions.kind = FramePositions::Kind::Spread;
    QVERIFY(targetsOf(positions, {4000}).isEmpty());
}

void SeriesPositionsTest::list_isSorted_withoutRepetitions()
{
    const FramePositions positions =
        listOf({{Kind::Milliseconds, 3000}, {Kind::Percent, 10}, {Kind::Milliseconds, 1000}});
    QCOMPARE(timesOf(targetsOf(positions, {10000})), QList<qint64>({1000, 3000}));
}

void SeriesPositionsTest::list_puts_theLastFrame_last()
{
    const FramePositions positions = listOf({{Kind::Last}, {Kind::Milliseconds, 99000}});
    const QVector<SeriesTarget> targets = targetsOf(positions, {10000});
    QCOMPARE(targets.size(), 2);
    QCOMPARE(targets.first().ms, 99000);
    QVERIFY(!targets.first().isLast);
    QVERIFY(targets.last().isLast);
}

void SeriesPositionsTest::numbers_becomeTheTimesOfTheirFrames()
{
    const QVector<SeriesTarget> targets =
        targetsOf(listOf({{Kind::FrameNumber, 2}, {Kind::FrameNumber, 0}}), {120, {0, 40, 80}});
    QCOMPARE(timesOf(targets), QList<qint64>({0, 80}));
    QCOMPARE(targets.first().frame, std::optional<qint64>(0));
    QCOMPARE(targets.last().frame, std::optional<qint64>(2));
}

void SeriesPositionsTest::numbers_areMissing_whenTheVideoHasFewerFrames()
{
    std::vector<FramePosition> missing;
    const QVector<SeriesTarget> targets = targetsOf(
        listOf({{Kind::FrameNumber, 3}, {Kind::FrameNumber, 1}}), {120, {0, 40, 80}}, &missing);
    QCOMPARE(timesOf(targets), QList<qint64>({40}));
    QCOMPARE(missing.size(), 1);
    QCOMPARE(missing.front().value, 3.0);
}

void SeriesPositionsTest::asksForNumbers_isTrue_forListsWithNumbersAlone()
{
    QVERIFY(!asksForNumbers(every(1)));
    QVERIFY(!asksForNumbers(listOf({{Kind::Percent, 3}})));
    QVERIFY(asksForNumbers(listOf({{Kind::Percent, 3}, {Kind::FrameNumber, 1}})));
}

QTEST_APPLESS_MAIN(SeriesPositionsTest)
#include "SeriesPositionsTest.moc"
