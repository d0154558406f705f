#include "ui/theme/TextSize.h"
#include "ui/theme/ThemeStyle.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

using theme::TextSize;

class TextSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_growWithTheBase_data();
    void sizes_growWithTheBase();
    void sizes_areRelative_whenTheBaseIsInPixels();
    void headings_areBold();
    void style_givesALabelTheSizeThatItsFormNames();
    void style_makesTheTitleOfAGroupAHeading_andNothingInIt();
    void style_leavesOtherLabelsAlone();
};

void TextSizeTest::sizes_growWithTheBase_data()
{
    QTest::addColumn<double>("points");
    QTest::newRow("usual") << 10.0;
    QTest::newRow("large") << 15.0;
}

void TextSizeTest::sizes_growWithTheBase()
{
    QFETCH(const double, points);
    QFont base;
    base.setPointSizeF(points);
    QCOMPARE(theme::font(TextSize::Caption, base).pointSizeF(), points * 0.9);
    QCOMPARE(theme::font(TextSize::Body, base).pointSizeF(), points);
    QCOMPARE(theme::font(TextSize::Heading, base).pointSizeF(), points);
    QCOMPARE(theme::font(TextSize::Title, base).pointSizeF(), points * 1.3);
}

void TextSizeTest::sizes_areRelative_whenTheBaseIsInPixels()
{
    QFont base;
    base.setPixelSize(20);
    QCOMPARE(theme::font(TextSize::Caption, base).pixelSize(), 18);
    QCOMPARE(theme::font(TextSize::Title, base).pixelSize(), 26);
}

void TextSizeTest::headings_areBold()
{
    QVERIFY(theme::font(TextSize::Heading, QFont()).weight() > QFont().weight());
    QVERIFY(theme::font(TextSize::Title, QFont()).weight() > QFont().weight());
    QCOMPARE(theme::font(TextSize::Caption, QFont()).weight(), QFont().weight());
}

void TextSizeTest::style_givesALabelTheSizeThatItsFormNames()
{
    ThemeStyle style;
    QLabel label;
    label.setProperty(theme::textSizeProperty, QStringLiteral("title"));
    label.setProperty(theme::quietProperty, true);
    label.setStyle(&style);
    style.polish(&label);
    QCOMPARE(label.font().pointSizeF(), QApplication::font().pointSizeF() * 1.3);
    QCOMPARE(label.foregroundRole(), QPalette::PlaceholderText);
    label.setStyle(nullptr);
}

void TextSizeTest::style_makesTheTitleOfAGroupAHeading_andNothingInIt()
{
    ThemeStyle style;
    QGroupBox group;
    QLabel label(&group);
    QLabel chosen(&group);
    QFont own(QStringLiteral("Courier"), 14, QFont::Black);
    chosen.setFont(own);
    for (QWidget* const widget : {static_cast<QWidget*>(&group), static_cast<QWidget*>(&label),
                                  static_cast<QWidget*>(&chosen)}) {
        style.polish(widget);
    }
    QVERIFY(group.font().weight() > QFont::Normal);
    QCOMPARE(int(label.font().weight()), int(QFont::Normal));
    QCOMPARE(chosen.font().toString(), own.toString());
    QFont larger = group.font();
    larger.setPointSize(23);
    group.setFont(larger);
    QCOMPARE(label.font().pointSize(), 23);
}

void TextSizeTest::style_leavesOtherLabelsAlone()
{
    ThemeStyle style;
    QLabel label;
    label.setProperty(theme::textSizeProperty, QStringLiteral("enormous"));
    const QFont before = label.font();
    style.polish(&label);
    QCOMPARE(label.font(), before);
    QCOMPARE(label.foregroundRole(), QPalette::WindowText);
}

QTEST_MAIN(TextSizeTest)
#include "TextSizeTest.moc"
