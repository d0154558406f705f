#pragma once

#include "qtav/src/NalUnits.h"

#include <QtGlobal>

namespace QtAV {

/// Tells the packets of an H.264, HEVC or MPEG-4 stream that hold nothing but a picture to which no
/// other picture refers.
///
/// FFmpeg skips such pictures when asked to, but hands their packets to its threads all the same,
/// so that most of the threads have nothing to do. Not sending them keeps all threads busy with
/// what must be decoded.
///
/// Packets that cannot be understood count as referred to, as do those of other codecs. In an HEVC
/// stream with temporal sub-layers the answer holds for the picture's own layer only.
class UnreferencedPictures
{
public:
    /// Knows no stream: every picture counts as referred to.
    UnreferencedPictures() = default;
    explicit UnreferencedPictures(const AVCodecParameters& parameters);

    bool areAllOf(const AVPacket& packet) const { return areAllOf(packet.data, packet.size); }
    bool areAllOf(const uint8_t* data, qsizetype size) const;

private:
    bool m_isMpeg4 = false;
    NalUnits m_units;
};

} // namespace QtAV
