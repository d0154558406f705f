#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

#include <optional>

extern "C" {
#include <libavcodec/version.h>
#include <libavfilter/version.h>
#include <libavutil/version.h>
}

/// Differences between the supported FFmpeg releases, 5.1 to 7.1. FFmpeg's version is tested
/// nowhere else: each difference is a named feature here, with the release that introduced it, and
/// a function that reads the same with every release.

/// AVFrame::duration, which replaced pkt_duration: 6.0.
#define QTAV_FFMPEG_HAS_FRAME_DURATION (LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 2, 100))
/// av_chroma_location_enum_to_pos(), which replaced avcodec_enum_to_chroma_pos(): 6.0.
#define QTAV_FFMPEG_HAS_CHROMA_LOCATION_POSITION                                                   \
    (LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 2, 100))
/// AV_FRAME_FLAG_INTERLACED and its neighbour for the order of the fields, which replaced
/// AVFrame::interlaced_frame and top_field_first: 6.1.
#define QTAV_FFMPEG_HAS_INTERLACED_FLAG (LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 29, 100))
/// AVCodecParameters::coded_side_data, which replaced AVStream's side data: 6.1.
#define QTAV_FFMPEG_HAS_CODED_SIDE_DATA (LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 31, 102))

/// Callbacks of a decoder are always called from its threads, and the field that allowed it is
/// gone: 6.0.
#define QTAV_FFMPEG_HAS_THREAD_SAFE_CALLBACKS (LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 0, 100))

namespace QtAV {

/// Version of the filter library that these headers belong to, as in its file name.
constexpr int filterLibraryVersion = LIBAVFILTER_VERSION_MAJOR;

/// Lets a decoder with several threads call its memory callback from each of them. Otherwise they
/// would wait for each other.
inline void allowCallsFromThreads(AVCodecContext& context)
{
#if QTAV_FFMPEG_HAS_THREAD_SAFE_CALLBACKS
    Q_UNUSED(context)
#else
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    context.thread_safe_callbacks = 1;
    QT_WARNING_POP
#endif
}

/// Duration of a decoded frame in ticks of its packet; 0 if the file does not state it.
inline qint64 durationTicks(const AVFrame& frame)
{
#if QTAV_FFMPEG_HAS_FRAME_DURATION
    return frame.duration;
#else
    return frame.pkt_duration;
#endif
}

/// Whether the lines of a picture alternate between two moments.
inline bool isInterlaced(const AVFrame& frame)
{
#if QTAV_FFMPEG_HAS_INTERLACED_FLAG
    return frame.flags & AV_FRAME_FLAG_INTERLACED;
#else
    return frame.interlaced_frame;
#endif
}

/// Whether the upper lines of such a picture are the earlier ones. Defaults to true, the usual
/// order.
inline bool isTopFieldFirst(const AVFrame& frame)
{
#if QTAV_FFMPEG_HAS_INTERLACED_FLAG
    return !isInterlaced(frame) || (frame.flags & AV_FRAME_FLAG_TOP_FIELD_FIRST);
#else
    return !isInterlaced(frame) || frame.top_field_first;
#endif
}

/// Marks a picture as interlaced or progressive.
inline void setInterlaced(AVFrame& frame, bool isInterlaced, bool isTopFirst)
{
#if QTAV_FFMPEG_HAS_INTERLACED_FLAG
    frame.flags &= ~(AV_FRAME_FLAG_INTERLACED | AV_FRAME_FLAG_TOP_FIELD_FIRST);
    if (isInterlaced) {
        frame.flags |= AV_FRAME_FLAG_INTERLACED | (isTopFirst ? AV_FRAME_FLAG_TOP_FIELD_FIRST : 0);
    }
#else
    frame.interlaced_frame = isInterlaced;
    frame.top_field_first = isInterlaced && isTopFirst;
#endif
}

/// Position of a chroma sample relative to its upper left luma sample, in 1/256 of the distance
/// between luma samples.
struct ChromaPosition
{
    int x = 0;
    int y = 0;
};

/// Null for an unknown location.
inline std::optional<ChromaPosition> chromaPositionOf(AVChromaLocation location)
{
    ChromaPosition position;
#if QTAV_FFMPEG_HAS_CHROMA_LOCATION_POSITION
    const int result = av_chroma_location_enum_to_pos(&position.x, &position.y, location);
#else
    const int result = avcodec_enum_to_chroma_pos(&position.x, &position.y, location);
#endif
    return result < 0 ? std::nullopt : std::optional(position);
}

/// Bytes owned by another object; null if there are none.
struct SideData
{
    const uint8_t* data = nullptr;
    size_t size = 0;
};

/// Side data that a container holds for a stream. Owned by the stream.
inline SideData sideDataOf(const AVStream& stream, AVPacketSideDataType type)
{
    SideData found;
#if QTAV_FFMPEG_HAS_CODED_SIDE_DATA
    const AVCodecParameters& parameters = *stream.codecpar;
    const AVPacketSideData* sideData =
        av_packet_side_data_get(parameters.coded_side_data, parameters.nb_coded_side_data, type);
    if (sideData) {
        found = {sideData->data, sideData->size};
    }
#else
    found.data = av_stream_get_side_data(&stream, type, &found.size);
#endif
    return found;
}

/// The display matrix of the container, nine numbers owned by the stream; null if there is none.
inline const qint32* displayMatrixOf(const AVStream& stream)
{
    const SideData found = sideDataOf(stream, AV_PKT_DATA_DISPLAYMATRIX);
    return found.size >= 9 * sizeof(qint32) ? reinterpret_cast<const qint32*>(found.data) : nullptr;
}

} // namespace QtAV
