#include "imaging/Resizing.h"

#include "imaging/FilteredResizing.h"
#include "imaging/ResizePlan.h"

#include <opencv2/core.hpp>

#include <limits>

namespace {

/// Whether the sides, both above 0, make an image of less than 2 GiB.
bool isImageSize(cv::Size size, size_t bytesPerPixel)
{
    constexpr auto limit = static_cast<size_t>(std::numeric_limits<int>::max());
    return static_cast<size_t>(size.width) <=
           limit / bytesPerPixel / static_cast<size_t>(size.height);
}

} // namespace

cv::Mat resized(const cv::Mat& mat, cv::Size target, bool keepsAspectRatio,
                const Resampling& resampling, const LightCurve& curve)
{
    if (mat.empty() || mat.size() == target || target.width <= 0 || target.height <= 0) {
        return mat;
    }
    const ResizePlan plan = keepsAspectRatio ? ResizePlan::fitting(mat.size(), target)
                                             : ResizePlan::filling(mat.size(), target);
    if (!isImageSize(plan.size, mat.elemSize())) {
        return mat;
    }
    return filteredResize(mat(plan.region), plan.size, resampling, curve);
}
