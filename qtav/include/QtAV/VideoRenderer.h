#pragma once

#include <QtAV/VideoFrame.h>

#include <QObject>

namespace QtAV {

/// Where a player shows its frames. User-interface thread only.
class VideoRenderer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows a frame from now on; an invalid one for nothing.
    virtual void present(const VideoFrame& frame) = 0;
};

} // namespace QtAV
