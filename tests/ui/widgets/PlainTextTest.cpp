#include "ui/widgets/PlainText.h"

#include "tests/ui/support/ShownText.h"

#include <QTest>

using testsupport::shownText;

class PlainTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ordinaryText_isLeftAlone_data();
    void ordinaryText_isLeftAlone();
    void textLikeMarkup_isShownAsItIs_data();
    void textLikeMarkup_isShownAsItIs();
};

void PlainTextTest::ordinaryText_isLeftAlone_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QString();
    QTest::newRow("path") << QStringLiteral("/home/me/Tom & Jerry/1 < 2.mp4");
    QTest::newRow("lines") << QStringLiteral("a\nb");
}

void PlainTextTest::ordinaryText_isLeftAlone()
{
    QFETCH(const QString, text);
    QCOMPARE(asPlainText(text), text);
    QCOMPARE(shownText(text), text);
}

void PlainTextTest::textLikeMarkup_isShownAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("tag") << QStringLiteral("a<b>.mp4");
    QTest::newRow("picture") << QStringLiteral("/videos/<img src='/videos/large.png'>.mp4");
    QTest::newRow("entity") << QStringLiteral("a &lt; b.mp4");
    QTest::newRow("spaces") << QStringLiteral("a  <i>   b.mp4");
    QTest::newRow("lines") << QStringLiteral("<u>a\n  b &amp; c\n\n</u>");
    QTest::newRow("place holder") << QStringLiteral("<b>%1 %2");
}

void PlainTextTest::textLikeMarkup_isShownAsItIs()
{
    QFETCH(const QString, text);
    QVERIFY(shownText(text) != text);
    QCOMPARE(shownText(asPlainText(text)), text);
}

QTEST_MAIN(PlainTextTest)
#include "PlainTextTest.moc"
