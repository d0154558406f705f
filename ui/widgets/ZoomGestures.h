#pragma once

#include "ui/widgets/PictureZoom.h"

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QWheelEvent;
class QWidget;

/// Zooms a picture in a widget by mouse: the wheel zooms at the pointer, dragging moves a picture
/// larger than the widget, a double click switches between fitted and full size. Other clicks are
/// left to the widget. User-interface thread only.
class ZoomGestures : public QObject
{
    Q_OBJECT

public:
    /// A child of the widget; it filters the widget's mouse events.
    explicit ZoomGestures(QWidget& area);

    /// The size of the picture in pixels. A change keeps the zoom.
    void setPicture(const QSize& size);

    [[nodiscard]] const PictureZoom& zoom() const { return m_zoom; }

public Q_SLOTS:
    void fit();
    /// Shows one pixel of the picture per pixel of the screen.
    void showActualSize();
    /// Sets the scale; the middle of the picture stays.
    void setScale(double scale);
    /// Switches between full size and fitted.
    void toggleActualSize();

Q_SIGNALS:
    /// The picture was moved or scaled.
    void changed();
    /// The first press of a potential double click.
    void pressed();
    /// A double click has changed the zoom; the effect of its first click is not wanted.
    void doubleClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QPointF pixelAt(const QPointF& point) const;
    [[nodiscard]] bool press(const QMouseEvent& event);
    [[nodiscard]] bool move(const QMouseEvent& event);
    [[nodiscard]] bool release(const QMouseEvent& event);
    [[nodiscard]] bool doubleClick(const QMouseEvent& event);
    void turnWheel(const QWheelEvent& event);
    void toggle(const QPointF& at);

    QWidget& m_area;
    PictureZoom m_zoom;
    QPoint m_pressedAt;
    QPoint m_draggedTo;
    bool m_isPressed = false;
    bool m_isDragging = false;
    bool m_swallowsRelease = false; ///< ignores the release that ends a double click
};
