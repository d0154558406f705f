#pragma once

#include <QtGlobal>

#include <cstddef>
#include <numeric>
#include <vector>

/// A square table of convolution coefficients.
///
/// The table holds `size` x `size` values and is all zero until a subclass fills it. Tables are
/// values without shared state: a const one may be read by any number of threads.
template <typename T>
class CImageInterpolationKernelBase
{
public:
    /// A table of zeros. A negative size counts as 0.
    explicit CImageInterpolationKernelBase(int size)
        : _size(qMax(0, size))
        , _coefficients(static_cast<std::size_t>(_size) * static_cast<std::size_t>(_size), T(0))
    {}
    virtual ~CImageInterpolationKernelBase() = default;

    /// Width and height of the table.
    [[nodiscard]] virtual int size() const { return _size; }

    /// The coefficient in column x and row y, both from 0 to size() - 1.
    ///
    /// A position outside the table ends the program with an assertion in every build type, because
    /// any result computed from a value outside the table would be wrong too.
    [[nodiscard]] virtual T coeff(int x, int y) const { return _coefficients[index(x, y)]; }

protected:
    CImageInterpolationKernelBase(const CImageInterpolationKernelBase&) = default;
    CImageInterpolationKernelBase& operator=(const CImageInterpolationKernelBase&) = default;

    void setCoeff(int x, int y, T value) { _coefficients[index(x, y)] = value; }

    /// Divides every coefficient by the sum of all, so that the table sums to 1 and convolving
    /// keeps the brightness of a picture. A table whose sum is zero stays as it is (a table of one
    /// sample holds only the kernel's zero end).
    void normalize()
    {
        const T sum = std::accumulate(_coefficients.cbegin(), _coefficients.cend(), T(0));
        if (qFuzzyIsNull(sum)) {
            return;
        }
        for (T& coefficient : _coefficients) {
            coefficient /= sum;
        }
    }

private:
    [[nodiscard]] std::size_t index(int x, int y) const
    {
        if (x < 0 || y < 0 || !(x < _size && y < _size)) {
            qt_assert_x("coeff", "x < _size && y < _size", __FILE__, __LINE__);
        }
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(_size) +
               static_cast<std::size_t>(x);
    }

    int _size;
    std::vector<T> _coefficients;
};

/// A table made from a function of one variable that is applied along both axes.
///
/// Coefficient (i, j) is k(x_i) * k(x_j), where x_i runs from -support up to, and not including,
/// support in `size` equal steps; the middle of the function therefore stands at index size / 2.
/// The finished table is normalised to the sum 1.
template <typename T>
class CImageInterpolationKernel : public CImageInterpolationKernelBase<T>
{
public:
    using CImageInterpolationKernelBase<T>::CImageInterpolationKernelBase;

protected:
    /// Fills and normalises the table from `function`, which is zero outside -support to support.
    template <typename Function>
    void fill(T support, Function function)
    {
        const int size = this->size();
        std::vector<T> samples;
        samples.reserve(static_cast<std::size_t>(size));
        for (int i = 0; i < size; ++i) {
            samples.push_back(function(T(2) * support * (T(i) / T(size) - T(0.5))));
        }

        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                this->setCoeff(x, y,
                               samples[static_cast<std::size_t>(x)] *
                                   samples[static_cast<std::size_t>(y)]);
            }
        }
        this->normalize();
    }
};

/// Cubic convolution, support 2. The parameter `a` is the slope at 1: -0.5 follows quadratic
/// functions exactly, -0.75 and -1 sharpen.
class CBicubicKernel : public CImageInterpolationKernel<float>
{
public:
    CBicubicKernel(int size, float a);
};

/// The tent function 1 - |x|, support 1, in a table of four by four. Kept, as CBellBicubicKernel
/// is, for softer scaling than the programs offer: they scale with the cubic and the Lanczos
/// kernel.
class CTriangularKernel : public CImageInterpolationKernel<float>
{
public:
    CTriangularKernel();
};

/// The quadratic bell (the box function convolved with itself twice), support 1.5. It smooths.
class CBellBicubicKernel : public CImageInterpolationKernel<float>
{
public:
    explicit CBellBicubicKernel(int size);
};

/// The sinc function windowed by a wider sinc, support `a` (2 or 3 in practice).
class CLanczosKernel : public CImageInterpolationKernel<float>
{
public:
    CLanczosKernel(int size, int a);
};
