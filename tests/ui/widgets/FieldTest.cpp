#include "ui/widgets/Field.h"

#include "tests/ui/support/Painting.h"
#include "ui/widgets/ColorLabel.h"
#include "ui/widgets/FixTristateCheckbox.h"
#include "ui/widgets/FontLabel.h"

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QDial>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTextEdit>

#include <memory>

using testsupport::EventCounter;

namespace {

/// A field for a widget of a type, which it owns.
template <typename Widget>
class Bound
{
public:
    explicit Bound(int choiceValue = Field::NoChoice)
        : m_field("property", &m_widget, choiceValue, nullptr)
    {}

    Widget& widget() { return m_widget; }
    Widget* operator->() { return &m_widget; }
    Field& field() { return m_field; }

private:
    Widget m_widget;
    Field m_field;
};

/// A combo box with an item for each type of data that the program uses: ids, types, numbers.
void addItems(QComboBox& box)
{
    box.addItem(QStringLiteral("None"), QString());
    box.addItem(QStringLiteral("Type"), QStringLiteral("jpg"));
    box.addItem(QStringLiteral("Number"), 3);
    box.addItem(QStringLiteral("No data"));
}

/// Counts the notifications of a field.
class ChangeCounter
{
public:
    explicit ChangeCounter(const Field& field)
        : m_context(std::make_unique<QObject>())
    {
        field.whenChanged(m_context.get(), [this] { ++m_count; });
    }

    int count() const { return m_count; }
    void stop() { m_context.reset(); }

private:
    std::unique_ptr<QObject> m_context;
    int m_count = 0;
};

} // namespace

Q_DECLARE_METATYPE(Qt::CheckState)

class FieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void field_keepsWhatItWasGiven_andBelongsToItsParent();
    void field_isNoChoice_exceptForChoiceValues();

    void value_ofFontLabel_isItsFont();
    void value_ofColorLabel_isItsColour();
    void value_ofLineEdit_isItsText();
    void value_ofTextEdit_isItsPlainText();
    void value_ofComboBox_isDataOfCurrentItem_notItsText();
    void value_ofComboBox_isInvalid_withoutCurrentItem();
    void value_ofCheckBox_isTrue_onlyWhenFullyChecked_data();
    void value_ofCheckBox_isTrue_onlyWhenFullyChecked();
    void value_ofSlider_isItsNumber();
    void value_ofSpinBox_isItsNumber();
    void value_isInvalid_forOtherWidgets();

    void setValue_ofColorLabel_showsColour_andRepaints();
    void setValue_ofFontLabel_showsFont();
    void setValue_ofLabel_showsText();
    void setValue_ofLineEdit_showsText_data();
    void setValue_ofLineEdit_showsText();
    void setValue_ofTextEdit_showsPlainText_evenIfItLooksLikeMarkup();
    void setValue_ofComboBox_selectsItemByData_data();
    void setValue_ofComboBox_selectsItemByData();
    void setValue_ofComboBox_selectsNothing_fromItemsWithoutData();
    void setValue_ofCheckBox_checksOrUnchecks();
    void setValue_ofSlider_showsNumber_inItsRange();
    void setValue_ofSpinBox_showsNumber_inItsRange();
    void setValue_showsNothing_whenInvalid();
    void setValue_leavesOtherWidgets();

    void whenChanged_reportsEdits_ofEveryKind();
    void whenChanged_reportsNoLabels();
    void whenChanged_reportsNothing_onceContextIsGone();
    void whenChanged_reportsNothing_whenValueStays();
};

void FieldTest::field_keepsWhatItWasGiven_andBelongsToItsParent()
{
    QWidget widget;
    QObject parent;
    const auto* const field = new Field("imageQuality", &widget, 7, &parent);
    QCOMPARE(QLatin1String(field->propertyName()), QLatin1String("imageQuality"));
    QCOMPARE(field->widget(), &widget);
    QCOMPARE(field->choiceValue(), 7);
    QCOMPARE(field->parent(), &parent);
}

void FieldTest::field_isNoChoice_exceptForChoiceValues()
{
    QVERIFY(!Field("a", nullptr, -1, nullptr).isChoice());
    QVERIFY(Field("a", nullptr, 0, nullptr).isChoice());
    QVERIFY(Field("a", nullptr, 1, nullptr).isChoice());
}

void FieldTest::value_ofFontLabel_isItsFont()
{
    Bound<FontLabel> label;
    const QFont font(QStringLiteral("Courier"), 24);
    label->setFontValue(font);
    QCOMPARE(label.field().value(), QVariant(font));
    QCOMPARE(label.field().value().userType(), int(QMetaType::QFont));
}

void FieldTest::value_ofColorLabel_isItsColour()
{
    Bound<ColorLabel> label;
    const QColor color(1, 2, 3, 4);
    label->setColorValue(color);
    QCOMPARE(label.field().value(), QVariant(color));
    QCOMPARE(label.field().value().userType(), int(QMetaType::QColor));
}

void FieldTest::value_ofLineEdit_isItsText()
{
    Bound<QLineEdit> edit;
    edit->setText(QStringLiteral("12"));
    QCOMPARE(edit.field().value(), QVariant(QStringLiteral("12")));
    QCOMPARE(edit.field().value().userType(), int(QMetaType::QString));
}

void FieldTest::value_ofTextEdit_isItsPlainText()
{
    Bound<QTextEdit> edit;
    edit->setHtml(QStringLiteral("<b>bold</b><br>2"));
    QCOMPARE(edit.field().value(), QVariant(QStringLiteral("bold\n2")));
}

void FieldTest::value_ofComboBox_isDataOfCurrentItem_notItsText()
{
    Bound<QComboBox> box;
    addItems(box.widget());
    box->setCurrentIndex(1);
    QCOMPARE(box.field().value(), QVariant(QStringLiteral("jpg")));
    box->setCurrentIndex(2);
    QCOMPARE(box.field().value(), QVariant(3));
    box->setCurrentIndex(3);
    QVERIFY(!box.field().value().isValid());
}

void FieldTest::value_ofComboBox_isInvalid_withoutCurrentItem()
{
    Bound<QComboBox> box;
    QVERIFY(!box.field().value().isValid());
    addItems(box.widget());
    box->setCurrentIndex(-1);
    QVERIFY(!box.field().value().isValid());
}

void FieldTest::value_ofCheckBox_isTrue_onlyWhenFullyChecked_data()
{
    QTest::addColumn<Qt::CheckState>("state");
    QTest::addColumn<bool>("value");
    QTest::newRow("unchecked") << Qt::Unchecked << false;
    QTest::newRow("partially") << Qt::PartiallyChecked << false;
    QTest::newRow("checked") << Qt::Checked << true;
}

void FieldTest::value_ofCheckBox_isTrue_onlyWhenFullyChecked()
{
    QFETCH(Qt::CheckState, state);
    QFETCH(bool, value);
    Bound<QCheckBox> box;
    box->setTristate(true);
    box->setCheckState(state);
    QCOMPARE(box.field().value(), QVariant(value));
    QCOMPARE(box.field().value().userType(), int(QMetaType::Bool));

    Bound<FixTristateCheckbox> ours;
    ours->setTristate(true);
    ours->setCheckState(state);
    QCOMPARE(ours.field().value(), QVariant(value));
}

void FieldTest::value_ofSlider_isItsNumber()
{
    Bound<QSlider> slider;
    slider->setRange(-100, 100);
    slider->setValue(-37);
    QCOMPARE(slider.field().value(), QVariant(-37));
}

void FieldTest::value_ofSpinBox_isItsNumber()
{
    Bound<QSpinBox> box;
    box->setSuffix(QStringLiteral(" px"));
    box->setValue(42);
    QCOMPARE(box.field().value(), QVariant(42));
    QCOMPARE(box.field().value().userType(), int(QMetaType::Int));
}

void FieldTest::value_isInvalid_forOtherWidgets()
{
    QVERIFY(!Field("a", nullptr, Field::NoChoice, nullptr).value().isValid());
    Bound<QLabel> label;
    label->setText(QStringLiteral("text"));
    QVERIFY(!label.field().value().isValid());
    QVERIFY(!Bound<QWidget>().field().value().isValid());
    QVERIFY(!Bound<QDial>().field().value().isValid());
    QVERIFY(!Bound<QDoubleSpinBox>().field().value().isValid());
    QVERIFY(!Bound<QPlainTextEdit>().field().value().isValid());
}

void FieldTest::setValue_ofColorLabel_showsColour_andRepaints()
{
    Bound<ColorLabel> label;
    label->show();
    QVERIFY(QTest::qWaitForWindowExposed(&label.widget()));
    QCoreApplication::processEvents();
    const EventCounter paints(label.widget(), QEvent::Paint);
    label.field().setValue(QColor(1, 2, 3, 4));
    QCOMPARE(label->colorValue(), QColor(1, 2, 3, 4));
    QTRY_VERIFY(paints.count() > 0);
}

void FieldTest::setValue_ofFontLabel_showsFont()
{
    Bound<FontLabel> label;
    const QFont font(QStringLiteral("Courier"), 24);
    label.field().setValue(font);
    QCOMPARE(label->fontValue(), font);
    QCOMPARE(label->text(), QStringLiteral("Courier, 24pt"));
}

void FieldTest::setValue_ofLabel_showsText()
{
    Bound<QLabel> label;
    label.field().setValue(12);
    QCOMPARE(label->text(), QStringLiteral("12"));
}

void FieldTest::setValue_ofLineEdit_showsText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    const auto text = [](const char* tag, const QString& value) {
        QTest::newRow(tag) << QVariant(value) << value;
    };
    text("text", QStringLiteral("text"));
    text("quotes and slashes", QStringLiteral("\"a\"/'b'\\c"));
    text("emoji", QStringLiteral("🎬👩‍👩‍👧‍👦"));
    text("500 characters", QString(500, QLatin1Char('x')));
    text("markup", QStringLiteral("<b>&amp;</b>"));
    text("empty", QString());
    QTest::newRow("number") << QVariant(640) << QStringLiteral("640");
    QTest::newRow("truth") << QVariant(true) << QStringLiteral("true");
}

void FieldTest::setValue_ofLineEdit_showsText()
{
    QFETCH(QVariant, value);
    Bound<QLineEdit> edit;
    edit->setText(QStringLiteral("before"));
    edit.field().setValue(value);
    QTEST(edit->text(), "text");
}

void FieldTest::setValue_ofTextEdit_showsPlainText_evenIfItLooksLikeMarkup()
{
    Bound<QTextEdit> edit;
    for (const QString& text :
         {QStringLiteral("two\nlines"), QStringLiteral("<b>Tom</b> &amp; Jerry"), QString()}) {
        edit.field().setValue(text);
        QCOMPARE(edit->toPlainText(), text);
        QCOMPARE(edit.field().value(), QVariant(text));
    }
}

void FieldTest::setValue_ofComboBox_selectsItemByData_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("index");
    QTest::newRow("empty text") << QVariant(QString()) << 0;
    QTest::newRow("text") << QVariant(QStringLiteral("jpg")) << 1;
    QTest::newRow("other letter case") << QVariant(QStringLiteral("JPG")) << -1;
    QTest::newRow("beginning only") << QVariant(QStringLiteral("jp")) << -1;
    QTest::newRow("more than it") << QVariant(QStringLiteral("jpg2")) << -1;
    QTest::newRow("text of an item") << QVariant(QStringLiteral("Type")) << -1;
    QTest::newRow("number") << QVariant(3) << 2;
    QTest::newRow("number as text") << QVariant(QStringLiteral("3")) << 2;
    QTest::newRow("number of an item") << QVariant(1) << -1;
    QTest::newRow("zero") << QVariant(0) << -1;
    QTest::newRow("pattern") << QVariant(QStringLiteral("j*")) << -1;
    QTest::newRow("invalid") << QVariant() << -1;
}

void FieldTest::setValue_ofComboBox_selectsItemByData()
{
    QFETCH(QVariant, value);
    for (const int before : {-1, 1, 3}) {
        Bound<QComboBox> box;
        addItems(box.widget());
        box->setCurrentIndex(before);
        box.field().setValue(value);
        QTEST(box->currentIndex(), "index");
    }
}

void FieldTest::setValue_ofComboBox_selectsNothing_fromItemsWithoutData()
{
    Bound<QComboBox> box;
    box->addItem(QStringLiteral("a"));
    box->addItem(QStringLiteral("b"));
    for (const QVariant& value : {QVariant(QStringLiteral("b")), QVariant(1), QVariant()}) {
        box->setCurrentIndex(0);
        box.field().setValue(value);
        QCOMPARE(box->currentIndex(), -1);
    }
}

void FieldTest::setValue_ofCheckBox_checksOrUnchecks()
{
    Bound<FixTristateCheckbox> box;
    box->setTristate(true);
    for (const Qt::CheckState before : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
        box->setCheckState(before);
        box.field().setValue(true);
        QCOMPARE(box->checkState(), Qt::Checked);
        box->setCheckState(before);
        box.field().setValue(QStringLiteral("false"));
        QCOMPARE(box->checkState(), Qt::Unchecked);
    }
}

void FieldTest::setValue_ofSlider_showsNumber_inItsRange()
{
    Bound<QSlider> slider;
    slider->setRange(0, 255);
    slider.field().setValue(QStringLiteral("128"));
    QCOMPARE(slider->value(), 128);
    slider.field().setValue(256);
    QCOMPARE(slider->value(), 255);
}

void FieldTest::setValue_ofSpinBox_showsNumber_inItsRange()
{
    Bound<QSpinBox> box;
    box->setRange(-100, 100);
    box.field().setValue(-40);
    QCOMPARE(box->value(), -40);
    box.field().setValue(-101);
    QCOMPARE(box->value(), -100);
}

void FieldTest::setValue_showsNothing_whenInvalid()
{
    Bound<QLineEdit> line;
    line->setText(QStringLiteral("a"));
    line.field().setValue({});
    QCOMPARE(line->text(), QString());

    Bound<QTextEdit> text;
    text->setText(QStringLiteral("a"));
    text.field().setValue({});
    QCOMPARE(text->toPlainText(), QString());

    Bound<QLabel> label;
    label->setText(QStringLiteral("a"));
    label.field().setValue({});
    QCOMPARE(label->text(), QString());

    Bound<QCheckBox> box;
    box->setChecked(true);
    box.field().setValue({});
    QVERIFY(!box->isChecked());

    Bound<QSpinBox> spin;
    spin->setValue(9);
    spin.field().setValue({});
    QCOMPARE(spin->value(), 0);

    Bound<QSlider> slider;
    slider->setValue(9);
    slider.field().setValue({});
    QCOMPARE(slider->value(), 0);

    Bound<ColorLabel> color;
    color->setColorValue(Qt::red);
    color.field().setValue({});
    QVERIFY(!color->colorValue().isValid());
}

void FieldTest::setValue_leavesOtherWidgets()
{
    Bound<QDial> dial;
    dial->setValue(9);
    dial.field().setValue(3);
    QCOMPARE(dial->value(), 9);
    Field nothing("a", nullptr, Field::NoChoice, nullptr);
    nothing.setValue(3);
    QVERIFY(!nothing.value().isValid());
}

void FieldTest::whenChanged_reportsEdits_ofEveryKind()
{
    Bound<QLineEdit> line;
    const ChangeCounter lineChanges(line.field());
    QTest::keyClicks(&line.widget(), QStringLiteral("ab"));
    line->setText(QStringLiteral("c"));
    QCOMPARE(lineChanges.count(), 3);

    Bound<QTextEdit> text;
    const ChangeCounter textChanges(text.field());
    QTest::keyClicks(&text.widget(), QStringLiteral("ab"));
    QCOMPARE(textChanges.count(), 2);

    Bound<QComboBox> box;
    addItems(box.widget());
    const ChangeCounter boxChanges(box.field());
    QTest::keyClick(&box.widget(), Qt::Key_Down);
    box->setCurrentIndex(-1);
    QCOMPARE(boxChanges.count(), 2);

    Bound<FixTristateCheckbox> check;
    const ChangeCounter checkChanges(check.field());
    check->click();
    check->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(checkChanges.count(), 2);

    Bound<QSlider> slider;
    const ChangeCounter sliderChanges(slider.field());
    QTest::keyClick(&slider.widget(), Qt::Key_Up);
    slider->setValue(50);
    QCOMPARE(sliderChanges.count(), 2);

    Bound<QSpinBox> spin;
    const ChangeCounter spinChanges(spin.field());
    QTest::keyClick(&spin.widget(), Qt::Key_Up);
    spin->setValue(50);
    QCOMPARE(spinChanges.count(), 2);
}

void FieldTest::whenChanged_reportsNoLabels()
{
    Bound<QLabel> label;
    const ChangeCounter labelChanges(label.field());
    label->setText(QStringLiteral("a"));
    QCOMPARE(labelChanges.count(), 0);

    Bound<ColorLabel> color;
    const ChangeCounter colorChanges(color.field());
    color->setColorValue(Qt::red);
    QCOMPARE(colorChanges.count(), 0);

    Bound<FontLabel> font;
    const ChangeCounter fontChanges(font.field());
    font->setFontValue(QFont(QStringLiteral("Courier"), 24));
    QCOMPARE(fontChanges.count(), 0);

    const ChangeCounter nothing(Field("a", nullptr, Field::NoChoice, nullptr));
    QCOMPARE(nothing.count(), 0);
}

void FieldTest::whenChanged_reportsNothing_onceContextIsGone()
{
    Bound<QLineEdit> line;
    ChangeCounter changes(line.field());
    line->setText(QStringLiteral("a"));
    changes.stop();
    line->setText(QStringLiteral("b"));
    QCOMPARE(changes.count(), 1);
}

void FieldTest::whenChanged_reportsNothing_whenValueStays()
{
    Bound<QLineEdit> line;
    line->setText(QStringLiteral("a"));
    const ChangeCounter changes(line.field());
    line.field().setValue(QStringLiteral("a"));
    QCOMPARE(changes.count(), 0);
}

QTEST_MAIN(FieldTest)
#include "FieldTest.moc"
