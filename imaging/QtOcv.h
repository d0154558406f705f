#pragma once

#include <QImage>

#include <opencv2/core/mat.hpp>

/// Conversions between Qt's images and OpenCV's matrices.
///
/// Pure functions without state: callable from any thread. They report no errors; what cannot be
/// converted gives an empty matrix or a null image. Qt's 32-bit formats are assumed to have the
/// memory order B, G, R, A, as on little-endian machines.
///
/// Images of the formats Indexed8 and Mono are converted by their indexes, as grey levels; their
/// colour tables are ignored.
namespace QtOcv {

/// The order of the colour channels in a matrix.
enum MatColorOrder {
    Bgr = 0, ///< B, G, R or B, G, R, A.
    Rgb = 1, ///< R, G, B or R, G, B, A.
    Argb = 2 ///< A, R, G, B; four channels only.
};

/// The image's own pixels as a matrix of eight-bit samples, without a copy.
///
/// The image must outlive the matrix, and writing to the matrix writes to the image and to all
/// that share its pixels. `order`, unless null, receives the order of the channels; one-channel
/// images leave it untouched. A null image, and one of another format than these, gives an empty
/// matrix: Indexed8, Alpha8, Grayscale8 (one channel), RGB888 (three), RGB32, ARGB32,
/// ARGB32_Premultiplied, RGBX8888, RGBA8888 and RGBA8888_Premultiplied (four).
[[nodiscard]] cv::Mat imageToMat_shared(const QImage& img, QtOcv::MatColorOrder* order);

/// The matrix's own samples as an image, without a copy; the matrix must outlive the image.
///
/// Eight-bit matrices of four channels take the hint when it is one of the six 32-bit formats
/// above, else ARGB32; of three channels always RGB888; of one channel the hint when it is
/// Indexed8, Alpha8 or Grayscale8, else Indexed8, which gets a table of the 256 greys. No other
/// type may be passed. An empty matrix gives a null image.
[[nodiscard]] QImage matToImage_shared(const cv::Mat& mat, QImage::Format formatHint);

/// An independent matrix of the image's pixels.
///
/// @param requiredMatType  an OpenCV type code of depth CV_8U, CV_16U or CV_32F. Its channel count
///     may be 1, 3 or 4, or CV_CN_MAX to keep the image's own (-8 says that for CV_8U). Samples
///     become 0 to 65025 in CV_16U (times 255) and 0 to 1 in CV_32F.
/// @param requiredOrder  the order of the result's channels.
///
/// Alpha that the image does not have is filled in as an eight-bit sample before the samples are
/// scaled. In the orders Bgr and Rgb it is a full sample: 255, 65025, 1. In the order Argb it is
/// the target depth's own full value, saturated to eight bits and scaled: 255 in CV_8U, 65025 in
/// CV_16U and 1/255 in CV_32F. A null image gives an empty matrix.
[[nodiscard]] cv::Mat imageToMat(const QImage& img, int requiredMatType,
                                 QtOcv::MatColorOrder requiredOrder);

/// An independent image of the matrix's samples.
///
/// @param mat  one, three or four channels of depth CV_8U, CV_16U (0 to 65025 or more) or CV_32F
///     (0 to 1); another number of channels gives a null image.
/// @param order  the order of the matrix's channels.
/// @param formatHint  the format of the result. Format_Invalid leaves the choice to the matrix:
///     Indexed8 for one channel, RGB888 for three, ARGB32 for four.
///
/// Four channels in Rgb order need a hint that can hold four channels; with a hint for fewer
/// (greys, RGB888) red and blue come out exchanged. An empty matrix gives a null image.
[[nodiscard]] QImage matToImage(const cv::Mat& mat, QtOcv::MatColorOrder order,
                                QImage::Format formatHint);

} // namespace QtOcv
