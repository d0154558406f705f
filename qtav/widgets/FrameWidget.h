#pragma once

#include <QImage>
#include <QRect>
#include <QRectF>
#include <QSize>

#include <functional>

namespace QtAV {

/// What VideoOutput asks of the widgets that it shows frames in. User-interface thread only.
class FrameWidget
{
public:
    virtual ~FrameWidget() = default;

    /// A picture of a frame, or of a part of it.
    struct Picture
    {
        QImage image;
        QSize proportions;               ///< of the whole frame
        QRectF part{0.0, 0.0, 1.0, 1.0}; ///< of the frame that it shows, 0 to 1 both ways
    };

    /// Shows a picture from the next repaint on; a null one for black. One of another size than
    /// that at which it is shown is scaled in the quickest way.
    virtual void setPicture(const Picture& picture) = 0;

    /// Shows the whole frame there from the next repaint on, in the screen's pixels; fitted for a
    /// null rectangle.
    void setPlace(const QRect& place);

    /// The format in which pictures can be shown without being converted; an opaque one.
    virtual QImage::Format pictureFormat() const = 0;

    /// Says what is called when screenSize() has changed.
    void setScreenHandler(std::function<void()> handler) { m_handleScreen = std::move(handler); }

    /// The size of the widget in the screen's pixels, as it was painted or resized last.
    QSize screenSize() const { return m_screen; }

protected:
    void noteScreen(const QSize& screen);
    /// Where a picture goes, in the screen's pixels; empty for one of nothing.
    [[nodiscard]] QRect target(const Picture& picture) const;
    virtual void repaintAll() = 0;

private:
    std::function<void()> m_handleScreen;
    QSize m_screen;
    QRect m_place; ///< null for fitted
};

/// The rectangle that a part of another one is, in whole pixels.
[[nodiscard]] QRect partOf(const QRect& whole, const QRectF& part);

/// Where a picture goes on a screen of the same unit: in the middle, as large as fits, with its own
/// proportions. Empty when either is.
[[nodiscard]] QRect letterboxed(const QSize& picture, const QSize& screen);

} // namespace QtAV
