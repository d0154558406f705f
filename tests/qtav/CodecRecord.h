#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QByteArray>

namespace codecrecord {

/// Makes a class that is made from the parameters of a stream and keeps none of them.
/// @param lengthBytes  how long the lengths before an H.264 or HEVC stream's units are; 0 where
///                     start codes part them.
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

/// The bytes as FFmpeg's interface has them.
[[nodiscard]] inline const uint8_t* dataOf(const QByteArray& bytes)
{
    return reinterpret_cast<const uint8_t*>(bytes.constData());
}

} // namespace codecrecord
