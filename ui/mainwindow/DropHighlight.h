#pragma once

#include <QWidget>

/// A frame and a line of text over a window, which say that what is dragged can be dropped there.
/// It covers the whole window without moving anything in it, and takes no mouse events.
/// User-interface thread only.
class DropHighlight : public QWidget
{
    Q_OBJECT

public:
    /// Hidden at first.
    explicit DropHighlight(QWidget& window);

    /// Covers the window as it is now.
    void appear();

protected:
    void paintEvent(QPaintEvent* event) override;
};
