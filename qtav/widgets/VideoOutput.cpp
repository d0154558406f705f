#include <QtAV/VideoOutput.h>

#include "qtav/widgets/OpenGLSupport.h"
#include "qtav/widgets/OpenGLWidget.h"
#include "qtav/widgets/PictureMaker.h"
#include "qtav/widgets/RasterWidget.h"

#include <QApplication>
#include <QPointer>

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

class VideoOutput::Private
{
public:
    Private(VideoOutput* output, QWidget* newWidget)
        : widget(newWidget)
        , maker(
              [output] { QMetaObject::invokeMethod(output, "showPicture", Qt::QueuedConnection); })
    {}

    /// Null when there is no widget.
    FrameWidget* shown() const { return dynamic_cast<FrameWidget*>(widget.data()); }
    void request();

    QPointer<QWidget> widget;
    VideoFrame frame;
    quint64 serial = 0;      ///< of the newest picture that was asked for
    quint64 firstSerial = 1; ///< of the first one after the screen was black
    quint64 shownSerial = 0;
    PictureMaker maker;
};

/// Asks for the picture of the frame at the widget's size; none when that is empty.
void VideoOutput::Private::request()
{
    const FrameWidget* const target = shown();
    if (!target || !frame.isValid())
        return;
    const QSize screen = widget->size() * widget->devicePixelRatioF();
    const QRect place = letterboxed(frame.displaySize(), screen);
    if (!place.isEmpty())
        maker.request({frame, place.size(), target->pictureFormat(), ++serial});
}

VideoOutput::VideoOutput(QObject* parent)
    : VideoOutput(Drawing::Automatic, parent)
{}

VideoOutput::VideoOutput(Drawing drawing, QObject* parent)
    : VideoRenderer(parent)
    , d(std::make_unique<Private>(this, makeWidget(drawing)))
{
    if (FrameWidget* const shown = d->shown())
        shown->setScreenHandler([this] {
            d->request();
            Q_EMIT screenSizeChanged();
        });
}

VideoOutput::~VideoOutput()
{
    delete d->widget;
}

QWidget* VideoOutput::widget() const
{
    return d->widget;
}

QSize VideoOutput::screenSize() const
{
    return d->widget ? d->widget->size() * d->widget->devicePixelRatioF() : QSize();
}

bool VideoOutput::isUpToDate() const
{
    return d->shownSerial == d->serial;
}

void VideoOutput::present(const VideoFrame& frame)
{
    d->frame = frame;
    if (frame.isValid()) {
        d->request();
        return;
    }
    d->maker.cancel();
    d->firstSerial = d->serial + 1;
    d->shownSerial = d->serial;
    if (FrameWidget* const shown = d->shown())
        shown->setPicture(QImage(), QSize());
}

void VideoOutput::showPicture()
{
    const std::optional<PictureMaker::Picture> picture = d->maker.take();
    if (!picture || picture->serial < d->firstSerial)
        return;
    d->shownSerial = picture->serial;
    if (FrameWidget* const shown = d->shown())
        shown->setPicture(picture->image, d->frame.displaySize());
}

} // namespace QtAV
