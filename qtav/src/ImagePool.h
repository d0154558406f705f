#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QImage>
#include <QSize>

#include <mutex>

namespace QtAV {

/// Memory for images of one size and format at a time, reused once the last copy of an image is
/// gone. Using fresh memory for each picture of a video costs more than filling it.
///
/// Images may outlive the pool. Thread-safe.
class ImagePool
{
public:
    /// An image with undefined pixels; null when memory runs out.
    [[nodiscard]] QImage take(const QSize& size, QImage::Format format);

private:
    AVBufferRef* takeBuffer(size_t bytes);

    std::mutex m_mutex;
    size_t m_bytes = 0;   ///< of each buffer; guarded by m_mutex
    BufferPoolPtr m_pool; ///< guarded by m_mutex
};

} // namespace QtAV
