#pragma once

#include "qtav/src/NalUnits.h"

#include <QByteArray>

namespace QtAV {

/// Notices where a stream begins anew with other parameters, such as another size: broadcasts do so
/// between programmes. FFmpeg's decoders lose the pictures that they still hold there.
class SequenceChange
{
public:
    SequenceChange() = default;
    explicit SequenceChange(const AVCodecParameters& parameters);

    /// True when a packet, given in the order of decoding, bears other parameters than the last one
    /// that bore any.
    [[nodiscard]] bool isAt(const AVPacket& packet);

    /// Decoding goes on somewhere else.
    void reset() { m_last.clear(); }

private:
    QByteArray parametersIn(const AVPacket& packet) const;

    AVCodecID m_codec = AV_CODEC_ID_NONE;
    NalUnits m_units;
    QByteArray m_last;
};

} // namespace QtAV
