#pragma once

#include <QObject>
#include <QVector>

class QMainWindow;
class QWidget;

/// Shows the player of a window on the whole screen: without what would take room from it, which
/// comes back with the window. User-interface thread only.
class FullScreen : public QObject
{
    Q_OBJECT

public:
    /// @param others  what is hidden meanwhile; both are to outlive this.
    FullScreen(QMainWindow& window, QVector<QWidget*> others);

    bool isOn() const { return m_isOn; }
    void setOn(bool on);

Q_SIGNALS:
    void toggled(bool on);

private:
    QMainWindow& m_window;
    const QVector<QWidget*> m_others;
    bool m_isOn = false;
    bool m_wasMaximized = false;
};
