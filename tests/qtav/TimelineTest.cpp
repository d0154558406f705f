#include "qtav/src/Timeline.h"

#include <QTest>

#include <cmath>
#include <limits>

using QtAV::Timeline;

class TimelineTest : public QObject
{
    Q_OBJECT

private slots:
    void milliseconds_areCutOff_notRounded();
    void milliseconds_areExact_whenTheStartIsNoWholeMicrosecond();
    void seconds_keepTheWholeMilliseconds_forEveryTimeBase_data();
    void seconds_keepTheWholeMilliseconds_forEveryTimeBase();
    void times_areZero_beforeTheStart();
    void lastTickOf_isTheLastOneOfItsMillisecond_data();
    void lastTickOf_isTheLastOneOfItsMillisecond();
    void times_stayFinite_forAbsurdTicks();
    void seconds_end_whereNumbersGetCoarse();
    void lengths_stayUsable_forAbsurdTicks();
};

void TimelineTest::milliseconds_areCutOff_notRounded()
{
    const Timeline timeline({1, 90000}, 0, {1, 90000});
    QCOMPARE(timeline.milliseconds(0), 0);
    QCOMPARE(timeline.milliseconds(3003), 33);
    QCOMPARE(timeline.milliseconds(3599), 39);
    QCOMPARE(timeline.milliseconds(3600), 40);
}

void TimelineTest::milliseconds_areExact_whenTheStartIsNoWholeMicrosecond()
{
    // 1.4333333… s: 40 ms later must not come out as 39.9997 ms.
    const Timeline timeline({1, 90000}, 129000, {1, 90000});
    QCOMPARE(timeline.milliseconds(129000), 0);
    QCOMPARE(timeline.milliseconds(129000 + 3600), 40);
    const Timeline audioFirst({1, 90000}, 63211, {1, 44100});
    const double expected = (132600.0 / 90000 - 63211.0 / 44100) * 1000;
    QCOMPARE(audioFirst.milliseconds(132600), static_cast<qint64>(std::floor(expected)));
}

void TimelineTest::seconds_keepTheWholeMilliseconds_forEveryTimeBase_data()
{
    QTest::addColumn<int>("num");
    QTest::addColumn<int>("den");
    const QList<QPair<int, int>> timeBases{{1, 1000},     {1, 25},       {1001, 24000},
                                           {1001, 30000}, {1001, 60000}, {1, 90000},
                                           {1, 12800},    {1, 1200000},  {1, 1000000}};
    for (const auto& [num, den] : timeBases) {
        QTest::addRow("%d/%d", num, den) << num << den;
    }
}

void TimelineTest::seconds_keepTheWholeMilliseconds_forEveryTimeBase()
{
    QFETCH(int, num);
    QFETCH(int, den);
    const Timeline timeline({num, den}, 7, {num, den});
    for (qint64 ticks = 7; ticks < 400000; ++ticks) {
        QCOMPARE(static_cast<qint64>(timeline.seconds(ticks) * 1000.0),
                 timeline.milliseconds(ticks));
    }
}

void TimelineTest::times_areZero_beforeTheStart()
{
    const Timeline timeline({1, 1000}, 500, {1, 1000});
    QCOMPARE(timeline.milliseconds(499), 0);
    QCOMPARE(timeline.milliseconds(-500), 0);
    QCOMPARE(timeline.seconds(-500), 0.0);
}

void TimelineTest::lastTickOf_isTheLastOneOfItsMillisecond_data()
{
    seconds_keepTheWholeMilliseconds_forEveryTimeBase_data();
}

void TimelineTest::lastTickOf_isTheLastOneOfItsMillisecond()
{
    QFETCH(int, num);
    QFETCH(int, den);
    const Timeline timeline({num, den}, 3, {num, den});
    for (qint64 ms = 0; ms < 20000; ++ms) {
        const qint64 last = timeline.lastTickOf(ms);
        QVERIFY(timeline.milliseconds(last) <= ms);
        QVERIFY(timeline.milliseconds(last + 1) > ms);
    }
}

void TimelineTest::times_stayFinite_forAbsurdTicks()
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    constexpr int huge = std::numeric_limits<int>::max();
    for (const qint64 start : {-most, qint64(0), most}) {
        const Timeline timeline({1, huge}, start, {1, huge - 1});
        for (const qint64 ticks : {-most - 1, -most, qint64(0), most}) {
            QVERIFY(timeline.milliseconds(ticks) >= 0);
            QVERIFY(std::isfinite(timeline.seconds(ticks)));
        }
        QVERIFY(timeline.lastTickOf(qint64(1) << 40) != 0);
    }
}

/// Times of thousands of years, in ticks of a minute: neighbouring numbers are milliseconds apart.
void TimelineTest::seconds_end_whereNumbersGetCoarse()
{
    for (const int num : {1, 60, 3600, 1 << 30}) {
        const Timeline timeline({num, 1}, 0, {1, 1000});
        for (int bits = 40; bits < 63; ++bits) {
            const qint64 ticks = qint64(1) << bits;
            const qint64 ms = timeline.milliseconds(ticks);
            QCOMPARE(static_cast<qint64>(timeline.seconds(ticks) * 1000.0), ms);
        }
    }
}

/// Whole milliseconds of a length and of an end have room for calculations.
void TimelineTest::lengths_stayUsable_forAbsurdTicks()
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const Timeline timeline({std::numeric_limits<int>::max(), 1}, 0, {1, 1});
    QCOMPARE(static_cast<qint64>(timeline.lengthSeconds(most) * 1000.0), qint64(1) << 40);
    QCOMPARE(timeline.endMilliseconds(most, most), qint64(1) << 40);
    QCOMPARE(Timeline({1, 1000}, 0, {1, 1000}).endMilliseconds(40, 20), qint64(60));
    QCOMPARE(Timeline({1, 1000}, 0, {1, 1000}).lengthSeconds(20), 0.02);
}

QTEST_GUILESS_MAIN(TimelineTest)
#include "TimelineTest.moc"
