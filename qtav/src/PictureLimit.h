#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtAV/PictureMemory.h>

#include <QSize>
#include <QString>

namespace QtAV {

/// Limits the memory of a video's pictures, based on what their headers declare.
///
/// A file of a few kilobytes can declare pictures of a gigabyte, and a decoder allocates their
/// memory before it checks whether they have any content.
class PictureLimit
{
public:
    explicit PictureLimit(qint64 bytes = usualPictureBytes)
        : m_bytes(bytes)
    {}

    /// Memory of a picture of that format and size and of the image at the display size made from
    /// it, in bytes.
    [[nodiscard]] static qint64 bytesOf(AVPixelFormat format, const QSize& stored,
                                        const QSize& shown);

    [[nodiscard]] bool allows(qint64 bytes) const { return bytes <= m_bytes; }

    /// The largest block of memory that FFmpeg needs, for a picture or anything else.
    [[nodiscard]] size_t mostAtOnce() const;

    /// Pictures with more pixels are too large in every format.
    [[nodiscard]] qint64 mostPixels() const;

    /// How many threads may decode pictures of that size, since each thread holds some of them.
    [[nodiscard]] int threadsFor(AVPixelFormat format, const QSize& stored, int wanted) const;

    /// What all pictures that one decoder keeps may take: twice what one may, beside those that its
    /// threads work on. Streams that keep to their standard's levels need less.
    [[nodiscard]] qint64 heldBytes(AVPixelFormat format, const QSize& stored, int threads) const;

    /// What a picture of that format and size takes while the decoder keeps it.
    [[nodiscard]] static qint64 decodedBytes(AVPixelFormat format, const QSize& stored);

    /// A text for people: why the pictures that a decoder keeps are refused.
    [[nodiscard]] static QString heldRefusal(qint64 bytes, qint64 most);

    /// Why a picture of that size is refused, as a text for people.
    [[nodiscard]] QString refusal(const QSize& stored, qint64 bytes) const;

private:
    qint64 m_bytes;
};

} // namespace QtAV
