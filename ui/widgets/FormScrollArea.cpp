#include "ui/widgets/FormScrollArea.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QSlider>

#include <algorithm>

namespace {

constexpr int leastLines = 6;

/// A field whose value the wheel changes.
bool turnsByWheel(const QWidget& widget)
{
    const bool isField = qobject_cast<const QComboBox*>(&widget) != nullptr ||
                         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
                         qobject_cast<const QSlider*>(&widget) != nullptr;
    return isField && widget.focusPolicy() != Qt::NoFocus;
}

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

void FormScrollArea::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    const auto widgets = findChildren<QWidget*>();
    for (QWidget* const field : widgets) {
        if (turnsByWheel(*field)) {
            // The wheel alone should not give it the keyboard either.
            field->setFocusPolicy(Qt::StrongFocus);
            field->installEventFilter(this);
        }
    }
}

/// Where all of the form is in view, the wheel is for the field.
bool FormScrollArea::isToScroll(const QWidget& field) const
{
    return verticalScrollBar()->maximum() > 0 && !field.hasFocus();
}

bool FormScrollArea::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel && watched != widget()) {
        const auto* const field = qobject_cast<QWidget*>(watched);
        if (field != nullptr && turnsByWheel(*field) && isToScroll(*field)) {
            QCoreApplication::sendEvent(verticalScrollBar(), event);
            return true;
        }
    }
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        // The area's size hints depend on those of the form.
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}
