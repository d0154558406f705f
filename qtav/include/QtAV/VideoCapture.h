#pragma once

#include <QtAV/VideoFrame.h>

#include <QImage>
#include <QObject>

#include <functional>

namespace QtAV {

/// Gives the picture on a player's screen as an image. Owned by its player; user-interface thread
/// only.
class VideoCapture : public QObject
{
    Q_OBJECT

public:
    explicit VideoCapture(QObject* parent = nullptr);

    /// Called by the player: sets the function that capture() calls. It must return at once and
    /// later lead to exactly one deliver() per call.
    void setTaker(std::function<void()> take);

    /// Called by the player: answers a capture(); a null image means failure.
    void deliver(const QImage& image, const VideoFrame& frame);

    /// The frame of the last capture, which may hold more than the image shows. Valid only in slots
    /// connected to imageCaptured().
    const VideoFrame& capturedFrame() const { return m_frame; }

public Q_SLOTS:
    /// Captures the frame that is on screen now. Each call is answered later by one signal from the
    /// event loop: at once, or, if the frame has to be decoded again, as soon as a seek would be.
    void capture();

Q_SIGNALS:
    /// The captured picture in display orientation, full size and VideoFrame::imageFormat().
    void imageCaptured(const QImage& image);
    /// There is no picture on screen, no memory for it, or it can no longer be read.
    void failed();

private:
    std::function<void()> m_take;
    VideoFrame m_frame;
};

} // namespace QtAV
