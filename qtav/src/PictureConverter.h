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
/// Colours are converted by YuvToRgb, which is exact and reads the common formats as they are, and
/// by TrueColours where that is not enough. Rare formats are brought into one of those by FFmpeg's
/// scaler first, and so are pictures whose pixels are not square. Scalers, tables and memory are
/// kept for the next picture of the same kind.
///
/// May be called from several threads at once.
class PictureConverter
{
public:
    /// The picture at a size in pixels, in Format_ARGB32 or Format_RGBA64 or, without its alpha, in
    /// Format_RGB888 or Format_RGBX64; a null image when it cannot be converted or memory runs out.
    [[nodiscard]] QImage convert(const AVFrame& frame, const QSize& size,
                                 QImage::Format format = QImage::Format_ARGB32);

    /// The same in the picture's own R'G'B' instead of sRGB's, see coloursOf(); in 16 bits.
    [[nodiscard]] QImage convertAsStored(const AVFrame& frame, const QSize& size);

    /// True when the picture's format has alpha, be all of it opaque or not.
    static bool hasAlpha(const AVFrame& frame);

    /// The picture itself, smaller: in its own format where that can be read directly, with its own
    /// colours and square pixels. Null when it cannot be scaled or memory runs out.
    FramePtr scaled(const AVFrame& frame, const QSize& size);

    /// True for pictures of luma and chroma alone. What convert() gives of them is opaque, and at a
    /// smaller size shows what it shows at full size, at a part of the time and memory: scaling
    /// luma and chroma comes to the same as scaling colours.
    static bool isOpaqueYuv(const AVFrame& frame);

private:
    /// What a scaler was made for.
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
        FramePtr picture; ///< for convert() to write to; made when it is first needed
    };

    /// More kinds of pictures than a video and its conversions have at a time.
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

    ImagePool m_images;
    std::mutex m_mutex;
    std::vector<Scaler> m_idle;             ///< guarded by m_mutex
    std::shared_ptr<const ColourMap> m_map; ///< used last; guarded by m_mutex
};

} // namespace QtAV
