#include "qtav/src/PictureLimit.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <climits>
#include <thread>

namespace QtAV {

namespace {

/// For the images: red, green, blue and one more byte.
constexpr qint64 imagePixelBytes = 4;

/// Luma alone is the minimum for a decoded pixel in common formats.
constexpr qint64 leastPixelBytes = 1;

/// Everything that is read from files of any kind fits into this.
constexpr qint64 leastBlock = qint64(256) << 20;

qint64 pixelsOf(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

int coreCount()
{
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

QString sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

} // namespace

/// The format that most videos have stands for an unknown one.
qint64 PictureLimit::decodedBytes(AVPixelFormat format, const QSize& stored)
{
    const AVPixFmtDescriptor* const known = av_pix_fmt_desc_get(format);
    const AVPixFmtDescriptor* const description =
        known ? known : av_pix_fmt_desc_get(AV_PIX_FMT_YUV420P);
    return pixelsOf(stored) * av_get_padded_bits_per_pixel(description) / 8;
}

qint64 PictureLimit::bytesOf(AVPixelFormat format, const QSize& stored, const QSize& shown)
{
    return decodedBytes(format, stored) + pixelsOf(shown) * imagePixelBytes;
}

/// The deepest pictures take twice the memory of their images.
size_t PictureLimit::mostAtOnce() const
{
    return static_cast<size_t>(std::clamp<qint64>(m_bytes / 4 * 3, leastBlock, INT_MAX));
}

qint64 PictureLimit::mostPixels() const
{
    return m_bytes / (imagePixelBytes + leastPixelBytes);
}

int PictureLimit::threadsFor(AVPixelFormat format, const QSize& stored, int wanted) const
{
    const int threads = wanted > 0 ? wanted : coreCount();
    const qint64 room = m_bytes / std::max<qint64>(1, decodedBytes(format, stored));
    return room >= threads ? wanted : static_cast<int>(std::max<qint64>(1, room));
}

qint64 PictureLimit::heldBytes(AVPixelFormat format, const QSize& stored, int threads) const
{
    return 2 * m_bytes + (threads > 0 ? threads : coreCount()) * decodedBytes(format, stored);
}

QString PictureLimit::heldRefusal(qint64 bytes, qint64 most)
{
    return QCoreApplication::translate("QtAV::VideoDecoder",
                                       "The video needs too many large pictures at once: they take "
                                       "%1 of memory, and %2 are allowed.")
        .arg(sizeText(bytes), sizeText(most));
}

QString PictureLimit::refusal(const QSize& stored, qint64 bytes) const
{
    return QCoreApplication::translate(
               "QtAV::VideoDecoder",
               "The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.")
        .arg(stored.width())
        .arg(stored.height())
        .arg(sizeText(bytes), sizeText(m_bytes));
}

} // namespace QtAV
