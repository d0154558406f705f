#include "ui/mainwindow/KeyTips.h"

#include <QHelpEvent>
#include <QStringList>
#include <QToolTip>
#include <QWidget>

void KeyTips::add(QWidget& control, QAction& action)
{
    m_actions.insert(&control, &action);
    control.installEventFilter(this);
    connect(&control, &QObject::destroyed, this, [this](QObject* gone) { m_actions.remove(gone); });
}

QString KeyTips::keysOf(const QAction& action)
{
    QStringList keys;
    const QList<QKeySequence> shortcuts = action.shortcuts();
    for (const QKeySequence& shortcut : shortcuts) {
        keys += shortcut.toString(QKeySequence::NativeText);
    }
    return keys.join(tr(" or ", "between two keys"));
}

QString KeyTips::textFor(const QWidget& control) const
{
    const QAction* const action = m_actions.value(&control);
    const QString keys = action == nullptr ? QString() : keysOf(*action);
    if (keys.isEmpty() || control.toolTip().isEmpty()) {
        return control.toolTip();
    }
    return tr("%1 (%2)", "tool tip and keys").arg(control.toolTip(), keys);
}

bool KeyTips::eventFilter(QObject* watched, QEvent* event)
{
    auto* const control = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::ToolTip || control == nullptr) {
        return QObject::eventFilter(watched, event);
    }
    const auto& help = *static_cast<QHelpEvent*>(event);
    QToolTip::showText(help.globalPos(), textFor(*control), control);
    return true;
}
