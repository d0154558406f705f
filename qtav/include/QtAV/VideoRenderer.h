#pragma once

#include <QtAV/VideoFrame.h>

#include <QObject>
#include <QSize>

namespace QtAV {

/// Where a player shows its frames. User-interface thread only.
class VideoRenderer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows a frame from now on; an invalid one for nothing.
    virtual void present(const VideoFrame& frame) = 0;

    /// The size in pixels of the screen into which frames are fitted; empty while it is not known.
    virtual QSize screenSize() const { return {}; }

Q_SIGNALS:
    void screenSizeChanged();
};

} // namespace QtAV
