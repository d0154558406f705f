#pragma once

#include <QtAV/VideoFrame.h>

#include <QImage>
#include <QObject>

namespace QtAV {

/// Gives the picture on a player's screen as an image. Owned by its player; user-interface thread
/// only.
class VideoCapture : public QObject
{
    Q_OBJECT

public:
    explicit VideoCapture(QObject* parent = nullptr);

    /// For the player: the frame on screen, which capture() takes; an invalid one for none.
    void setFrame(const VideoFrame& frame);

public Q_SLOTS:
    /// Takes the frame that is on screen now. Each call is answered by one signal, later, from the
    /// event loop.
    void capture();

Q_SIGNALS:
    /// The picture as it is meant to be seen, in its full size and in VideoFrame::imageFormat().
    void imageCaptured(const QImage& image);
    /// There is no picture on screen, or no memory for it.
    void failed();

private:
    void deliver(const VideoFrame& frame);

    VideoFrame m_frame;
};

} // namespace QtAV
