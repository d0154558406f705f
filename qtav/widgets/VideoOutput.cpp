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

/// The part of the frame that a picture shows, 0 to 1 in both directions.
QRectF partShown(const PictureMaker::Picture& picture)
{
    if (picture.region.isNull() || picture.frame.isEmpty()) {
        return {0.0, 0.0, 1.0, 1.0};
    }
    const qreal width = picture.frame.width();
    const qreal height = picture.frame.height();
    return {picture.region.x() / width, picture.region.y() / height, picture.region.width() / width,
            picture.region.height() / height};
}

QWidget* makeWidget(VideoOutput::Drawing drawing)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        return nullptr;
    }
    if (usesOpenGL(drawing)) {
        return new OpenGLWidget;
    }
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

    /// Null if there is no widget.
    FrameWidget* shown() const { return dynamic_cast<FrameWidget*>(widget.data()); }
    void request();
    void requestPart(const QSize& screen);

    QPointer<QWidget> widget;
    QRect place; ///< place of the whole picture; null for fitted
    VideoFrame frame;
    quint64 serial = 0;      ///< of the newest requested picture
    quint64 firstSerial = 1; ///< of the first one after the screen was cleared
    quint64 shownSerial = 0;
    PictureMaker maker;
};

/// Requests the picture of the frame at the widget's size; none if that is empty.
void VideoOutput::Private::request()
{
    const FrameWidget* const target = shown();
    if (!target || !frame.isValid()) {
        return;
    }
    const QSize screen = widget->size() * widget->devicePixelRatioF();
    if (!place.isNull()) {
        requestPart(screen);
        return;
    }
    const QRect fitted = letterboxed(frame.displaySize(), screen);
    if (!fitted.isEmpty()) {
        maker.request({frame, fitted.size(), target->pictureFormat(), ++serial});
    }
}

/// Requests the visible part of a picture at any place.
void VideoOutput::Private::requestPart(const QSize& screen)
{
    const QRect seen = place.intersected(QRect(QPoint(), screen));
    if (seen.isEmpty()) {
        return;
    }
    const QSizeF whole = frame.displaySize();
    const qreal across = whole.width() / place.width();
    const qreal down = whole.height() / place.height();
    const QRectF region((seen.x() - place.x()) * across, (seen.y() - place.y()) * down,
                        seen.width() * across, seen.height() * down);
    maker.request({frame, seen.size(), shown()->pictureFormat(), ++serial, region});
}

VideoOutput::VideoOutput(QObject* parent)
    : VideoOutput(Drawing::Automatic, parent)
{}

VideoOutput::VideoOutput(Drawing drawing, QObject* parent)
    : VideoRenderer(parent)
    , d(std::make_unique<Private>(this, makeWidget(drawing)))
{
    if (FrameWidget* const shown = d->shown()) {
        shown->setScreenHandler([this] {
            d->request();
            Q_EMIT screenSizeChanged();
        });
    }
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

/// The current picture moves at once; the one made for the new place follows.
void VideoOutput::setPlace(const QRect& place)
{
    if (place == d->place) {
        return;
    }
    d->place = place;
    if (FrameWidget* const shown = d->shown()) {
        shown->setPlace(place);
    }
    d->request();
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
    if (FrameWidget* const shown = d->shown()) {
        shown->setPicture({});
    }
}

void VideoOutput::showPicture()
{
    const std::optional<PictureMaker::Picture> picture = d->maker.take();
    if (!picture || picture->serial < d->firstSerial) {
        return;
    }
    d->shownSerial = picture->serial;
    if (FrameWidget* const shown = d->shown()) {
        shown->setPicture({picture->image, picture->frame, partShown(*picture)});
    }
}

} // namespace QtAV
