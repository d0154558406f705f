#pragma once

#include <opencv2/core/types.hpp>

/// Which part of a picture is resized to which size.
///
/// A pure value, separate from the resizing itself so that the rounding rules are in one place.
struct ResizePlan
{
    cv::Rect region; ///< The part of the source that is taken.
    cv::Size size;   ///< The size that it is scaled to.

    /// The whole source, scaled to the largest size inside the target with the source's aspect
    /// ratio. The side that the source does not fill is truncated to whole pixels, but to at least
    /// one.
    [[nodiscard]] static ResizePlan fitting(cv::Size source, cv::Size target);

    /// The largest part in the middle of the source that has the target's aspect ratio, scaled to
    /// the target. The cropped side is computed from the ratio and truncated to whole pixels: it
    /// can be one less than the target's.
    [[nodiscard]] static ResizePlan filling(cv::Size source, cv::Size target);
};
