#include "ui/mainwindow/SeekSlider.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

class SeekSliderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void click_goesThereAndTakesTheHandle();
    void wheel_doesNotMoveIt();
};

void SeekSliderTest::click_goesThereAndTakesTheHandle()
{
    SeekSlider slider;
    slider.setOrientation(Qt::Horizontal);
    slider.setRange(0, 1000);
    slider.resize(500, 30);
    slider.show();
    const QSignalSpy pressed(&slider, &QSlider::sliderPressed);
    QTest::mousePress(&slider, Qt::LeftButton, {}, {400, 15});
    QVERIFY2(qAbs(slider.value() - 800) < 20, qPrintable(QString::number(slider.value())));
    QVERIFY(slider.isSliderDown());
    QCOMPARE(pressed.count(), 1);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {400, 15});
    QVERIFY(!slider.isSliderDown());
}

void SeekSliderTest::wheel_doesNotMoveIt()
{
    SeekSlider slider;
    slider.setOrientation(Qt::Horizontal);
    slider.setRange(0, 1000);
    slider.setValue(500);
    slider.show();
    QWheelEvent event({5, 5}, slider.mapToGlobal(QPoint(5, 5)), {}, {0, 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&slider, &event);
    QCOMPARE(slider.value(), 500);
}

QTEST_MAIN(SeekSliderTest)
#include "SeekSliderTest.moc"
