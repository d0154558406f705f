#pragma once

#include <QtAV/VideoFrame.h>

#include <QObject>
#include <QSize>

namespace QtAV {

/// Receives the frames that a player shows. User-interface thread only.
class VideoRenderer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows a frame from now on; an invalid frame clears the display.
    virtual void present(const VideoFrame& frame) = 0;

    /// Size in screen pixels into which frames are fitted; empty while unknown.
    virtual QSize screenSize() const { return {}; }

Q_SIGNALS:
    void screenSizeChanged();
};

} // namespace QtAV
