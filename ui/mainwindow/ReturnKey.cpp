#include "ui/mainwindow/ReturnKey.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>

namespace {

/// Returns false for a control that cannot be pressed.
bool press(QObject& control)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(&control)) {
        button->animateClick();
        return true;
    }
    if (auto* const choice = qobject_cast<QComboBox*>(&control)) {
        choice->showPopup();
        return true;
    }
    auto* const box = qobject_cast<QGroupBox*>(&control);
    if (box == nullptr || !box->isCheckable()) {
        return false;
    }
    box->setChecked(!box->isChecked());
    return true;
}

} // namespace

void ReturnKey::pressControls(QWidget& widget)
{
    auto* filter = widget.findChild<ReturnKey*>(QString(), Qt::FindDirectChildrenOnly);
    if (filter == nullptr) {
        filter = new ReturnKey(&widget);
    }
    const auto controls = widget.findChildren<QWidget*>();
    for (QWidget* const control : controls) {
        control->installEventFilter(filter);
    }
}

bool ReturnKey::eventFilter(QObject* watched, QEvent* event)
{
    // Keys that a field ignores are also sent to its container.
    const auto* const control = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || control == nullptr || !control->hasFocus()) {
        return QObject::eventFilter(watched, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool isAlone = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (isReturn && isAlone && !key.isAutoRepeat() && press(*watched)) {
        return true;
    }
    return QObject::eventFilter(watched, event);
}
