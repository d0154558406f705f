#include "ui/widgets/EqualWidths.h"

#include <QWidget>

#include <algorithm>

void EqualWidths::apply(const QList<QWidget*>& column)
{
    int widest = 0;
    for (const QWidget* const widget : column) {
        widest = std::max(widest, widget->sizeHint().width());
    }
    for (QWidget* const widget : column) {
        widget->setMinimumWidth(widest);
    }
}
