#include "ui/batch/SecondsField.h"

#include "batch/SecondsText.h"

#include <QLineEdit>

SecondsField::SecondsField(const char* propertyName, QLineEdit* edit, QObject* parent)
    : Field(propertyName, edit, noChoice, parent)
    , m_edit(edit)
{}

QVariant SecondsField::value() const
{
    const std::optional<qint64> time = millisecondsOf(m_edit->text());
    return time ? QVariant(*time) : QVariant();
}

void SecondsField::setValue(const QVariant& value)
{
    m_edit->setText(value.isValid() ? secondsText(value.toLongLong()) : QString());
}
