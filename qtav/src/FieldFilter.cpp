#include "qtav/src/FieldFilter.h"

#include "qtav/src/FFmpegCompat.h"

#include <utility>

namespace QtAV {

namespace {

constexpr AVRational tick{1, 25};
constexpr AVRational halfTick{1, 50};

AVFilterContext* makeSource(const FilterLibrary& library, AVFilterGraph& graph,
                            const FieldFilter::Task& task)
{
    AVFilterContext* source =
        library.graphAllocFilter(&graph, library.getByName("buffer"), "source");
    AVBufferSrcParameters* parameters = library.sourceParametersAlloc();
    if (!source || !parameters) {
        av_free(parameters);
        return nullptr;
    }
    parameters->format = task.format;
    parameters->width = task.size.width();
    parameters->height = task.size.height();
    parameters->time_base = tick;
    const int result = library.sourceParametersSet(source, parameters);
    av_free(parameters);
    return result < 0 || library.initStr(source, nullptr) < 0 ? nullptr : source;
}

AVFilterContext* makeFilter(const FilterLibrary& library, AVFilterGraph& graph, const char* name,
                            const char* options)
{
    AVFilterContext* filter = nullptr;
    const AVFilter* kind = library.getByName(name);
    const bool isMade =
        kind && library.graphCreateFilter(&filter, kind, name, options, nullptr, &graph) >= 0;
    return isMade ? filter : nullptr;
}

} // namespace

FieldFilter::FieldFilter(Task task, FilterGraphPtr graph, AVFilterContext* source,
                         AVFilterContext* sink)
    : m_task(task)
    , m_graph(std::move(graph))
    , m_source(source)
    , m_sink(sink)
{}

std::optional<FieldFilter> FieldFilter::make(const Task& task)
{
    const FilterLibrary* library = FilterLibrary::get();
    FilterGraphPtr graph(library ? library->graphAlloc() : nullptr);
    if (!graph) {
        return std::nullopt;
    }
    graph->nb_threads = 1;
    // Only pictures marked as interlaced are filtered; the neighbours pass unchanged.
    const char* options = task.moment == Moment::First ? "mode=send_frame:deint=interlaced"
                                                       : "mode=send_field:deint=interlaced";
    AVFilterContext* source = makeSource(*library, *graph, task);
    AVFilterContext* filter = makeFilter(*library, *graph, "bwdif", options);
    AVFilterContext* sink = makeFilter(*library, *graph, "buffersink", nullptr);
    if (!source || !filter || !sink || library->link(source, 0, filter, 0) < 0 ||
        library->link(filter, 0, sink, 0) < 0 || library->graphConfig(graph.get(), nullptr) < 0) {
        return std::nullopt;
    }
    return FieldFilter(task, std::move(graph), source, sink);
}

FramePtr FieldFilter::filter(const FieldPictures& pictures, bool isTopFirst)
{
    const AVFrame& picture = *pictures.picture;
    const AVFrame& before = pictures.before ? *pictures.before : picture;
    const AVFrame& after = pictures.after ? *pictures.after : picture;
    // FFmpeg makes the first picture of a video from one field alone, and gives none for the first
    // two pictures. Pictures before those have no influence on them.
    if (!std::exchange(m_isRunIn, true) && !filter({&before, &picture, &after}, isTopFirst)) {
        return nullptr;
    }
    const qint64 ticks = m_ticks + 1;
    if (!push(before, false, isTopFirst) || !push(picture, true, isTopFirst) ||
        !push(after, false, isTopFirst)) {
        return nullptr;
    }
    FramePtr made = pull(2 * ticks + (m_task.moment == Moment::Second ? 1 : 0));
    if (!made || av_frame_copy_props(made.get(), &picture) < 0) {
        return nullptr;
    }
    setInterlaced(*made, false, false);
    return made;
}

bool FieldFilter::push(const AVFrame& picture, bool isFiltered, bool isTopFirst)
{
    FramePtr pushed(av_frame_clone(&picture));
    if (!pushed) {
        return false;
    }
    setInterlaced(*pushed, isFiltered, isTopFirst);
    pushed->repeat_pict = 0;
    pushed->pts = m_ticks++;
    // The graph needs no colour properties: the picture's own are kept in any case.
    pushed->colorspace = AVCOL_SPC_UNSPECIFIED;
    pushed->color_range = AVCOL_RANGE_UNSPECIFIED;
    return FilterLibrary::get()->sourceAddFrame(m_source, pushed.get(),
                                                AV_BUFFERSRC_FLAG_NO_CHECK_FORMAT |
                                                    AV_BUFFERSRC_FLAG_PUSH) >= 0;
}

/// The output for a time in half ticks; all other output is dropped.
FramePtr FieldFilter::pull(qint64 halfTicks)
{
    const FilterLibrary& library = *FilterLibrary::get();
    const AVRational base = library.sinkTimeBase(m_sink);
    FramePtr found;
    for (FramePtr frame = makeFrame(); library.sinkGetFrame(m_sink, frame.get()) >= 0;
         frame = makeFrame()) {
        if (av_rescale_q(frame->pts, base, halfTick) == halfTicks) {
            found = std::move(frame);
        }
    }
    return found;
}

} // namespace QtAV
