#include "qtav/src/Mp4Boxes.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace QtAV {

namespace {

/// Maximum number of boxes examined side by side.
constexpr int mostBoxes = 1000;

/// Up to this number the memory for declared pictures is harmless: truncated files declare more
/// than they hold.
constexpr qint64 harmlessPictures = 1000000;

quint32 numberAt(const QByteArray& data, int position)
{
    return qFromBigEndian<quint32>(data.constData() + position);
}

bool isVideo(Mp4Boxes& boxes, const Mp4Box& track)
{
    const std::optional<Mp4Box> handler = boxes.find(track, "mdia", "hdlr");
    const QByteArray head = handler ? boxes.read(handler->begin, 12) : QByteArray();
    return head.endsWith("vide");
}

/// Total size of the pictures if all have one size; 0 if each has its own, since those sizes are
/// stored in the file.
qint64 declaredBytes(Mp4Boxes& boxes, const Mp4Box& track, qint64& pictures)
{
    const std::optional<Mp4Box> sizes = boxes.find(track, "mdia", "minf", "stbl", "stsz");
    const QByteArray head = sizes ? boxes.read(sizes->begin, 12) : QByteArray();
    if (head.isEmpty()) {
        return 0;
    }
    pictures = numberAt(head, 8);
    return pictures * qint64(numberAt(head, 4));
}

} // namespace

QByteArray Mp4Boxes::read(qint64 position, int bytes)
{
    QByteArray data(bytes, '\0');
    int done = 0;
    while (done < bytes) {
        const int got = m_input.readAt(
            position + done, reinterpret_cast<uint8_t*>(data.data()) + done, bytes - done);
        if (got <= 0) {
            return {};
        }
        done += got;
    }
    return data;
}

std::optional<Mp4Box> Mp4Boxes::find(const char* name, const Mp4Box& within, qint64* after)
{
    qint64 position = within.begin;
    for (int count = 0; count < mostBoxes && position + 8 <= within.end; ++count) {
        const QByteArray header = read(position, 8);
        if (header.isEmpty()) {
            return std::nullopt;
        }
        qint64 headerBytes = 8;
        qint64 bytes = numberAt(header, 0);
        if (bytes == 1) {
            const QByteArray large = read(position + 8, 8);
            headerBytes = 16;
            bytes = large.isEmpty() ? 0 : qFromBigEndian<qint64>(large.constData());
        } else if (bytes == 0) {
            bytes = within.end - position;
        }
        if (bytes < headerBytes || bytes > within.end - position) {
            return std::nullopt;
        }
        if (std::memcmp(header.constData() + 4, name, 4) == 0) {
            if (after) {
                *after = position + bytes;
            }
            return Mp4Box{position + headerBytes, position + bytes};
        }
        position += bytes;
    }
    return std::nullopt;
}

bool declaresTooManyPictures(FileInput& input)
{
    Mp4Boxes boxes(input);
    const qint64 fileBytes = input.size();
    std::optional<Mp4Box> movie = boxes.find("moov", {0, fileBytes});
    for (qint64 after = 0; movie; movie->begin = after) {
        const std::optional<Mp4Box> track = boxes.find("trak", *movie, &after);
        if (!track) {
            return false;
        }
        qint64 pictures = 0;
        const bool isMore = isVideo(boxes, *track) &&
                            declaredBytes(boxes, *track, pictures) > fileBytes &&
                            pictures > harmlessPictures;
        if (isMore) {
            return true;
        }
    }
    return false;
}

} // namespace QtAV
