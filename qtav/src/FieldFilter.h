#pragma once

#include "qtav/src/Combing.h"
#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FilterLibrary.h"

#include <QSize>

#include <memory>
#include <optional>

namespace QtAV {

/// FFmpeg's filter that makes whole pictures of single fields, in a graph of its own with one
/// thread. Fit for pictures of one size and format; making one takes longer than using it.
///
/// It keeps what it was given last. One thread at a time may use it.
class FieldFilter
{
public:
    /// Which of the two moments a picture is made of: the earlier or the later one.
    enum class Moment { First, Second };

    /// What a filter is made for.
    struct Task
    {
        QSize size;
        AVPixelFormat format = AV_PIX_FMT_NONE;
        Moment moment = Moment::First;

        bool operator==(const Task& other) const
        {
            return size == other.size && format == other.format && moment == other.moment;
        }
    };

    /// Nothing when FFmpeg has no filter for such pictures.
    [[nodiscard]] static std::optional<FieldFilter> make(const Task& task);

    const Task& task() const { return m_task; }

    /// The picture of one moment, whole. A missing neighbour is taken to be like the picture. Null
    /// when memory runs out.
    [[nodiscard]] FramePtr filter(const FieldPictures& pictures, bool isTopFirst);

private:
    FieldFilter(Task task, FilterGraphPtr graph, AVFilterContext* source, AVFilterContext* sink);

    [[nodiscard]] bool push(const AVFrame& picture, bool isFiltered, bool isTopFirst);
    [[nodiscard]] FramePtr pull(qint64 halfTicks);

    Task m_task;
    FilterGraphPtr m_graph;
    AVFilterContext* m_source; ///< of m_graph
    AVFilterContext* m_sink;   ///< of m_graph
    qint64 m_ticks = 0;        ///< the time of the picture that is pushed next
    bool m_isRunIn = false;
};

} // namespace QtAV
