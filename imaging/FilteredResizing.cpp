#include "imaging/FilteredResizing.h"

#include "utils/KernelResampling.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

using KernelResampling::Kernel;
using KernelResampling::Sample;

constexpr std::size_t alphaChannel = 3;

template <typename Code>
void readLine(const cv::Mat& mat, int y, const LightCurve* curve, Sample* line)
{
    constexpr int most = std::numeric_limits<Code>::max();
    constexpr std::size_t step = LightCurve::largestCode / most;
    const int channels = mat.channels();
    const auto colours = static_cast<std::size_t>(std::min(channels, 3));
    const Code* code = mat.ptr<Code>(y);
    for (int x = 0; x < mat.cols; ++x, code += channels) {
        Sample& sample = line[x];
        sample = {};
        const float alpha = channels == 4 ? static_cast<float>(code[alphaChannel]) / most : 1.0F;
        for (std::size_t i = 0; i < colours; ++i) {
            const float value = curve != nullptr
                                    ? curve->lightOf(static_cast<std::size_t>(code[i]) * step)
                                    : static_cast<float>(code[i]) / most;
            sample[i] = value * alpha;
        }
        sample[alphaChannel] = alpha;
    }
}

template <typename Code>
Code rounded(float value)
{
    constexpr auto most = static_cast<float>(std::numeric_limits<Code>::max());
    return static_cast<Code>(std::lround(value * most));
}

template <typename Code>
void writeLine(const Sample* line, const LightCurve* curve, int y, cv::Mat& mat)
{
    const int channels = mat.channels();
    const auto colours = static_cast<std::size_t>(std::min(channels, 3));
    Code* code = mat.ptr<Code>(y);
    for (int x = 0; x < mat.cols; ++x, code += channels) {
        const Sample& sample = line[x];
        const float alpha = channels == 4 ? std::clamp(sample[alphaChannel], 0.0F, 1.0F) : 1.0F;
        const float scale = alpha > 0.0F ? 1.0F / alpha : 0.0F;
        for (std::size_t i = 0; i < colours; ++i) {
            const float value = std::clamp(sample[i] * scale, 0.0F, 1.0F);
            code[i] = rounded<Code>(curve != nullptr ? curve->codeOf(value) : value);
        }
        if (channels == 4) {
            code[alphaChannel] = rounded<Code>(alpha);
        }
    }
}

template <typename Code>
void resizeByKernel(const cv::Mat& mat, Kernel kernel, const LightCurve* curve, cv::Mat& result)
{
    KernelResampling::resample(
        {mat.cols, mat.rows}, {result.cols, result.rows}, {kernel, kernel},
        [&](int y, Sample* line) { readLine<Code>(mat, y, curve, line); },
        [&](int y, const Sample* line) { writeLine<Code>(line, curve, y, result); });
}

template <typename Code>
void resizeByArea(const cv::Mat& mat, const LightCurve* curve, cv::Mat& result)
{
    cv::Mat samples(mat.size(), CV_32FC4);
    for (int y = 0; y < samples.rows; ++y) {
        readLine<Code>(mat, y, curve, samples.ptr<Sample>(y));
    }
    cv::Mat scaled;
    cv::resize(samples, scaled, result.size(), 0.0, 0.0, cv::INTER_AREA);
    for (int y = 0; y < scaled.rows; ++y) {
        writeLine<Code>(scaled.ptr<Sample>(y), curve, y, result);
    }
}

template <typename Code>
cv::Mat resizedBySamples(const cv::Mat& mat, cv::Size size, ResizeFilter filter,
                         const LightCurve* curve)
{
    cv::Mat result(size, mat.type());
    if (filter == ResizeFilter::Area) {
        resizeByArea<Code>(mat, curve, result);
    } else {
        const bool isLanczos = filter == ResizeFilter::Lanczos;
        resizeByKernel<Code>(mat, isLanczos ? Kernel::Lanczos : Kernel::Cubic, curve, result);
    }
    return result;
}

cv::Mat resizedByOpenCv(const cv::Mat& mat, cv::Size size, int interpolation)
{
    cv::Mat result;
    cv::resize(mat, result, size, 0.0, 0.0, interpolation);
    return result;
}

} // namespace

cv::Mat filteredResize(const cv::Mat& mat, cv::Size size, const Resampling& resampling,
                       const LightCurve& curve)
{
    if (resampling.filter == ResizeFilter::Nearest) {
        return resizedByOpenCv(mat, size, cv::INTER_NEAREST_EXACT);
    }
    if (resampling.filter == ResizeFilter::Area && resampling.light == ResizeLight::AsCoded) {
        return resizedByOpenCv(mat, size, cv::INTER_AREA);
    }
    const LightCurve* const used = resampling.light == ResizeLight::Linear ? &curve : nullptr;
    return mat.depth() == CV_16U
               ? resizedBySamples<std::uint16_t>(mat, size, resampling.filter, used)
               : resizedBySamples<std::uint8_t>(mat, size, resampling.filter, used);
}
