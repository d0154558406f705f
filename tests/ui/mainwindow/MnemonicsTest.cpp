#include "ui/mainwindow/Mnemonics.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

class MnemonicsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letter_isTheFirstOfAWord_beforeOthers();
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
