#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <memory>

/// Owners for FFmpeg's objects.
namespace bench {

struct CloseInput
{
    void operator()(AVFormatContext* input) const { avformat_close_input(&input); }
};

struct FreeCodec
{
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
};

struct FreePacket
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

struct FreeFrame
{
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};

using InputPtr = std::unique_ptr<AVFormatContext, CloseInput>;
using CodecPtr = std::unique_ptr<AVCodecContext, FreeCodec>;
using PacketPtr = std::unique_ptr<AVPacket, FreePacket>;
using FramePtr = std::unique_ptr<AVFrame, FreeFrame>;

} // namespace bench
