#pragma once

#include <QtAV/VideoRenderer.h>

#include <QRect>

#include <memory>

class QWidget;

namespace QtAV {

/// Shows a player's frames in a widget: upright, with square pixels, letterboxed on black, and in
/// the full resolution of the screen.
///
/// The widget draws with OpenGL where there is a graphics processor for it. Pictures are made at
/// the size at which they are shown by a thread of this object; until one is there the one before
/// stays, scaled to the widget's size if that has changed. User-interface thread only.
class VideoOutput : public VideoRenderer
{
    Q_OBJECT

public:
    enum class Drawing {
        Automatic, ///< with OpenGL where a graphics processor does it, else as Raster
        OpenGL,    ///< with OpenGL where a context can be made, else as Raster
        Raster,    ///< with the processor, everywhere
    };

    explicit VideoOutput(QObject* parent = nullptr);
    explicit VideoOutput(Drawing drawing, QObject* parent = nullptr);
    /// Deletes the widget.
    ~VideoOutput() override;

    /// Where the frames are shown, to be put into a layout, which may own and delete it from then
    /// on. Null after that, and where no widget can be made: without a widget application.
    QWidget* widget() const;

    /// Where the whole picture lies, in the screen's pixels from the widget's upper left corner: it
    /// may be larger than the widget, and only what is seen of it is made. Enlarged beyond its full
    /// size it has sharp pixels. A null rectangle, as at first, fits it into the widget.
    void setPlace(const QRect& place);

    void present(const VideoFrame& frame) override;
    QSize screenSize() const override;

    /// True when the widget's next repaint shows the last frame, made for the widget's size.
    bool isUpToDate() const;

private Q_SLOTS:
    void showPicture();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace QtAV
