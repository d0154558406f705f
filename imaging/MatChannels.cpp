#include "imaging/MatChannels.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <vector>

namespace QtOcv {
namespace {

/// Pairs of channel numbers, from and to, as cv::mixChannels reads them. The sources' channels are
/// counted through.
using ChannelPairs = std::vector<int>;

cv::Mat mixed(const std::vector<cv::Mat>& sources, int channels, const ChannelPairs& pairs)
{
    std::vector<cv::Mat> result{
        cv::Mat(sources.front().size(), CV_MAKETYPE(sources.front().depth(), channels))};
    cv::mixChannels(sources, result, pairs);
    return result.front();
}

cv::Mat colorConverted(const cv::Mat& mat, int code)
{
    cv::Mat result;
    cv::cvtColor(mat, result, code);
    return result;
}

cv::Mat alphaPlane(const cv::Mat& mat, double alphaFill)
{
    return cv::Mat(mat.size(), CV_MAKETYPE(mat.depth(), 1), cv::Scalar::all(alphaFill));
}

cv::Mat withOneChannel(const cv::Mat& mat, MatColorOrder from)
{
    if (mat.channels() == 3) {
        return colorConverted(mat, cv::COLOR_RGB2GRAY);
    }
    if (mat.channels() != 4) {
        return {};
    }
    if (from == Argb) {
        return colorConverted(reordered(mat, Argb, Bgr), cv::COLOR_BGRA2GRAY);
    }
    return colorConverted(mat, from == Bgr ? cv::COLOR_BGRA2GRAY : cv::COLOR_RGBA2GRAY);
}

cv::Mat withoutAlpha(const cv::Mat& mat, MatColorOrder from, MatColorOrder to)
{
    if (from == Argb) {
        const ChannelPairs toRgb{1, 0, 2, 1, 3, 2};
        const ChannelPairs toBgr{1, 2, 2, 1, 3, 0};
        return mixed({mat}, 3, to == Rgb ? toRgb : toBgr);
    }
    if (from == Bgr) {
        return colorConverted(mat, to == Bgr ? cv::COLOR_BGRA2BGR : cv::COLOR_BGRA2RGB);
    }
    return colorConverted(mat, to == Bgr ? cv::COLOR_RGBA2BGR : cv::COLOR_RGBA2RGB);
}

cv::Mat withThreeChannels(const cv::Mat& mat, MatColorOrder from, MatColorOrder to)
{
    switch (mat.channels()) {
    case 1:
        return colorConverted(mat, cv::COLOR_GRAY2BGR);
    case 3:
        return from == to ? cv::Mat() : colorConverted(mat, cv::COLOR_RGB2BGR);
    case 4:
        return withoutAlpha(mat, from, to);
    default:
        return {};
    }
}

cv::Mat withFourChannels(const cv::Mat& mat, MatColorOrder from, MatColorOrder to, double alphaFill)
{
    switch (mat.channels()) {
    case 1:
        if (to == Argb) {
            return mixed({alphaPlane(mat, alphaFill), mat}, 4, {0, 0, 1, 1, 1, 2, 1, 3});
        }
        return colorConverted(mat, to == Rgb ? cv::COLOR_GRAY2RGBA : cv::COLOR_GRAY2BGRA);
    case 3:
        if (to == Argb) {
            return mixed({alphaPlane(mat, alphaFill), mat}, 4, {0, 0, 1, 1, 2, 2, 3, 3});
        }
        return colorConverted(mat, to == Rgb ? cv::COLOR_RGB2RGBA : cv::COLOR_RGB2BGRA);
    case 4:
        return from == to ? cv::Mat() : reordered(mat, from, to);
    default:
        return {};
    }
}

} // namespace

cv::Mat reordered(const cv::Mat& mat, MatColorOrder from, MatColorOrder to)
{
    if (from == to) {
        return mat.clone();
    }
    if (from == Argb && to == Rgb) {
        return mixed({mat}, 4, {0, 3, 1, 0, 2, 1, 3, 2});
    }
    if (from == Rgb && to == Argb) {
        return mixed({mat}, 4, {0, 1, 1, 2, 2, 3, 3, 0});
    }
    if (from == Argb || to == Argb) {
        return mixed({mat}, 4, {0, 3, 1, 2, 2, 1, 3, 0});
    }
    return colorConverted(mat, cv::COLOR_BGRA2RGBA);
}

cv::Mat withChannels(const cv::Mat& mat, int channels, MatColorOrder from, MatColorOrder to,
                     double alphaFill)
{
    switch (channels) {
    case 1:
        return withOneChannel(mat, from);
    case 3:
        return withThreeChannels(mat, from, to);
    case 4:
        return withFourChannels(mat, from, to, alphaFill);
    default:
        return {};
    }
}

} // namespace QtOcv
