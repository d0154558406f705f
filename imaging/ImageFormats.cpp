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

/// Whether it is a known format of which that is true.
bool is(const QString& suffix, bool Format::*property)
{
    const QString lower = suffix.toLower();
    return std::any_of(std::begin(formats), std::end(formats), [&](const Format& format) {
        return format.*property && lower == QLatin1String(format.suffix);
    });
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
    return writable().contains(suffix.toLower().toUtf8());
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
