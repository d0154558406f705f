#include "ui/mainwindow/FullScreen.h"

#include <QMainWindow>

#include <utility>

FullScreen::FullScreen(QMainWindow& window, QVector<QWidget*> others)
    : QObject(&window)
    , m_window(window)
    , m_others(std::move(others))
{}

void FullScreen::setOn(bool on)
{
    if (on == m_isOn) {
        return;
    }
    m_isOn = on;
    for (QWidget* const other : m_others) {
        other->setVisible(!on);
    }
    if (on) {
        m_wasMaximized = m_window.isMaximized();
        m_window.showFullScreen();
    } else if (m_wasMaximized) {
        m_window.showMaximized();
    } else {
        m_window.showNormal();
    }
    Q_EMIT toggled(on);
}
