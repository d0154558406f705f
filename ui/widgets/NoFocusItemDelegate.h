#pragma once

#include <QItemDelegate>

/// Paints items without the focus frame around the current cell: in a table whose rows are selected
/// as a whole it would single out a cell for no reason.
class NoFocusItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    using QItemDelegate::QItemDelegate;

protected:
    void drawFocus(QPainter* painter, const QStyleOptionViewItem& option,
                   const QRect& rect) const override;
};
