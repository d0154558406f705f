#include "imaging/QtOcv.h"

#include "imaging/MatChannels.h"

#include <opencv2/core.hpp>

#include <QVector>

namespace QtOcv {
namespace {

constexpr double fromByte = 0.00392156862745098;
constexpr double toByte = 255.0;

/// The format, among those that a matrix can be laid over (or that lead to one), to convert an
/// image of the given format to.
QImage::Format closestFormat(QImage::Format format)
{
    switch (format) {
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Indexed8:
        return QImage::Format_Indexed8;
    case QImage::Format_RGB32:
    case QImage::Format_RGB16:
        return QImage::Format_RGB32;
    case QImage::Format_ARGB32_Premultiplied:
    case QImage::Format_ARGB8565_Premultiplied:
    case QImage::Format_ARGB6666_Premultiplied:
    case QImage::Format_ARGB8555_Premultiplied:
    case QImage::Format_ARGB4444_Premultiplied:
        return QImage::Format_ARGB32_Premultiplied;
    case QImage::Format_RGB888:
    case QImage::Format_RGB666:
    case QImage::Format_RGB555:
    case QImage::Format_RGB444:
        return QImage::Format_RGB888;
    case QImage::Format_RGBX8888:
    case QImage::Format_RGBA8888:
    case QImage::Format_RGBA8888_Premultiplied:
    case QImage::Format_Alpha8:
    case QImage::Format_Grayscale8:
        return format;
    default:
        return QImage::Format_ARGB32;
    }
}

bool isBgraFormat(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32 ||
           format == QImage::Format_ARGB32_Premultiplied;
}

bool isRgbaFormat(QImage::Format format)
{
    return format == QImage::Format_RGBX8888 || format == QImage::Format_RGBA8888 ||
           format == QImage::Format_RGBA8888_Premultiplied;
}

bool isOneChannelFormat(QImage::Format format)
{
    return format == QImage::Format_Indexed8 || format == QImage::Format_Alpha8 ||
           format == QImage::Format_Grayscale8;
}

QVector<QRgb> greyTable()
{
    QVector<QRgb> table;
    table.reserve(256);
    for (int level = 0; level < 256; ++level) {
        table.append(qRgb(level, level, level));
    }
    return table;
}

double alphaFillFor(int depth)
{
    switch (depth) {
    case CV_8U:
        return 255.0;
    case CV_16U:
        return 65535.0;
    default:
        return 1.0;
    }
}

/// The format with the memory layout of a matrix with this many channels.
QImage::Format formatFor(int channels, MatColorOrder order, QImage::Format hint)
{
    if (channels == 1) {
        return isOneChannelFormat(hint) ? hint : QImage::Format_Indexed8;
    }
    if (channels == 3) {
        return QImage::Format_RGB888;
    }
    const QImage::Format closest = closestFormat(hint);
    if (isBgraFormat(closest) || isRgbaFormat(closest)) {
        return closest;
    }
    return order == Rgb ? QImage::Format_RGBA8888 : QImage::Format_ARGB32;
}

cv::Mat inImageOrder(const cv::Mat& mat, MatColorOrder order, QImage::Format hint)
{
    if (mat.channels() == 3) {
        return order == Bgr ? withChannels(mat, 3, Bgr, Rgb, 0.0) : mat;
    }
    if (mat.channels() == 4) {
        const MatColorOrder needed = isRgbaFormat(hint) ? Rgb : Bgr;
        return order == needed ? mat : reordered(mat, order, needed);
    }
    return mat;
}

cv::Mat inBytes(const cv::Mat& mat)
{
    if (mat.depth() == CV_8U) {
        return mat;
    }
    cv::Mat bytes;
    mat.convertTo(bytes, CV_8UC(mat.channels()), mat.depth() == CV_16U ? fromByte : toByte);
    return bytes;
}

} // namespace

cv::Mat imageToMat_shared(const QImage& img, QtOcv::MatColorOrder* order)
{
    const QImage::Format format = img.format();
    const bool hasOrder =
        isBgraFormat(format) || isRgbaFormat(format) || format == QImage::Format_RGB888;
    if (img.isNull() || (!hasOrder && !isOneChannelFormat(format))) {
        return {};
    }
    if (hasOrder && order != nullptr) {
        *order = isBgraFormat(format) ? Bgr : Rgb;
    }
    // constBits, because bits() would give the image pixels of its own first.
    return cv::Mat(img.height(), img.width(), CV_8UC(img.depth() / 8),
                   const_cast<uchar*>(img.constBits()), static_cast<size_t>(img.bytesPerLine()));
}

QImage matToImage_shared(const cv::Mat& mat, QImage::Format formatHint)
{
    if (mat.empty()) {
        return {};
    }
    QImage::Format format = formatHint;
    if (mat.type() == CV_8UC4) {
        format = isBgraFormat(format) || isRgbaFormat(format) ? format : QImage::Format_ARGB32;
    } else if (mat.type() == CV_8UC3) {
        format = QImage::Format_RGB888;
    } else if (mat.type() == CV_8UC1) {
        format = isOneChannelFormat(format) ? format : QImage::Format_Indexed8;
    }

    QImage image(mat.data, mat.cols, mat.rows, static_cast<int>(mat.step[0]), format);
    if (format == QImage::Format_Indexed8) {
        image.setColorTable(greyTable());
    }
    return image;
}

cv::Mat imageToMat(const QImage& img, int requiredMatType, QtOcv::MatColorOrder requiredOrder)
{
    if (img.isNull()) {
        return {};
    }
    const QImage::Format format = closestFormat(img.format());
    const QImage supported = format == img.format() ? img : img.convertToFormat(format);
    MatColorOrder order = Bgr;
    const cv::Mat shared = imageToMat_shared(supported, &order);

    const int depth = CV_MAT_DEPTH(requiredMatType);
    const int requiredChannels = CV_MAT_CN(requiredMatType);
    const int channels = requiredChannels == CV_CN_MAX ? shared.channels() : requiredChannels;
    const cv::Mat adjusted =
        withChannels(shared, channels, order, requiredOrder, alphaFillFor(depth));
    if (depth == CV_8U) {
        return adjusted.empty() ? shared.clone() : adjusted;
    }

    const cv::Mat& bytes = adjusted.empty() ? shared : adjusted;
    cv::Mat result;
    bytes.convertTo(result, CV_MAKETYPE(depth, bytes.channels()),
                    depth == CV_16U ? toByte : fromByte);
    return result;
}

QImage matToImage(const cv::Mat& mat, QtOcv::MatColorOrder order, QImage::Format formatHint)
{
    const int channels = mat.channels();
    if (mat.empty() || (channels != 1 && channels != 3 && channels != 4)) {
        return {};
    }
    const bool isKnownHint = formatHint >= 0 && formatHint < QImage::NImageFormats;
    const QImage::Format hint = isKnownHint ? formatHint : QImage::Format_ARGB32;
    const QImage::Format format = formatFor(channels, order, hint);
    const cv::Mat bytes = inBytes(inImageOrder(mat, order, hint));
    const QImage shared = matToImage_shared(bytes, format);
    if (hint == QImage::Format_Invalid || hint == format) {
        return shared.copy();
    }
    return shared.convertToFormat(hint);
}

} // namespace QtOcv
