#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QByteArray>

namespace codecrecord {

/// Creates an object from the parameters of a stream, of which it keeps none.
/// @param lengthBytes  size of the length before each unit of an H.264 or HEVC stream; 0 if start
///     codes separate them.
template <typename T>
[[nodiscard]] T madeFor(AVCodecID codec, int lengthBytes = 0)
{
    QByteArray record(23, '\0');
    record[0] = 1;
    record[codec == AV_CODEC_ID_HEVC ? 21 : 4] = char(lengthBytes - 1);
    AVCodecParameters parameters{};
    parameters.codec_id = codec;
    if (lengthBytes > 0) {
        parameters.extradata = reinterpret_cast<uint8_t*>(record.data());
        parameters.extradata_size = record.size();
    }
    return T(parameters);
}

/// The bytes as FFmpeg's interface expects them.
[[nodiscard]] inline const uint8_t* dataOf(const QByteArray& bytes)
{
    return reinterpret_cast<const uint8_t*>(bytes.constData());
}

} // namespace codecrecord
