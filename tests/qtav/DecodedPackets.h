#pragma once

#include <QList>
#include <QtGlobal>

/// Counts what is given to FFmpeg's decoders in this process.
namespace decoding {

/// How often each packet was given to a decoder, of whichever reader, in the order of their
/// presentation times; and which times these are, in the stream's time base.
struct DecodedPackets
{
    QList<qint64> times;
    QList<int> counts;

    [[nodiscard]] int total() const;
};

/// What was decoded since the last call. Thread-safe.
[[nodiscard]] DecodedPackets takeDecodedPackets();

} // namespace decoding
