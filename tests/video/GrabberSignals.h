#pragma once

#include "video/FrameGrabber.h"

#include <QSignalSpy>
#include <QStringList>

/// What the tests of the frame grabber see of its signals.
namespace grabbersignals {

/// The names of all signals that a grabber emits, in order.
class SignalLog
{
public:
    explicit SignalLog(FrameGrabber& grabber);

    QStringList names;

private:
    void add(const char* name) { names.append(QString::fromLatin1(name)); }
};

/// The frame that a spy on frameExtracted() saw last.
[[nodiscard]] QtAV::VideoFrame lastFrame(const QSignalSpy& frames);

/// The number in that frame; -1 when none can be read.
[[nodiscard]] int lastNumber(const QSignalSpy& frames);

} // namespace grabbersignals
