#include "ui/mainwindow/FullScreen.h"

#include <QEvent>
#include <QMainWindow>
#include <QWindowStateChangeEvent>

#include <utility>

FullScreen::FullScreen(QMainWindow& window, QVector<QWidget*> others)
    : QObject(&window)
    , m_window(window)
    , m_others(std::move(others))
{
    m_window.installEventFilter(this);
}

/// The change of the state does the rest.
void FullScreen::setOn(bool on)
{
    if (on == m_isOn) {
        return;
    }
    if (on) {
        m_window.showFullScreen();
    } else if (m_wasMaximized) {
        m_window.showMaximized();
    } else {
        m_window.showNormal();
    }
}

bool FullScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange && watched == &m_window) {
        follow(static_cast<QWindowStateChangeEvent*>(event)->oldState());
    }
    return QObject::eventFilter(watched, event);
}

/// Not while the window is minimized, when some systems tell nothing else of its state.
void FullScreen::follow(Qt::WindowStates before)
{
    const bool isOn = m_window.isFullScreen();
    if (isOn == m_isOn || m_window.isMinimized()) {
        return;
    }
    m_isOn = isOn;
    if (isOn) {
        m_wasMaximized = before.testFlag(Qt::WindowMaximized);
    }
    for (QWidget* const other : m_others) {
        other->setVisible(!isOn);
    }
    Q_EMIT toggled(isOn);
}
