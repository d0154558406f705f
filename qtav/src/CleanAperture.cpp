#include "qtav/src/CleanAperture.h"

#include "qtav/src/Mp4Boxes.h"

#include <QByteArray>
#include <QtEndian>

#include <cmath>

namespace QtAV {

namespace {

/// A larger box is not of this kind.
constexpr qint64 largestDescription = 1 << 20;

/// Size of the fixed part of a box in `stsd` and of a video sample entry, before the boxes inside.
constexpr qint64 listHeaderBytes = 8;
constexpr qint64 entryHeaderBytes = 8 + 78;

/// The track's number, which follows the header's times of 4 or 8 bytes each.
int trackNumber(Mp4Boxes& boxes, const Mp4Box& header)
{
    const QByteArray data = boxes.read(header.begin, 24);
    if (data.isEmpty()) {
        return -1;
    }
    return qFromBigEndian<qint32>(data.constData() + (data.at(0) == 1 ? 20 : 12));
}

std::optional<Mp4Box> descriptionOf(Mp4Boxes& boxes, qint64 fileBytes, int track)
{
    std::optional<Mp4Box> movie = boxes.find("moov", {0, fileBytes});
    while (movie) {
        const std::optional<Mp4Box> candidate = boxes.find("trak", *movie);
        if (!candidate) {
            return std::nullopt;
        }
        movie->begin = candidate->end;
        const std::optional<Mp4Box> header = boxes.find("tkhd", *candidate);
        if (header && trackNumber(boxes, *header) == track) {
            return boxes.find(*candidate, "mdia", "minf", "stbl", "stsd");
        }
    }
    return std::nullopt;
}

/// A fraction of two 32-bit numbers.
std::optional<double> fraction(const QByteArray& data, int index)
{
    const auto numerator = qFromBigEndian<qint32>(data.constData() + 8 * index);
    const auto denominator = qFromBigEndian<qint32>(data.constData() + 8 * index + 4);
    return denominator > 0 ? std::optional(double(numerator) / denominator) : std::nullopt;
}

std::optional<QRect> apertureFrom(const QByteArray& data, const QSize& stored)
{
    constexpr int bytes = 32;
    if (data.size() < bytes) {
        return std::nullopt;
    }
    const std::optional<double> width = fraction(data, 0);
    const std::optional<double> height = fraction(data, 1);
    const std::optional<double> x = fraction(data, 2);
    const std::optional<double> y = fraction(data, 3);
    if (!width || !height || !x || !y) {
        return std::nullopt;
    }
    // The offsets are those of the centre.
    const QRect aperture(static_cast<int>(std::lround((stored.width() - *width) / 2.0 + *x)),
                         static_cast<int>(std::lround((stored.height() - *height) / 2.0 + *y)),
                         static_cast<int>(std::lround(*width)),
                         static_cast<int>(std::lround(*height)));
    const QRect whole({0, 0}, stored);
    const bool isPart = !aperture.isEmpty() && whole.contains(aperture) && aperture != whole;
    return isPart ? std::optional(aperture) : std::nullopt;
}

} // namespace

std::optional<QRect> cleanApertureOf(FileInput& input, int track, const QSize& stored)
{
    Mp4Boxes boxes(input);
    const std::optional<Mp4Box> list = descriptionOf(boxes, input.size(), track);
    if (!list || list->end - list->begin > largestDescription) {
        return std::nullopt;
    }
    // FFmpeg decodes by the first entry.
    const Mp4Box entry{list->begin + listHeaderBytes + entryHeaderBytes, list->end};
    const std::optional<Mp4Box> aperture = boxes.find("clap", entry);
    if (!aperture || aperture->end - aperture->begin < 32) {
        return std::nullopt;
    }
    return apertureFrom(boxes.read(aperture->begin, 32), stored);
}

} // namespace QtAV
