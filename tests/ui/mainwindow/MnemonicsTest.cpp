#include "ui/mainwindow/Mnemonics.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

class MnemonicsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letter_isTheFirstOfAWord_beforeOthers();
    void letter_isLatinBehindTheText_whereNoKeyTypesIt();
    void plain_isWithoutMarks();
    void letters_areGiven_whenTheMenuOpens_noneTwice();
};

void MnemonicsTest::letter_isTheFirstOfAWord_beforeOthers()
{
    QSet<QChar> taken;
    QCOMPARE(Mnemonics::marked(QStringLiteral("Open"), taken), QStringLiteral("&Open"));
    QCOMPARE(Mnemonics::marked(QStringLiteral("On Top"), taken), QStringLiteral("On &Top"));
    QCOMPARE(Mnemonics::marked(QStringLiteral("Otto"), taken), QStringLiteral("Otto"));
    QCOMPARE(Mnemonics::marked(QStringLiteral("Opera"), taken), QStringLiteral("O&pera"));
    QCOMPARE(Mnemonics::marked(QStringLiteral("A && B"), taken), QStringLiteral("&A && B"));
    QCOMPARE(Mnemonics::marked(QString(), taken), QString());
}

void MnemonicsTest::letter_isLatinBehindTheText_whereNoKeyTypesIt()
{
    QSet<QChar> taken;
    const QString open = QStringLiteral("\u958b\u304f");
    const QString hint = QStringLiteral("Open");
    QCOMPARE(Mnemonics::marked(open, taken, hint), open + QStringLiteral("(&O)"));
    QCOMPARE(Mnemonics::marked(open + QChar(0x2026), taken, hint),
             open + QStringLiteral("(&P)\u2026"));
    QCOMPARE(Mnemonics::marked(open, taken), open + QStringLiteral("(&A)"));
}

void MnemonicsTest::plain_isWithoutMarks()
{
    QCOMPARE(Mnemonics::plain(QStringLiteral("Clo&se")), QStringLiteral("Close"));
    QCOMPARE(Mnemonics::plain(QStringLiteral("&A && B")), QStringLiteral("A & B"));
    QCOMPARE(Mnemonics::plain(QStringLiteral("\u958b\u304f(&O)")), QStringLiteral("\u958b\u304f"));
}

void MnemonicsTest::letters_areGiven_whenTheMenuOpens_noneTwice()
{
    QMenuBar bar;
    QMenu& menu = *bar.addMenu(QStringLiteral("File"));
    bar.addMenu(QStringLiteral("Find"));
    const QAction& first = *menu.addAction(QStringLiteral("Save"));
    const QAction& own = *menu.addAction(QStringLiteral("Clo&se"));
    menu.addSeparator();
    Mnemonics::giveTo(bar);
    QCOMPARE(bar.actions().at(0)->text(), QStringLiteral("&File"));
    QCOMPARE(bar.actions().at(1)->text(), QStringLiteral("F&ind"));
    QCOMPARE(first.text(), QStringLiteral("Save"));
    QAction& late = *menu.addAction(QStringLiteral("Avenue"));
    Q_EMIT menu.aboutToShow();
    QCOMPARE(first.text(), QStringLiteral("S&ave"));
    QCOMPARE(own.text(), QStringLiteral("Clo&se"));
    QCOMPARE(late.text(), QStringLiteral("A&venue"));
    late.setText(QStringLiteral("Other"));
    Q_EMIT menu.aboutToShow();
    QCOMPARE(first.text(), QStringLiteral("S&ave"));
    QCOMPARE(late.text(), QStringLiteral("&Other"));
}

QTEST_MAIN(MnemonicsTest)
#include "MnemonicsTest.moc"
