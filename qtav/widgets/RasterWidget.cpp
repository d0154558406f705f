#include "qtav/widgets/RasterWidget.h"

#include <QPainter>

namespace QtAV {

RasterWidget::RasterWidget(QWidget* parent)
    : QWidget(parent)
{
    // Every pixel is painted below, and nothing before: that would flicker.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RasterWidget::setFrame(const VideoFrame& frame)
{
    m_frame = frame;
    m_scaled = QImage();
    update();
}

QSize RasterWidget::sizeHint() const
{
    return {640, 360};
}

void RasterWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    const qreal ratio = devicePixelRatioF();
    const QRect place = letterboxed(m_frame.displaySize(), size() * ratio);
    if (place.isEmpty())
        return;
    if (m_scaled.size() != place.size())
        m_scaled = m_frame.toImage(QImage::Format_ARGB32_Premultiplied, place.size());
    m_scaled.setDevicePixelRatio(ratio);
    painter.drawImage(QPointF(place.topLeft()) / ratio, m_scaled);
}

} // namespace QtAV
