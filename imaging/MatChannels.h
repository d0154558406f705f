#pragma once

#include "imaging/QtOcv.h"

/// Channel counts and orders of matrices: the inner half of QtOcv, used by nothing else.
///
/// Pure functions. Each returns an independent matrix of the argument's depth, or an empty one
/// where the argument already is what is asked for (`reordered` excepted), so that the caller
/// decides whether a copy is needed at all.
namespace QtOcv {

/// A new four-channel matrix in the order `to`; a plain copy when the orders are the same.
[[nodiscard]] cv::Mat reordered(const cv::Mat& mat, MatColorOrder from, MatColorOrder to);

/// The matrix with `channels` (1, 3 or 4) channels in the order `to`.
///
/// @param mat        eight-bit, 1, 3 or 4 channels.
/// @param from       its order; of no account for one channel. Three channels are never Argb.
/// @param alphaFill  the alpha that is put beside channels without any where `to` is Argb; it is
///                   saturated to the matrix's depth. The other orders fill in a full sample.
/// @return empty when nothing has to be done, and for another number of channels.
[[nodiscard]] cv::Mat withChannels(const cv::Mat& mat, int channels, MatColorOrder from,
                                   MatColorOrder to, double alphaFill);

} // namespace QtOcv
