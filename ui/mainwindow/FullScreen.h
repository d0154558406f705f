#pragma once

#include <QObject>
#include <QVector>

class QMainWindow;
class QWidget;

/// Shows a window's player full screen, hiding the other widgets; these return with the normal
/// window. It is the same whether setOn() or the window manager changes the window. User-interface
/// thread only.
class FullScreen : public QObject
{
    Q_OBJECT

public:
    /// @param others  widgets to hide meanwhile; both must outlive this object
    FullScreen(QMainWindow& window, QVector<QWidget*> others);

    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void toggled(bool on);

private:
    void follow(Qt::WindowStates before);

    QMainWindow& m_window;
    const QVector<QWidget*> m_others;
    bool m_isOn = false;
    bool m_wasMaximized = false;
};
