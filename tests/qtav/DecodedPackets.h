#pragma once

#include <QList>
#include <QtGlobal>

/// Counts the packets given to FFmpeg's decoders in this process.
namespace decoding {

/// How often each packet was given to a decoder of any reader, in the order of their presentation
/// times; and these times, in the stream's time base.
struct DecodedPackets
{
    QList<qint64> times;
    QList<int> counts;

    [[nodiscard]] int total() const;
};

/// Packets decoded since the last call. Thread-safe.
[[nodiscard]] DecodedPackets takeDecodedPackets();

} // namespace decoding
