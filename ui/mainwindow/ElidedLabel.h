#pragma once

#include <QLabel>

/// A label of one line that shows as much of its text as there is room for, with dots in the place
/// of the middle, and all of it in its tool tip. It never makes its window wider.
/// User-interface thread only.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
