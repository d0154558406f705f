#pragma once

#include <QItemDelegate>

/// Paints items without the focus frame around the current cell, which would single out a cell in a
/// table whose rows are selected as a whole.
class NoFocusItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    using QItemDelegate::QItemDelegate;

protected:
    void drawFocus(QPainter* painter, const QStyleOptionViewItem& option,
                   const QRect& rect) const override;
};
