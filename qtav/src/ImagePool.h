#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QImage>
#include <QSize>

#include <mutex>

namespace QtAV {

/// Memory for images of one size after the other, used again once their last copy is gone: to
/// begin with fresh memory for each picture of a video costs more than to fill it.
///
/// Images may outlive the pool. May be called from several threads at once.
class ImagePool
{
public:
    /// A Format_ARGB32 image whose pixels have any values; null when memory runs out.
    [[nodiscard]] QImage take(const QSize& size);

private:
    AVBufferRef* takeBuffer(size_t bytes);

    std::mutex m_mutex;
    size_t m_bytes = 0;   ///< of each buffer; guarded by m_mutex
    BufferPoolPtr m_pool; ///< guarded by m_mutex
};

} // namespace QtAV
