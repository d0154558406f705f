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

/// What is drawn on a picture last: text with a shadow, or another picture. A plain value.
struct WatermarkRecipe
{
    enum class Kind { Text, Picture };

    Kind kind = Kind::Text;
    Qt::Alignment alignment = Qt::AlignRight | Qt::AlignBottom;
    int xMargin = 0;   ///< from the edges that it is aligned to, in pixels
    int yMargin = 0;   ///< likewise
    int opacity = 255; ///< 0 (invisible) to 255 (opaque)
    /// How much of the picture's width the watermark takes, in per cent from 1 to 100; it is made
    /// smaller where it would be higher than the picture. 0 for its own size: that of the font, or
    /// of the picture that is drawn.
    int widthPercent = 0;

    QString text;
    QFont font;
    QColor textColor;
    bool hasShadow = true; ///< else its colour and offset do not matter
    QColor shadowColor;
    QPoint shadowOffset; ///< to the right of the text and below it, in pixels

    QImage picture; ///< null where there is none to draw
};

/// How a picture comes to another size.
enum class ResizeFilter {
    Area,    ///< by the area that each pixel covers: for shrinking
    Lanczos, ///< the sharpest
    Bicubic, ///< softer, with less ringing
    Nearest, ///< pixels stay pixels
};

/// What is mixed where pixels are.
enum class ResizeLight {
    AsCoded, ///< the samples as they are
    Linear,  ///< the light that they stand for: fine bright details keep their brightness
};

struct Resampling
{
    ResizeFilter filter = ResizeFilter::Area;
    ResizeLight light = ResizeLight::AsCoded;
};

/// What a file tells of where its picture comes from.
enum class PictureMetadata {
    All,          ///< also where the video was recorded, and its path on the disk
    WithoutPlace, ///< all but these two
    None
};

/// What becomes of a frame: what imaging::render() makes of it, and before that, how there is a
/// picture where its lines belong to two moments. A plain value that knows no profile: it may be
/// copied to any thread, and profiles may change meanwhile.
struct ImageRecipe
{
    QString deinterlacing = QStringLiteral("auto"); ///< as ImageProfile has it
    bool keepsSize = true;         ///< else the result has the size `bounds`, or fits into it
    QSize bounds;                  ///< in pixels
    bool keepsAspectRatio = false; ///< fits into the bounds; else it fills them and is cut
    bool enlarges = true;          ///< else what fits into the bounds already keeps its size
    Resampling resampling;         ///< where the size changes
    int contrast = 0;              ///< -100 to 100, 0 for none
    int brightness = 0;            ///< is added to each sample, -255 to 255
    int jpegQuality = 100;         ///< 0 to 100
    /// Images of 16 bits a channel stay so; else they become images of 8. See forType().
    bool keepsDeepColours = false;
    /// Pictures of high dynamic range keep their own values, in 16 bits; else they come to sRGB.
    /// See forType().
    bool keepsHdr = false;
    std::optional<WatermarkRecipe> watermark = {};
    PictureMetadata metadata = PictureMetadata::WithoutPlace; ///< of its file
};

/// The recipe as it can be carried out for files of a type, which is a suffix: without deep
/// colours or high dynamic range where these cannot hold them.
[[nodiscard]] ImageRecipe forType(ImageRecipe recipe, const QString& type);

/// The recipes that profiles stand for. They look up watermarks and read their pictures, through
/// the profiles' shared cache: user-interface thread only.
namespace recipes {

/// @param watermark  the one to draw; null for the profile's own, if it has one.
[[nodiscard]] ImageRecipe of(const ImageProfile& profile,
                             const WatermarkProfile* watermark = nullptr);

[[nodiscard]] WatermarkRecipe of(const WatermarkProfile& profile);

/// The same as text or as a picture, whatever the profile's own type.
[[nodiscard]] WatermarkRecipe of(const WatermarkProfile& profile, WatermarkRecipe::Kind kind);

} // namespace recipes
