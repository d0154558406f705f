#include "qtav/src/ImagePool.h"

namespace QtAV {

namespace {

constexpr int pixelBytes = 4;

void giveBack(void* buffer)
{
    auto* reference = static_cast<AVBufferRef*>(buffer);
    av_buffer_unref(&reference);
}

} // namespace

QImage ImagePool::take(const QSize& size)
{
    const int lineBytes = size.width() * pixelBytes;
    AVBufferRef* buffer = takeBuffer(size_t(lineBytes) * size_t(size.height()));
    if (!buffer) {
        return {};
    }
    return QImage(buffer->data, size.width(), size.height(), lineBytes, QImage::Format_ARGB32,
                  giveBack, buffer);
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
