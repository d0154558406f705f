#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/LightCurve.h"

#include <opencv2/core/mat.hpp>

/// The picture in a matrix at exactly the size, by the filter and in the light that are asked for.
///
/// Samples of 8 or 16 bits; a fourth channel is alpha, and colours count by it. Kernels (Lanczos,
/// bicubic) are stretched where an axis shrinks, so that fine patterns do not alias, and overshoot
/// at hard edges as far as the samples' range lets them. In linear light, samples are mixed in
/// proportion to the light that they stand for by the curve.
///
/// Throws cv::Exception or std::bad_alloc where there is no memory.
[[nodiscard]] cv::Mat filteredResize(const cv::Mat& mat, cv::Size size,
                                     const Resampling& resampling,
                                     const LightCurve& curve = LightCurve::sRgb());
