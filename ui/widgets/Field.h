#pragma once

#include <QObject>
#include <QVariant>

#include <functional>

class QWidget;

/// Binds one property, by its name, to the widget of a form that edits it.
///
/// A form keeps a list of fields instead of code for each property: it passes a property's value to
/// setValue(), and writes value() back. Several radio buttons may share one property; each is then
/// a field of its own with the value that it represents.
///
/// Kinds of widgets that can be bound: line edits, text edits, combo boxes (by their items' data),
/// check boxes, sliders, spin boxes, radio buttons, group boxes with a check mark, `ColorLabel` and
/// `FontLabel`; other labels can be written but not read. User-interface thread only.
class Field : public QObject
{
    Q_OBJECT

public:
    /// The choice value of a field that is not a radio button.
    static constexpr int noChoice = -1;

    /// `propertyName` must stay valid as long as the field: a string literal. The widget is not
    /// owned, may be null, and must outlive every use of the field. `choiceValue` is the value of a
    /// radio button, 0 or more. `parent` owns the field.
    Field(const char* propertyName, QWidget* widget, int choiceValue, QObject* parent);

    const char* propertyName() const { return m_propertyName; }
    QWidget* widget() const { return m_widget; }
    int choiceValue() const { return m_choiceValue; }

    /// Whether the field is one of several radio buttons for the property.
    bool isChoice() const { return m_choiceValue != noChoice; }

    /// The content of the widget: a font, a colour, a text, the data of the current item
    /// (`Qt::UserRole`), whether it is fully checked, or a number. A radio button gives its choice
    /// value, or noChoice while it is not checked. Invalid for widgets of other kinds, for null,
    /// and for a combo box without a current item.
    virtual QVariant value() const;

    /// Shows the value in the widget, converted to the widget's type. A combo box selects the item
    /// whose data equals the value as text, case-sensitively, or else no item. A radio button is
    /// checked if the value is its choice value, otherwise unchecked, so that for an unknown value
    /// none of several is checked. An invalid value shows as an empty text, 0, unchecked or no
    /// item. Texts are never treated as rich text. Widgets of other kinds stay unchanged.
    virtual void setValue(const QVariant& value);

    /// Calls `handler` whenever the widget's content changes, by the user or the program; for radio
    /// buttons only when the user clicks them. It ends when `context` is destroyed. Labels are not
    /// reported.
    void whenChanged(const QObject* context, const std::function<void()>& handler) const;

private:
    const char* m_propertyName;
    QWidget* m_widget;
    int m_choiceValue;
};
