#include "batch/SamplingPlan.h"

#include "batch/BatchWorkerConfig.h"

#include <QTest>

namespace {

constexpr qint64 minute = 60000;

QList<qint64> positions(const SamplingPlan& plan)
{
    QList<qint64> taken;
    qint64 position = plan.start;
    for (int number = 1; plan.takes(position, number); ++number) {
        taken.append(position);
        position += plan.step;
    }
    return taken;
}

} // namespace

class SamplingPlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMilliseconds_startsBehindTheFrontSkip_andStopsBeforeTheBackSkip();
    void everyMilliseconds_takesNothingAtTheBackSkip();
    void everyMilliseconds_becomes1000_whenBelow1_data();
    void everyMilliseconds_becomes1000_whenBelow1();
    void everyMilliseconds_takesNothing_whenTheSkipsMeet_data();
    void everyMilliseconds_takesNothing_whenTheSkipsMeet();
    void everyMilliseconds_expectsOneImageTooMany_whenTheIntervalFitsExactly();
    void spreadImages_takesExactlyThatMany();
    void spreadImages_divideWithoutRest();
    void spreadImages_goOnPastTheEnd_whenTheVideoIsTooShort();
    void spreadImages_startAtTheBackSkip_whenTheFrontSkipIsLonger();
    void spreadImages_becomeASingleShot_whenOneOrLess_data();
    void spreadImages_becomeASingleShot_whenOneOrLess();
    void spreadImages_staySpread_whenTwo();
    void singleShot_takesItsPlace_data();
    void singleShot_takesItsPlace();
    void unknownType_takesNothing();
    void otherSettings_stayAsTheyAre();
    void expectedImages_stayAWholeNumber_forAbsurdSkips();
    void imageCount_isWhatIsTaken_andChangesNothing_data();
    void imageCount_isWhatIsTaken_andChangesNothing();
};

void SamplingPlanTest::everyMilliseconds_startsBehindTheFrontSkip_andStopsBeforeTheBackSkip()
{
    BatchWorkerConfig config;
    const SamplingPlan plan = SamplingPlan::make(config, minute);
    const QList<qint64> expected{2000,  7000,  12000, 17000, 22000, 27000,
                                 32000, 37000, 42000, 47000, 52000, 57000};
    QCOMPARE(positions(plan), expected);
    QCOMPARE(plan.step, 5000);
    QCOMPARE(plan.expectedImages, 12);
}

void SamplingPlanTest::everyMilliseconds_takesNothingAtTheBackSkip()
{
    BatchWorkerConfig config;
    const QList<qint64> expected{2000, 7000};
    QCOMPARE(positions(SamplingPlan::make(config, 14000)), expected);
    QCOMPARE(positions(SamplingPlan::make(config, 14001)), expected + QList<qint64>{12000});
}

void SamplingPlanTest::everyMilliseconds_becomes1000_whenBelow1_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -5000;
}

void SamplingPlanTest::everyMilliseconds_becomes1000_whenBelow1()
{
    QFETCH(const int, milliseconds);
    BatchWorkerConfig config;
    config.setIntervalMilliseconds(milliseconds);
    const SamplingPlan plan = SamplingPlan::make(config, 6000);
    QCOMPARE(config.intervalMilliseconds(), 1000);
    QCOMPARE(positions(plan), (QList<qint64>{2000, 3000}));
}

void SamplingPlanTest::everyMilliseconds_takesNothing_whenTheSkipsMeet_data()
{
    QTest::addColumn<qint64>("duration");
    QTest::newRow("just") << qint64(4000);
    QTest::newRow("overlapping") << qint64(3999);
    QTest::newRow("longer than the video") << qint64(500);
}

void SamplingPlanTest::everyMilliseconds_takesNothing_whenTheSkipsMeet()
{
    QFETCH(const qint64, duration);
    BatchWorkerConfig config;
    QVERIFY(positions(SamplingPlan::make(config, duration)).isEmpty());
}

/// The estimate is for the progress only.
void SamplingPlanTest::everyMilliseconds_expectsOneImageTooMany_whenTheIntervalFitsExactly()
{
    BatchWorkerConfig config;
    QCOMPARE(SamplingPlan::make(config, 14000).expectedImages, 3);
    QCOMPARE(SamplingPlan::make(config, 13999).expectedImages, 2);
    QCOMPARE(SamplingPlan::make(config, 4000).expectedImages, 1);
}

void SamplingPlanTest::spreadImages_takesExactlyThatMany()
{
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    const SamplingPlan plan = SamplingPlan::make(config, minute);
    const QList<qint64> taken = positions(plan);
    QCOMPARE(plan.step, 5599);
    QCOMPARE(plan.expectedImages, 10);
    QCOMPARE(taken.size(), 10);
    QCOMPARE(taken.at(0), 2000);
    QCOMPARE(taken.at(1), 7599);
    QCOMPARE(taken.at(9), 52391);
}

void SamplingPlanTest::spreadImages_divideWithoutRest()
{
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    config.setIntervalImages(3);
    QCOMPARE(SamplingPlan::make(config, 14000).step, 3332);
}

void SamplingPlanTest::spreadImages_goOnPastTheEnd_whenTheVideoIsTooShort()
{
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    config.setIntervalImages(4);
    config.setSkipFront(0);
    config.setSkipBack(0);
    QCOMPARE(positions(SamplingPlan::make(config, 3)), (QList<qint64>{0, -1, -2, -3}));
}

void SamplingPlanTest::spreadImages_startAtTheBackSkip_whenTheFrontSkipIsLonger()
{
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    config.setIntervalImages(2);
    config.setSkipFront(9000);
    const SamplingPlan plan = SamplingPlan::make(config, 10000);
    QCOMPARE(plan.start, 8000);
    QCOMPARE(plan.step, -501);
}

void SamplingPlanTest::spreadImages_becomeASingleShot_whenOneOrLess_data()
{
    QTest::addColumn<int>("images");
    QTest::newRow("one") << 1;
    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -3;
}

void SamplingPlanTest::spreadImages_becomeASingleShot_whenOneOrLess()
{
    QFETCH(const int, images);
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    config.setIntervalImages(images);
    QTest::ignoreMessage(
        QtDebugMsg, qUtf8Printable(QStringLiteral("Batch m_intervalImages was %1").arg(images)));
    const SamplingPlan plan = SamplingPlan::make(config, minute);
    QCOMPARE(config.intervalType(), 2);
    QCOMPARE(config.intervalImages(), 10);
    QCOMPARE(positions(plan), QList<qint64>{28000});
    QCOMPARE(plan.step, -1);
    QCOMPARE(plan.expectedImages, 1);
}

void SamplingPlanTest::spreadImages_staySpread_whenTwo()
{
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SpreadImages);
    config.setIntervalImages(2);
    QCOMPARE(positions(SamplingPlan::make(config, minute)), (QList<qint64>{2000, 29999}));
    QCOMPARE(config.intervalType(), 1);
    QCOMPARE(config.intervalImages(), 2);
}

void SamplingPlanTest::singleShot_takesItsPlace_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<qint64>("skipFront");
    QTest::addColumn<qint64>("skipBack");
    QTest::addColumn<qint64>("position");
    QTest::newRow("front") << 0 << qint64(2000) << qint64(2000) << qint64(2000);
    QTest::newRow("middle without the front skip")
        << 1 << qint64(2000) << qint64(2000) << qint64(28000);
    QTest::newRow("middle cuts off the half") << 1 << qint64(0) << qint64(2001) << qint64(28999);
    QTest::newRow("middle before the front skip")
        << 1 << qint64(30000) << qint64(0) << qint64(30000);
    QTest::newRow("middle behind the back skip") << 1 << qint64(0) << qint64(59000) << qint64(500);
    QTest::newRow("back") << 2 << qint64(2000) << qint64(2000) << qint64(58000);
    QTest::newRow("back without skip") << 2 << qint64(2000) << qint64(0) << minute;
    QTest::newRow("unknown place is the front")
        << 7 << qint64(3000) << qint64(2000) << qint64(3000);
    QTest::newRow("front skip longer than the rest")
        << 0 << qint64(59000) << qint64(2000) << qint64(58000);
    QTest::newRow("skips longer than the video")
        << 2 << qint64(100) << qint64(61000) << qint64(-1000);
}

void SamplingPlanTest::singleShot_takesItsPlace()
{
    QFETCH(const int, place);
    QFETCH(const qint64, skipFront);
    QFETCH(const qint64, skipBack);
    QFETCH(const qint64, position);
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SingleShot);
    config.setIntervalSingleShot(place);
    config.setSkipFront(skipFront);
    config.setSkipBack(skipBack);
    const SamplingPlan plan = SamplingPlan::make(config, minute);
    QCOMPARE(positions(plan), QList<qint64>{position});
    QCOMPARE(plan.expectedImages, 1);
    QCOMPARE(plan.step, -1);
}

void SamplingPlanTest::unknownType_takesNothing()
{
    BatchWorkerConfig config;
    config.setIntervalType(5);
    const SamplingPlan plan = SamplingPlan::make(config, minute);
    QVERIFY(positions(plan).isEmpty());
    QCOMPARE(plan.step, -1);
    QCOMPARE(plan.start, 2000);
}

void SamplingPlanTest::otherSettings_stayAsTheyAre()
{
    BatchWorkerConfig config;
    config.setIntervalType(BatchWorkerConfig::SingleShot);
    config.setIntervalMilliseconds(0);
    config.setIntervalImages(0);
    static_cast<void>(SamplingPlan::make(config, minute));
    QCOMPARE(config.intervalType(), 2);
    QCOMPARE(config.intervalMilliseconds(), 0);
    QCOMPARE(config.intervalImages(), 0);
}

void SamplingPlanTest::expectedImages_stayAWholeNumber_forAbsurdSkips()
{
    BatchWorkerConfig config;
    config.setIntervalMilliseconds(1);
    config.setSkipFront(-(qint64(1) << 50));
    QVERIFY(SamplingPlan::make(config, minute).expectedImages > 2000000000);
    config.setSkipFront(qint64(1) << 50);
    const SamplingPlan none = SamplingPlan::make(config, minute);
    QVERIFY(none.expectedImages < -2000000000);
    QVERIFY(!none.takes(none.start, 1));
}

void SamplingPlanTest::imageCount_isWhatIsTaken_andChangesNothing_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("number");
    QTest::addColumn<qint64>("skip");
    QTest::newRow("every 5 s") << 0 << 5000 << qint64(2000);
    QTest::newRow("fits exactly") << 0 << 1000 << qint64(0);
    QTest::newRow("longer than the video") << 0 << 100000 << qint64(0);
    QTest::newRow("corrected") << 0 << 0 << qint64(0);
    QTest::newRow("skips meet") << 0 << 100 << minute / 2;
    QTest::newRow("skips cross") << 0 << 100 << minute;
    QTest::newRow("spread") << 1 << 7 << qint64(2000);
    QTest::newRow("one, spread") << 1 << 1 << qint64(2000);
    QTest::newRow("single") << 2 << 7 << qint64(0);
    QTest::newRow("unknown") << 3 << 7 << qint64(0);
}

void SamplingPlanTest::imageCount_isWhatIsTaken_andChangesNothing()
{
    QFETCH(const int, type);
    QFETCH(const int, number);
    QFETCH(const qint64, skip);
    BatchWorkerConfig config;
    config.setIntervalType(type);
    config.setIntervalMilliseconds(number);
    config.setIntervalImages(number);
    config.setSkipFront(skip);
    config.setSkipBack(skip);
    const int count = SamplingPlan::imageCount(config, minute);
    QCOMPARE(config.intervalType(), type);
    QCOMPARE(config.intervalMilliseconds(), number);
    const SamplingPlan plan = SamplingPlan::make(config, minute);
    QCOMPARE(count, positions(plan).size());
}

QTEST_GUILESS_MAIN(SamplingPlanTest)
#include "SamplingPlanTest.moc"
