#pragma once

#include <QtAV/Deinterlacing.h>

#include "qtav/src/Combing.h"
#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FieldFilter.h"

#include <mutex>
#include <optional>
#include <vector>

namespace QtAV {

/// Makes whole pictures of those that comb, from their neighbours.
///
/// Film that was spread over more fields than it has gets its own pictures back, without loss.
/// Other pictures that comb are filtered by FFmpeg. What does not comb stays as it is, to the byte.
///
/// May be called from several threads at once.
class Deinterlacer
{
public:
    /// Whether a picture can gain from its neighbours, so that these are worth having.
    static bool mayTake(const AVFrame& picture, Deinterlacing deinterlacing);

    /// Whether a picture combs, as far as it shows that without its neighbours.
    static bool combsByItself(const AVFrame& picture);

    /// Whether a picture shows two moments that no other picture has a part of: each can be made a
    /// picture of its own.
    static bool isOfTwoMoments(const FieldPictures& pictures, Deinterlacing deinterlacing);

    /// The picture of one moment; null where it stays as it is, which it also does when its format
    /// cannot be filtered or memory runs out.
    [[nodiscard]] FramePtr deinterlaced(const FieldPictures& pictures, Deinterlacing deinterlacing,
                                        FieldFilter::Moment moment = FieldFilter::Moment::First);

private:
    [[nodiscard]] FramePtr filtered(const FieldPictures& pictures, bool isTopFirst,
                                    FieldFilter::Moment moment);
    [[nodiscard]] std::optional<FieldFilter> takeFilter(const FieldFilter::Task& task);
    void keepFilter(FieldFilter filter);

    /// More kinds of pictures than a video has at a time.
    static constexpr size_t mostIdleFilters = 2;

    std::mutex m_mutex;
    std::vector<FieldFilter> m_idle; ///< guarded by m_mutex
};

} // namespace QtAV
