#pragma once

#include "qtav/src/NalUnits.h"

namespace QtAV {

/// Tells from the bitstream whether decoding can start at a packet.
///
/// Indexes mark packets as key packets that are none: AVI files with packed B-frames mark the empty
/// chunk behind the key frame, and some writers of MP4 files mark all packets.
class KeyPictures
{
public:
    explicit KeyPictures(const AVCodecParameters& parameters);

    /// True for a packet that shows an intra picture, or at which an H.264 or HEVC stream with
    /// gradual refresh recovers. Also true for codecs that are not inspected, and for H.264 and
    /// HEVC packets that cannot be parsed.
    bool isIn(const AVPacket& packet) const { return isIn(packet.data, packet.size); }
    bool isIn(const uint8_t* data, qsizetype size) const;

private:
    bool isInUnits(const uint8_t* data, qsizetype size) const;

    AVCodecID m_codec;
    NalUnits m_units;
};

} // namespace QtAV
