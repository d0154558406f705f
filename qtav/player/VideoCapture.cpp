#include <QtAV/VideoCapture.h>

namespace QtAV {

VideoCapture::VideoCapture(QObject* parent)
    : QObject(parent)
{}

void VideoCapture::setFrame(const VideoFrame& frame)
{
    m_frame = frame;
}

void VideoCapture::capture()
{
    QMetaObject::invokeMethod(
        this, [this, frame = m_frame] { deliver(frame); }, Qt::QueuedConnection);
}

void VideoCapture::deliver(const VideoFrame& frame)
{
    const QImage image = frame.toImage(frame.imageFormat());
    if (image.isNull())
        Q_EMIT failed();
    else
        Q_EMIT imageCaptured(image);
}

} // namespace QtAV
