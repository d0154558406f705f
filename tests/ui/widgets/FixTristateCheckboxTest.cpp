#include "ui/widgets/FixTristateCheckbox.h"

#include <QSignalSpy>
#include <QTest>

class FixTristateCheckboxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void click_checks_whenUnchecked();
    void click_checksThenUnchecks_whenPartial();
    void spaceKey_checksThenUnchecks_whenPartial();
    void clicks_neverReachPartial_whenTristate();
    void click_reportsNewState();
};

void FixTristateCheckboxTest::click_checks_whenUnchecked()
{
    FixTristateCheckbox box;
    box.click();
    QCOMPARE(box.checkState(), Qt::Checked);
    box.click();
    QCOMPARE(box.checkState(), Qt::Unchecked);
}

void FixTristateCheckboxTest::click_checksThenUnchecks_whenPartial()
{
    FixTristateCheckbox box;
    box.setCheckState(Qt::PartiallyChecked);
    QCOMPARE(box.checkState(), Qt::PartiallyChecked);
    box.click();
    QCOMPARE(box.checkState(), Qt::Checked);
    box.click();
    QCOMPARE(box.checkState(), Qt::Unchecked);
}

void FixTristateCheckboxTest::spaceKey_checksThenUnchecks_whenPartial()
{
    FixTristateCheckbox box;
    box.setCheckState(Qt::PartiallyChecked);
    QTest::keyClick(&box, Qt::Key_Space);
    QCOMPARE(box.checkState(), Qt::Checked);
    QTest::keyClick(&box, Qt::Key_Space);
    QCOMPARE(box.checkState(), Qt::Unchecked);
}

void FixTristateCheckboxTest::clicks_neverReachPartial_whenTristate()
{
    FixTristateCheckbox box;
    box.setTristate(true);
    for (const Qt::CheckState expected : {Qt::Checked, Qt::Unchecked, Qt::Checked, Qt::Unchecked}) {
        box.click();
        QCOMPARE(box.checkState(), expected);
    }
}

void FixTristateCheckboxTest::click_reportsNewState()
{
    FixTristateCheckbox box;
    box.setCheckState(Qt::PartiallyChecked);
    const QSignalSpy changes(&box, &QCheckBox::stateChanged);
    box.click();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), int(Qt::Checked));
}

QTEST_MAIN(FixTristateCheckboxTest)
#include "FixTristateCheckboxTest.moc"
