#pragma once

#include <QObject>

class QWidget;

/// Makes Return press the control with the focus: buttons are pressed, boxes checked, combo boxes
/// opened. Needed in a window whose Space key has another use. User-interface thread only.
class ReturnKey : public QObject
{
    Q_OBJECT

public:
    /// Applies to the controls that the widget contains now, and may be called again for others;
    /// lives as long as the widget.
    static void pressControls(QWidget& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};
