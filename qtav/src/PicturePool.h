#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <map>
#include <mutex>

namespace QtAV {

/// The memory of decoded pictures, shared by the decoders of one video.
///
/// FFmpeg's own pools belong to one decoder each and never shrink: frames kept from two of them
/// would take the memory of both at their fullest. Here what one gives back, the other takes.
///
/// Pictures may outlive the pool. Used by all threads of all its decoders at once.
class PicturePool
{
public:
    PicturePool() = default;
    ~PicturePool();
    PicturePool(const PicturePool&) = delete;
    PicturePool& operator=(const PicturePool&) = delete;

    /// Makes a decoder that is not open yet take its pictures' memory from here. The pool must live
    /// until that decoder is closed.
    void serve(AVCodecContext& context);

private:
    static int getBuffer(AVCodecContext* context, AVFrame* frame, int flags);
    int fill(AVCodecContext& context, AVFrame& frame);
    AVBufferRef* planeOf(size_t size);

    std::mutex m_mutex;
    std::map<size_t, AVBufferPool*> m_planes; ///< by size in bytes; guarded by m_mutex
};

} // namespace QtAV
