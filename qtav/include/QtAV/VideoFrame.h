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

/// One decoded picture and its time: an implicitly shared, immutable value that may be passed
/// between threads and outlive the decoder.
///
/// If the picture combs, toImage() and scaledDown() make their result from a deinterlaced picture,
/// see Deinterlacing. Each call deinterlaces again.
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

    /// False for a default-constructed frame, which stands for "no frame".
    bool isValid() const;

    /// Presentation time in seconds on the demuxer's timeline; 0 if invalid.
    double timestamp() const;

    /// Size of the stored picture in pixels, before rotation and before its pixels are made square;
    /// 0 if invalid. For a scaled-down frame, the size of the smaller picture.
    int width() const;
    int height() const;

    /// The display size: upright and with square pixels. The shorter side is stretched to get
    /// there, so that no stored pixel is lost. The same for a scaled-down frame.
    QSize displaySize() const;

    /// The frame with a smaller picture, for keeping frames that are only shown. Luma and chroma
    /// stay as they are stored but are scaled to square pixels, so that toImage() at that size
    /// gives nearly the same result with a fraction of the time and memory. Every pixel contributes
    /// by the area that it covers.
    ///
    /// @param size  upright, like displaySize().
    /// @return the frame itself if the size is not smaller in both directions, the picture has more
    ///     than luma and chroma, or memory runs out. May be called from any thread.
    VideoFrame scaledDown(const QSize& size) const;

    /// True for a frame that scaledDown() made.
    bool isScaledDown() const;

    /// The later of the two moments that an interlaced picture shows, as a frame of its own, with a
    /// time halfway to the next frame. The frame itself stands for the earlier moment. Invalid if
    /// the picture does not show two moments, and for a scaled-down frame. The check reads the
    /// picture, which takes some milliseconds.
    [[nodiscard]] VideoFrame secondField() const;
    /// The frame that secondField() was called on; otherwise the frame itself.
    [[nodiscard]] VideoFrame firstField() const;
    bool isSecondField() const;

    /// Memory of the stored picture in bytes; 0 if invalid.
    qint64 byteCount() const;

    /// Name of the pixel format, such as "yuv420p"; empty if invalid.
    QString format() const;

    /// The format of an image that keeps the whole picture: Format_ARGB32 if the pixel format has
    /// alpha, otherwise Format_RGB888. Pass on opaque pictures in that format, because a step that
    /// treats alpha like a colour would make them see-through. Format_Invalid if invalid.
    QImage::Format imageFormat() const;

    /// Like imageFormat(), with 16 bits per channel if the picture has more than 8: Format_RGBA64
    /// if the pixel format has alpha, otherwise Format_RGBX64.
    QImage::Format deepImageFormat() const;

    /// The picture as it should be seen: upright, with square pixels, in full-range sRGB values
    /// converted by the frame's own matrix and range, with its alpha if it has one.
    ///
    /// @param format  the image's format; Format_Invalid gives Format_ARGB32.
    /// @param size    the size to scale the result to; an empty size keeps that of the region. A
    ///     scaled-down frame is enlarged if necessary.
    /// @param region  the part to take, in pixels of the whole picture at displaySize(), clipped to
    ///     it; a null rectangle takes all.
    /// @return a null image for an invalid frame, for a region outside the picture and when memory
    ///     runs out. May be called from any thread.
    [[nodiscard]] QImage toImage(QImage::Format format = QImage::Format_ARGB32,
                                 const QSize& size = QSize(),
                                 const QRectF& region = QRectF()) const;

    /// Which part of high dynamic range the picture shows, if the video has more.
    BaseLayer baseLayer() const;

    /// What the values of the stored picture stand for; sRGB if invalid.
    StoredColours storedColours() const;

    /// The whole picture with its values as they are stored, see storedColours(), and 16 bits per
    /// channel, for further work in high dynamic range: Format_RGBA64 if the pixel format has
    /// alpha, otherwise Format_RGBX64. Otherwise like toImage().
    [[nodiscard]] QImage toStoredImage() const;

private:
    friend class VideoFramePrivate;

    QSharedDataPointer<VideoFramePrivate> d;
};

} // namespace QtAV

Q_DECLARE_METATYPE(QtAV::VideoFrame)
