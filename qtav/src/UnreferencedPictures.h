#pragma once

#include "qtav/src/NalUnits.h"

#include <QtGlobal>

namespace QtAV {

/// Detects the packets of an H.264, HEVC or MPEG-4 stream that hold nothing but disposable
/// pictures, to which no other picture refers.
///
/// FFmpeg skips such pictures when asked to, but still passes their packets to its threads, so that
/// most threads have nothing to do. Not sending them keeps all threads busy.
///
/// Packets that cannot be parsed, and those of other codecs, count as referred to. In an HEVC
/// stream with temporal sub-layers the result holds only within the picture's own layer.
class UnreferencedPictures
{
public:
    /// For an unknown stream: every picture counts as referred to.
    UnreferencedPictures() = default;
    explicit UnreferencedPictures(const AVCodecParameters& parameters);

    bool areAllOf(const AVPacket& packet) const { return areAllOf(packet.data, packet.size); }
    bool areAllOf(const uint8_t* data, qsizetype size) const;

private:
    bool m_isMpeg4 = false;
    NalUnits m_units;
};

} // namespace QtAV
