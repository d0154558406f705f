#include "qtav/widgets/RasterWidget.h"

#include <QPainter>
#include <QRegion>

namespace QtAV {

RasterWidget::RasterWidget(QWidget* parent)
    : QWidget(parent)
{
    // Every pixel is painted below. Painting a background first would flicker.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RasterWidget::setPicture(const Picture& picture)
{
    m_picture = picture;
    update();
}

QSize RasterWidget::sizeHint() const
{
    return {640, 360};
}

void RasterWidget::resizeEvent(QResizeEvent*)
{
    noteScreen(size() * devicePixelRatioF());
}

void RasterWidget::paintEvent(QPaintEvent*)
{
    const qreal ratio = devicePixelRatioF();
    noteScreen(size() * ratio);
    QPainter painter(this);
    const QRect place = target(m_picture);
    QImage& image = m_picture.image;
    const QRectF area(QPointF(place.topLeft()) / ratio, QSizeF(place.size()) / ratio);
    // Only the border, because filling what is painted over costs as much as painting it.
    for (const QRect& border : QRegion(rect()) - QRegion(area.toRect().intersected(rect()))) {
        painter.fillRect(border, Qt::black);
    }
    if (place.isEmpty()) {
        return;
    }
    if (image.size() == place.size()) {
        image.setDevicePixelRatio(ratio);
        painter.drawImage(area.topLeft(), image);
    } else {
        image.setDevicePixelRatio(1.0);
        painter.drawImage(area, image);
    }
}

} // namespace QtAV
