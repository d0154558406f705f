#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <functional>

namespace QtAV {

/// What VideoOutput asks of the widgets that it shows frames in. User-interface thread only.
class FrameWidget
{
public:
    virtual ~FrameWidget() = default;

    /// Shows a picture from the next repaint on, in the proportions of a size; a null one for
    /// black. One of another size than that at which it is shown is scaled in the quickest way.
    virtual void setPicture(const QImage& picture, const QSize& proportions) = 0;

    /// The format in which pictures can be shown without being converted; an opaque one.
    virtual QImage::Format pictureFormat() const = 0;

    /// Says what is called when screenSize() has changed.
    void setScreenHandler(std::function<void()> handler) { m_handleScreen = std::move(handler); }

    /// The size of the widget in the screen's pixels, as it was painted or resized last.
    QSize screenSize() const { return m_screen; }

protected:
    void noteScreen(const QSize& screen);

private:
    std::function<void()> m_handleScreen;
    QSize m_screen;
};

/// Where a picture goes on a screen of the same unit: in the middle, as large as fits, with its own
/// proportions. Empty when either is.
[[nodiscard]] QRect letterboxed(const QSize& picture, const QSize& screen);

} // namespace QtAV
