#include "qtav/player/SoundTempo.h"

#include "qtav/src/FFmpegHandles.h"

#include <cstring>

namespace QtAV {

namespace {

AVFilterContext* makeFilter(const FilterLibrary& library, AVFilterGraph& graph, const char* name,
                            const QByteArray& options)
{
    AVFilterContext* filter = nullptr;
    const AVFilter* kind = library.getByName(name);
    const bool isMade = kind && library.graphCreateFilter(&filter, kind, name, options.constData(),
                                                          nullptr, &graph) >= 0;
    return isMade ? filter : nullptr;
}

AVChannelLayout layoutOf(int channels)
{
    AVChannelLayout layout{};
    av_channel_layout_default(&layout, channels);
    return layout;
}

QByteArray nameOf(const AVChannelLayout& layout)
{
    char name[64] = {};
    av_channel_layout_describe(&layout, name, sizeof(name));
    return name;
}

} // namespace

SoundTempo::SoundTempo(int sampleRate, int channels)
    : m_rate(sampleRate)
    , m_channels(channels)
{}

std::unique_ptr<SoundTempo> SoundTempo::make(int sampleRate, int channels, double speed)
{
    std::unique_ptr<SoundTempo> tempo(new SoundTempo(sampleRate, channels));
    return tempo->build(speed) ? std::move(tempo) : nullptr;
}

bool SoundTempo::build(double speed)
{
    const FilterLibrary* library = FilterLibrary::get();
    m_graph.reset(library ? library->graphAlloc() : nullptr);
    if (!m_graph) {
        return false;
    }
    m_graph->nb_threads = 1;
    const QByteArray rate = QByteArray::number(m_rate);
    const QByteArray format = "time_base=1/" + rate + ":sample_rate=" + rate +
                              ":sample_fmt=s16:channel_layout=" + nameOf(layoutOf(m_channels));
    AVFilterGraph& graph = *m_graph;
    m_source = makeFilter(*library, graph, "abuffer", format);
    AVFilterContext* filter =
        makeFilter(*library, graph, "atempo", "tempo=" + QByteArray::number(speed, 'f', 6));
    m_sink = makeFilter(*library, graph, "abuffersink", {});
    return m_source && filter && m_sink && library->link(m_source, 0, filter, 0) >= 0 &&
           library->link(filter, 0, m_sink, 0) >= 0 && library->graphConfig(&graph, nullptr) >= 0;
}

bool SoundTempo::put(const QByteArray& samples, QByteArray& out)
{
    const int count = int(samples.size()) / bytesPerFrame();
    if (count == 0) {
        return true;
    }
    const FramePtr frame = makeFrame();
    frame->format = AV_SAMPLE_FMT_S16;
    frame->sample_rate = m_rate;
    frame->ch_layout = layoutOf(m_channels);
    frame->nb_samples = count;
    frame->pts = m_taken;
    if (av_frame_get_buffer(frame.get(), 0) < 0) {
        return false;
    }
    std::memcpy(frame->data[0], samples.constData(), size_t(count) * size_t(bytesPerFrame()));
    m_taken += count;
    const bool isTaken =
        FilterLibrary::get()->sourceAddFrame(m_source, frame.get(), AV_BUFFERSRC_FLAG_PUSH) >= 0;
    pull(out);
    return isTaken;
}

void SoundTempo::finish(QByteArray& out)
{
    if (m_isFinished) {
        return;
    }
    m_isFinished = true;
    if (FilterLibrary::get()->sourceAddFrame(m_source, nullptr, AV_BUFFERSRC_FLAG_PUSH) >= 0) {
        pull(out);
    }
}

void SoundTempo::pull(QByteArray& out)
{
    const FilterLibrary& library = *FilterLibrary::get();
    for (FramePtr frame = makeFrame(); library.sinkGetFrame(m_sink, frame.get()) >= 0;
         frame = makeFrame()) {
        out.append(reinterpret_cast<const char*>(frame->data[0]),
                   frame->nb_samples * bytesPerFrame());
    }
}

} // namespace QtAV
