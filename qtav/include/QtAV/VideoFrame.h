#pragma once

#include <QtAV/BaseLayer.h>
#include <QtAV/StoredColours.h>

#include <QImage>
#include <QMetaType>
#include <QRectF>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>

namespace QtAV {

class VideoFramePrivate;

/// One decoded picture and its time: an implicitly shared, immutable value that may travel between
/// threads and outlive the decoder.
///
/// Where the picture combs, images are made of what the frames around it make it, see
/// Deinterlacing: toImage() and scaledDown() do so, each time anew.
class VideoFrame
{
public:
    VideoFrame();
    ~VideoFrame();
    VideoFrame(const VideoFrame&);
    VideoFrame(VideoFrame&&) noexcept;
    VideoFrame& operator=(const VideoFrame&);
    VideoFrame& operator=(VideoFrame&&) noexcept;

    /// For the library itself.
    explicit VideoFrame(VideoFramePrivate* data);

    /// False for a default-made frame, which stands for "no frame".
    bool isValid() const;

    /// Presentation time in seconds on the demuxer's timeline; 0 when not valid.
    double timestamp() const;

    /// The stored picture's size in pixels, before turning it upright and making its pixels
    /// square; 0 when not valid. Of a frame that is scaled down, that of the smaller picture.
    int width() const;
    int height() const;

    /// The size at which the picture is meant to be seen: upright and with square pixels. To get
    /// there the shorter of width and height is stretched, so that no stored pixel is lost. The
    /// same for a frame that is scaled down.
    QSize displaySize() const;

    /// The frame with a smaller picture, to be kept where it is only shown: luma and chroma as they
    /// are stored, scaled to square pixels so that toImage() at that size shows about the same at a
    /// part of the time and memory. Every pixel counts by the area that it covers.
    ///
    /// @param size  upright, as displaySize() is.
    /// @return the frame itself where the size is not smaller in both directions, the picture is
    ///         not one of luma and chroma alone, or memory runs out. May be called from any thread.
    VideoFrame scaledDown(const QSize& size) const;

    /// True for what scaledDown() made: not what was decoded.
    bool isScaledDown() const;

    /// The later one of the two moments that an interlaced picture shows, as a frame of its own;
    /// its time is in the middle between this one and the next. The frame itself stands for the
    /// earlier moment. Invalid where the picture is not one of two moments, and for a frame that is
    /// scaled down. Has to look at the picture for that, which takes some milliseconds.
    [[nodiscard]] VideoFrame secondField() const;
    /// The frame that secondField() was made of; else the frame itself.
    [[nodiscard]] VideoFrame firstField() const;
    bool isSecondField() const;

    /// The memory that the stored picture takes, in bytes; 0 when not valid.
    qint64 byteCount() const;

    /// The pixel format's name, such as "yuv420p"; empty when not valid.
    QString format() const;

    /// The format of an image that keeps the whole picture: Format_ARGB32 where the pixel format
    /// has alpha, else Format_RGB888. An opaque picture should be passed on in that, since whatever
    /// works on alpha like on colours would make it see-through. Format_Invalid when not valid.
    QImage::Format imageFormat() const;

    /// The same, with 16 bits a channel where the picture has more than 8: Format_RGBA64 where the
    /// pixel format has alpha, else Format_RGBX64.
    QImage::Format deepImageFormat() const;

    /// The picture as it is meant to be seen: upright, with square pixels, in full-range sRGB
    /// values, converted by the frame's own matrix and range, with its alpha where it has one.
    ///
    /// @param format  the image's format; Format_Invalid gives Format_ARGB32.
    /// @param size    the size to scale the result to; an empty size keeps that of the region. A
    ///                frame that is scaled down is enlarged to get there.
    /// @param region  the part to take, in pixels of the whole picture at displaySize(), clipped
    ///                to it; a null rectangle takes all.
    /// @return a null image for an invalid frame, for a region outside the picture and when
    ///         memory runs out. May be called from any thread.
    [[nodiscard]] QImage toImage(QImage::Format format = QImage::Format_ARGB32,
                                 const QSize& size = QSize(),
                                 const QRectF& region = QRectF()) const;

    /// What the picture is where the video has more of high dynamic range than this shows.
    BaseLayer baseLayer() const;

    /// What the values of the stored picture stand for; sRGB's when not valid.
    StoredColours storedColours() const;

    /// The whole picture in the values as they are stored, see storedColours(), and 16 bits a
    /// channel, for those who go on working with high dynamic range: Format_RGBA64 where the pixel
    /// format has alpha, else Format_RGBX64. All else as toImage() does it.
    [[nodiscard]] QImage toStoredImage() const;

private:
    friend class VideoFramePrivate;

    QSharedDataPointer<VideoFramePrivate> d;
};

} // namespace QtAV

Q_DECLARE_METATYPE(QtAV::VideoFrame)
