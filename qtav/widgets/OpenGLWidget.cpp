#include "qtav/widgets/OpenGLWidget.h"

#include <QDebug>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <array>

namespace QtAV {

namespace {

constexpr const char* vertexShader = R"(
attribute highp vec2 corner;
varying highp vec2 place;
void main()
{
    place = vec2(corner.x * 0.5 + 0.5, 0.5 - corner.y * 0.5);
    gl_Position = vec4(corner, 0.0, 1.0);
}
)";

constexpr const char* fragmentShader = R"(
uniform sampler2D picture;
varying highp vec2 place;
void main()
{
    gl_FragColor = vec4(texture2D(picture, place).rgb, 1.0);
}
)";

constexpr std::array<float, 8> corners{-1, -1, 1, -1, -1, 1, 1, 1};

} // namespace

OpenGLWidget::OpenGLWidget(QWidget* parent)
    : QOpenGLWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

OpenGLWidget::~OpenGLWidget()
{
    releaseResources();
}

void OpenGLWidget::setPicture(const Picture& picture)
{
    m_picture = picture;
    m_isUploaded = false;
    update();
}

QSize OpenGLWidget::sizeHint() const
{
    return {640, 360};
}

/// Called again with another context when the widget moves to another window.
void OpenGLWidget::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &OpenGLWidget::releaseResources,
            Qt::UniqueConnection);
    m_program = std::make_unique<QOpenGLShaderProgram>();
    const bool works =
        m_program->addShaderFromSourceCode(QOpenGLShader::Vertex, vertexShader) &&
        m_program->addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentShader) &&
        m_program->link();
    if (!works) {
        qWarning() << "Cannot draw with OpenGL:" << m_program->log();
    }
    m_isUploaded = false;
}

void OpenGLWidget::releaseResources()
{
    if (!m_program && !m_texture) {
        return;
    }
    makeCurrent();
    m_texture.reset();
    m_program.reset();
    doneCurrent();
}

void OpenGLWidget::upload()
{
    m_isUploaded = true;
    const QImage& image = m_picture.image;
    if (image.isNull()) {
        m_texture.reset();
        return;
    }
    const bool fits =
        m_texture && m_texture->width() == image.width() && m_texture->height() == image.height();
    if (!fits) {
        m_texture = std::make_unique<QOpenGLTexture>(QOpenGLTexture::Target2D);
        m_texture->setFormat(QOpenGLTexture::RGBA8_UNorm);
        m_texture->setSize(image.width(), image.height());
        m_texture->setMipLevels(1);
        m_texture->setAutoMipMapGenerationEnabled(false);
        m_texture->allocateStorage(QOpenGLTexture::RGBA, QOpenGLTexture::UInt8);
        m_texture->setMinMagFilters(QOpenGLTexture::Linear, QOpenGLTexture::Linear);
        m_texture->setWrapMode(QOpenGLTexture::ClampToEdge);
    }
    m_texture->setData(QOpenGLTexture::RGBA, QOpenGLTexture::UInt8, image.constBits());
}

void OpenGLWidget::resizeGL(int, int)
{
    noteScreen(size() * devicePixelRatioF());
}

void OpenGLWidget::paintGL()
{
    QOpenGLFunctions* gl = context()->functions();
    gl->glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
    gl->glClear(GL_COLOR_BUFFER_BIT);
    if (!m_isUploaded) {
        upload();
    }
    noteScreen(size() * devicePixelRatioF());
    const QRect place = target(m_picture);
    if (m_texture && m_program && m_program->isLinked() && !place.isEmpty()) {
        drawInto(place, screenSize());
    }
}

void OpenGLWidget::drawInto(const QRect& place, const QSize& whole)
{
    QOpenGLFunctions* gl = context()->functions();
    // OpenGL counts from the bottom.
    gl->glViewport(place.x(), whole.height() - place.y() - place.height(), place.width(),
                   place.height());
    m_program->bind();
    m_texture->bind(0);
    m_program->setUniformValue("picture", 0);
    m_program->enableAttributeArray("corner");
    m_program->setAttributeArray("corner", corners.data(), 2);
    gl->glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    m_program->disableAttributeArray("corner");
    m_texture->release();
    m_program->release();
}

} // namespace QtAV
