#pragma once

#include <QSize>

#include <cstddef>
#include <cstdint>

namespace bench {

/// libjpeg-turbo's bare encoder, writing to memory, for comparison with saving a JPEG file.
///
/// Chroma is halved in both directions (4:2:0), as in the files that the program writes. One thread
/// at a time.
class BareJpeg
{
public:
    /// An encoder for pictures of a size in pixels.
    explicit BareJpeg(const QSize& size);
    ~BareJpeg();
    BareJpeg(const BareJpeg&) = delete;
    BareJpeg& operator=(const BareJpeg&) = delete;

    /// Encodes pixels of four bytes (blue, green, red, unused) with a quality from 1 to 100.
    /// Returns the size of the result in bytes, 0 on failure.
    [[nodiscard]] std::size_t encode(const std::uint8_t* pixels, std::size_t bytesPerLine,
                                     int quality);

private:
    QSize m_size;
    void* m_encoder;
    std::uint8_t* m_file;
};

} // namespace bench
