#pragma once

#include "qtav/widgets/FrameWidget.h"

#include <QImage>
#include <QWidget>

namespace QtAV {

/// Shows frames by painting images: works everywhere.
class RasterWidget : public QWidget, public FrameWidget
{
    Q_OBJECT

public:
    explicit RasterWidget(QWidget* parent = nullptr);

    void setFrame(const VideoFrame& frame) override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    VideoFrame m_frame;
    QImage m_scaled; ///< the frame in the screen's pixels, kept for repaints; null when outdated
};

} // namespace QtAV
