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

    /// For the player: what capture() calls. It must return at once, and lead to one deliver() each
    /// time, later.
    void setTaker(std::function<void()> take);

    /// For the player: answers a capture(); a null image when there is none.
    void deliver(const QImage& image, const VideoFrame& frame);

    /// The frame that was captured last, of which there may be more than the image shows: for the
    /// slots of imageCaptured(), and gone after them.
    const VideoFrame& capturedFrame() const { return m_frame; }

public Q_SLOTS:
    /// Takes the frame that is on screen now. Each call is answered by one signal, later, from the
    /// event loop: at once, or, where the frame has to be decoded again for it, as soon as a seek
    /// is.
    void capture();

Q_SIGNALS:
    /// The picture as it is meant to be seen, in its full size and in VideoFrame::imageFormat().
    void imageCaptured(const QImage& image);
    /// There is no picture on screen, no memory for it, or it cannot be read any more.
    void failed();

private:
    std::function<void()> m_take;
    VideoFrame m_frame;
};

} // namespace QtAV
