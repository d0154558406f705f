#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class ZoomGestures;

namespace QtAV {
class AVPlayer;
class VideoOutput;
} // namespace QtAV

/// The zoom of the main window's video: by mouse, by keys, and across frames.
///
/// A double click zooms. Its first click has already played or paused the video, which is undone.
/// User-interface thread only.
class VideoZoom : public QObject
{
    Q_OBJECT

public:
    /// @param area    receives the mouse events for the video shown in it
    /// @param player  must outlive this object
    /// @param output  may be deleted earlier
    VideoZoom(QWidget& area, QtAV::AVPlayer& player, QtAV::VideoOutput& output, QObject* parent);

public Q_SLOTS:
    /// Shows the whole picture, as large as its area allows.
    void fit();
    /// Shows one pixel of the picture per pixel of the screen.
    void showActualSize();
    void showFourfold();
    /// Switches between full size and fitted.
    void toggleActualSize();
    /// Uses the size of the frame on screen, which may change within a video.
    void followFrame();

Q_SIGNALS:
    /// The picture is shown at another scale, or was moved.
    void scaled(int percent);

private:
    void placeVideo();
    void notePress();
    void undoClick();

    QtAV::AVPlayer& m_player;
    const QPointer<QtAV::VideoOutput> m_output;
    ZoomGestures* const m_gestures;
    /// Position and playback state of the video when a click began.
    qint64 m_pressedAtMs = 0;
    bool m_playedWhenPressed = false;
};
