#pragma once

#include <QWidget>

/// A frame and a line of text over a window, showing that the dragged object can be dropped there.
/// It covers the whole window without changing its layout, and takes no mouse events.
/// User-interface thread only.
class DropHighlight : public QWidget
{
    Q_OBJECT

public:
    /// Hidden initially.
    explicit DropHighlight(QWidget& window);

    /// Covers the window at its current size.
    void appear();

protected:
    void paintEvent(QPaintEvent* event) override;
};
