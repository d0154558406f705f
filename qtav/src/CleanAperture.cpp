#include "qtav/src/CleanAperture.h"

#include <QByteArray>
#include <QtEndian>

#include <cmath>
#include <cstring>

namespace QtAV {

namespace {

/// Larger ones are no boxes of this kind.
constexpr qint64 LargestDescription = 1 << 20;

/// More boxes beside each other are not looked through.
constexpr int MostBoxes = 1000;

/// The fixed part of a box in `stsd`, and of what describes pictures in it, up to the boxes inside.
constexpr qint64 ListHeaderBytes = 8;
constexpr qint64 EntryHeaderBytes = 8 + 78;

/// A box's content in the file.
struct Box
{
    qint64 begin = 0;
    qint64 end = 0;
};

class Boxes
{
public:
    explicit Boxes(FileInput& input)
        : m_input(input)
    {}

    QByteArray read(qint64 position, int bytes)
    {
        QByteArray data(bytes, '\0');
        int done = 0;
        while (done < bytes) {
            const int got = m_input.readAt(
                position + done, reinterpret_cast<uint8_t*>(data.data()) + done, bytes - done);
            if (got <= 0)
                return {};
            done += got;
        }
        return data;
    }

    /// The next box of a name at or behind a position; `after` is where it ends.
    std::optional<Box> find(const char* name, const Box& within, qint64* after = nullptr)
    {
        qint64 position = within.begin;
        for (int count = 0; count < MostBoxes && position + 8 <= within.end; ++count) {
            const QByteArray header = read(position, 8);
            if (header.isEmpty())
                return std::nullopt;
            qint64 headerBytes = 8;
            qint64 bytes = qFromBigEndian<quint32>(header.constData());
            if (bytes == 1) {
                const QByteArray large = read(position + 8, 8);
                headerBytes = 16;
                bytes = large.isEmpty() ? 0 : qFromBigEndian<qint64>(large.constData());
            } else if (bytes == 0) {
                bytes = within.end - position;
            }
            if (bytes < headerBytes || bytes > within.end - position)
                return std::nullopt;
            if (std::memcmp(header.constData() + 4, name, 4) == 0) {
                if (after)
                    *after = position + bytes;
                return Box{position + headerBytes, position + bytes};
            }
            position += bytes;
        }
        return std::nullopt;
    }

    template <typename... Names>
    std::optional<Box> find(const Box& within, const char* name, Names... names)
    {
        const std::optional<Box> found = find(name, within);
        if constexpr (sizeof...(names) == 0)
            return found;
        else
            return found ? find(*found, names...) : std::nullopt;
    }

private:
    FileInput& m_input;
};

/// The track's number, behind the header's times, which have 4 or 8 bytes each.
int trackNumber(Boxes& boxes, const Box& header)
{
    const QByteArray data = boxes.read(header.begin, 24);
    if (data.isEmpty())
        return -1;
    return qFromBigEndian<qint32>(data.constData() + (data.at(0) == 1 ? 20 : 12));
}

std::optional<Box> descriptionOf(Boxes& boxes, qint64 fileBytes, int track)
{
    std::optional<Box> movie = boxes.find("moov", {0, fileBytes});
    for (qint64 after = 0; movie; movie->begin = after) {
        const std::optional<Box> candidate = boxes.find("trak", *movie, &after);
        if (!candidate)
            return std::nullopt;
        const std::optional<Box> header = boxes.find("tkhd", *candidate);
        if (header && trackNumber(boxes, *header) == track)
            return boxes.find(*candidate, "mdia", "minf", "stbl", "stsd");
    }
    return std::nullopt;
}

/// A fraction of two numbers of 32 bits.
std::optional<double> fraction(const QByteArray& data, int index)
{
    const auto numerator = qFromBigEndian<qint32>(data.constData() + 8 * index);
    const auto denominator = qFromBigEndian<qint32>(data.constData() + 8 * index + 4);
    return denominator > 0 ? std::optional(double(numerator) / denominator) : std::nullopt;
}

std::optional<QRect> apertureFrom(const QByteArray& data, const QSize& stored)
{
    constexpr int Bytes = 32;
    if (data.size() < Bytes)
        return std::nullopt;
    const std::optional<double> width = fraction(data, 0);
    const std::optional<double> height = fraction(data, 1);
    const std::optional<double> x = fraction(data, 2);
    const std::optional<double> y = fraction(data, 3);
    if (!width || !height || !x || !y)
        return std::nullopt;
    // The offsets are those of the middle.
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
    Boxes boxes(input);
    const std::optional<Box> list = descriptionOf(boxes, input.size(), track);
    if (!list || list->end - list->begin > LargestDescription)
        return std::nullopt;
    // The first entry is the one that FFmpeg decodes by.
    const Box entry{list->begin + ListHeaderBytes + EntryHeaderBytes, list->end};
    const std::optional<Box> aperture = boxes.find("clap", entry);
    if (!aperture || aperture->end - aperture->begin < 32)
        return std::nullopt;
    return apertureFrom(boxes.read(aperture->begin, 32), stored);
}

} // namespace QtAV
