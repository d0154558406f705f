#include "ui/widgets/FontLabel.h"

#include <QTest>

class FontLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void font_isTheDefault_untilSet();
    void text_namesFamilyAndPointSize();
    void display_isFourteenPoint_whateverTheSize();
    void display_keepsTheOtherTraits();
    void settingAgain_replacesEverything();
};

void FontLabelTest::font_isTheDefault_untilSet()
{
    const FontLabel label;
    QCOMPARE(label.fontValue(), QFont());
    QCOMPARE(label.text(), QString());
}

void FontLabelTest::text_namesFamilyAndPointSize()
{
    FontLabel label;
    label.setFontValue(QFont(QStringLiteral("Courier"), 24));
    QCOMPARE(label.text(), QStringLiteral("Courier, 24pt"));
}

void FontLabelTest::display_isFourteenPoint_whateverTheSize()
{
    FontLabel label;
    label.setFontValue(QFont(QStringLiteral("Courier"), 72));
    QCOMPARE(label.font().pointSize(), 14);
    QCOMPARE(label.fontValue().pointSize(), 72);
    label.setFontValue(QFont(QStringLiteral("Courier"), 6));
    QCOMPARE(label.font().pointSize(), 14);
}

void FontLabelTest::display_keepsTheOtherTraits()
{
    QFont font(QStringLiteral("DejaVu Sans"), 20, QFont::Bold);
    font.setItalic(true);
    FontLabel label;
    label.setFontValue(font);
    QCOMPARE(label.fontValue(), font);
    QCOMPARE(label.font().family(), QStringLiteral("DejaVu Sans"));
    QVERIFY(label.font().bold());
    QVERIFY(label.font().italic());
}

void FontLabelTest::settingAgain_replacesEverything()
{
    FontLabel label;
    label.setFontValue(QFont(QStringLiteral("Courier"), 24, QFont::Bold));
    label.setFontValue(QFont(QStringLiteral("Times"), 9));
    QCOMPARE(label.text(), QStringLiteral("Times, 9pt"));
    QCOMPARE(label.font().family(), QStringLiteral("Times"));
    QVERIFY(!label.font().bold());
}

QTEST_MAIN(FontLabelTest)
#include "FontLabelTest.moc"
