#include "qtav/src/Mp4Boxes.h"

#include <QtEndian>

#include <algorithm>

namespace QtAV {

namespace {

/// Maximum number of boxes among which one is searched.
constexpr int mostBoxes = 1000;

/// Maximum depth of boxes that FFmpeg reads.
constexpr int mostLevels = 10;

/// Up to this number the memory for declared samples is harmless: truncated files declare more than
/// they hold.
constexpr qint64 harmlessSamples = 1000000;

/// More than any file has; twice that can be added to it without overflow.
constexpr qint64 mostBytes = qint64(1) << 61;

/// Samples (pictures or packets of sound) that tracks declare without storing the size of each.
struct Declared
{
    qint64 samples = 0;
    qint64 bytes = 0;
    bool isSound = false;
    bool isUncompressed = false; ///< all samples last for one tick

    /// FFmpeg does not list single samples of uncompressed sound.
    bool isListed() const { return !(isSound && isUncompressed); }

    void add(qint64 moreSamples, qint64 moreBytes)
    {
        samples += moreSamples;
        bytes = std::min(bytes + moreBytes, mostBytes);
    }
};

quint32 numberAt(const QByteArray& data, int position)
{
    return qFromBigEndian<quint32>(data.constData() + position);
}

/// Sizes in `stsz`: if they are not all the same, that of each sample is stored in the file.
void addSizes(Mp4Boxes& boxes, const Mp4Box& sizes, Declared& declared)
{
    const QByteArray head = boxes.read(sizes.begin, 12);
    const quint32 bytes = head.isEmpty() ? 0 : numberAt(head, 4);
    if (bytes > 0) {
        const qint64 samples = numberAt(head, 8);
        declared.add(samples, samples > mostBytes / bytes ? mostBytes : samples * bytes);
    }
}

/// Durations in `stts`.
bool areSingleTicks(Mp4Boxes& boxes, const Mp4Box& durations)
{
    const QByteArray head = boxes.read(durations.begin, 16);
    return !head.isEmpty() && numberAt(head, 4) == 1 && numberAt(head, 12) == 1;
}

/// What a track, or a part of it, declares.
void examine(Mp4Boxes& boxes, Mp4Box part, int level, Declared& declared)
{
    if (level > mostLevels) {
        return;
    }
    while (const std::optional<Mp4Boxes::Named> box = boxes.first(part)) {
        if (box->name == "stsz") {
            addSizes(boxes, box->content, declared);
        } else if (box->name == "stts") {
            declared.isUncompressed = areSingleTicks(boxes, box->content);
        } else if (box->name == "hdlr") {
            const QByteArray kind = boxes.read(box->content.begin, 12).mid(8);
            declared.isSound = kind == "soun" || (declared.isSound && kind != "vide");
        } else if (box->name == "mdia" || box->name == "minf" || box->name == "stbl") {
            examine(boxes, box->content, level + 1, declared);
        }
        part.begin = box->content.end;
    }
}

/// The first `moov` of a file: FFmpeg ignores others.
std::optional<Mp4Box> movieOf(Mp4Boxes& boxes, Mp4Box file)
{
    while (const std::optional<Mp4Boxes::Named> box = boxes.first(file)) {
        if (box->name == "moov") {
            return box->content;
        }
        file.begin = box->content.end;
    }
    return std::nullopt;
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

std::optional<Mp4Boxes::Named> Mp4Boxes::first(const Mp4Box& within)
{
    const qint64 rest = within.bytes();
    const QByteArray header = rest >= 8 ? read(within.begin, 8) : QByteArray();
    if (header.isEmpty()) {
        return std::nullopt;
    }
    qint64 headerBytes = 8;
    qint64 bytes = numberAt(header, 0);
    if (bytes == 1) {
        const QByteArray large = read(within.begin + 8, 8);
        headerBytes = 16;
        bytes = large.isEmpty() ? 0 : qFromBigEndian<qint64>(large.constData());
    } else if (bytes == 0) {
        bytes = rest;
    }
    bytes = std::min(bytes, rest);
    if (bytes < headerBytes) {
        return std::nullopt;
    }
    return Named{header.mid(4), {within.begin + headerBytes, within.begin + bytes}};
}

std::optional<Mp4Box> Mp4Boxes::find(const char* name, const Mp4Box& within)
{
    Mp4Box rest = within;
    for (int count = 0; count < mostBoxes; ++count) {
        const std::optional<Named> box = first(rest);
        if (!box || box->name == name) {
            return box ? std::optional(box->content) : std::nullopt;
        }
        rest.begin = box->content.end;
    }
    return std::nullopt;
}

bool declaresTooManyPictures(FileInput& input)
{
    Mp4Boxes boxes(input);
    const qint64 fileBytes = input.size();
    std::optional<Mp4Box> movie = movieOf(boxes, {0, fileBytes});
    Declared all;
    while (movie) {
        const std::optional<Mp4Boxes::Named> box = boxes.first(*movie);
        if (!box) {
            break;
        }
        Declared track;
        if (box->name == "trak") {
            examine(boxes, box->content, 0, track);
        }
        if (track.isListed()) {
            all.add(track.samples, track.bytes);
        }
        movie->begin = box->content.end;
    }
    return all.samples > harmlessSamples && all.bytes > fileBytes;
}

} // namespace QtAV
