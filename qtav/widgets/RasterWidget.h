#pragma once

#include "qtav/widgets/FrameWidget.h"

#include <QImage>
#include <QWidget>

namespace QtAV {

/// Shows frames by painting their pictures. Works on every system.
class RasterWidget : public QWidget, public FrameWidget
{
    Q_OBJECT

public:
    explicit RasterWidget(QWidget* parent = nullptr);

    void setPicture(const Picture& picture) override;
    QImage::Format pictureFormat() const override { return QImage::Format_RGB32; }
    QSize sizeHint() const override;

protected:
    void repaintAll() override { update(); }
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Picture m_picture;
};

} // namespace QtAV
