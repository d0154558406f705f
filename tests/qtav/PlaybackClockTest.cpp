#include "qtav/player/PlaybackClock.h"

#include <QElapsedTimer>
#include <QTest>

using QtAV::PlaybackClock;

class PlaybackClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clock_standsStill_untilItIsStarted();
    void clock_goesAsFastAsItIsTold();
    void clock_goesOnFromWhereItIs_whenTheSpeedChanges();
};

void PlaybackClockTest::clock_standsStill_untilItIsStarted()
{
    PlaybackClock clock;
    clock.setSpeed(8.0);
    clock.set(3.0);
    QTest::qSleep(5);
    QCOMPARE(clock.now(), 3.0);
}

/// The result lies between timer values taken before and after, however long it took.
void PlaybackClockTest::clock_goesAsFastAsItIsTold()
{
    for (const double speed : {0.1, 1.0, 8.0}) {
        PlaybackClock clock;
        clock.setSpeed(speed);
        clock.set(10.0);
        QElapsedTimer outer;
        outer.start();
        clock.start();
        QElapsedTimer inner;
        inner.start();
        QTest::qSleep(20);
        const double least = double(inner.nsecsElapsed()) / 1e9;
        const double told = clock.now() - 10.0;
        const double most = double(outer.nsecsElapsed()) / 1e9;
        QVERIFY(told >= speed * least);
        QVERIFY(told <= speed * most);
    }
}

void PlaybackClockTest::clock_goesOnFromWhereItIs_whenTheSpeedChanges()
{
    PlaybackClock clock;
    clock.set(10.0);
    QElapsedTimer outer;
    outer.start();
    clock.start();
    QTest::qSleep(20);
    clock.setSpeed(0.1);
    const double most = 10.0 + double(outer.nsecsElapsed()) / 1e9;
    QVERIFY(clock.now() >= 10.02);
    QVERIFY(clock.now() <= most + 0.1);
    clock.stop();
    const double stopped = clock.now();
    clock.setSpeed(8.0);
    QCOMPARE(clock.now(), stopped);
}

QTEST_APPLESS_MAIN(PlaybackClockTest)
#include "PlaybackClockTest.moc"
