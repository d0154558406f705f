#pragma once

#include <QSlider>

/// A slider for places in a video: a click goes to where it points, as in every player, and counts
/// as taking the handle. The wheel does not move it, since that would show a place where the video
/// is not. User-interface thread only.
class SeekSlider : public QSlider
{
    Q_OBJECT

public:
    explicit SeekSlider(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
