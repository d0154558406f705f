#pragma once

#include "video/FrameGrabber.h"

#include <QtAV/VideoFrame.h>

#include <QObject>
#include <QString>

namespace bench {

/// A video that stays open in a FrameGrabber, from which frames are requested as by a batch job.
class FrameSource : public QObject
{
    Q_OBJECT

public:
    /// Uses the grabber's automatic precision: 500 ms, or 250 ms for a short video.
    static constexpr int automaticPrecision = -1;

    /// Does not open the video yet; see FrameGrabber for the precision, in milliseconds.
    explicit FrameSource(const QString& video, int precision = automaticPrecision);

    /// Length of the video in milliseconds; 0 if it cannot be opened.
    [[nodiscard]] qint64 duration();

    /// The frame at a position in milliseconds. An invalid one when there is none: error() says
    /// why.
    [[nodiscard]] QtAV::VideoFrame frameAt(qint64 position);
    /// Why the last frameAt() gave no frame; empty when it gave one.
    [[nodiscard]] QString error() const { return m_error; }

private:
    FrameGrabber m_grabber;
    QtAV::VideoFrame m_frame;
    QString m_error;
};

} // namespace bench
