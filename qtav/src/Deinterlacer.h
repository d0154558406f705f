#pragma once

#include <QtAV/Deinterlacing.h>

#include "qtav/src/Combing.h"
#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/FieldFilter.h"

#include <mutex>
#include <optional>
#include <vector>

namespace QtAV {

/// Makes whole pictures from combing ones, with the help of their neighbours.
///
/// Film that was spread over additional fields gets its original pictures back, without loss. Other
/// combing pictures are filtered by FFmpeg. Pictures that do not comb stay unchanged, to the byte.
///
/// May be called from several threads at once.
class Deinterlacer
{
public:
    /// Whether a picture can gain from its neighbours, so that these should be decoded.
    static bool mayTake(const AVFrame& picture, Deinterlacing deinterlacing);

    /// Whether a picture combs, judged without its neighbours.
    static bool combsByItself(const AVFrame& picture);

    /// Whether a picture shows two moments that no other picture shares, so that each can become a
    /// picture of its own.
    static bool isOfTwoMoments(const FieldPictures& pictures, Deinterlacing deinterlacing);

    /// The picture of one moment. Null if the picture stays as it is, which is also the case if its
    /// format cannot be filtered or memory runs out.
    [[nodiscard]] FramePtr deinterlaced(const FieldPictures& pictures, Deinterlacing deinterlacing,
                                        FieldFilter::Moment moment = FieldFilter::Moment::First);

private:
    [[nodiscard]] FramePtr filtered(const FieldPictures& pictures, bool isTopFirst,
                                    FieldFilter::Moment moment);
    [[nodiscard]] std::optional<FieldFilter> takeFilter(const FieldFilter::Task& task);
    void keepFilter(FieldFilter filter);

    /// Enough for the kinds of pictures that a video has at a time.
    static constexpr size_t mostIdleFilters = 2;

    std::mutex m_mutex;
    std::vector<FieldFilter> m_idle; ///< guarded by m_mutex
};

} // namespace QtAV
