#include "ui/widgets/Field.h"

#include "ui/widgets/ColorLabel.h"
#include "ui/widgets/FontLabel.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QFont>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>

namespace {

void selectItem(QComboBox& box, const QVariant& value)
{
    // An invalid value is different from the empty text, which an item may have.
    const int index = value.isValid() ? box.findData(value.toString(), Qt::UserRole,
                                                     Qt::MatchExactly | Qt::MatchCaseSensitive)
                                      : -1;
    box.setCurrentIndex(index);
}

void showColor(ColorLabel& label, const QColor& color)
{
    label.setColorValue(color);
    label.update();
}

/// Also unchecks the only checked button of a group, for which Qt requires another one to be
/// checked.
void check(QRadioButton& button, bool on)
{
    QButtonGroup* const group = button.group();
    const bool isExclusive = group != nullptr ? group->exclusive() : button.autoExclusive();
    const auto setExclusive = [group, &button](bool exclusive) {
        if (group != nullptr) {
            group->setExclusive(exclusive);
        } else {
            button.setAutoExclusive(exclusive);
        }
    };
    setExclusive(isExclusive && on);
    button.setChecked(on);
    setExclusive(isExclusive);
}

/// Returns false for other widgets. Colour and font labels come first because they are labels as
/// well.
bool showInLabel(QWidget* widget, const QVariant& value)
{
    if (auto* const color = qobject_cast<ColorLabel*>(widget)) {
        showColor(*color, value.value<QColor>());
    } else if (auto* const font = qobject_cast<FontLabel*>(widget)) {
        font->setFontValue(value.value<QFont>());
    } else if (auto* const label = qobject_cast<QLabel*>(widget)) {
        label->setText(value.toString());
    } else {
        return false;
    }
    return true;
}

} // namespace

Field::Field(const char* propertyName, QWidget* widget, int choiceValue, QObject* parent)
    : QObject(parent)
    , m_propertyName(propertyName)
    , m_widget(widget)
    , m_choiceValue(choiceValue)
{}

QVariant Field::value() const
{
    if (const auto* const font = qobject_cast<FontLabel*>(m_widget)) {
        return font->fontValue();
    }
    if (const auto* const color = qobject_cast<ColorLabel*>(m_widget)) {
        return color->colorValue();
    }
    if (const auto* const line = qobject_cast<QLineEdit*>(m_widget)) {
        return line->text();
    }
    if (const auto* const text = qobject_cast<QTextEdit*>(m_widget)) {
        return text->toPlainText();
    }
    if (const auto* const comboBox = qobject_cast<QComboBox*>(m_widget)) {
        return comboBox->currentData(Qt::UserRole);
    }
    if (const auto* const checkBox = qobject_cast<QCheckBox*>(m_widget)) {
        return checkBox->checkState() == Qt::Checked;
    }
    if (const auto* const slider = qobject_cast<QSlider*>(m_widget)) {
        return slider->value();
    }
    if (const auto* const spinBox = qobject_cast<QSpinBox*>(m_widget)) {
        return spinBox->value();
    }
    if (const auto* const button = qobject_cast<QRadioButton*>(m_widget)) {
        return button->isChecked() ? m_choiceValue : noChoice;
    }
    if (const auto* const groupBox = qobject_cast<QGroupBox*>(m_widget)) {
        return groupBox->isChecked();
    }
    return {};
}

void Field::setValue(const QVariant& value)
{
    if (showInLabel(m_widget, value)) {
        return;
    }
    if (auto* const line = qobject_cast<QLineEdit*>(m_widget)) {
        line->setText(value.toString());
    } else if (auto* const text = qobject_cast<QTextEdit*>(m_widget)) {
        text->setPlainText(value.toString());
    } else if (auto* const comboBox = qobject_cast<QComboBox*>(m_widget)) {
        selectItem(*comboBox, value);
    } else if (auto* const checkBox = qobject_cast<QCheckBox*>(m_widget)) {
        checkBox->setCheckState(value.toBool() ? Qt::Checked : Qt::Unchecked);
    } else if (auto* const slider = qobject_cast<QSlider*>(m_widget)) {
        slider->setValue(value.toInt());
    } else if (auto* const spinBox = qobject_cast<QSpinBox*>(m_widget)) {
        spinBox->setValue(value.toInt());
    } else if (auto* const button = qobject_cast<QRadioButton*>(m_widget)) {
        check(*button, value.isValid() && value.toInt() == m_choiceValue);
    } else if (auto* const groupBox = qobject_cast<QGroupBox*>(m_widget)) {
        groupBox->setChecked(value.toBool());
    }
}

void Field::whenChanged(const QObject* context, const std::function<void()>& handler) const
{
    if (const auto* const line = qobject_cast<QLineEdit*>(m_widget)) {
        connect(line, &QLineEdit::textChanged, context, handler);
    } else if (const auto* const text = qobject_cast<QTextEdit*>(m_widget)) {
        connect(text, &QTextEdit::textChanged, context, handler);
    } else if (const auto* const comboBox = qobject_cast<QComboBox*>(m_widget)) {
        connect(comboBox, &QComboBox::currentTextChanged, context, handler);
    } else if (const auto* const checkBox = qobject_cast<QCheckBox*>(m_widget)) {
        connect(checkBox, &QCheckBox::stateChanged, context, handler);
    } else if (const auto* const slider = qobject_cast<QSlider*>(m_widget)) {
        connect(slider, &QSlider::valueChanged, context, handler);
    } else if (const auto* const spinBox = qobject_cast<QSpinBox*>(m_widget)) {
        connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), context, handler);
    } else if (const auto* const button = qobject_cast<QRadioButton*>(m_widget)) {
        connect(button, &QRadioButton::clicked, context, handler);
    } else if (const auto* const groupBox = qobject_cast<QGroupBox*>(m_widget)) {
        connect(groupBox, &QGroupBox::toggled, context, handler);
    }
}
