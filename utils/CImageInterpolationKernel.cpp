#include "utils/CImageInterpolationKernel.h"

#include <cmath>

namespace {

constexpr int triangularSize = 4;
constexpr double pi = 3.14159265358979323846;

float cubic(float x, float a)
{
    const float d = std::abs(x);
    if (d <= 1.0F) {
        return (a + 2.0F) * d * d * d - (a + 3.0F) * d * d + 1.0F;
    }
    if (d < 2.0F) {
        return a * d * d * d - 5.0F * a * d * d + 8.0F * a * d - 4.0F * a;
    }
    return 0.0F;
}

float triangle(float x)
{
    return 1.0F - std::abs(x);
}

float bell(float x)
{
    const float d = std::abs(x);
    if (d <= 0.5F) {
        return 0.75F - d * d;
    }
    if (d < 1.5F) {
        return 0.5F * (d - 1.5F) * (d - 1.5F);
    }
    return 0.0F;
}

float lanczos(float position, int a)
{
    const double x = static_cast<double>(position);
    if (std::abs(x) < 0.0001) {
        return 1.0F;
    }
    if (std::abs(x) >= a) {
        return 0.0F;
    }
    return static_cast<float>(a * std::sin(pi * x) * std::sin(pi * x / a) / (pi * pi * x * x));
}

} // namespace

CBicubicKernel::CBicubicKernel(int size, float a)
    : CImageInterpolationKernel<float>(size)
{
    fill(2.0F, [a](float x) { return cubic(x, a); });
}

CTriangularKernel::CTriangularKernel()
    : CImageInterpolationKernel<float>(triangularSize)
{
    fill(1.0F, triangle);
}

CBellBicubicKernel::CBellBicubicKernel(int size)
    : CImageInterpolationKernel<float>(size)
{
    fill(1.5F, bell);
}

CLanczosKernel::CLanczosKernel(int size, int a)
    : CImageInterpolationKernel<float>(size)
{
    fill(static_cast<float>(a), [a](float x) { return lanczos(x, a); });
}
