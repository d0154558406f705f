#pragma once

#include "ui/widgets/NewestTask.h"
#include "utils/CallQueue.h"

#include <QIcon>
#include <QImage>
#include <QSize>
#include <QString>
#include <QWidget>

class QPainter;
class ZoomGestures;

/// Shows one image as large as fits, centred, in its own proportions; the mouse zooms it, see
/// ZoomGestures. Its pixels are sharp above full size, and smoothed below.
///
/// A large image is scaled down in the background, and shown less smoothly until that is done.
///
/// Around the picture, and without one, the parent's background is visible. User-interface thread
/// only.
class ImageView : public QWidget
{
    Q_OBJECT

public:
    explicit ImageView(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~ImageView() override;

    /// Shows the image from the next repaint on; a null image shows nothing. The zoom is kept if
    /// the size is that of the previous image, otherwise reset.
    void setImage(const QImage& image);

    /// Icon and text shown in the middle while there is no image; none by default.
    void setPlaceholder(const QIcon& icon, const QString& text);

    /// The current zoom and the way to change it. Owned by the view.
    [[nodiscard]] ZoomGestures& zoom() { return *m_zoom; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QImage& imageFor(QSize pixels);
    void paintPlaceholder(QPainter& painter) const;
    void request(const QSize& pixels);
    void take(int request, const QImage& image);
    void paintZoomed(QPainter& painter, const QRect& place);

    ZoomGestures* const m_zoom;
    QImage m_image;
    QIcon m_placeholderIcon;
    QString m_placeholderText;
    /// m_image scaled down for the screen; null until it is painted at a smaller size.
    QImage m_smallImage;
    QSize m_wantedSize; ///< the size for which m_smallImage is, or is being, made
    int m_request = 0;  ///< changes with each requested image and size
    CallQueue m_results{this};
    NewestTask m_task; ///< last, since its thread calls the other members
};
