#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

#include <atomic>
#include <memory>

namespace QtAV {

/// Counts the memory of the pictures that a decoder keeps, because others refer to them or because
/// its threads work on them. What the decoder has given away and keeps no longer is not counted.
///
/// Pictures may be added and let go of from any thread, also when this object is gone.
class HeldPictures
{
public:
    HeldPictures();

    [[nodiscard]] qint64 bytes() const { return *m_bytes; }

    /// Counts a picture of so many bytes until the decoder's last reference to it goes. False,
    /// with nothing counted, where there is no memory for that. The frame's `opaque_ref` must be
    /// free.
    [[nodiscard]] bool add(AVFrame& frame, qint64 bytes) const;

    /// To be called for a frame that comes out: from then on this reference counts no longer.
    static void giveAway(AVFrame& frame);

private:
    using Count = std::atomic<qint64>;

    std::shared_ptr<Count> m_bytes;
};

} // namespace QtAV
