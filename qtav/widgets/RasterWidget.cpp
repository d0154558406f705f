#include "qtav/widgets/RasterWidget.h"

#include <QPainter>
#include <QRegion>

namespace QtAV {

RasterWidget::RasterWidget(QWidget* parent)
    : QWidget(parent)
{
    // Every pixel is painted below, and nothing before: that would flicker.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RasterWidget::setPicture(const QImage& picture, const QSize& proportions)
{
    m_picture = picture;
    m_proportions = proportions;
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
    const QRect place = m_picture.isNull() ? QRect() : letterboxed(m_proportions, screenSize());
    const QRectF target(QPointF(place.topLeft()) / ratio, QSizeF(place.size()) / ratio);
    // Only the border: filling what is painted over costs as much as painting it.
    for (const QRect& border : QRegion(rect()) - QRegion(target.toRect().intersected(rect())))
        painter.fillRect(border, Qt::black);
    if (place.isEmpty())
        return;
    if (m_picture.size() == place.size()) {
        m_picture.setDevicePixelRatio(ratio);
        painter.drawImage(target.topLeft(), m_picture);
    } else {
        m_picture.setDevicePixelRatio(1.0);
        painter.drawImage(target, m_picture);
    }
}

} // namespace QtAV
