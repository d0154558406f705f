#pragma once

#include "qtav/src/NalUnits.h"

#include <QByteArray>

namespace QtAV {

/// Detects where a stream continues with other parameters, such as another size, as broadcasts do
/// between programmes. FFmpeg's decoders lose the pictures that they still hold there.
class SequenceChange
{
public:
    SequenceChange() = default;
    explicit SequenceChange(const AVCodecParameters& parameters);

    /// True if a packet has other parameters than the last packet that had any. Call it in decoding
    /// order.
    [[nodiscard]] bool isAt(const AVPacket& packet);

    /// Call it when decoding continues elsewhere.
    void reset() { m_last.clear(); }

private:
    QByteArray parametersIn(const AVPacket& packet) const;

    AVCodecID m_codec = AV_CODEC_ID_NONE;
    NalUnits m_units;
    QByteArray m_last;
};

} // namespace QtAV
