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

    QString text;
    QFont font;
    QColor textColor;
    QColor shadowColor;
    QPoint shadowOffset; ///< to the right of the text and below it, in pixels

    QImage picture; ///< null where there is none to draw
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
    int contrast = 0;              ///< -100 to 100, 0 for none
    int brightness = 0;            ///< is added to each sample, -255 to 255
    int jpegQuality = 100;         ///< 0 to 100
    std::optional<WatermarkRecipe> watermark = {};
};

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
