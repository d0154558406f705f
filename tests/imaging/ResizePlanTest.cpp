#include "imaging/ResizePlan.h"

#include <QRect>
#include <QSize>
#include <QTest>

namespace {

cv::Size cvSize(const QSize& size)
{
    return {size.width(), size.height()};
}

QSize qtSize(const cv::Size& size)
{
    return {size.width, size.height};
}

QRect qtRect(const cv::Rect& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

} // namespace

class ResizePlanTest : public QObject
{
    Q_OBJECT

private slots:
    void fitting_keepsTheRatio_andTakesTheWholeSource_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<QSize>("size");
        QTest::newRow("wider") << QSize(1920, 1080) << QSize(1000, 1000) << QSize(1000, 562);
        QTest::newRow("taller") << QSize(1080, 1920) << QSize(1000, 1000) << QSize(562, 1000);
        QTest::newRow("equal ratio") << QSize(1920, 1080) << QSize(640, 360) << QSize(640, 360);
        QTest::newRow("enlarging") << QSize(100, 50) << QSize(640, 480) << QSize(640, 320);
        QTest::newRow("truncated, not rounded") << QSize(3, 2) << QSize(100, 100) << QSize(100, 66);
        QTest::newRow("flat") << QSize(1000, 1) << QSize(100, 100) << QSize(100, 1);
        QTest::newRow("thin") << QSize(1, 1000) << QSize(100, 100) << QSize(1, 100);
    }
    void fitting_keepsTheRatio_andTakesTheWholeSource()
    {
        QFETCH(QSize, source);
        QFETCH(QSize, target);
        const ResizePlan plan = ResizePlan::fitting(cvSize(source), cvSize(target));
        QTEST(qtSize(plan.size), "size");
        QCOMPARE(qtRect(plan.region), QRect(QPoint(0, 0), source));
    }

    void filling_cutsTheMiddleOut_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<QRect>("region");
        QTest::addColumn<QSize>("size");
        QTest::newRow("wider") << QSize(1920, 1080) << QSize(1000, 1000)
                               << QRect(420, 0, 1080, 1080) << QSize(1000, 1000);
        QTest::newRow("taller") << QSize(1080, 1920) << QSize(1000, 1000)
                                << QRect(0, 420, 1080, 1080) << QSize(1000, 1000);
        QTest::newRow("equal ratio")
            << QSize(640, 480) << QSize(320, 240) << QRect(0, 0, 640, 480) << QSize(320, 240);
        QTest::newRow("odd remainder")
            << QSize(105, 100) << QSize(50, 50) << QRect(2, 0, 100, 100) << QSize(50, 50);
        QTest::newRow("crop truncated")
            << QSize(100, 100) << QSize(3, 7) << QRect(29, 0, 42, 100) << QSize(3, 7);
        QTest::newRow("thin") << QSize(1, 1000) << QSize(1000, 1) << QRect(0, 499, 1, 1)
                              << QSize(1000, 1);
    }
    void filling_cutsTheMiddleOut()
    {
        QFETCH(QSize, source);
        QFETCH(QSize, target);
        const ResizePlan plan = ResizePlan::filling(cvSize(source), cvSize(target));
        QTEST(qtRect(plan.region), "region");
        QTEST(qtSize(plan.size), "size");
    }

    /// 29 / (29 / 41) is a little less than 41 in double precision, and 41 * (29 / 41) than 29.
    void filling_canComeOutOneLess_throughTruncation()
    {
        int oneLess = 0;
        for (int width = 1; width <= 100; ++width) {
            for (int height = 1; height <= 100; ++height) {
                const double ratio = static_cast<double>(width) / height;
                const ResizePlan plan = ResizePlan::filling({10000, 10}, {width, height});
                QCOMPARE(plan.size.width, width);
                QCOMPARE(plan.size.height, static_cast<int>(width / ratio));
                oneLess += plan.size.height == height - 1 ? 1 : 0;
            }
        }
        QVERIFY(oneLess > 0);
    }
};

QTEST_GUILESS_MAIN(ResizePlanTest)
#include "ResizePlanTest.moc"
