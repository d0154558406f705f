#pragma once

#include "ui/widgets/PictureZoom.h"

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QWheelEvent;
class QWidget;

/// Zooms a picture in a widget by mouse: the wheel zooms at the pointer, dragging moves what is
/// larger than the widget, a double click changes between fitted and full size. Clicks that drag
/// nothing stay the widget's. User-interface thread only.
class ZoomGestures : public QObject
{
    Q_OBJECT

public:
    /// The child of the widget, whose mouse events it sees first.
    explicit ZoomGestures(QWidget& area);

    /// The size of the picture that is shown, in pixels. Another one keeps the zoom.
    void setPicture(const QSize& size);

    [[nodiscard]] const PictureZoom& zoom() const { return m_zoom; }

public Q_SLOTS:
    void fit();
    /// A pixel of the picture is one of the screen.
    void showActualSize();
    /// Shows the picture at a scale; its middle stays.
    void setScale(double scale);
    /// Full size, or fitted where it is in full size.
    void toggleActualSize();

Q_SIGNALS:
    /// The picture lies elsewhere, or is of another size.
    void changed();
    /// The first press of what may become a double click.
    void pressed();
    /// A double click has changed the zoom. What its first click did is not wanted.
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
    bool m_swallowsRelease = false; ///< the one that ends a double click
};
