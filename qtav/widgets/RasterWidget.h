#pragma once

#include "qtav/widgets/FrameWidget.h"

#include <QImage>
#include <QWidget>

namespace QtAV {

/// Shows frames by painting their pictures: works everywhere.
class RasterWidget : public QWidget, public FrameWidget
{
    Q_OBJECT

public:
    explicit RasterWidget(QWidget* parent = nullptr);

    void setPicture(const QImage& picture, const QSize& proportions) override;
    QImage::Format pictureFormat() const override { return QImage::Format_RGB32; }
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
    QSize m_proportions;
};

} // namespace QtAV
