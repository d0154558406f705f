#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/LightCurve.h"

#include <opencv2/core/mat.hpp>

/// Resizes the picture in a matrix.
///
/// With the aspect ratio kept, the result is the largest picture inside the target. Otherwise it
/// fills the target, and what of the source is too wide or too high is cropped on both sides. See
/// ResizePlan for the rounding. A matrix that already has the size is returned as it is, sharing
/// its samples; so are an empty matrix, and any matrix if a side is 0 or less or the result would
/// take 2 GiB or more. Throws cv::Exception or std::bad_alloc if memory runs out. See
/// filteredResize() for the resampling.
[[nodiscard]] cv::Mat resized(const cv::Mat& mat, cv::Size target, bool keepsAspectRatio,
                              const Resampling& resampling = {},
                              const LightCurve& curve = LightCurve::sRgb());
