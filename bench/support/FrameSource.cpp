#include "bench/support/FrameSource.h"

#include <utility>

namespace bench {

FrameSource::FrameSource(const QString& video, int precision)
{
    connect(&m_grabber, &FrameGrabber::frameExtracted, this,
            [this](const QtAV::VideoFrame& frame) { m_frame = frame; });
    connect(&m_grabber, &FrameGrabber::error, this,
            [this](const QString& message) { m_error = message; });
    if (precision != automaticPrecision) {
        m_grabber.setPrecision(precision);
    }
    m_grabber.setSource(video);
}

qint64 FrameSource::duration()
{
    return m_grabber.getDuration();
}

QtAV::VideoFrame FrameSource::frameAt(qint64 position)
{
    m_frame = {};
    m_error.clear();
    m_grabber.setPosition(position);
    m_grabber.extract();
    if (!m_frame.isValid() && m_error.isEmpty()) {
        m_error =
            QStringLiteral("no frame at %1 ms of %2").arg(position).arg(m_grabber.getSource());
    }
    return std::exchange(m_frame, {});
}

} // namespace bench
