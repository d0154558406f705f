#include "qtav/player/StepPacing.h"

#include <QTest>

using QtAV::StepPacing;

/// How far apart steps back are answered.
class StepPacingTest : public QObject
{
    Q_OBJECT

private slots:
    void steps_doNotWait_whenNoMoreFramesAreNeeded();
    void steps_doNotWait_whenPlentyAreLeft();
    void steps_areSpreadEvenly_overTheTimeToMore();
    void steps_waitNoLongerThanTheLongestPause();
};

void StepPacingTest::steps_doNotWait_whenNoMoreFramesAreNeeded()
{
    QCOMPARE(StepPacing::pauseFor(0, std::nullopt).count(), 0.0);
    QCOMPARE(StepPacing::pauseFor(100, 0.0).count(), 0.0);
}

void StepPacingTest::steps_doNotWait_whenPlentyAreLeft()
{
    QCOMPARE(StepPacing::pauseFor(1000, 2.0).count(), 0.0);
}

void StepPacingTest::steps_areSpreadEvenly_overTheTimeToMore()
{
    // Each step uses up one frame, and its pause the time.
    double seconds = 1.5;
    const double pause = StepPacing::pauseFor(14, seconds).count();
    QCOMPARE(pause, 0.1);
    for (qint64 left = 13; left >= 0; --left) {
        seconds -= pause;
        QCOMPARE(StepPacing::pauseFor(left, seconds).count(), pause);
    }
}

void StepPacingTest::steps_waitNoLongerThanTheLongestPause()
{
    QCOMPARE(StepPacing::pauseFor(1, 60.0).count(), StepPacing::longestPause.count());
}

QTEST_GUILESS_MAIN(StepPacingTest)
#include "StepPacingTest.moc"
