#pragma once

#include <QtAV/VideoRenderer.h>

#include <QRect>

#include <memory>

class QWidget;

namespace QtAV {

/// Shows a player's frames in a widget: upright, with square pixels, letterboxed on black, and in
/// the full resolution of the screen.
///
/// The widget draws with OpenGL if a graphics processor supports it. A thread of this object makes
/// the pictures at the size at which they are shown; until a picture is ready, the previous one
/// stays, scaled if the widget's size has changed. User-interface thread only.
class VideoOutput : public VideoRenderer
{
    Q_OBJECT

public:
    enum class Drawing {
        Automatic, ///< with OpenGL if a graphics processor supports it, otherwise as Raster
        OpenGL,    ///< with OpenGL if a context can be created, otherwise as Raster
        Raster,    ///< with the processor, everywhere
    };

    explicit VideoOutput(QObject* parent = nullptr);
    explicit VideoOutput(Drawing drawing, QObject* parent = nullptr);
    /// Deletes the widget.
    ~VideoOutput() override;

    /// The widget that shows the frames. Put it into a layout, which may own and delete it from
    /// then on. Null after that, and if there is no widget application.
    QWidget* widget() const;

    /// Where the whole picture lies, in screen pixels relative to the widget's upper left corner.
    /// It may be larger than the widget; only the visible part is made. Enlarged beyond its full
    /// size it shows sharp pixels. A null rectangle, the initial value, fits it into the widget.
    void setPlace(const QRect& place);

    void present(const VideoFrame& frame) override;
    QSize screenSize() const override;

    /// True if the widget's next repaint shows the last frame, made for the widget's size.
    bool isUpToDate() const;

private Q_SLOTS:
    void showPicture();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace QtAV
