#include "ui/widgets/ColorLabel.h"

#include "tests/ui/support/Painting.h"

#include <QTest>

using testsupport::paintedBounds;
using testsupport::paintedBy;

class ColorLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void color_isInvalid_untilSet();
    void color_isKeptWithItsAlpha();
    void swatch_isFortyWideAndOfFullHeight();
    void swatch_isCut_whenLabelIsNarrower();
    void textAndFrame_areNotPainted();
    void nothing_isPainted_whileColorIsInvalid();
    void settingColor_doesNotRepaint();
};

void ColorLabelTest::color_isInvalid_untilSet()
{
    QVERIFY(!ColorLabel().colorValue().isValid());
}

void ColorLabelTest::color_isKeptWithItsAlpha()
{
    ColorLabel label;
    label.setColorValue(QColor(1, 2, 3, 225));
    QCOMPARE(label.colorValue(), QColor(1, 2, 3, 225));
}

void ColorLabelTest::swatch_isFortyWideAndOfFullHeight()
{
    ColorLabel label;
    label.resize(120, 23);
    label.setColorValue(QColor(10, 200, 30));
    const QImage image = paintedBy(label);
    QCOMPARE(paintedBounds(image), QRect(0, 0, 40, 23));
    QCOMPARE(image.pixelColor(0, 0), QColor(10, 200, 30));
    QCOMPARE(image.pixelColor(39, 22), QColor(10, 200, 30));
}

void ColorLabelTest::swatch_isCut_whenLabelIsNarrower()
{
    ColorLabel label;
    label.resize(25, 20);
    label.setColorValue(Qt::red);
    QCOMPARE(paintedBounds(paintedBy(label)), QRect(0, 0, 25, 20));
}

void ColorLabelTest::textAndFrame_areNotPainted()
{
    ColorLabel label;
    label.resize(120, 20);
    label.setText(QStringLiteral("WWWWWWWWWWWW"));
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setColorValue(Qt::red);
    const QImage image = paintedBy(label);
    QCOMPARE(paintedBounds(image), QRect(0, 0, 40, 20));
    QImage plain(40, 20, image.format());
    plain.fill(Qt::red);
    QCOMPARE(image.copy(0, 0, 40, 20), plain);
}

void ColorLabelTest::nothing_isPainted_whileColorIsInvalid()
{
    ColorLabel label;
    label.resize(120, 20);
    QVERIFY(paintedBounds(paintedBy(label)).isNull());
}

void ColorLabelTest::settingColor_doesNotRepaint()
{
    ColorLabel label;
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QCoreApplication::processEvents();
    const testsupport::EventCounter paints(label, QEvent::Paint);
    label.setColorValue(Qt::red);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 0);
    label.update();
    QTRY_COMPARE(paints.count(), 1);
}

QTEST_MAIN(ColorLabelTest)
#include "ColorLabelTest.moc"
