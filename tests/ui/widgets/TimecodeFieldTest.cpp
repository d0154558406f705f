#include "ui/widgets/TimecodeField.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

const QString shownTime = QStringLiteral("00:00:01.500");

/// A field that shows a time, in a window with another widget to focus.
struct Window
{
    Window()
    {
        layout.addWidget(&field);
        layout.addWidget(&other);
        field.setTime(shownTime);
        widget.show();
        QApplication::setActiveWindow(&widget);
        other.setFocus();
    }

    QLineEdit& edit() const { return *field.findChild<QLineEdit*>(); }
    QLabel& label() const { return *field.findChild<QLabel*>(); }

    QWidget widget;
    QVBoxLayout layout{&widget};
    TimecodeField field;
    QLineEdit other;
};

} // namespace

class TimecodeFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void field_showsTheTime_untilItIsClickedOn();
    void field_opens_byTab_andIsLeftByTabInBothDirections();
    void return_tellsTheText_andChangesNothingByItself();
    void refusedText_staysAndIsMarked_untilItIsChanged();
    void escape_givesTheShownTimeBack();
    void time_goesOnBehindTheField_whileSomebodyTypes();
    void disabledField_doesNotOpen_andCloses();
};

void TimecodeFieldTest::field_showsTheTime_untilItIsClickedOn()
{
    Window window;
    QVERIFY(!window.field.isTyping());
    QVERIFY(window.label().isVisible());
    QCOMPARE(window.label().text(), shownTime);
    QTest::mouseClick(&window.field, Qt::LeftButton);
    QVERIFY(window.field.isTyping());
    QVERIFY(window.edit().hasFocus());
    QCOMPARE(window.edit().selectedText(), shownTime);
}

void TimecodeFieldTest::field_opens_byTab_andIsLeftByTabInBothDirections()
{
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        Window window;
        QTest::keyClick(&window.other, Qt::Key_Tab);
        QVERIFY(window.field.isTyping());
        QTest::keyClick(&window.edit(), key);
        QVERIFY(!window.field.isTyping());
        QVERIFY(window.other.hasFocus());
    }
}

void TimecodeFieldTest::return_tellsTheText_andChangesNothingByItself()
{
    Window window;
    const QSignalSpy entered(&window.field, &TimecodeField::entered);
    window.field.type();
    QTest::keyClicks(&window.edit(), QStringLiteral("+10s"));
    QTest::keyClick(&window.edit(), Qt::Key_Return);
    QCOMPARE(entered.count(), 1);
    QCOMPARE(entered.first().first().toString(), QStringLiteral("+10s"));
    QVERIFY(window.field.isTyping());
    QCOMPARE(window.field.time(), shownTime);
    window.field.finish();
    QVERIFY(!window.field.isTyping());
    QVERIFY(window.label().isVisible());
}

void TimecodeFieldTest::refusedText_staysAndIsMarked_untilItIsChanged()
{
    Window window;
    window.field.type();
    QVERIFY(!window.field.isRefused());
    QTest::keyClicks(&window.edit(), QStringLiteral("abc"));
    window.field.refuse();
    QVERIFY(window.field.isRefused());
    QCOMPARE(window.edit().selectedText(), QStringLiteral("abc"));
    QTest::keyClicks(&window.edit(), QStringLiteral("5"));
    QVERIFY(!window.field.isRefused());
    window.field.refuse();
    QTest::keyClick(&window.edit(), Qt::Key_Escape);
    window.field.type();
    QVERIFY(!window.field.isRefused());
}

void TimecodeFieldTest::escape_givesTheShownTimeBack()
{
    Window window;
    const QSignalSpy entered(&window.field, &TimecodeField::entered);
    const QSignalSpy givenUp(&window.field, &TimecodeField::givenUp);
    window.field.type();
    QTest::keyClicks(&window.edit(), QStringLiteral("f12"));
    QTest::keyClick(&window.edit(), Qt::Key_Escape);
    QVERIFY(!window.field.isTyping());
    QCOMPARE(window.label().text(), shownTime);
    QCOMPARE(givenUp.count(), 1);
    QCOMPARE(entered.count(), 0);
    window.field.type();
    QCOMPARE(window.edit().text(), shownTime);
}

void TimecodeFieldTest::time_goesOnBehindTheField_whileSomebodyTypes()
{
    Window window;
    window.field.type();
    QTest::keyClicks(&window.edit(), QStringLiteral("1:0"));
    window.field.setTime(QStringLiteral("00:00:02.000"));
    QCOMPARE(window.edit().text(), QStringLiteral("1:0"));
    QCOMPARE(window.field.time(), QStringLiteral("00:00:02.000"));
}

void TimecodeFieldTest::disabledField_doesNotOpen_andCloses()
{
    Window window;
    window.field.type();
    window.field.setEnabled(false);
    QVERIFY(!window.field.isTyping());
    window.field.type();
    QVERIFY(!window.field.isTyping());
}

QTEST_MAIN(TimecodeFieldTest)
#include "TimecodeFieldTest.moc"
