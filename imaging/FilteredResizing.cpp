#include "imaging/FilteredResizing.h"

#include "utils/KernelResampling.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace {

using KernelResampling::Kernel;
using KernelResampling::Sample;

constexpr std::size_t alphaChannel = 3;
constexpr int largestCode = 65535;

/// The light that an sRGB code stands for, both from 0 to 1.
double lightOf(double code)
{
    return code <= 0.04045 ? code / 12.92 : std::pow((code + 0.055) / 1.055, 2.4);
}

double codeOf(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

/// The function at 0/65535, 1/65535, … and 1, and one more for interpolation.
std::vector<float> tableOf(double (*function)(double))
{
    std::vector<float> table(largestCode + 2);
    for (int i = 0; i < largestCode + 2; ++i) {
        const double x = std::min(1.0, static_cast<double>(i) / largestCode);
        table[static_cast<std::size_t>(i)] = static_cast<float>(function(x));
    }
    return table;
}

const std::vector<float>& lights()
{
    static const std::vector<float> table = tableOf(&lightOf);
    return table;
}

/// Linear between the table's values, which is exact to a tenth of a 16-bit step.
float interpolatedCode(float light)
{
    static const std::vector<float> codes = tableOf(&codeOf);
    const float place = light * largestCode;
    const auto index = static_cast<std::size_t>(place);
    const float part = place - static_cast<float>(index);
    return codes[index] + part * (codes[index + 1] - codes[index]);
}

template <typename Code>
void readLine(const cv::Mat& mat, int y, ResizeLight light, Sample* line)
{
    constexpr int most = std::numeric_limits<Code>::max();
    constexpr std::size_t step = largestCode / most;
    const std::vector<float>& lightTable = lights();
    const int channels = mat.channels();
    const auto colours = static_cast<std::size_t>(std::min(channels, 3));
    const Code* code = mat.ptr<Code>(y);
    for (int x = 0; x < mat.cols; ++x, code += channels) {
        Sample& sample = line[x];
        sample = {};
        const float alpha = channels == 4 ? static_cast<float>(code[alphaChannel]) / most : 1.0F;
        for (std::size_t i = 0; i < colours; ++i) {
            const float value = light == ResizeLight::Linear
                                    ? lightTable[static_cast<std::size_t>(code[i]) * step]
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
void writeLine(const Sample* line, ResizeLight light, int y, cv::Mat& mat)
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
            code[i] = rounded<Code>(light == ResizeLight::Linear ? interpolatedCode(value) : value);
        }
        if (channels == 4) {
            code[alphaChannel] = rounded<Code>(alpha);
        }
    }
}

template <typename Code>
void resizeByKernel(const cv::Mat& mat, Kernel kernel, ResizeLight light, cv::Mat& result)
{
    KernelResampling::resample(
        {mat.cols, mat.rows}, {result.cols, result.rows}, {kernel, kernel},
        [&](int y, Sample* line) { readLine<Code>(mat, y, light, line); },
        [&](int y, const Sample* line) { writeLine<Code>(line, light, y, result); });
}

template <typename Code>
void resizeByArea(const cv::Mat& mat, ResizeLight light, cv::Mat& result)
{
    cv::Mat samples(mat.size(), CV_32FC4);
    for (int y = 0; y < samples.rows; ++y) {
        readLine<Code>(mat, y, light, samples.ptr<Sample>(y));
    }
    cv::Mat scaled;
    cv::resize(samples, scaled, result.size(), 0.0, 0.0, cv::INTER_AREA);
    for (int y = 0; y < scaled.rows; ++y) {
        writeLine<Code>(scaled.ptr<Sample>(y), light, y, result);
    }
}

template <typename Code>
cv::Mat resizedBySamples(const cv::Mat& mat, cv::Size size, const Resampling& resampling)
{
    cv::Mat result(size, mat.type());
    if (resampling.filter == ResizeFilter::Area) {
        resizeByArea<Code>(mat, resampling.light, result);
    } else {
        const bool isLanczos = resampling.filter == ResizeFilter::Lanczos;
        resizeByKernel<Code>(mat, isLanczos ? Kernel::Lanczos : Kernel::Cubic, resampling.light,
                             result);
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

cv::Mat filteredResize(const cv::Mat& mat, cv::Size size, const Resampling& resampling)
{
    if (resampling.filter == ResizeFilter::Nearest) {
        return resizedByOpenCv(mat, size, cv::INTER_NEAREST_EXACT);
    }
    if (resampling.filter == ResizeFilter::Area && resampling.light == ResizeLight::AsCoded) {
        return resizedByOpenCv(mat, size, cv::INTER_AREA);
    }
    return mat.depth() == CV_16U ? resizedBySamples<std::uint16_t>(mat, size, resampling)
                                 : resizedBySamples<std::uint8_t>(mat, size, resampling);
}
