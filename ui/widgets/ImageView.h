#pragma once

#include <QImage>
#include <QWidget>

/// Shows one image as large as fits, centred, in its own proportions.
///
/// Around the picture, and where there is none, the parent's background shows. User-interface
/// thread only.
class ImageView : public QWidget
{
    Q_OBJECT

public:
    explicit ImageView(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// Shows the image from the next repaint on; a null image shows nothing.
    void setImage(const QImage& image);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect targetRect() const;
    const QImage& imageFor(QSize pixels);

    QImage m_image;
    /// m_image made smaller for the screen; null until it is painted at a smaller size.
    QImage m_smallImage;
};
