#include "qtav/src/ImagePool.h"

namespace QtAV {

namespace {

/// QImage needs lines that begin at multiples of this.
constexpr int lineAlignment = 4;

void giveBack(void* buffer)
{
    auto* reference = static_cast<AVBufferRef*>(buffer);
    av_buffer_unref(&reference);
}

} // namespace

QImage ImagePool::take(const QSize& size, QImage::Format format)
{
    const int pixelBytes = QImage::toPixelFormat(format).bitsPerPixel() / 8;
    const int lineBytes = FFALIGN(size.width() * pixelBytes, lineAlignment);
    AVBufferRef* buffer = takeBuffer(size_t(lineBytes) * size_t(size.height()));
    if (!buffer) {
        return {};
    }
    QImage image(buffer->data, size.width(), size.height(), lineBytes, format, giveBack, buffer);
    if (image.isNull()) {
        giveBack(buffer);
    }
    return image;
}

AVBufferRef* ImagePool::takeBuffer(size_t bytes)
{
    const std::lock_guard lock(m_mutex);
    if (!m_pool || m_bytes != bytes) {
        m_bytes = bytes;
        m_pool.reset(av_buffer_pool_init(bytes, av_buffer_alloc));
    }
    return m_pool ? av_buffer_pool_get(m_pool.get()) : nullptr;
}

} // namespace QtAV
