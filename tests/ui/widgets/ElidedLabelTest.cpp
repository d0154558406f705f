#include "ui/widgets/ElidedLabel.h"

#include "tests/ui/support/Painting.h"
#include "tests/ui/support/ShownText.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

using testsupport::paintedBounds;
using testsupport::paintedBy;
using testsupport::shownText;

class ElidedLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longText_asksForNoWidth_andKeepsItsText();
    void longText_isPaintedWhollyInside_withItsEnd();
    void textOfParts_losesWholeParts_atItsEnd();
    void markup_isPlainText();
    void toolTip_isTheWholeText();
    void toolTip_isTheOneThatWasSet_whileTextFits();
    void toolTip_isTextAndTheOneThatWasSet_whenTextIsElided();
    void toolTipThatWasSet_isPlainText();
    void cleanup() { QToolTip::hideText(); }
};

namespace {

const QString longText = QStringLiteral("a very long name of a video that fits nowhere-00001.jpeg");

QString shownToolTip(ElidedLabel& label)
{
    const QPoint middle = label.rect().center();
    QHelpEvent hover(QEvent::ToolTip, middle, label.mapToGlobal(middle));
    QApplication::sendEvent(&label, &hover);
    return QToolTip::text();
}

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

void ElidedLabelTest::textOfParts_losesWholeParts_atItsEnd()
{
    const QString two = QStringLiteral("f14 - 25 fps");
    ElidedLabel label;
    label.resize(label.fontMetrics().horizontalAdvance(two) + 10, 20);
    label.setText(two + QStringLiteral(" - 1280 x 720 - H.264"));
    const QImage inTheMiddle = paintedBy(label);
    label.setSeparator(QStringLiteral(" - "));
    const QImage shortened = paintedBy(label);
    QVERIFY(shortened != inTheMiddle);
    label.setText(two);
    QCOMPARE(shortened, paintedBy(label));
    // All that is left is shortened like any other text.
    label.resize(label.fontMetrics().horizontalAdvance(QStringLiteral("f")) * 3, 20);
    label.setText(QStringLiteral("f1400000 - 25 fps"));
    const QImage least = paintedBy(label);
    label.setText(QStringLiteral("f1400000"));
    QCOMPARE(least, paintedBy(label));
}

void ElidedLabelTest::markup_isPlainText()
{
    ElidedLabel label;
    label.setText(QStringLiteral("x"));
    const int height = label.sizeHint().height();
    label.setText(QStringLiteral("<h1>a<br>b</h1>"));
    QCOMPARE(label.sizeHint().height(), height);
}

void ElidedLabelTest::toolTip_isTheWholeText()
{
    ElidedLabel label;
    label.resize(120, 20);
    label.show();
    label.setText(longText);
    QCOMPARE(shownText(shownToolTip(label)), longText);
    label.setText(QStringLiteral("Tom & <b>Jerry</b>"));
    QCOMPARE(shownText(shownToolTip(label)), QStringLiteral("Tom & <b>Jerry</b>"));
}

void ElidedLabelTest::toolTip_isTheOneThatWasSet_whileTextFits()
{
    ElidedLabel label;
    label.resize(120, 20);
    label.show();
    label.setText(QStringLiteral("short"));
    label.setToolTip(QStringLiteral("What it is."));
    QCOMPARE(shownToolTip(label), QStringLiteral("What it is."));
}

void ElidedLabelTest::toolTip_isTextAndTheOneThatWasSet_whenTextIsElided()
{
    ElidedLabel label;
    label.resize(120, 20);
    label.show();
    label.setText(longText);
    label.setToolTip(QStringLiteral("What it is."));
    QCOMPARE(shownText(shownToolTip(label)), longText + QStringLiteral("\nWhat it is."));
}

void ElidedLabelTest::toolTipThatWasSet_isPlainText()
{
    const QString tip = QStringLiteral("Could not write a<b>.jpg");
    ElidedLabel label;
    label.resize(120, 20);
    label.show();
    label.setText(QStringLiteral("short"));
    label.setToolTip(tip);
    QCOMPARE(shownText(shownToolTip(label)), tip);
    label.setText(longText);
    QCOMPARE(shownText(shownToolTip(label)), longText + QLatin1Char('\n') + tip);
}

QTEST_MAIN(ElidedLabelTest)
#include "ElidedLabelTest.moc"
