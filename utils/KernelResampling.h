#pragma once

#include <QSize>

#include <array>
#include <functional>

/// Scales pictures of any sample type by convolution.
///
/// Pixels beyond an edge count as the edge's own. Along an axis that shrinks, the kernel is
/// stretched by the factor, so that fine patterns do not alias. Without state: callable from any
/// thread.
namespace KernelResampling {

/// Four channels of a pixel. If one of them is alpha, the others must be premultiplied by it.
using Sample = std::array<float, 4>;

enum class Kernel {
    Cubic,  ///< cubic convolution with the slope -0.5
    Lanczos ///< three lobes
};

/// One for each axis.
struct Kernels
{
    Kernel horizontal = Kernel::Lanczos;
    Kernel vertical = Kernel::Lanczos;
};

/// Fills a line of the source picture; `line` has room for its width.
using ReadLine = std::function<void(int y, Sample* line)>;
/// Takes a line of the scaled picture. Negative lobes of the kernels overshoot at hard edges: the
/// samples may lie outside the range of the source's.
using WriteLine = std::function<void(int y, const Sample* line)>;

/// Scales a picture: each of its lines is read once, and each of the result's written once, in
/// order. No side of either size may be below 1. Throws std::bad_alloc where memory runs out; it
/// takes as much as a picture of the result's width and the source's height.
void resample(const QSize& source, const QSize& target, const Kernels& kernels,
              const ReadLine& readLine, const WriteLine& writeLine);

} // namespace KernelResampling
