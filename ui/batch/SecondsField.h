#pragma once

#include "ui/widgets/Field.h"

class QLineEdit;

/// Binds a property in milliseconds to an edit in seconds with a fraction. Its value is invalid
/// while the text is not a time. User-interface thread only.
class SecondsField : public Field
{
    Q_OBJECT

public:
    SecondsField(const char* propertyName, QLineEdit* edit, QObject* parent);

    QVariant value() const override;
    void setValue(const QVariant& value) override;

private:
    QLineEdit* const m_edit;
};
