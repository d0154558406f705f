#include "ui/widgets/ImageView.h"

#include "ui/widgets/LargePicture.h"
#include "ui/widgets/ZoomGestures.h"

#include <QPainter>

namespace {

QImage averaged(const QImage& image, const QSize& size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

ImageView::ImageView(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_zoom(new ZoomGestures(*this))
{
    connect(m_zoom, &ZoomGestures::changed, this, [this] { update(); });
}

ImageView::~ImageView() = default;

void ImageView::setImage(const QImage& image)
{
    if (image.size() != m_image.size()) {
        m_zoom->fit();
    }
    m_image = image;
    m_smallImage = QImage();
    m_wantedSize = QSize();
    ++m_request;
    m_task.cancel();
    m_zoom->setPicture(image.size());
    update();
}

void ImageView::setPlaceholder(const QIcon& icon, const QString& text)
{
    m_placeholderIcon = icon;
    m_placeholderText = text;
    update();
}

void ImageView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_image.isNull()) {
        paintPlaceholder(painter);
        return;
    }
    const double ratio = devicePixelRatioF();
    const QRect place = m_zoom->zoom().place();
    if (!m_zoom->zoom().isFitted()) {
        painter.scale(1.0 / ratio, 1.0 / ratio);
        paintZoomed(painter, place);
        return;
    }
    // Fitted in whole points, so that the edges are sharp.
    const QSize size = m_image.size().scaled(this->size(), Qt::KeepAspectRatio);
    const QRect target(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage& fitted = imageFor(target.size() * ratio);
    painter.drawImage(QRectF(target), fitted, QRectF(fitted.rect()));
}

void ImageView::paintPlaceholder(QPainter& painter) const
{
    if (m_placeholderText.isEmpty()) {
        return;
    }
    constexpr int edge = 40;
    constexpr int gap = 8;
    const int textHeight = fontMetrics().height();
    const int top = (height() - edge - gap - textHeight) / 2;
    m_placeholderIcon.paint(&painter, QRect((width() - edge) / 2, top, edge, edge));
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect line(0, top + edge + gap, width(), textHeight);
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop,
                     fontMetrics().elidedText(m_placeholderText, Qt::ElideRight, width()));
}

/// In screen pixels.
void ImageView::paintZoomed(QPainter& painter, const QRect& place)
{
    const QImage& image = imageFor(place.size());
    const QRectF visible =
        QRectF(place).intersected(QRectF(QPointF(), QSizeF(size()) * devicePixelRatioF()));
    const double across = static_cast<double>(image.width()) / place.width();
    const double down = static_cast<double>(image.height()) / place.height();
    const QRectF source((visible.x() - place.x()) * across, (visible.y() - place.y()) * down,
                        visible.width() * across, visible.height() * down);
    painter.drawImage(visible, image, source);
}

/// The image to draw into this many screen pixels.
///
/// A painter that scales an image down samples only four of its pixels for each of its own, which
/// turns fine detail into noise. So it gets an image in which all pixels were averaged.
const QImage& ImageView::imageFor(QSize pixels)
{
    if (pixels.isEmpty() || pixels.width() >= m_image.width() ||
        pixels.height() >= m_image.height()) {
        return m_image;
    }
    if (m_smallImage.size() == pixels) {
        return m_smallImage;
    }
    if (LargePicture::isLarge(m_image.size())) {
        request(pixels);
        // Until then the previous one; initially the whole image, as well as the painter can scale
        // it.
        return m_smallImage.isNull() ? m_image : m_smallImage;
    }
    m_smallImage = averaged(m_image, pixels);
    return m_smallImage;
}

void ImageView::request(const QSize& pixels)
{
    if (pixels == m_wantedSize) {
        return;
    }
    m_wantedSize = pixels;
    const int request = ++m_request;
    m_task.start([this, request, pixels, image = m_image](const NewestTask::IsCancelled&) {
        m_results.post([this, request, made = averaged(image, pixels)] { take(request, made); });
    });
}

void ImageView::take(int request, const QImage& image)
{
    // Another image or size may be requested by now.
    if (request == m_request) {
        m_smallImage = image;
        update();
    }
}
