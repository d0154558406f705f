#include "imaging/ResizePlan.h"

#include <algorithm>

namespace {

double ratio(cv::Size size)
{
    return static_cast<double>(size.width) / size.height;
}

/// Whole pixels, at least one: a picture without area cannot be made.
int truncated(double side)
{
    return std::max(1, static_cast<int>(side));
}

cv::Rect centred(cv::Size part, cv::Size whole)
{
    const auto left = static_cast<int>((whole.width - part.width) * 0.5);
    const auto top = static_cast<int>((whole.height - part.height) * 0.5);
    return {cv::Point(left, top), part};
}

} // namespace

ResizePlan ResizePlan::fitting(cv::Size source, cv::Size target)
{
    const double sourceRatio = ratio(source);
    const double targetRatio = ratio(target);
    cv::Size size = target;
    if (sourceRatio > targetRatio) {
        size.height = truncated(target.width / sourceRatio);
    } else if (sourceRatio < targetRatio) {
        size.width = truncated(target.height * sourceRatio);
    }
    return {cv::Rect(cv::Point(0, 0), source), size};
}

ResizePlan ResizePlan::filling(cv::Size source, cv::Size target)
{
    const double sourceRatio = ratio(source);
    const double targetRatio = ratio(target);
    cv::Size crop = source;
    cv::Size size = target;
    if (sourceRatio > targetRatio) {
        crop.width = truncated(source.height * targetRatio);
        size.height = truncated(target.width / targetRatio);
    } else if (sourceRatio < targetRatio) {
        crop.height = truncated(source.width / targetRatio);
        size.width = truncated(target.height * targetRatio);
    }
    return {centred(crop, source), size};
}
