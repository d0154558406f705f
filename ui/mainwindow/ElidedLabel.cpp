#include "ui/mainwindow/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QSize ElidedLabel::sizeHint() const
{
    return {0, QLabel::sizeHint().height()};
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QLabel::event(event);
    }
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const QRect rect = contentsRect();
    QPainter painter(this);
    style()->drawItemText(&painter, rect, int(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideMiddle, rect.width()),
                          foregroundRole());
}
