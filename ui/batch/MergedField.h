#pragma once

#include <QList>
#include <QVariant>

class Field;
class QObject;
class QWidget;

/// Shows one property of many objects in one widget. User-interface thread only.
namespace MergedField {

/// The value of a property in several objects.
struct Value
{
    /// True if the objects differ; `value` is then invalid.
    bool isMultiple = false;
    /// Invalid if there are no objects.
    QVariant value;
};

[[nodiscard]] Value merge(const QList<QObject*>& objects, const char* property);

/// Shows the value in the field's widget. If the objects differ, labels, line edits (as a
/// placeholder) and combo boxes (as their first item) show "[Multiple]"; check boxes are partially
/// checked, radio buttons unchecked.
void show(Field& field, const Value& value);

/// Clears a widget that has nothing to show. Radio buttons and labels stay unchanged.
void reset(QWidget& widget);

} // namespace MergedField
