#pragma once

#include "qtav/src/ColourMap.h"
#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/ImagePool.h"
#include "qtav/src/YuvToRgb.h"

#include <QImage>
#include <QSize>

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace QtAV {

/// Turns decoded pictures of any pixel format into full-range sRGB images.
///
/// YuvToRgb converts colours: it is exact and reads the common formats directly. TrueColours
/// handles what goes beyond it. Rare formats, and pictures whose pixels are not square, are first
/// converted by FFmpeg's scaler. Scalers, tables and memory are kept for the next picture of the
/// same kind.
///
/// Thread-safe.
class PictureConverter
{
public:
    /// The picture at a size in pixels: in Format_ARGB32 or Format_RGBA64 or, without its alpha, in
    /// Format_RGB888 or Format_RGBX64. A null image if it cannot be converted or memory runs out.
    [[nodiscard]] QImage convert(const AVFrame& frame, const QSize& size,
                                 QImage::Format format = QImage::Format_ARGB32);

    /// Like convert(), but in the picture's own R'G'B' instead of sRGB's, see coloursOf(), and with
    /// 16 bits.
    [[nodiscard]] QImage convertAsStored(const AVFrame& frame, const QSize& size);

    /// True if the picture's format has alpha, even if all of it is opaque.
    static bool hasAlpha(const AVFrame& frame);

    /// The picture itself, scaled down: in its own format if that can be read directly, with its
    /// own colours and square pixels. Null if it cannot be scaled or memory runs out.
    FramePtr scaled(const AVFrame& frame, const QSize& size);

    /// True for pictures that consist of luma and chroma only. The result of convert() is then
    /// opaque, and at a smaller size looks like the one at full size, at a fraction of the time and
    /// memory: scaling luma and chroma is equivalent to scaling colours.
    static bool isOpaqueYuv(const AVFrame& frame);

private:
    /// The properties that a scaler was made for.
    struct Task
    {
        QSize from;
        QSize to;
        AVPixelFormat source = AV_PIX_FMT_NONE;
        AVPixelFormat target = AV_PIX_FMT_NONE;
        bool isFullRange = false;
        AVChromaLocation chromaLocation = AVCHROMA_LOC_UNSPECIFIED;

        bool operator==(const Task& other) const;
    };

    struct Scaler
    {
        Task task;
        ScalerPtr context;
        FramePtr picture; ///< output of the scaler for convert(); created when it is first needed
    };

    /// Enough for the kinds of pictures that a video and its conversions have at a time.
    static constexpr size_t mostIdleScalers = 4;

    [[nodiscard]] QImage imageOf(const AVFrame& picture, const Colours& colours,
                                 QImage::Format format);
    [[nodiscard]] std::shared_ptr<const ColourMap> mapFor(const Colours& colours);
    [[nodiscard]] QImage convertFrom(const Colours& colours, const AVFrame& frame,
                                     const QSize& size, QImage::Format format);
    [[nodiscard]] FramePtr withoutFields(const Colours& colours, const AVFrame& frame,
                                         AVPixelFormat format);
    [[nodiscard]] QImage scaledImage(const AVFrame& frame, const Colours& colours,
                                     const QSize& size, QImage::Format format);
    static Task taskFor(const AVFrame& frame, const QSize& size, AVPixelFormat target);
    static ScalerPtr makeScalerContext(const Task& task);
    [[nodiscard]] static std::optional<Scaler> makeScaler(const Task& task);
    static FramePtr makePicture(const Task& task);
    [[nodiscard]] static bool scale(const AVFrame& frame, const Scaler& scaler, AVFrame& picture);
    [[nodiscard]] std::optional<Scaler> takeScaler(const Task& task);
    void keepScaler(Scaler scaler);

    ImagePool m_shownImages; ///< in the screen's format, while others are captured
    ImagePool m_capturedImages;
    std::mutex m_mutex;
    std::vector<Scaler> m_idle;             ///< guarded by m_mutex
    std::shared_ptr<const ColourMap> m_map; ///< the most recent one; guarded by m_mutex
};

} // namespace QtAV
