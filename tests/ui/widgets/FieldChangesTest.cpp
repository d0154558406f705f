#include "ui/widgets/Field.h"

#include "tests/ui/widgets/BoundField.h"
#include "ui/widgets/ColorLabel.h"
#include "ui/widgets/FixTristateCheckbox.h"
#include "ui/widgets/FontLabel.h"

#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTextEdit>

#include <memory>

namespace {

/// Counts what a field reports.
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

/// What a field reports when its widget is changed.
class FieldChangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whenChanged_reportsEdits_ofEveryKind();
    void whenChanged_reportsNoLabels();
    void whenChanged_reportsNothing_onceContextIsGone();
    void whenChanged_reportsNothing_whenValueStays();
};

void FieldChangesTest::whenChanged_reportsEdits_ofEveryKind()
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

void FieldChangesTest::whenChanged_reportsNoLabels()
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

    const ChangeCounter nothing(Field("a", nullptr, Field::noChoice, nullptr));
    QCOMPARE(nothing.count(), 0);
}

void FieldChangesTest::whenChanged_reportsNothing_onceContextIsGone()
{
    Bound<QLineEdit> line;
    ChangeCounter changes(line.field());
    line->setText(QStringLiteral("a"));
    changes.stop();
    line->setText(QStringLiteral("b"));
    QCOMPARE(changes.count(), 1);
}

void FieldChangesTest::whenChanged_reportsNothing_whenValueStays()
{
    Bound<QLineEdit> line;
    line->setText(QStringLiteral("a"));
    const ChangeCounter changes(line.field());
    line.field().setValue(QStringLiteral("a"));
    QCOMPARE(changes.count(), 0);
}

QTEST_MAIN(FieldChangesTest)
#include "FieldChangesTest.moc"
