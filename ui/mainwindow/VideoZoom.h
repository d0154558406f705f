#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class ZoomGestures;

namespace QtAV {
class AVPlayer;
class VideoOutput;
} // namespace QtAV

/// How large the main window shows its video: by the mouse, by keys, and from frame to frame.
///
/// A double click zooms. Its first click has already played or paused the video, which is undone.
/// User-interface thread only.
class VideoZoom : public QObject
{
    Q_OBJECT

public:
    /// @param area    gets the mouse in place of the video that is shown in it
    /// @param player  must outlive this object
    /// @param output  may be deleted earlier
    VideoZoom(QWidget& area, QtAV::AVPlayer& player, QtAV::VideoOutput& output, QObject* parent);

public Q_SLOTS:
    /// The whole picture, as large as its area allows.
    void fit();
    /// A pixel of the picture is one of the screen.
    void showActualSize();
    void showFourfold();
    /// Full size, or fitted where it is in full size.
    void toggleActualSize();
    /// Takes over the size of the frame on screen, which a video may change.
    void followFrame();

Q_SIGNALS:
    /// The picture is shown at a scale of its own, or lies elsewhere at that scale.
    void scaled(int percent);

private:
    void placeVideo();
    void notePress();
    void undoClick();

    QtAV::AVPlayer& m_player;
    const QPointer<QtAV::VideoOutput> m_output;
    ZoomGestures* const m_gestures;
    /// Where the video stood, and whether it played, when a click began.
    qint64 m_pressedAtMs = 0;
    bool m_playedWhenPressed = false;
};
