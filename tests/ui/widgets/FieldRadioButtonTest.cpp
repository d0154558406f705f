#include "ui/widgets/Field.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QTest>

namespace {

/// Two buttons that choose the value 0 or 1 of one property.
struct Choice
{
    QWidget form;
    QRadioButton zero{&form};
    QRadioButton one{&form};
    Field zeroField{"type", &zero, 0, nullptr};
    Field oneField{"type", &one, 1, nullptr};

    /// Afterwards the group decides which buttons exclude each other.
    void join(QButtonGroup& group)
    {
        group.addButton(&zero);
        group.addButton(&one);
    }

    void setValue(const QVariant& value)
    {
        zeroField.setValue(value);
        oneField.setValue(value);
    }
};

} // namespace

class FieldRadioButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void value_isItsChoice_whenChecked();
    void setValue_checksIt_exactlyForItsChoice();
    void setValue_unchecksAll_forTheValueOfNone_data();
    void setValue_unchecksAll_forTheValueOfNone();
    void buttons_excludeEachOther_afterAllWereUnchecked();
    void buttonGroup_staysAsItWas();
    void whenChanged_reportsClicksOnly();
};

void FieldRadioButtonTest::value_isItsChoice_whenChecked()
{
    Choice choice;
    QCOMPARE(choice.zeroField.value(), QVariant(Field::noChoice));
    choice.zero.setChecked(true);
    QCOMPARE(choice.zeroField.value(), QVariant(0));
}

void FieldRadioButtonTest::setValue_checksIt_exactlyForItsChoice()
{
    Choice choice;
    for (const int type : {1, 0, 1}) {
        choice.setValue(type);
        QCOMPARE(choice.zero.isChecked(), type == 0);
        QCOMPARE(choice.one.isChecked(), type == 1);
    }
}

void FieldRadioButtonTest::setValue_unchecksAll_forTheValueOfNone_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QVariant>("value");
    for (const int before : {0, 1}) {
        QTest::addRow("%d, then 7", before) << before << QVariant(7);
        QTest::addRow("%d, then -1", before) << before << QVariant(-1);
        QTest::addRow("%d, then none", before) << before << QVariant();
    }
}

void FieldRadioButtonTest::setValue_unchecksAll_forTheValueOfNone()
{
    QFETCH(const int, before);
    QFETCH(const QVariant, value);
    QButtonGroup group;
    for (const bool isGrouped : {false, true}) {
        Choice choice;
        if (isGrouped) {
            choice.join(group);
        }
        choice.setValue(before);
        choice.setValue(value);
        QVERIFY(!choice.zero.isChecked());
        QVERIFY(!choice.one.isChecked());
        QCOMPARE(choice.zeroField.value(), QVariant(Field::noChoice));
    }
}

void FieldRadioButtonTest::buttons_excludeEachOther_afterAllWereUnchecked()
{
    Choice choice;
    choice.setValue(1);
    choice.setValue(7);
    choice.one.click();
    QVERIFY(choice.one.isChecked());
    choice.zero.click();
    QVERIFY(choice.zero.isChecked());
    QVERIFY(!choice.one.isChecked());
    choice.zero.click();
    QVERIFY(choice.zero.isChecked());
}

void FieldRadioButtonTest::buttonGroup_staysAsItWas()
{
    for (const bool isExclusive : {true, false}) {
        QButtonGroup group;
        group.setExclusive(isExclusive);
        Choice choice;
        choice.join(group);
        for (const int type : {0, 7, 1}) {
            choice.setValue(type);
            QCOMPARE(group.exclusive(), isExclusive);
        }
    }
}

void FieldRadioButtonTest::whenChanged_reportsClicksOnly()
{
    Choice choice;
    int changes = 0;
    choice.zeroField.whenChanged(&choice.zero, [&changes] { ++changes; });
    choice.setValue(0);
    choice.setValue(7);
    QCOMPARE(changes, 0);
    choice.zero.click();
    QCOMPARE(changes, 1);
}

QTEST_MAIN(FieldRadioButtonTest)
#include "FieldRadioButtonTest.moc"
