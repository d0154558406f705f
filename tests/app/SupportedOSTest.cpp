#include "app/SupportedOS.h"

#include <QApplication>
#include <QTest>

class SupportedOSTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rule_goesByMajorAndMinorNumber_data();
    void rule_goesByMajorAndMinorNumber();
    void check_letsOtherSystemsPass_whateverTheirNumber();
};

void SupportedOSTest::rule_goesByMajorAndMinorNumber_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("supported");
    const auto row = [](const char* version, bool supported) {
        QTest::newRow(version) << QString::fromLatin1(version) << supported;
    };
    row("10.9.5", false);
    row("10.9", false);
    row("10.0", false);
    row("10.x", false);
    row("10.", false);
    row("10.10", true);
    row("10.15.7", true);
    row("11.2", true);
    row("12.0", true);
    row("9.2", true);
    row("unknown.version", true);
    row(".", true);
    row("11", false);
    row("10", false);
    row("", false);
}

void SupportedOSTest::rule_goesByMajorAndMinorNumber()
{
    QFETCH(const QString, version);
    QTEST(isSupportedOS(version), "supported");
}

void SupportedOSTest::check_letsOtherSystemsPass_whateverTheirNumber()
{
#ifdef Q_OS_MACOS
    QSKIP("macOS is not another system");
#else
    QVERIFY(checkSupportedOS(*qApp));
#endif
}

QTEST_MAIN(SupportedOSTest)
#include "SupportedOSTest.moc"
