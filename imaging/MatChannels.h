#pragma once

#include "imaging/QtOcv.h"

/// Channel counts and orders of matrices: the implementation of QtOcv, used by nothing else.
///
/// Pure functions. Each returns an independent matrix of the argument's depth, or an empty one if
/// the argument already has the requested form (`reordered` excepted), so that the caller decides
/// whether to copy.
namespace QtOcv {

/// A new four-channel matrix in the order `to`; a plain copy when the orders are the same.
[[nodiscard]] cv::Mat reordered(const cv::Mat& mat, MatColorOrder from, MatColorOrder to);

/// The matrix with `channels` (1, 3 or 4) channels in the order `to`.
///
/// @param mat        eight-bit, 1, 3 or 4 channels.
/// @param from       its order; ignored for one channel. Three channels are never Argb.
/// @param alphaFill  the alpha to add if `to` is Argb and the matrix has none; it is saturated to
///     the matrix's depth. The other orders add a full sample.
/// @return empty if nothing has to be done, and for another number of channels.
[[nodiscard]] cv::Mat withChannels(const cv::Mat& mat, int channels, MatColorOrder from,
                                   MatColorOrder to, double alphaFill);

} // namespace QtOcv
