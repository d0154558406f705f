#include "qtav/src/HeldPictures.h"

#include <cstdint>
#include <utility>

namespace QtAV {

namespace {

/// One picture's part of the count.
class Share
{
public:
    Share(std::shared_ptr<std::atomic<qint64>> count, qint64 bytes)
        : m_count(std::move(count))
        , m_bytes(bytes)
    {
        *m_count += m_bytes;
    }
    ~Share() { *m_count -= m_bytes; }
    Share(const Share&) = delete;
    Share& operator=(const Share&) = delete;

private:
    const std::shared_ptr<std::atomic<qint64>> m_count;
    const qint64 m_bytes;
};

/// FFmpeg hands back what av_buffer_create() was given.
void freeShare(void*, std::uint8_t* share)
{
    const std::unique_ptr<Share> owner(reinterpret_cast<Share*>(share));
}

} // namespace

HeldPictures::HeldPictures()
    : m_bytes(std::make_shared<Count>(0))
{}

bool HeldPictures::add(AVFrame& frame, qint64 bytes) const
{
    auto share = std::make_unique<Share>(m_bytes, bytes);
    BufferPtr buffer(av_buffer_create(reinterpret_cast<std::uint8_t*>(share.get()), sizeof(Share),
                                      &freeShare, nullptr, AV_BUFFER_FLAG_READONLY));
    if (!buffer) {
        return false;
    }
    static_cast<void>(share.release());
    frame.opaque_ref = buffer.release();
    return true;
}

void HeldPictures::giveAway(AVFrame& frame)
{
    const BufferPtr share(std::exchange(frame.opaque_ref, nullptr));
}

} // namespace QtAV
