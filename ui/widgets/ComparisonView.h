#pragma once

#include <QImage>
#include <QWidget>

/// Shows two pictures of one size as one, divided by a line: the first on its left, the second on
/// its right. The line follows the mouse while its button is pressed, and the arrow keys.
///
/// The pictures are shown as large as fits, in their own proportions. User-interface thread only.
class ComparisonView : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonView(QWidget* parent = nullptr);

    /// Null pictures show nothing.
    void setPictures(const QImage& before, const QImage& after);

    /// Position of the line from 0 (left) to 1 (right); initially in the middle.
    double divider() const { return m_divider; }
    void setDivider(double divider);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRect pictureRect() const;
    void followMouse(const QMouseEvent& event);

    QImage m_before;
    QImage m_after;
    double m_divider = 0.5;
};
