#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/LightCurve.h"

#include <opencv2/core/mat.hpp>

/// The picture in a matrix at another size.
///
/// With the aspect ratio kept, the result is the largest picture inside the target; without, it
/// fills it, and what of the source is too wide or too high is cut off on both sides. See
/// ResizePlan for the rounding. A matrix that has the size already comes back as it is, sharing its
/// samples; so do an empty matrix, and any matrix where a side is 0 or less or the result would
/// take 2 GiB or more. Throws cv::Exception or std::bad_alloc where there is no memory for the
/// result. See filteredResize() for the ways of resampling.
[[nodiscard]] cv::Mat resized(const cv::Mat& mat, cv::Size target, bool keepsAspectRatio,
                              const Resampling& resampling = {},
                              const LightCurve& curve = LightCurve::sRgb());
