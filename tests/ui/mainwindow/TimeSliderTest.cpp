#include "ui/mainwindow/TimeSlider.h"

#include "tests/ui/support/Painting.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr int stepMs = 30;
constexpr int lastStep = 1000;

/// A visible slider over half a minute.
struct Slider : TimeSlider
{
    Slider()
    {
        setOrientation(Qt::Horizontal);
        setRange(0, lastStep);
        setStepMs(stepMs);
        resize(600, 32);
        show();
    }

    void turnWheel(int angle)
    {
        QWheelEvent event({5, 5}, mapToGlobal(QPoint(5, 5)), {}, {0, angle}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(this, &event);
    }

    /// Moves the pointer with the button pressed.
    void drag(int x)
    {
        QMouseEvent event(QEvent::MouseMove, {double(x), 16.0}, mapToGlobal(QPoint(x, 16)),
                          Qt::NoButton, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(this, &event);
    }

    QImage picture() { return testsupport::paintedBy(*this); }
};

int sumOf(const QSignalSpy& steps)
{
    int sum = 0;
    for (const QList<QVariant>& step : steps) {
        sum += step.first().toInt();
    }
    return sum;
}

} // namespace

class TimeSliderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void time_isThatOfAClick_atEveryPlace_data();
    void time_isThatOfAClick_atEveryPlace();
    void place_isWhereTheTimeIs();
    void pointer_tellsItsTime_withoutMovingAnything();
    void wheel_goesByFrames_alsoInSmallTurns();
    void shiftAndDrag_goesByFrames_andLeavesTheHandle();
    void marks_arePainted_whereTheyAre();
    void marks_areNotPainted_behindTheEnd_norWithoutAVideo();
    void slider_isHighEnoughToBeHit();
};

void TimeSliderTest::time_isThatOfAClick_atEveryPlace_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("plain") << QString();
    for (const int width : {13, 14}) {
        QTest::addRow("handle of %d", width)
            << QStringLiteral("QSlider::groove:horizontal { height: 4px; }"
                              "QSlider::handle:horizontal { width: %1px; }")
                   .arg(width);
    }
}

void TimeSliderTest::time_isThatOfAClick_atEveryPlace()
{
    QFETCH(const QString, style);
    Slider slider;
    slider.setStyleSheet(style);
    for (int x = 0; x < slider.width(); x += 7) {
        QTest::mouseClick(&slider, Qt::LeftButton, {}, {x, 16});
        QCOMPARE(slider.timeAt(x), qint64(slider.value()) * stepMs);
    }
}

void TimeSliderTest::place_isWhereTheTimeIs()
{
    Slider slider;
    for (const qint64 ms : {0, 3000, 15000, 30000}) {
        QVERIFY(qAbs(slider.timeAt(slider.placeOf(ms)) - ms) <= 60);
    }
}

void TimeSliderTest::pointer_tellsItsTime_withoutMovingAnything()
{
    Slider slider;
    const QSignalSpy pointed(&slider, &TimeSlider::pointedAt);
    const QSignalSpy away(&slider, &TimeSlider::pointedAway);
    const QSignalSpy moved(&slider, &QSlider::sliderMoved);
    QTest::mouseMove(&slider, {200, 16});
    QCOMPARE(pointed.count(), 1);
    QCOMPARE(pointed.first().at(0).toLongLong(), slider.timeAt(200));
    QCOMPARE(pointed.first().at(1).toInt(), 200);
    QCOMPARE(slider.value(), 0);
    QCOMPARE(moved.count(), 0);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&slider, &leave);
    QCOMPARE(away.count(), 1);
    slider.setEnabled(false);
    QCOMPARE(away.count(), 2);
}

void TimeSliderTest::wheel_goesByFrames_alsoInSmallTurns()
{
    Slider slider;
    slider.setValue(500);
    const QSignalSpy stepped(&slider, &TimeSlider::stepped);
    slider.turnWheel(120);
    QCOMPARE(sumOf(stepped), 1);
    slider.turnWheel(-360);
    QCOMPARE(sumOf(stepped), -2);
    for (int i = 0; i < 8; ++i) {
        slider.turnWheel(30);
    }
    QCOMPARE(sumOf(stepped), 0);
    QCOMPARE(slider.value(), 500);
}

void TimeSliderTest::shiftAndDrag_goesByFrames_andLeavesTheHandle()
{
    Slider slider;
    slider.setValue(500);
    const QSignalSpy stepped(&slider, &TimeSlider::stepped);
    const QSignalSpy pressed(&slider, &QSlider::sliderPressed);
    QTest::mousePress(&slider, Qt::LeftButton, Qt::ShiftModifier, {100, 16});
    for (int x = 101; x <= 160; ++x) {
        slider.drag(x);
    }
    QCOMPARE(sumOf(stepped), 10);
    slider.drag(70);
    QCOMPARE(sumOf(stepped), -5);
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::ShiftModifier, {70, 16});
    QTest::mouseMove(&slider, {300, 16});
    QCOMPARE(sumOf(stepped), -5);
    QCOMPARE(slider.value(), 500);
    QCOMPARE(pressed.count(), 0);
}

void TimeSliderTest::marks_arePainted_whereTheyAre()
{
    Slider slider;
    const QImage plain = slider.picture();
    const auto isChanged = [&](qint64 ms, int y) {
        const int x = slider.placeOf(ms);
        return slider.picture().pixel(x, y) != plain.pixel(x, y);
    };
    slider.setSnapshotTicks({9000});
    QVERIFY(isChanged(9000, 3));
    QVERIFY(!isChanged(15000, 3));
    slider.setSnapshotTicks({});
    QCOMPARE(slider.picture(), plain);
    slider.setChapterTicks({12000});
    QVERIFY(isChanged(12000, slider.height() - 3));
    QVERIFY(!isChanged(9000, slider.height() - 3));
    slider.setChapterTicks({});
    slider.setStretch({6000, 21000});
    const int middle = slider.height() / 2 - 6;
    QVERIFY(isChanged(15000, middle));
    QVERIFY(!isChanged(3000, middle));
    QVERIFY(!isChanged(27000, middle));
    slider.setStretch({{}, 21000});
    QVERIFY(isChanged(3000, middle));
    slider.setStretch({6000, {}});
    QVERIFY(isChanged(27000, middle));
    slider.setStretch({});
    QCOMPARE(slider.picture(), plain);
}

void TimeSliderTest::marks_areNotPainted_behindTheEnd_norWithoutAVideo()
{
    Slider slider;
    const QImage plain = slider.picture();
    slider.setSnapshotTicks({40000, -5});
    slider.setChapterTicks({9223372036854775807LL});
    QCOMPARE(slider.picture(), plain);
    slider.setSnapshotTicks({9000});
    slider.setEnabled(false);
    slider.setRange(0, 0);
    const QImage disabled = slider.picture();
    slider.setSnapshotTicks({});
    QCOMPARE(slider.picture(), disabled);
}

void TimeSliderTest::slider_isHighEnoughToBeHit()
{
    TimeSlider slider;
    QVERIFY(slider.minimumHeight() >= 32);
}

QTEST_MAIN(TimeSliderTest)
#include "TimeSliderTest.moc"
