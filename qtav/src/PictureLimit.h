#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtAV/PictureMemory.h>

#include <QSize>
#include <QString>

namespace QtAV {

/// How much memory a video's pictures may take, by what their headers declare.
///
/// A file of a few kilobytes can declare pictures of a gigabyte, and a decoder takes the memory for
/// them before it looks whether there is anything in them.
class PictureLimit
{
public:
    explicit PictureLimit(qint64 bytes = usualPictureBytes)
        : m_bytes(bytes)
    {}

    /// A picture of that format and size, and the image of the shown size that is made of it.
    [[nodiscard]] static qint64 bytesOf(AVPixelFormat format, const QSize& stored,
                                        const QSize& shown);

    [[nodiscard]] bool allows(qint64 bytes) const { return bytes <= m_bytes; }

    /// The largest block of memory that FFmpeg needs for a picture, or for anything else.
    [[nodiscard]] size_t mostAtOnce() const;

    /// Larger pictures are too large in whatever format.
    [[nodiscard]] qint64 mostPixels() const;

    /// How many threads may decode pictures of that size: each of them holds some.
    [[nodiscard]] int threadsFor(AVPixelFormat format, const QSize& stored, int wanted) const;

    /// What all pictures that one decoder keeps may take: twice what one may, beside those that its
    /// threads work on. Streams that keep to their standard's levels need less.
    [[nodiscard]] qint64 heldBytes(AVPixelFormat format, const QSize& stored, int threads) const;

    /// What a picture of that format and size takes while the decoder keeps it.
    [[nodiscard]] static qint64 decodedBytes(AVPixelFormat format, const QSize& stored);

    /// A text for people: why the pictures that a decoder keeps are refused.
    [[nodiscard]] static QString heldRefusal(qint64 bytes, qint64 most);

    /// A text for people: why a picture of that size is refused.
    [[nodiscard]] QString refusal(const QSize& stored, qint64 bytes) const;

private:
    qint64 m_bytes;
};

} // namespace QtAV
