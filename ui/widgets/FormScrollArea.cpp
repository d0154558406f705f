#include "ui/widgets/FormScrollArea.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int leastLines = 6;

} // namespace

FormScrollArea::FormScrollArea(QWidget* parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Its widgets take the focus; the area itself does not need it.
    setFocusPolicy(Qt::NoFocus);
    // Screen readers reach them.
    verticalScrollBar()->setAccessibleName(tr("Scroll the form"));
    horizontalScrollBar()->setAccessibleName(tr("Scroll the form"));
    // The window's own background shows through.
    viewport()->setAutoFillBackground(false);
}

int FormScrollArea::formWidth() const
{
    const QWidget* const form = widget();
    return (form == nullptr ? 0 : form->minimumSizeHint().width()) +
           verticalScrollBar()->sizeHint().width();
}

QSize FormScrollArea::sizeHint() const
{
    const QSize form = widget() == nullptr ? QSize(0, 0) : widget()->sizeHint();
    return {std::max(formWidth(), form.width() + verticalScrollBar()->sizeHint().width()),
            form.height()};
}

QSize FormScrollArea::minimumSizeHint() const
{
    const int lines = leastLines * fontMetrics().lineSpacing();
    const int form = widget() == nullptr ? 0 : widget()->minimumSizeHint().height();
    return {formWidth(), std::min(lines, form)};
}

bool FormScrollArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        // The area's size hints depend on those of the form.
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}
