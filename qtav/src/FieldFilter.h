#pragma once

#include "qtav/src/Combing.h"
#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FilterLibrary.h"

#include <QSize>

#include <memory>
#include <optional>

namespace QtAV {

/// FFmpeg's filter that makes whole pictures from single fields, in a graph of its own with one
/// thread. It suits pictures of one size and format; creating it takes longer than using it.
///
/// It keeps its last input. One thread at a time may use it.
class FieldFilter
{
public:
    /// The moment that is made a picture: the earlier or the later one.
    enum class Moment { First, Second };

    /// The properties of the pictures that a filter is made for.
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

    /// Nothing if FFmpeg has no filter for such pictures.
    [[nodiscard]] static std::optional<FieldFilter> make(const Task& task);

    const Task& task() const { return m_task; }

    /// The whole picture of one moment. A missing neighbour is assumed to equal the picture. Null
    /// when memory runs out.
    [[nodiscard]] FramePtr filter(const FieldPictures& pictures, bool isTopFirst);

private:
    FieldFilter(Task task, FilterGraphPtr graph, AVFilterContext* source, AVFilterContext* sink);

    [[nodiscard]] bool push(const AVFrame& picture, bool isFiltered, bool isTopFirst);
    [[nodiscard]] FramePtr pull(qint64 halfTicks);

    Task m_task;
    FilterGraphPtr m_graph;
    AVFilterContext* m_source; ///< owned by m_graph
    AVFilterContext* m_sink;   ///< owned by m_graph
    qint64 m_ticks = 0;        ///< the time of the next picture that is pushed
    bool m_isRunIn = false;
};

} // namespace QtAV
