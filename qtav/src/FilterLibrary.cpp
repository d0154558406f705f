#include "qtav/src/FilterLibrary.h"

#include "qtav/src/FFmpegCompat.h"

#include <QDebug>
#include <QLibrary>

#include <optional>

namespace QtAV {

namespace {

template <typename Function>
bool resolve(QLibrary& library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

std::optional<FilterLibrary> loaded()
{
    QLibrary library(QStringLiteral("avfilter"), filterLibraryVersion);
    FilterLibrary found;
    const bool isComplete =
        resolve(library, "avfilter_graph_alloc", found.graphAlloc) &&
        resolve(library, "avfilter_graph_free", found.graphFree) &&
        resolve(library, "avfilter_graph_alloc_filter", found.graphAllocFilter) &&
        resolve(library, "avfilter_graph_create_filter", found.graphCreateFilter) &&
        resolve(library, "avfilter_graph_config", found.graphConfig) &&
        resolve(library, "avfilter_get_by_name", found.getByName) &&
        resolve(library, "avfilter_init_str", found.initStr) &&
        resolve(library, "avfilter_link", found.link) &&
        resolve(library, "av_buffersrc_parameters_alloc", found.sourceParametersAlloc) &&
        resolve(library, "av_buffersrc_parameters_set", found.sourceParametersSet) &&
        resolve(library, "av_buffersrc_add_frame_flags", found.sourceAddFrame) &&
        resolve(library, "av_buffersink_get_time_base", found.sinkTimeBase) &&
        resolve(library, "av_buffersink_get_frame", found.sinkGetFrame);
    if (isComplete) {
        return found;
    }
    qWarning().noquote()
        << "Interlaced pictures, and the pitch of sound at other speeds, are not mended:"
        << library.errorString();
    return std::nullopt;
}

} // namespace

const FilterLibrary* FilterLibrary::get()
{
    static const std::optional<FilterLibrary> library = loaded();
    return library ? &*library : nullptr;
}

} // namespace QtAV
