#include "ui/widgets/ElidedLabel.h"

#include "ui/widgets/PlainText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    // File names may look like rich text, and would be measured as such.
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::setSeparator(const QString& separator)
{
    m_separator = separator;
    update();
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
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), wholeToolTip(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const QRect rect = contentsRect();
    QPainter painter(this);
    style()->drawItemText(&painter, rect, int(alignment()), palette(), isEnabled(), elidedText(),
                          foregroundRole());
}

QString ElidedLabel::elidedText() const
{
    const int room = contentsRect().width();
    QString shown = text();
    while (!m_separator.isEmpty() && shown.contains(m_separator) &&
           fontMetrics().horizontalAdvance(shown) > room) {
        shown.truncate(shown.lastIndexOf(m_separator));
    }
    return fontMetrics().elidedText(shown, Qt::ElideMiddle, room);
}

QString ElidedLabel::wholeToolTip() const
{
    // Always rich text, so that long lines are broken.
    const QString whole = Qt::convertFromPlainText(text(), Qt::WhiteSpaceNormal);
    if (toolTip().isEmpty()) {
        return whole;
    }
    return elidedText() == text()
               ? asPlainText(toolTip())
               : whole + Qt::convertFromPlainText(toolTip(), Qt::WhiteSpaceNormal);
}
