#pragma once

#include <opencv2/core/types.hpp>

/// Which part of a picture is resized to which size.
///
/// A pure value, apart from the resizing itself so that the rounding rules stand in one place.
struct ResizePlan
{
    cv::Rect region; ///< The part of the source that is taken.
    cv::Size size;   ///< The size that it is scaled to.

    /// The whole source, scaled to the largest size inside the target with the source's own ratio
    /// of sides. The side that the source does not fill is cut to whole pixels, but never to none.
    [[nodiscard]] static ResizePlan fitting(cv::Size source, cv::Size target);

    /// The largest part in the middle of the source that has the target's ratio, scaled to the
    /// target. The side that the part was cut along is computed anew from the ratio and cut to
    /// whole pixels: it can come out one less than the target's.
    [[nodiscard]] static ResizePlan filling(cv::Size source, cv::Size target);
};
