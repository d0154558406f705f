#include "ui/widgets/ImageView.h"

#include <QPainter>

ImageView::ImageView(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{}

void ImageView::setImage(const QImage& image)
{
    m_image = image;
    m_smallImage = QImage();
    update();
}

void ImageView::paintEvent(QPaintEvent* /*event*/)
{
    if (m_image.isNull()) {
        return;
    }
    const QRect target = targetRect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage& image = imageFor(target.size() * devicePixelRatioF());
    painter.drawImage(QRectF(target), image, QRectF(image.rect()));
}

/// Where the image goes, in the widget's coordinates; empty where a very flat or narrow image has
/// no whole pixel.
QRect ImageView::targetRect() const
{
    const QSize frame = frameSize();
    const QSize size = m_image.size().scaled(frame, Qt::KeepAspectRatio);
    return {QPoint((frame.width() - size.width()) / 2, (frame.height() - size.height()) / 2), size};
}

/// The image to draw into so many pixels of the screen.
///
/// A painter that makes an image smaller looks at four of its pixels for each of its own, and fine
/// detail turns into noise. So it gets an image in which every pixel has been averaged.
const QImage& ImageView::imageFor(QSize pixels)
{
    if (pixels.isEmpty() || pixels.width() >= m_image.width() ||
        pixels.height() >= m_image.height()) {
        return m_image;
    }
    if (m_smallImage.size() != pixels) {
        m_smallImage = m_image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return m_smallImage;
}
