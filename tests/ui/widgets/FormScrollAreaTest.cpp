#include "ui/widgets/FormScrollArea.h"

#include "ui/widgets/SectionBox.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QVector>
#include <QWheelEvent>

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

    /// In front of all that is there.
    QSpinBox& addSpinBox()
    {
        auto* const box = new QSpinBox(area.widget());
        box->setMinimum(-10);
        static_cast<QVBoxLayout*>(area.widget()->layout())->insertWidget(0, box);
        return *box;
    }

    static constexpr int count = 60;
    FormScrollArea area;
    QList<QLineEdit*> fields;
};

/// As a person does, with the pointer over the widget.
void turnDown(QWidget& widget)
{
    const QPointF at = QRectF(widget.rect()).center();
    QWheelEvent turn(at, widget.mapToGlobal(at.toPoint()), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &turn);
}

} // namespace

/// The building blocks of forms.
class FormScrollAreaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_isNeverCutAtItsSides();
    void fieldWithTheKeyboard_comesIntoView();
    void wheel_scrollsTheForm_overAField();
    void wheel_isTheFields_whileItHasTheKeyboard();
    void wheel_isTheFields_whereAllIsInView();
    void area_asksForMore_whenTheFormGrows();
    void section_hasItsHeading_andNoFrame();
    void checkBoxOfASection_standsBeforeItsHeading_inBothDirections();
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

void FormScrollAreaTest::wheel_scrollsTheForm_overAField()
{
    HighForm high;
    QSpinBox& box = high.addSpinBox();
    high.area.resize(high.area.minimumSizeHint());
    high.area.show();
    turnDown(box);
    QCOMPARE(box.value(), 0);
    QVERIFY(high.area.verticalScrollBar()->value() > 0);
    QVERIFY(!box.hasFocus());
}

void FormScrollAreaTest::wheel_isTheFields_whileItHasTheKeyboard()
{
    HighForm high;
    QSpinBox& box = high.addSpinBox();
    high.area.resize(high.area.minimumSizeHint());
    high.area.show();
    QApplication::setActiveWindow(&high.area);
    box.setFocus();
    QVERIFY(box.hasFocus());
    const int before = high.area.verticalScrollBar()->value();
    turnDown(box);
    QCOMPARE(box.value(), -1);
    QCOMPARE(high.area.verticalScrollBar()->value(), before);
}

void FormScrollAreaTest::wheel_isTheFields_whereAllIsInView()
{
    FormScrollArea area;
    auto* const box = new QSpinBox;
    box->setMinimum(-10);
    area.setWidget(box);
    area.resize(area.sizeHint());
    area.show();
    turnDown(*box);
    QCOMPARE(box->value(), -1);
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

/// In the program's style sheet as well, whose own way is another one.
void FormScrollAreaTest::checkBoxOfASection_standsBeforeItsHeading_inBothDirections()
{
    qApp->setStyleSheet(QStringLiteral(
        "QGroupBox { border: none; margin-top: 20px; } QGroupBox::title { subcontrol-origin: "
        "margin; subcontrol-position: top left; padding: 0 8px; } "
        "QGroupBox::indicator { width: 10px; height: 10px; background: #ff0000; }"));
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        SectionBox section(QStringLiteral("Heading"));
        section.setCheckable(true);
        section.setLayoutDirection(direction);
        section.resize(300, 60);
        const QImage image = section.grab().toImage();
        const QRgb ground = image.pixel(150, 50);
        QVector<int> red;
        QVector<int> other;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < 25; ++y) {
                const QRgb pixel = image.pixel(x, y);
                if (pixel == qRgb(255, 0, 0)) {
                    red.append(x);
                } else if (pixel != ground) {
                    other.append(x);
                }
            }
        }
        QVERIFY(!red.isEmpty() && !other.isEmpty());
        const bool isFromLeft = direction == Qt::LeftToRight;
        QVERIFY(isFromLeft ? red.last() < other.first() : red.first() > other.last());
        QVERIFY(isFromLeft ? red.first() < 20 : red.last() > 280);
    }
    qApp->setStyleSheet(QString());
}

QTEST_MAIN(FormScrollAreaTest)
#include "FormScrollAreaTest.moc"
