#pragma once

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
    /// @param seconds  the time of its frame
    void deliver(const QImage& image, double seconds);

    /// The time in seconds of the frame that was captured last: for the slots of imageCaptured().
    double capturedSeconds() const { return m_seconds; }

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
    double m_seconds = 0.0;
};

} // namespace QtAV
