#pragma once

#include "ui/widgets/Field.h"

#include <QComboBox>
#include <QString>

/// A field over a widget of a kind, which it owns.
template <typename Widget>
class Bound
{
public:
    explicit Bound(int choiceValue = Field::noChoice)
        : m_field("property", &m_widget, choiceValue, nullptr)
    {}

    Widget& widget() { return m_widget; }
    Widget* operator->() { return &m_widget; }
    Field& field() { return m_field; }

private:
    Widget m_widget;
    Field m_field;
};

/// A combo box with an item for each kind of data that the program uses: ids, types, numbers.
inline void addItems(QComboBox& box)
{
    box.addItem(QStringLiteral("None"), QString());
    box.addItem(QStringLiteral("Type"), QStringLiteral("jpg"));
    box.addItem(QStringLiteral("Number"), 3);
    box.addItem(QStringLiteral("No data"));
}
