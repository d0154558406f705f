#include "ui/mainwindow/ElidedLabel.h"

#include "tests/ui/support/Painting.h"

#include <QTest>

using testsupport::paintedBounds;
using testsupport::paintedBy;

class ElidedLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longText_asksForNoWidth_andKeepsItsText();
    void longText_isPaintedWhollyInside_withItsEnd();
};

namespace {

const QString longText = QStringLiteral("a very long name of a video that fits nowhere-00001.jpeg");

} // namespace

void ElidedLabelTest::longText_asksForNoWidth_andKeepsItsText()
{
    ElidedLabel label;
    label.setText(longText);
    QCOMPARE(label.sizeHint().width(), 0);
    QCOMPARE(label.minimumSizeHint().width(), 0);
    QVERIFY(label.sizeHint().height() > 0);
    QCOMPARE(label.text(), longText);
}

void ElidedLabelTest::longText_isPaintedWhollyInside_withItsEnd()
{
    ElidedLabel label;
    label.resize(120, 20);
    label.setText(longText);
    const QImage elided = paintedBy(label);
    QVERIFY(paintedBounds(elided).right() < 120);
    QVERIFY(paintedBounds(elided).width() > 60);
    label.setText(longText + QStringLiteral("x"));
    QVERIFY(paintedBy(label) != elided);
}

QTEST_MAIN(ElidedLabelTest)
#include "ElidedLabelTest.moc"
