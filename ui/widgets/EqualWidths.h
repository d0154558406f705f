#pragma once

#include <QList>

class QWidget;

/// Lines up columns of forms that stand one above the other. User-interface thread only.
namespace EqualWidths {

/// Gives all the widgets the width that the widest of them asks for, as their least one.
void apply(const QList<QWidget*>& column);

} // namespace EqualWidths
