#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>

#include <optional>

class ImageProfile;
class WatermarkProfile;

/// The last thing drawn on a picture: text with a shadow, or another picture. A plain value.
struct WatermarkRecipe
{
    enum class Kind { Text, Picture };

    Kind kind = Kind::Text;
    Qt::Alignment alignment = Qt::AlignRight | Qt::AlignBottom;
    int xMargin = 0;   ///< from the edges that it is aligned to, in pixels
    int yMargin = 0;   ///< likewise
    int opacity = 255; ///< 0 (invisible) to 255 (opaque)
    /// Width of the watermark in per cent of the picture's width, 1 to 100; it is reduced if it
    /// would be higher than the picture. 0 for its own size: that of the font, or of the drawn
    /// picture.
    int widthPercent = 0;

    QString text;
    QFont font;
    QColor textColor;
    bool hasShadow = true; ///< otherwise its colour and offset are ignored
    QColor shadowColor;
    QPoint shadowOffset; ///< to the right of the text and below it, in pixels

    QImage picture; ///< null if there is none to draw
};

/// How a picture is resized.
enum class ResizeFilter {
    Area,    ///< by the area that each pixel covers: for shrinking
    Lanczos, ///< the sharpest
    Bicubic, ///< softer, with less ringing
    Nearest, ///< pixels stay pixels
};

/// What is mixed when pixels are combined.
enum class ResizeLight {
    AsCoded, ///< the samples as stored
    Linear,  ///< the light that samples stand for: fine bright details keep their brightness
};

/// How a picture is resized: filter and light.
struct Resampling
{
    ResizeFilter filter = ResizeFilter::Area;
    ResizeLight light = ResizeLight::AsCoded;
};

/// What a file tells about the origin of its picture.
enum class PictureMetadata {
    All,          ///< includes the place of the recording and the video's path
    WithoutPlace, ///< all except these two
    None
};

/// How a frame becomes an image: the parameters of imaging::render(), and the deinterlacing before
/// that. A plain value without references to profiles: it may be copied to any thread, and profiles
/// may change meanwhile.
struct ImageRecipe
{
    QString deinterlacing = QStringLiteral("auto"); ///< values as in ImageProfile
    bool keepsSize = true;         ///< otherwise the result has the size `bounds`, or fits into it
    QSize bounds;                  ///< in pixels
    bool keepsAspectRatio = false; ///< fits into the bounds; otherwise it fills them and is cropped
    bool enlarges = true;          ///< otherwise pictures that already fit into the bounds keep
                                   ///< their size
    Resampling resampling;         ///< where the size changes
    int contrast = 0;              ///< -100 to 100, 0 for none
    int brightness = 0;            ///< added to each sample, -255 to 255
    int jpegQuality = 100;         ///< 0 to 100
    /// Keeps 16 bits per channel; otherwise images are reduced to 8. See forType().
    bool keepsDeepColours = false;
    /// Keeps the values of high dynamic range, with 16 bits; otherwise they are converted to sRGB.
    /// See forType().
    bool keepsHdr = false;
    std::optional<WatermarkRecipe> watermark = {};
    PictureMetadata metadata = PictureMetadata::WithoutPlace; ///< of its file
};

/// The recipe adapted to the type of a file, a suffix: without deep colours or high dynamic range
/// if the format does not support them.
[[nodiscard]] ImageRecipe forType(ImageRecipe recipe, const QString& type);

/// Creates recipes from profiles. This looks up watermarks and reads their pictures through the
/// profiles' shared cache: user-interface thread only.
namespace recipes {

/// @param watermark  the watermark to draw; null for the profile's own, if it has one.
[[nodiscard]] ImageRecipe of(const ImageProfile& profile,
                             const WatermarkProfile* watermark = nullptr);

[[nodiscard]] WatermarkRecipe of(const WatermarkProfile& profile);

/// The recipe of a watermark as text or as a picture, whatever the profile's own type.
[[nodiscard]] WatermarkRecipe of(const WatermarkProfile& profile, WatermarkRecipe::Kind kind);

} // namespace recipes
