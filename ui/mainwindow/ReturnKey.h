#pragma once

#include <QObject>

class QWidget;

/// Has Return press the control that has the keyboard: buttons are pressed, boxes checked, choices
/// opened. In a window whose Space key belongs to something else, nothing else would.
/// User-interface thread only.
class ReturnKey : public QObject
{
    Q_OBJECT

public:
    /// For the controls that are in the widget now; lives as long as that.
    static void pressControls(QWidget& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};
