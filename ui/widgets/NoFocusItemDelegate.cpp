#include "ui/widgets/NoFocusItemDelegate.h"

void NoFocusItemDelegate::drawFocus(QPainter* /*painter*/, const QStyleOptionViewItem& /*option*/,
                                    const QRect& /*rect*/) const
{}
