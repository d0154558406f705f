#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

#include <atomic>
#include <memory>

namespace QtAV {

/// Counts the memory of the pictures that a decoder holds as references for others, or because its
/// threads are decoding them. Pictures that it has output and no longer refers to are not counted.
///
/// Thread-safe. Pictures may be released after this object is destroyed.
class HeldPictures
{
public:
    HeldPictures();

    [[nodiscard]] qint64 bytes() const { return *m_bytes; }

    /// Counts a picture of that many bytes until the decoder releases its last reference to it.
    /// Returns false, without counting it, if memory runs out. The frame's `opaque_ref` must be
    /// unused.
    [[nodiscard]] bool add(AVFrame& frame, qint64 bytes) const;

    /// Call this for a frame that the decoder outputs: this reference is then no longer counted.
    static void giveAway(AVFrame& frame);

private:
    using Count = std::atomic<qint64>;

    std::shared_ptr<Count> m_bytes;
};

} // namespace QtAV
