#pragma once

#include <QSlider>

/// A slider for positions in a video: a click moves the handle to the pointer and grabs it, as in
/// other players. The wheel does not move it, because it would then show a position other than the
/// video's. User-interface thread only.
class SeekSlider : public QSlider
{
    Q_OBJECT

public:
    explicit SeekSlider(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
