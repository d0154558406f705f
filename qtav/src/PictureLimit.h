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

    /// A text for people: why a picture of that size is refused.
    [[nodiscard]] QString refusal(const QSize& stored, qint64 bytes) const;

private:
    qint64 m_bytes;
};

} // namespace QtAV
