#pragma once

/// Owners for FFmpeg's objects: the only place where these are freed, and the only place that
/// includes FFmpeg's headers for the rest of this folder.

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavcodec/bsf.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libavutil/frame.h>
#include <libavutil/imgutils.h>
#include <libavutil/mathematics.h>
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <memory>

namespace QtAV {

/// Calls an FFmpeg function that frees an object through the address of its pointer.
template <auto Free>
struct FreeByAddress
{
    template <typename T>
    void operator()(T* object) const
    {
        Free(&object);
    }
};

/// Calls an FFmpeg function that frees an object through its pointer.
template <auto Free>
struct FreeByPointer
{
    template <typename T>
    void operator()(T* object) const
    {
        Free(object);
    }
};

using FormatContextPtr = std::unique_ptr<AVFormatContext, FreeByAddress<avformat_close_input>>;
using CodecContextPtr = std::unique_ptr<AVCodecContext, FreeByAddress<avcodec_free_context>>;
using CodecParametersPtr =
    std::unique_ptr<AVCodecParameters, FreeByAddress<avcodec_parameters_free>>;
using PacketPtr = std::unique_ptr<AVPacket, FreeByAddress<av_packet_free>>;
using FramePtr = std::unique_ptr<AVFrame, FreeByAddress<av_frame_free>>;
using BitstreamFilterPtr = std::unique_ptr<AVBSFContext, FreeByAddress<av_bsf_free>>;
using BufferPtr = std::unique_ptr<AVBufferRef, FreeByAddress<av_buffer_unref>>;
using BufferPoolPtr = std::unique_ptr<AVBufferPool, FreeByAddress<av_buffer_pool_uninit>>;
using ParserPtr = std::unique_ptr<AVCodecParserContext, FreeByPointer<av_parser_close>>;
using ResamplerPtr = std::unique_ptr<SwrContext, FreeByAddress<swr_free>>;
using ScalerPtr = std::unique_ptr<SwsContext, FreeByPointer<sws_freeContext>>;

/// About what a packet takes in memory beside its data.
constexpr int bytesBesideData = 512;

/// A new, empty packet or frame. Running out of memory for one ends the program, as `new` does.
PacketPtr makePacket();
FramePtr makeFrame();

} // namespace QtAV
