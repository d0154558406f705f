#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/LightCurve.h"

#include <opencv2/core/mat.hpp>

/// Resizes the picture in a matrix to exactly the size, with a filter and a treatment of light.
///
/// Samples have 8 or 16 bits; a fourth channel is alpha, and colours are weighted by it. Kernels
/// (Lanczos, bicubic) are stretched where an axis shrinks, so that fine patterns do not alias. They
/// overshoot at hard edges within the range of the samples. In linear light, samples are mixed in
/// proportion to the light that they stand for by the curve.
///
/// Throws cv::Exception or std::bad_alloc if memory runs out.
[[nodiscard]] cv::Mat filteredResize(const cv::Mat& mat, cv::Size size,
                                     const Resampling& resampling,
                                     const LightCurve& curve = LightCurve::sRgb());
