#include "ui/batch/MergedField.h"

#include "ui/widgets/Field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace {

QString multiple()
{
    return QLatin1Char('[') + QCoreApplication::translate("BatchModeDialog", "Multiple") +
           QLatin1Char(']');
}

QString nothingChosen()
{
    return QStringLiteral("-");
}

} // namespace

MergedField::Value MergedField::merge(const QList<QObject*>& objects, const char* property)
{
    Value merged;
    for (const QObject* const object : objects) {
        const QVariant value = object->property(property);
        if (!merged.value.isValid()) {
            merged.value = value;
        } else if (merged.value != value) {
            return {true, {}};
        }
    }
    return merged;
}

void MergedField::show(Field& field, const Value& value)
{
    QWidget* const widget = field.widget();
    const QString placeholder = value.isMultiple ? multiple() : QString();
    if (auto* const label = qobject_cast<QLabel*>(widget)) {
        label->setText(value.isMultiple ? placeholder : value.value.toString());
    } else if (auto* const edit = qobject_cast<QLineEdit*>(widget)) {
        edit->setPlaceholderText(placeholder);
        field.setValue(value.value);
    } else if (auto* const comboBox = qobject_cast<QComboBox*>(widget)) {
        comboBox->setItemText(0, value.isMultiple ? placeholder : nothingChosen());
        if (value.isMultiple) {
            comboBox->setCurrentIndex(0);
        } else {
            field.setValue(value.value);
        }
    } else if (auto* const checkBox = qobject_cast<QCheckBox*>(widget)) {
        checkBox->setCheckState(value.isMultiple       ? Qt::PartiallyChecked
                                : value.value.toBool() ? Qt::Checked
                                                       : Qt::Unchecked);
    } else if (qobject_cast<QRadioButton*>(widget) != nullptr) {
        field.setValue(value.value);
    }
}

void MergedField::reset(QWidget& widget)
{
    if (auto* const edit = qobject_cast<QLineEdit*>(&widget)) {
        edit->clear();
        edit->setPlaceholderText(QString());
    } else if (auto* const comboBox = qobject_cast<QComboBox*>(&widget)) {
        comboBox->setCurrentIndex(0);
    } else if (auto* const checkBox = qobject_cast<QCheckBox*>(&widget)) {
        checkBox->setChecked(false);
        checkBox->setTristate(false);
    }
}
