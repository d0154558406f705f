#include "tests/video/Extraction.h"

namespace extraction {

Extractor::Extractor(FrameGrabber& grabber)
    : m_grabber(grabber)
{
    const auto note = [this](const QString& problem) { m_problem = problem; };
    QObject::connect(&grabber, &FrameGrabber::frameExtracted, &m_context,
                     [this](const QtAV::VideoFrame& frame) {
                         m_problem = QStringLiteral("an invalid frame");
                         if (frame.isValid()) {
                             m_frame = decoding::shown(frame);
                         }
                     });
    QObject::connect(&grabber, &FrameGrabber::error, &m_context, note);
    QObject::connect(&grabber, &FrameGrabber::aborted, &m_context, note);
}

void Extractor::extract(qint64 ms)
{
    m_frame.reset();
    m_problem = QStringLiteral("no signal");
    m_grabber.extractInternal(ms);
}

QString Extractor::answer() const
{
    return m_frame ? decoding::text(*m_frame) : m_problem;
}

} // namespace extraction
