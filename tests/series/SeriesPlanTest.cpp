#include "series/SeriesPlan.h"

#include <QTest>

namespace {

QVector<SeriesTarget> targetsEvery(qint64 ms, int count)
{
    QVector<SeriesTarget> targets(count);
    for (int i = 0; i < count; ++i) {
        targets[i].ms = i * ms;
    }
    return targets;
}

QVector<qint64> keysEvery(qint64 ms, int count)
{
    QVector<qint64> keys;
    for (int i = 0; i < count; ++i) {
        keys.append(i * ms);
    }
    return keys;
}

} // namespace

class SeriesPlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stretches_holdEachTargetOnce_inOrder_data();
    void stretches_holdEachTargetOnce_inOrder();
    void stretches_beginAtKeyFrames_whereTheseAreKnown();
    void stretches_stayTogether_whereKeyFramesAreNear();
    void stretches_giveAllLanesSomething_whereKeyFramesAreUnknown();
    void parts_coverTheVideoOnce_andMeetAtKeyFrames();
    void parts_areNone_whenNothingIsLeft();
};

void SeriesPlanTest::stretches_holdEachTargetOnce_inOrder_data()
{
    QTest::addColumn<int>("targets");
    QTest::addColumn<int>("keys");
    for (const int targets : {0, 1, 2, 7, 100, 1000}) {
        for (const int keys : {0, 1, 5, 300}) {
            QTest::addRow("%d targets, %d keys", targets, keys) << targets << keys;
        }
    }
}

void SeriesPlanTest::stretches_holdEachTargetOnce_inOrder()
{
    QFETCH(int, targets);
    QFETCH(int, keys);
    const SeriesPlan plan = planTargets(targetsEvery(300, targets), keysEvery(1000, keys), 2);
    int next = 0;
    for (const SeriesPlan::Stretch& stretch : plan.stretches) {
        QCOMPARE(stretch.begin, next);
        QVERIFY(stretch.end > stretch.begin);
        next = stretch.end;
    }
    QCOMPARE(next, targets);
}

void SeriesPlanTest::stretches_beginAtKeyFrames_whereTheseAreKnown()
{
    // 20 targets per group of pictures, whatever the number of targets that stay together.
    const SeriesPlan plan = planTargets(targetsEvery(500, 60), keysEvery(10000, 3), 2);
    QCOMPARE(plan.stretches.size(), 3);
    QCOMPARE(plan.stretches.at(1).begin, 20);
    QCOMPARE(plan.stretches.at(2).begin, 40);
}

void SeriesPlanTest::stretches_stayTogether_whereKeyFramesAreNear()
{
    const SeriesPlan plan = planTargets(targetsEvery(40, 160), keysEvery(40, 160), 2);
    QCOMPARE(plan.stretches.size(), 10);
}

void SeriesPlanTest::stretches_giveAllLanesSomething_whereKeyFramesAreUnknown()
{
    QCOMPARE(planTargets(targetsEvery(40, 3), {}, 2).stretches.size(), 2);
    QVERIFY(planTargets(targetsEvery(40, 100), {}, 8).stretches.size() >= 8);
}

void SeriesPlanTest::parts_coverTheVideoOnce_andMeetAtKeyFrames()
{
    const QVector<qint64> keys = keysEvery(7000, 40);
    const SeriesPlan plan = planPart(1000, 250000, keys, 2);
    QVERIFY(plan.stretches.size() > 2);
    qint64 next = 1000;
    for (const SeriesPlan::Stretch& part : plan.stretches) {
        QCOMPARE(part.fromMs, next);
        QVERIFY(part.toMs > part.fromMs);
        QVERIFY(part.toMs == 250000 || keys.contains(part.toMs));
        next = part.toMs;
    }
    QCOMPARE(next, 250000);
}

void SeriesPlanTest::parts_areNone_whenNothingIsLeft()
{
    QVERIFY(planPart(1000, 1000, {}, 2).stretches.isEmpty());
}

QTEST_APPLESS_MAIN(SeriesPlanTest)
#include "SeriesPlanTest.moc"
