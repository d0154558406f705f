#include "qtav/widgets/PictureMaker.h"

#include <QPainter>

#include <utility>

namespace QtAV {

namespace {

constexpr auto madeFormat = QImage::Format_ARGB32_Premultiplied;

/// Enlarges so that each pixel of the frame stays a sharp rectangle.
QImage enlarged(const PictureMaker::Request& request)
{
    const QRect whole(QPoint(), request.frame.displaySize());
    const QRect around = request.region.toAlignedRect().intersected(whole);
    const QImage stored = request.frame.toImage(madeFormat, around.size(), around);
    QImage image(request.size, madeFormat);
    if (stored.isNull() || image.isNull()) {
        return {};
    }
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRectF(image.rect()), stored, request.region.translated(-around.topLeft()));
    return image;
}

QImage make(const PictureMaker::Request& request)
{
    const bool enlarges =
        !request.region.isNull() && request.size.width() > request.region.width() + 0.5;
    QImage image = enlarges ? enlarged(request)
                            : request.frame.toImage(madeFormat, request.size, request.region);
    // A premultiplied picture looks like this on black.
    image.reinterpretAsFormat(QImage::Format_RGB32);
    return std::move(image).convertToFormat(request.format);
}

} // namespace

PictureMaker::PictureMaker(std::function<void()> wake)
    : m_wake(std::move(wake))
    , m_thread([this] { run(); })
{}

PictureMaker::~PictureMaker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_request.reset();
        m_quits = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void PictureMaker::request(Request request)
{
    {
        const std::lock_guard lock(m_mutex);
        m_request = std::move(request);
    }
    m_changed.notify_one();
}

void PictureMaker::cancel()
{
    const std::lock_guard lock(m_mutex);
    m_request.reset();
    m_picture.reset();
}

std::optional<PictureMaker::Picture> PictureMaker::take()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_picture, std::nullopt);
}

void PictureMaker::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_quits || m_request; });
        if (m_quits) {
            return;
        }
        const Request request = *std::exchange(m_request, std::nullopt);
        lock.unlock();
        Picture picture{make(request), request.serial, request.frame.displaySize(), request.region};
        lock.lock();
        m_picture = std::move(picture);
        m_wake();
    }
}

} // namespace QtAV
