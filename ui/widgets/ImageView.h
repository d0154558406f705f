#pragma once

#include "ui/widgets/NewestTask.h"

#include <QIcon>
#include <QImage>
#include <QSize>
#include <QString>
#include <QWidget>

class QPainter;
class ZoomGestures;

/// Shows one image as large as fits, centred, in its own proportions; the mouse zooms it, see
/// ZoomGestures. Above its full size its pixels are sharp, below that it is smooth.
///
/// A large image is made smaller in the background. Until that is done, and is painted, it is shown
/// less smoothly.
///
/// Around the picture, and where there is none, the parent's background shows. User-interface
/// thread only.
class ImageView : public QWidget
{
    Q_OBJECT

public:
    explicit ImageView(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~ImageView() override;

    /// Shows the image from the next repaint on; a null image shows nothing. One of the size of the
    /// last one keeps its zoom, else it is fitted.
    void setImage(const QImage& image);

    /// What is shown, quietly and in the middle, while there is no image; nothing by default.
    void setPlaceholder(const QIcon& icon, const QString& text);

    /// How the image lies, and the way to change that. Owned by the view.
    [[nodiscard]] ZoomGestures& zoom() { return *m_zoom; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QImage& imageFor(QSize pixels);
    void paintPlaceholder(QPainter& painter) const;
    void request(const QSize& pixels);
    Q_INVOKABLE void take(int request, const QImage& image);
    void paintZoomed(QPainter& painter, const QRect& place);

    ZoomGestures* const m_zoom;
    QImage m_image;
    QIcon m_placeholderIcon;
    QString m_placeholderText;
    /// m_image made smaller for the screen; null until it is painted at a smaller size.
    QImage m_smallImage;
    QSize m_wantedSize; ///< that m_smallImage is being made in, or has
    int m_request = 0;  ///< changes with each image and each size that is wanted
    NewestTask m_task;  ///< last: its thread calls for the others
};
