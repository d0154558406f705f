#include "imaging/ImageFormats.h"

#include <QImageWriter>

#include <algorithm>
#include <iterator>

namespace {

struct Format
{
    const char* suffix;
    bool hasQuality;
    bool hasDepth;
    bool hasHdr;
};

constexpr Format formats[] = {
    {"jpg", true, false, false},  {"jpeg", true, false, false}, {"png", false, true, true},
    {"tif", false, true, true},   {"tiff", false, true, true},  {"bmp", false, false, false},
    {"webp", true, false, false}, {"avif", true, true, false},  {"jxl", true, true, false},
};

using Property = decltype(&Format::hasQuality);

/// Whether the suffix is a known format with this property.
bool is(const QString& suffix, Property property)
{
    const QString lower = suffix.toLower();
    return std::any_of(std::begin(formats), std::end(formats), [&](const Format& format) {
        return format.*property && lower == QLatin1String(format.suffix);
    });
}

/// True for formats of Qt itself, for which no plugin needs to be queried: a query loads all
/// plugins, and with them libraries for vector graphics and widgets.
bool isAlwaysWritable(const QString& suffix)
{
    return ImageFormats::isJpeg(suffix) || suffix == QLatin1String("png") ||
           suffix == QLatin1String("bmp");
}

const QList<QByteArray>& writable()
{
    static const QList<QByteArray> list = QImageWriter::supportedImageFormats();
    return list;
}

} // namespace

QStringList ImageFormats::suffixes()
{
    QStringList suffixes;
    for (const Format& format : formats) {
        if (writable().contains(format.suffix)) {
            suffixes += QString::fromLatin1(format.suffix);
        }
    }
    return suffixes;
}

bool ImageFormats::canWrite(const QString& suffix)
{
    const QString lower = suffix.toLower();
    return isAlwaysWritable(lower) || writable().contains(lower.toUtf8());
}

bool ImageFormats::isJpeg(const QString& suffix)
{
    const QString lower = suffix.toLower();
    return lower == QLatin1String("jpg") || lower == QLatin1String("jpeg");
}

bool ImageFormats::hasQuality(const QString& suffix)
{
    return is(suffix, &Format::hasQuality);
}

bool ImageFormats::hasDepth(const QString& suffix)
{
    return is(suffix, &Format::hasDepth);
}

bool ImageFormats::hasHdr(const QString& suffix)
{
    return is(suffix, &Format::hasHdr);
}
