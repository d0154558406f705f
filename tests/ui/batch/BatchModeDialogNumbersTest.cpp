#include "ui/batch/BatchModeDialog.h"

#include "tests/ui/batch/ModeDialog.h"

#include <QLineEdit>
#include <QTest>

using testsupport::ModeDialog;
using testsupport::multiple;

/// Intervals and skips: typed values, and reverted ones.
class BatchModeDialogNumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void radioButtons_setTheIntervalOfAllSelectedJobs();
    void typedInterval_choosesItsKind_data();
    void typedInterval_choosesItsKind();
    void typedInterval_goesIntoJobsThatDiffered();
    void invalidNumber_isTakenBack_data();
    void invalidNumber_isTakenBack();
    void invalidNumber_isTakenBack_afterItsKindWasChosenByTyping();
    void invalidNumber_isTakenBack_whereJobsDiffer();
    void invalidNumber_reachesNoJob();
    void edits_areLeftAlone_whenTheyAreOnlyPassed();
    void zero_isAllowedForTheSkips();
};

void BatchModeDialogNumbersTest::radioButtons_setTheIntervalOfAllSelectedJobs()
{
    ModeDialog mode;
    mode.load(2);
    mode.click("intervalSingleShotRadioButton");
    QCOMPARE(mode.job(0).intervalType(), 2);
    QCOMPARE(mode.job(1).intervalType(), 2);
    QCOMPARE(mode.model().index(1, 2).data().toString(), QStringLiteral("Single middle"));
    mode.click("intervalImagesRadioButton");
    QCOMPARE(mode.job(1).intervalType(), 1);
    QVERIFY(mode.isChecked("intervalImagesRadioButton"));
    QVERIFY(!mode.isChecked("intervalSingleShotRadioButton"));
}

void BatchModeDialogNumbersTest::typedInterval_choosesItsKind_data()
{
    QTest::addColumn<QByteArray>("edit");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("display");
    QTest::newRow("seconds") << QByteArray("intervalMillisecondsTextEdit") << 0 << "Every 250 s";
    QTest::newRow("images") << QByteArray("intervalImagesTextEdit") << 1 << "250 images";
}

void BatchModeDialogNumbersTest::typedInterval_choosesItsKind()
{
    QFETCH(const QByteArray, edit);
    QFETCH(const int, type);
    QFETCH(const QString, display);
    ModeDialog mode;
    mode.load(2);
    mode.click("intervalSingleShotRadioButton");
    mode.type(edit.constData(), QStringLiteral("250"));
    QCOMPARE(mode.text(edit.constData()), QStringLiteral("250"));
    for (const int row : {0, 1}) {
        QCOMPARE(mode.job(row).intervalType(), type);
        QCOMPARE(mode.job(row).intervalDisplay(), display);
    }
}

void BatchModeDialogNumbersTest::typedInterval_goesIntoJobsThatDiffered()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(0).setIntervalMilliseconds(100);
    mode.job(1).setIntervalType(BatchWorkerConfig::SpreadImages);
    mode.select({0, 1});
    QCOMPARE(mode.placeholder("intervalMillisecondsTextEdit"), multiple);
    mode.type("intervalMillisecondsTextEdit", QStringLiteral("0.04"));
    QVERIFY(mode.isChecked("intervalMillisecondsRadioButton"));
    QCOMPARE(mode.text("intervalMillisecondsTextEdit"), QStringLiteral("0.04"));
    for (const int row : {0, 1}) {
        QCOMPARE(mode.job(row).intervalType(), 0);
        QCOMPARE(mode.job(row).intervalMilliseconds(), 40);
    }
}

void BatchModeDialogNumbersTest::invalidNumber_isTakenBack_data()
{
    QTest::addColumn<QByteArray>("edit");
    QTest::addColumn<QString>("typed");
    for (const char* const edit : {"intervalMillisecondsTextEdit", "intervalImagesTextEdit",
                                   "skipFrontTextEdit", "skipBackTextEdit"}) {
        for (const char* const typed : {"-1", "x", "99999999999", " "}) {
            QTest::addRow("%s %s", edit, typed) << QByteArray(edit) << QString::fromLatin1(typed);
        }
    }
    QTest::newRow("no seconds") << QByteArray("intervalMillisecondsTextEdit") << "0";
    QTest::newRow("less than there is") << QByteArray("intervalMillisecondsTextEdit") << "0.0004";
    QTest::newRow("two points") << QByteArray("skipFrontTextEdit") << "1.2.3";
    QTest::newRow("no images") << QByteArray("intervalImagesTextEdit") << "0";
}

void BatchModeDialogNumbersTest::invalidNumber_isTakenBack()
{
    QFETCH(const QByteArray, edit);
    QFETCH(const QString, typed);
    ModeDialog mode;
    mode.load(1);
    mode.enter(edit.constData(), QStringLiteral("12"));
    QCOMPARE(mode.text(edit.constData()), QStringLiteral("12"));
    mode.enter(edit.constData(), typed);
    QCOMPARE(mode.text(edit.constData()), QStringLiteral("12"));
    QTest::keyClick(&mode.find<QLineEdit>(edit.constData()), Qt::Key_Backspace);
    QTest::keyClick(&mode.find<QLineEdit>(edit.constData()), Qt::Key_Backspace);
    mode.enter(edit.constData(), typed);
    QCOMPARE(mode.text(edit.constData()), QStringLiteral("12"));
}

void BatchModeDialogNumbersTest::invalidNumber_isTakenBack_afterItsKindWasChosenByTyping()
{
    ModeDialog mode;
    mode.load(1);
    mode.enter("intervalImagesTextEdit", QStringLiteral("0"));
    QCOMPARE(mode.job(0).intervalType(), 1);
    QCOMPARE(mode.text("intervalImagesTextEdit"), QStringLiteral("10"));
    QCOMPARE(mode.job(0).intervalImages(), 10);
}

void BatchModeDialogNumbersTest::invalidNumber_isTakenBack_whereJobsDiffer()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(0).setIntervalMilliseconds(100);
    mode.select({0, 1});
    mode.enter("intervalMillisecondsTextEdit", QStringLiteral("0"));
    QCOMPARE(mode.text("intervalMillisecondsTextEdit"), QString());
    QCOMPARE(mode.placeholder("intervalMillisecondsTextEdit"), multiple);
    QCOMPARE(mode.job(0).intervalMilliseconds(), 100);
    QCOMPARE(mode.job(1).intervalMilliseconds(), 5000);
}

void BatchModeDialogNumbersTest::invalidNumber_reachesNoJob()
{
    ModeDialog mode;
    mode.load(1);
    for (const char* const typed : {"0", "-", "-1", "x"}) {
        mode.type("intervalMillisecondsTextEdit", QString::fromLatin1(typed));
        QCOMPARE(mode.job(0).intervalMilliseconds(), 5000);
    }
    mode.find<QLineEdit>("skipBackTextEdit").clear();
    QCOMPARE(mode.job(0).skipBack(), 2000);
}

void BatchModeDialogNumbersTest::edits_areLeftAlone_whenTheyAreOnlyPassed()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(0).setSkipFront(1);
    mode.select({0, 1});
    QTest::keyClick(&mode.find<QLineEdit>("skipFrontTextEdit"), Qt::Key_Return);
    QCOMPARE(mode.placeholder("skipFrontTextEdit"), multiple);
    QCOMPARE(mode.job(0).skipFront(), 1);
    QCOMPARE(mode.job(1).skipFront(), 2000);
}

void BatchModeDialogNumbersTest::zero_isAllowedForTheSkips()
{
    ModeDialog mode;
    mode.load(1);
    mode.enter("skipFrontTextEdit", QStringLiteral("0"));
    mode.enter("skipBackTextEdit", QStringLiteral("0"));
    QCOMPARE(mode.text("skipFrontTextEdit"), QStringLiteral("0"));
    QCOMPARE(mode.job(0).skipFront(), 0);
    QCOMPARE(mode.job(0).skipBack(), 0);
}

QTEST_MAIN(BatchModeDialogNumbersTest)
#include "BatchModeDialogNumbersTest.moc"
