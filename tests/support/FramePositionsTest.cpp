#include "tests/support/FramePositions.h"

#include <QSet>
#include <QTest>

#include <algorithm>

using namespace testsupport;

/// The basis of the tests of every frame.
class FramePositionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frameFrom_isTheFirstAtOrAfter_andTheLastBehindIt();
    void framesToAskFor_areAllFrames_whereThatIsAffordable();
    void framesToAskFor_areSome_withBothEndsAndKeyFrames_otherwise();
    void framesToAskFor_areTheSame_onEveryRun();
    void mistakes_nameWhatDiffers_andCountTheRest();
};

void FramePositionsTest::frameFrom_isTheFirstAtOrAfter_andTheLastBehindIt()
{
    const Sample& sample = sampleNamed(QStringLiteral("h264_bframes.mp4"));
    QCOMPARE(frameFrom(sample, -5), 0);
    QCOMPARE(frameFrom(sample, 0), 0);
    QCOMPARE(frameFrom(sample, 1), 1);
    QCOMPARE(frameFrom(sample, 40), 1);
    QCOMPARE(frameFrom(sample, 41), 2);
    QCOMPARE(frameFrom(sample, 3960), 99);
    QCOMPARE(frameFrom(sample, 3961), 99);
}

void FramePositionsTest::framesToAskFor_areAllFrames_whereThatIsAffordable()
{
    const Sample& sample = sampleNamed(QStringLiteral("h264_bframes.mp4"));
    const QList<int> frames = framesToAskFor(sample, 1000000);
    QCOMPARE(frames.size(), sample.frames);
    QCOMPARE(QSet<int>(frames.begin(), frames.end()).size(), sample.frames);
    QVERIFY(!std::is_sorted(frames.begin(), frames.end()));
}

void FramePositionsTest::framesToAskFor_areSome_withBothEndsAndKeyFrames_otherwise()
{
    const Sample& sample = sampleNamed(QStringLiteral("h264_gop250.mp4"));
    const QList<int> frames = framesToAskFor(sample, 10000);
    QVERIFY(frames.size() > 10);
    QVERIFY(frames.size() < sample.frames / 2);
    for (const int n : {0, 249, 250, 499, 500, sample.frames - 1}) {
        QVERIFY2(frames.contains(n), qPrintable(QString::number(n)));
    }
}

void FramePositionsTest::framesToAskFor_areTheSame_onEveryRun()
{
    const Sample& sample = sampleNamed(QStringLiteral("h264_bframes.mp4"));
    QCOMPARE(framesToAskFor(sample, 500), framesToAskFor(sample, 500));
}

void FramePositionsTest::mistakes_nameWhatDiffers_andCountTheRest()
{
    Mistakes mistakes;
    const QString right = QStringLiteral("right");
    mistakes.compare(QStringLiteral("first"), right, right);
    QVERIFY(mistakes.isEmpty());
    mistakes.compare(QStringLiteral("second"), QStringLiteral("odd"), right);
    QVERIFY(!mistakes.isEmpty());
    QCOMPARE(mistakes.text(), QStringLiteral("1 of 2 wrong: second: odd instead of right"));
    for (int i = 0; i < 20; ++i) {
        mistakes.compare(QStringLiteral("more"), QStringLiteral("odd"), right);
    }
    QVERIFY(mistakes.text().startsWith(QStringLiteral("21 of 22 wrong: second: odd")));
    QVERIFY(mistakes.text().endsWith(QStringLiteral("; …")));
}

QTEST_GUILESS_MAIN(FramePositionsTest)
#include "FramePositionsTest.moc"
