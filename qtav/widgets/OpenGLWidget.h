#pragma once

#include "qtav/widgets/FrameWidget.h"

#include <QOpenGLBuffer>
#include <QOpenGLShaderProgram>
#include <QOpenGLTexture>
#include <QOpenGLWidget>

#include <memory>

namespace QtAV {

/// Shows frames as textures: the graphics processor scales them.
///
/// What is uploaded is the frame's image, the one that captures and batches give too, so that all
/// of them agree in every colour.
class OpenGLWidget : public QOpenGLWidget, public FrameWidget
{
    Q_OBJECT

public:
    explicit OpenGLWidget(QWidget* parent = nullptr);
    ~OpenGLWidget() override;

    void setFrame(const VideoFrame& frame) override;
    QSize sizeHint() const override;

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    void releaseResources();
    void upload();
    void drawInto(const QRect& place, const QSize& screen);

    VideoFrame m_frame;
    bool m_isUploaded = true;
    std::unique_ptr<QOpenGLTexture> m_texture;
    std::unique_ptr<QOpenGLShaderProgram> m_program;
};

} // namespace QtAV
