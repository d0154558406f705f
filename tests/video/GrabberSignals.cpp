#include "tests/video/GrabberSignals.h"

#include "tests/support/FrameNumber.h"

namespace grabbersignals {

SignalLog::SignalLog(FrameGrabber& grabber)
{
    const auto note = [this](const char* name) { return [this, name] { add(name); }; };
    const QObject* const context = &grabber;
    QObject::connect(&grabber, &FrameGrabber::frameExtracted, context, note("frameExtracted"));
    QObject::connect(&grabber, &FrameGrabber::sourceChanged, context, note("sourceChanged"));
    QObject::connect(&grabber, &FrameGrabber::error, context, note("error"));
    QObject::connect(&grabber, &FrameGrabber::aborted, context, note("aborted"));
    QObject::connect(&grabber, &FrameGrabber::positionChanged, context, note("positionChanged"));
    QObject::connect(&grabber, &FrameGrabber::precisionChanged, context, note("precisionChanged"));
}

QtAV::VideoFrame lastFrame(const QSignalSpy& frames)
{
    return frames.last().first().value<QtAV::VideoFrame>();
}

int lastNumber(const QSignalSpy& frames)
{
    return testsupport::frameNumber(lastFrame(frames).toImage()).value_or(-1);
}

} // namespace grabbersignals
