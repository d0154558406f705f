#include <QtAV/VideoCapture.h>

#include <utility>

namespace QtAV {

VideoCapture::VideoCapture(QObject* parent)
    : QObject(parent)
{}

void VideoCapture::setTaker(std::function<void()> take)
{
    m_take = std::move(take);
}

void VideoCapture::capture()
{
    if (m_take)
        m_take();
    else
        QMetaObject::invokeMethod(this, &VideoCapture::failed, Qt::QueuedConnection);
}

void VideoCapture::deliver(const QImage& image, double seconds)
{
    m_seconds = seconds;
    if (image.isNull())
        Q_EMIT failed();
    else
        Q_EMIT imageCaptured(image);
}

} // namespace QtAV
