#include "ui/widgets/FormScrollArea.h"

#include "ui/widgets/SectionBox.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// A form with so many fields that it is higher than any screen.
class HighForm
{
public:
    HighForm()
    {
        auto* const form = new QWidget;
        auto* const layout = new QVBoxLayout(form);
        for (int i = 0; i < count; ++i) {
            fields.append(new QLineEdit(form));
            layout->addWidget(fields.last());
        }
        area.setWidget(form);
    }

    static constexpr int count = 60;
    FormScrollArea area;
    QList<QLineEdit*> fields;
};

} // namespace

/// The building blocks of forms.
class FormScrollAreaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_isNeverCutAtItsSides();
    void fieldWithTheKeyboard_comesIntoView();
    void area_asksForMore_whenTheFormGrows();
    void section_hasItsHeading_andNoFrame();
};

void FormScrollAreaTest::form_isNeverCutAtItsSides()
{
    HighForm high;
    high.fields.first()->setMinimumWidth(333);
    high.area.resize(high.area.minimumSizeHint());
    high.area.show();
    QVERIFY(high.area.height() < 300);
    QVERIFY(high.area.viewport()->width() >= high.area.widget()->minimumSizeHint().width());
    QVERIFY(!high.area.horizontalScrollBar()->isVisible());
}

void FormScrollAreaTest::fieldWithTheKeyboard_comesIntoView()
{
    HighForm high;
    high.area.resize(high.area.minimumSizeHint());
    high.area.show();
    QVERIFY(QTest::qWaitForWindowActive(&high.area));
    high.fields.first()->setFocus();
    for (int i = 1; i < HighForm::count; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(high.fields.at(i)->hasFocus());
        QVERIFY(!high.fields.at(i)->visibleRegion().isEmpty());
    }
}

void FormScrollAreaTest::area_asksForMore_whenTheFormGrows()
{
    HighForm high;
    high.area.show();
    const int before = high.area.minimumSizeHint().width();
    high.fields.first()->setMinimumWidth(before + 100);
    QTRY_VERIFY(high.area.minimumSizeHint().width() >= before + 100);
}

void FormScrollAreaTest::section_hasItsHeading_andNoFrame()
{
    SectionBox section(QStringLiteral("Heading"));
    section.resize(200, 100);
    const QImage shown = section.grab().toImage();
    const QRgb ground = shown.pixel(199, 99);
    bool hasHeading = false;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 150; ++x) {
            hasHeading = hasHeading || shown.pixel(x, y) != ground;
        }
    }
    QVERIFY(hasHeading);
    for (int y = 40; y < 100; ++y) {
        QCOMPARE(shown.pixel(0, y), ground);
        QCOMPARE(shown.pixel(199, y), ground);
    }
}

QTEST_MAIN(FormScrollAreaTest)
#include "FormScrollAreaTest.moc"
