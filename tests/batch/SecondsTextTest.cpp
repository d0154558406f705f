#include "batch/SecondsText.h"

#include <QLocale>
#include <QTest>

class SecondsTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void text_hasNoMoreDigitsThanThereAre_data();
    void text_hasNoMoreDigitsThanThereAre();
    void text_hasThePointOfTheLanguage_andIsReadAgain();
    void typedTime_isReadToTheMillisecond_data();
    void typedTime_isReadToTheMillisecond();
    void nonsense_isNoTime_data();
    void nonsense_isNoTime();
};

void SecondsTextTest::text_hasNoMoreDigitsThanThereAre_data()
{
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << qint64{0} << "0";
    QTest::newRow("whole") << qint64{5000} << "5";
    QTest::newRow("tenths") << qint64{1500} << "1.5";
    QTest::newRow("hundredths") << qint64{40} << "0.04";
    QTest::newRow("thousandths") << qint64{12001} << "12.001";
    QTest::newRow("negative") << qint64{-1500} << "-1.5";
    QTest::newRow("large") << qint64{5000000000} << "5000000";
}

void SecondsTextTest::text_hasNoMoreDigitsThanThereAre()
{
    QFETCH(qint64, milliseconds);
    QTEST(secondsText(milliseconds), "text");
}

void SecondsTextTest::text_hasThePointOfTheLanguage_andIsReadAgain()
{
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(secondsText(1250), QStringLiteral("1,25"));
    for (const qint64 milliseconds : {0, 1, 999, 1000, 1001, 3600123}) {
        QCOMPARE(millisecondsOf(secondsText(milliseconds)).value_or(-1), milliseconds);
    }
}

void SecondsTextTest::typedTime_isReadToTheMillisecond_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("milliseconds");
    QTest::newRow("whole") << "2" << qint64{2000};
    QTest::newRow("point") << "0.6" << qint64{600};
    QTest::newRow("comma") << "1,25" << qint64{1250};
    QTest::newRow("open end") << "3." << qint64{3000};
    QTest::newRow("open beginning") << ".5" << qint64{500};
    QTest::newRow("rounded") << "0.0006" << qint64{1};
    QTest::newRow("blanks") << " 7 " << qint64{7000};
}

void SecondsTextTest::typedTime_isReadToTheMillisecond()
{
    QFETCH(QString, text);
    QFETCH(qint64, milliseconds);
    QCOMPARE(millisecondsOf(text).value_or(-1), milliseconds);
}

void SecondsTextTest::nonsense_isNoTime_data()
{
    QTest::addColumn<QString>("text");
    for (const char* const text :
         {"", " ", ".", "-1", "x", "1.2.3", "1e3", "inf", "nan", "99999999999999999999", "1 000"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void SecondsTextTest::nonsense_isNoTime()
{
    QFETCH(QString, text);
    QVERIFY(!millisecondsOf(text));
}

QTEST_GUILESS_MAIN(SecondsTextTest)
#include "SecondsTextTest.moc"
