#pragma once

#include <QImage>
#include <QRect>
#include <QRectF>
#include <QSize>

#include <functional>

namespace QtAV {

/// Interface of the widgets in which VideoOutput shows frames. User-interface thread only.
class FrameWidget
{
public:
    virtual ~FrameWidget() = default;

    /// A picture of a frame or of a part of it.
    struct Picture
    {
        QImage image;
        QSize proportions;               ///< of the whole frame
        QRectF part{0.0, 0.0, 1.0, 1.0}; ///< the part of the frame that it shows, 0 to 1 in both
                                         ///< directions
    };

    /// Shows a picture from the next repaint on; a null one for black. A picture whose size differs
    /// from the one at which it is shown is scaled in the fastest way.
    virtual void setPicture(const Picture& picture) = 0;

    /// Shows the whole frame at this place from the next repaint on, in screen pixels; a null
    /// rectangle fits it into the widget.
    void setPlace(const QRect& place);

    /// The opaque format in which pictures can be shown without conversion.
    virtual QImage::Format pictureFormat() const = 0;

    /// Sets the function that is called when screenSize() has changed.
    void setScreenHandler(std::function<void()> handler) { m_handleScreen = std::move(handler); }

    /// Size of the widget in screen pixels, as of the last paint or resize.
    QSize screenSize() const { return m_screen; }

protected:
    void noteScreen(const QSize& screen);
    /// Where a picture is drawn, in screen pixels; empty for a null picture.
    [[nodiscard]] QRect target(const Picture& picture) const;
    virtual void repaintAll() = 0;

private:
    std::function<void()> m_handleScreen;
    QSize m_screen;
    QRect m_place; ///< null if fitted
};

/// A relative part of a rectangle, in whole pixels.
[[nodiscard]] QRect partOf(const QRect& whole, const QRectF& part);

/// Where a picture is drawn on a screen: centred, as large as fits, in its own proportions. Both
/// sizes are in the same unit. Empty if either is.
[[nodiscard]] QRect letterboxed(const QSize& picture, const QSize& screen);

} // namespace QtAV
