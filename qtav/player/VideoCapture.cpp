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
    if (m_take) {
        m_take();
    } else {
        QMetaObject::invokeMethod(this, &VideoCapture::failed, Qt::QueuedConnection);
    }
}

void VideoCapture::deliver(const QImage& image, const VideoFrame& frame)
{
    if (image.isNull()) {
        Q_EMIT failed();
        return;
    }
    m_frame = frame;
    Q_EMIT imageCaptured(image);
    m_frame = VideoFrame();
}

} // namespace QtAV
