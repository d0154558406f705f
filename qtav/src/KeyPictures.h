#pragma once

#include "qtav/src/NalUnits.h"

namespace QtAV {

/// Tells by the bitstream whether decoding can start at a packet.
///
/// Indexes call packets key ones that are none: AVI files with packed B-frames flag the empty chunk
/// behind the key frame, and some writers of MP4 files flag all packets.
class KeyPictures
{
public:
    explicit KeyPictures(const AVCodecParameters& parameters);

    /// True for a packet that shows an intra picture, or from which an H.264 or HEVC stream that
    /// refreshes its pictures bit by bit recovers; also for codecs that are not looked into, and
    /// for H.264 and HEVC packets that cannot be understood.
    bool isIn(const AVPacket& packet) const { return isIn(packet.data, packet.size); }
    bool isIn(const uint8_t* data, qsizetype size) const;

private:
    bool isInUnits(const uint8_t* data, qsizetype size) const;

    AVCodecID m_codec;
    NalUnits m_units;
};

} // namespace QtAV
