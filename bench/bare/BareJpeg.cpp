#include "bench/bare/BareJpeg.h"

#include <turbojpeg.h>

namespace bench {

BareJpeg::BareJpeg(const QSize& size, Chroma chroma)
    : m_size(size)
    , m_sampling(chroma == Chroma::Full ? TJSAMP_444 : TJSAMP_420)
    , m_encoder(tjInitCompress())
    , m_file(tjAlloc(static_cast<int>(tjBufSize(size.width(), size.height(), m_sampling))))
{}

BareJpeg::~BareJpeg()
{
    if (m_encoder != nullptr) {
        tjDestroy(m_encoder);
    }
    tjFree(m_file);
}

std::size_t BareJpeg::encode(const std::uint8_t* pixels, std::size_t bytesPerLine, int quality)
{
    if (m_encoder == nullptr || m_file == nullptr) {
        return 0;
    }
    unsigned long bytes = 0;
    const int result = tjCompress2(
        m_encoder, pixels, m_size.width(), static_cast<int>(bytesPerLine), m_size.height(),
        TJPF_BGRX, &m_file, &bytes, m_sampling, quality, TJFLAG_ACCURATEDCT | TJFLAG_NOREALLOC);
    return result == 0 ? bytes : 0;
}

} // namespace bench
