#include <QtAV/VideoOutput.h>

#include "qtav/widgets/OpenGLSupport.h"
#include "qtav/widgets/OpenGLWidget.h"
#include "qtav/widgets/RasterWidget.h"

#include <QApplication>

namespace QtAV {

namespace {

bool usesOpenGL(VideoOutput::Drawing drawing)
{
    switch (drawing) {
    case VideoOutput::Drawing::Automatic:
        return openGLSupport() == OpenGLSupport::Hardware;
    case VideoOutput::Drawing::OpenGL:
        return openGLSupport() != OpenGLSupport::None;
    case VideoOutput::Drawing::Raster:
        break;
    }
    return false;
}

QWidget* makeWidget(VideoOutput::Drawing drawing)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return nullptr;
    if (usesOpenGL(drawing))
        return new OpenGLWidget;
    return new RasterWidget;
}

} // namespace

VideoOutput::VideoOutput(QObject* parent)
    : VideoOutput(Drawing::Automatic, parent)
{}

VideoOutput::VideoOutput(Drawing drawing, QObject* parent)
    : VideoRenderer(parent)
    , m_widget(makeWidget(drawing))
{}

VideoOutput::~VideoOutput()
{
    delete m_widget;
}

QWidget* VideoOutput::widget() const
{
    return m_widget;
}

void VideoOutput::present(const VideoFrame& frame)
{
    if (auto* shown = dynamic_cast<FrameWidget*>(m_widget.data()))
        shown->setFrame(frame);
}

} // namespace QtAV
