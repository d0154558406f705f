#pragma once

/// The only place that gives access to FFmpeg's filters.

#include <cstdint> // required by FFmpeg's headers

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
}

#include <memory>

namespace QtAV {

/// The functions used of FFmpeg's filter library.
///
/// It is loaded on first use because it depends on some thirty other libraries. Linking it would
/// make each start of a program a quarter longer, and few videos are interlaced.
struct FilterLibrary
{
    decltype(&avfilter_graph_alloc) graphAlloc = nullptr;
    decltype(&avfilter_graph_free) graphFree = nullptr;
    decltype(&avfilter_graph_alloc_filter) graphAllocFilter = nullptr;
    decltype(&avfilter_graph_create_filter) graphCreateFilter = nullptr;
    decltype(&avfilter_graph_config) graphConfig = nullptr;
    decltype(&avfilter_get_by_name) getByName = nullptr;
    decltype(&avfilter_init_str) initStr = nullptr;
    decltype(&avfilter_link) link = nullptr;
    decltype(&av_buffersrc_parameters_alloc) sourceParametersAlloc = nullptr;
    decltype(&av_buffersrc_parameters_set) sourceParametersSet = nullptr;
    decltype(&av_buffersrc_add_frame_flags) sourceAddFrame = nullptr;
    decltype(&av_buffersink_get_time_base) sinkTimeBase = nullptr;
    decltype(&av_buffersink_get_frame) sinkGetFrame = nullptr;

    /// The library; null if it cannot be loaded, which is logged once as a debug message. From any
    /// thread.
    static const FilterLibrary* get();
};

struct FreeFilterGraph
{
    void operator()(AVFilterGraph* graph) const { FilterLibrary::get()->graphFree(&graph); }
};

using FilterGraphPtr = std::unique_ptr<AVFilterGraph, FreeFilterGraph>;

} // namespace QtAV
