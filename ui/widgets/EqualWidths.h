#pragma once

#include <QList>

class QWidget;

/// Aligns columns of stacked forms. User-interface thread only.
namespace EqualWidths {

/// Sets the minimum width of all widgets to the largest width that any of them needs.
void apply(const QList<QWidget*>& column);

} // namespace EqualWidths
