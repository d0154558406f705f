#pragma once

#include <QSize>

#include <cstddef>
#include <cstdint>

namespace bench {

/// libjpeg-turbo's bare encoder, writing to memory, for comparison with saving a JPEG file.
///
/// One thread at a time.
class BareJpeg
{
public:
    /// The program writes full chroma (4:4:4) from quality 90 on. Other programs usually halve it
    /// in both directions (4:2:0).
    enum class Chroma { Full, Halved };

    /// An encoder for pictures of a size in pixels.
    explicit BareJpeg(const QSize& size, Chroma chroma = Chroma::Full);
    ~BareJpeg();
    BareJpeg(const BareJpeg&) = delete;
    BareJpeg& operator=(const BareJpeg&) = delete;

    /// Encodes pixels of four bytes (blue, green, red, unused) with a quality from 1 to 100.
    /// Returns the size of the result in bytes, 0 on failure.
    [[nodiscard]] std::size_t encode(const std::uint8_t* pixels, std::size_t bytesPerLine,
                                     int quality);

    /// The result, until encode() is called again.
    [[nodiscard]] const std::uint8_t* data() const { return m_file; }

private:
    QSize m_size;
    int m_sampling; ///< of libjpeg-turbo's constants
    void* m_encoder;
    std::uint8_t* m_file;
};

} // namespace bench
