#pragma once

#include "qtav/widgets/FrameWidget.h"

#include <QOpenGLBuffer>
#include <QOpenGLShaderProgram>
#include <QOpenGLTexture>
#include <QOpenGLWidget>

#include <memory>

namespace QtAV {

/// Shows the pictures of frames as textures. They come at the size at which they are shown, so the
/// graphics processor only has to place them.
class OpenGLWidget : public QOpenGLWidget, public FrameWidget
{
    Q_OBJECT

public:
    explicit OpenGLWidget(QWidget* parent = nullptr);
    ~OpenGLWidget() override;

    void setPicture(const Picture& picture) override;
    /// Byte order R, G, B, X, which every OpenGL supports.
    QImage::Format pictureFormat() const override { return QImage::Format_RGBX8888; }
    QSize sizeHint() const override;

protected:
    void repaintAll() override { update(); }
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;

private:
    void releaseResources();
    void upload();
    void drawInto(const QRect& place, const QSize& whole);

    Picture m_picture;
    bool m_isUploaded = true;
    std::unique_ptr<QOpenGLTexture> m_texture;
    std::unique_ptr<QOpenGLShaderProgram> m_program;
};

} // namespace QtAV
