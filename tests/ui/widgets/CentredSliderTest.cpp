#include "ui/widgets/CentredSlider.h"

#include <QSignalSpy>
#include <QTest>

namespace {

/// Number of filled columns of the slider, left and right of its middle.
struct Filled
{
    int left = 0;
    int right = 0;
};

Filled filledPart(CentredSlider& slider)
{
    QPalette palette = slider.palette();
    palette.setColor(QPalette::Highlight, Qt::red);
    slider.setPalette(palette);
    slider.resize(201, 30);
    const QImage image = slider.grab().toImage();
    Filled filled;
    for (int x = 0; x < image.width(); ++x) {
        bool isFilled = false;
        for (int y = 0; y < image.height(); ++y) {
            isFilled = isFilled || image.pixel(x, y) == qRgb(255, 0, 0);
        }
        if (isFilled) {
            ++(x < image.width() / 2 ? filled.left : filled.right);
        }
    }
    return filled;
}

} // namespace

class CentredSliderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fill_goesFromTheMiddleToTheHandle_data();
    void fill_goesFromTheMiddleToTheHandle();
    void mark_isSeen_whereNothingChanges();
    void doubleClick_bringsItBack_data();
    void doubleClick_bringsItBack();
};

void CentredSliderTest::fill_goesFromTheMiddleToTheHandle_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::newRow("style") << QString();
    QTest::newRow("style sheet") << QStringLiteral(
        "QSlider::groove:horizontal { height: 4px; background: gray; }"
        "QSlider::sub-page:horizontal { background: palette(highlight); }"
        "QSlider::handle:horizontal { width: 14px; margin: -6px 0; background: white; }");
}

void CentredSliderTest::fill_goesFromTheMiddleToTheHandle()
{
    QFETCH(QString, styleSheet);
    CentredSlider slider;
    slider.setStyleSheet(styleSheet);
    slider.setRange(-100, 100);
    slider.setValue(50);
    QVERIFY(filledPart(slider).right > 20);
    QVERIFY(filledPart(slider).left <= 2);
    slider.setValue(-50);
    QVERIFY(filledPart(slider).left > 20);
    QVERIFY(filledPart(slider).right <= 2);
    slider.setValue(0);
    QVERIFY(filledPart(slider).left + filledPart(slider).right <= 2);
}

void CentredSliderTest::mark_isSeen_whereNothingChanges()
{
    CentredSlider slider;
    slider.setRange(0, 200);
    slider.setValue(200);
    slider.resize(201, 30);
    slider.setNeutral(50);
    const QImage before = slider.grab().toImage();
    slider.setNeutral(100);
    const QImage after = slider.grab().toImage();
    QVERIFY(before.pixel(100, 10) != after.pixel(100, 10));
}

void CentredSliderTest::doubleClick_bringsItBack_data()
{
    QTest::addColumn<int>("neutral");
    QTest::newRow("zero") << 0;
    QTest::newRow("other") << 30;
}

void CentredSliderTest::doubleClick_bringsItBack()
{
    QFETCH(int, neutral);
    CentredSlider slider;
    slider.setRange(-100, 100);
    slider.setNeutral(neutral);
    slider.resize(201, 30);
    slider.setValue(77);
    const QSignalSpy moves(&slider, &QSlider::sliderMoved);
    QTest::mouseDClick(&slider, Qt::RightButton, {}, {20, 15});
    QCOMPARE(slider.value(), 77);
    QTest::mouseDClick(&slider, Qt::LeftButton, {}, {20, 15});
    QCOMPARE(slider.value(), neutral);
    QCOMPARE(moves.count(), 1);
    QVERIFY(!slider.isSliderDown());
}

QTEST_MAIN(CentredSliderTest)
#include "CentredSliderTest.moc"
