#pragma once

/// The one place where FFmpeg's filters come from.

#include <cstdint> // FFmpeg's headers want its macros

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
}

#include <memory>

namespace QtAV {

/// What is used of FFmpeg's library of filters.
///
/// It is loaded when it is first needed, for it brings some thirty other libraries along: linked,
/// it would make each start of a program a quarter longer, and few videos are interlaced.
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

    /// The library; null where it cannot be loaded, which the debug stream says once. From any
    /// thread.
    static const FilterLibrary* get();
};

struct FreeFilterGraph
{
    void operator()(AVFilterGraph* graph) const { FilterLibrary::get()->graphFree(&graph); }
};

using FilterGraphPtr = std::unique_ptr<AVFilterGraph, FreeFilterGraph>;

} // namespace QtAV
