#include "tests/ui/support/Painting.h"

#include <QEvent>
#include <QWidget>

QImage testsupport::paintedBy(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QRect testsupport::paintedBounds(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

testsupport::EventCounter::EventCounter(QObject& watched, QEvent::Type type)
    : m_type(type)
{
    watched.installEventFilter(this);
}

bool testsupport::EventCounter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == m_type) {
        ++m_count;
    }
    return QObject::eventFilter(watched, event);
}
