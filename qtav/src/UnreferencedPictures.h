#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

namespace QtAV {

/// Tells the packets of an H.264, HEVC or MPEG-4 stream that hold nothing but a picture to which no
/// other picture refers.
///
/// FFmpeg leaves such pictures out when asked to, but hands their packets to its threads all the
/// same, so that most of the threads have nothing to do. Who does not send them keeps all threads
/// busy with what must be decoded.
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
    /// What one unit of the stream means for the picture that it is part of.
    enum class Unit { Neutral, Unreferenced, Needed };

    Unit unitAt(const uint8_t* data, qsizetype size) const;
    static Unit h264UnitAt(const uint8_t* data);
    static Unit hevcUnitAt(const uint8_t* data);
    static Unit mpeg4UnitAt(const uint8_t* data);
    bool areAllOfPrefixed(const uint8_t* data, qsizetype size) const;
    bool areAllOfMarked(const uint8_t* data, qsizetype size) const;

    AVCodecID m_codec = AV_CODEC_ID_NONE;
    int m_lengthBytes = 0; ///< of the length before each unit; 0 where start codes part them
};

} // namespace QtAV
