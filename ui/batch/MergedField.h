#pragma once

#include <QList>
#include <QVariant>

class Field;
class QObject;
class QWidget;

/// Shows one property of many objects in one widget. User-interface thread only.
namespace MergedField {

/// What a property holds in all of some objects.
struct Value
{
    /// True when the objects differ; `value` is invalid then.
    bool isMultiple = false;
    /// Invalid for no objects.
    QVariant value;
};

[[nodiscard]] Value merge(const QList<QObject*>& objects, const char* property);

/// Shows the value in the field's widget. Where the objects differ, labels say "[Multiple]" and so
/// do line edits, as a placeholder, and combo boxes, by their first item; check boxes are partially
/// checked, radio buttons unchecked.
void show(Field& field, const Value& value);

/// Empties a widget that shows nothing any more. Radio buttons and labels stay as they are.
void reset(QWidget& widget);

} // namespace MergedField
