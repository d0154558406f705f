#include "imaging/RecipeTexts.h"

#include "imaging/Recording.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

using RecipeTexts::Texts;

constexpr int largestAdjustment = 255;
constexpr int largestSide = 65535;
constexpr int highestQuality = 100;
constexpr int largestOpacity = 255;
constexpr int largestFont = 2000;

constexpr const char* yes = "True";
constexpr const char* no = "False";
constexpr const char* asStored = "AsStored";

/// In the order of ResizeFilter.
constexpr std::array<const char*, 4> filterNames{"Area", "Lanczos", "Bicubic", "Nearest"};

QString nameOf(const char* name)
{
    return QString::fromLatin1(name);
}

QString pairText(int a, int b, char between)
{
    return QString::number(a) + QLatin1Char(between) + QString::number(b);
}

/// Two whole numbers separated by a sign; nothing if there are not exactly two, or one of them is
/// out of any sensible range.
std::optional<QPoint> pairFrom(const QString& text, char between)
{
    const QStringList parts = text.split(QLatin1Char(between));
    const QPoint pair(parts.value(0).toInt(), parts.value(1).toInt());
    const bool isSmall = std::abs(pair.x()) <= largestSide && std::abs(pair.y()) <= largestSide;
    const bool isPair = text == pairText(pair.x(), pair.y(), between);
    return isPair && isSmall ? std::make_optional(pair) : std::nullopt;
}

/// A whole number in a range; otherwise the default.
int numberFrom(const Texts& texts, const char* name, int low, int high, int usual)
{
    bool isNumber = false;
    const int number = texts.value(nameOf(name)).toInt(&isNumber);
    return isNumber && number >= low && number <= high ? number : usual;
}

bool isYes(const Texts& texts, const char* name)
{
    return texts.value(nameOf(name)) == nameOf(yes);
}

/// Whether the setting overrides what the pictures themselves say.
bool isForced(const QString& deinterlacing)
{
    return deinterlacing == nameOf("on") || deinterlacing == nameOf("off");
}

void addSize(Texts& texts, const ImageRecipe& recipe, const QSize& frame)
{
    const bool fits =
        frame.width() <= recipe.bounds.width() && frame.height() <= recipe.bounds.height();
    if (recipe.keepsSize || (fits && !recipe.enlarges)) {
        return;
    }
    texts.insert(nameOf("Size"), pairText(recipe.bounds.width(), recipe.bounds.height(), 'x'));
    texts.insert(nameOf("Fit"), nameOf(recipe.keepsAspectRatio ? "Inside" : "Fill"));
    if (fits) {
        texts.insert(nameOf("Enlarges"), nameOf(yes));
    }
    const ResizeFilter filter = recipe.resampling.filter;
    texts.insert(nameOf("Filter"), nameOf(filterNames[static_cast<std::size_t>(filter)]));
    if (recipe.resampling.light == ResizeLight::Linear && filter != ResizeFilter::Nearest) {
        texts.insert(nameOf("LinearLight"), nameOf(yes));
    }
}

Resampling resamplingFrom(const Texts& texts)
{
    Resampling resampling;
    const QString name = texts.value(nameOf("Filter"));
    for (std::size_t i = 0; i < filterNames.size(); ++i) {
        if (name == nameOf(filterNames[i])) {
            resampling.filter = static_cast<ResizeFilter>(i);
        }
    }
    resampling.light = isYes(texts, "LinearLight") ? ResizeLight::Linear : ResizeLight::AsCoded;
    return resampling;
}

void addWatermark(Texts& texts, const WatermarkRecipe& watermark)
{
    const bool isText = watermark.kind == WatermarkRecipe::Kind::Text;
    const bool isThere = isText ? !watermark.text.isEmpty() : !watermark.picture.isNull();
    if (!isThere || watermark.opacity <= 0) {
        return;
    }
    texts.insert(nameOf("Watermark"), nameOf(isText ? "Text" : "Picture"));
    texts.insert(nameOf("WatermarkAlignment"),
                 QString::number(static_cast<int>(watermark.alignment)));
    texts.insert(nameOf("WatermarkMargins"), pairText(watermark.xMargin, watermark.yMargin, ','));
    texts.insert(nameOf("WatermarkOpacity"), QString::number(watermark.opacity));
    if (watermark.widthPercent > 0) {
        texts.insert(nameOf("WatermarkWidthPercent"), QString::number(watermark.widthPercent));
    }
    if (!isText) {
        return;
    }
    const QPoint offset = watermark.shadowOffset;
    texts.insert(nameOf("WatermarkText"), plainLines(watermark.text));
    texts.insert(nameOf("WatermarkFont"), plainText(watermark.font.toString()));
    texts.insert(nameOf("WatermarkColor"), watermark.textColor.name(QColor::HexArgb));
    if (!watermark.hasShadow) {
        texts.insert(nameOf("WatermarkShadow"), nameOf(no));
        return;
    }
    texts.insert(nameOf("WatermarkShadowColor"), watermark.shadowColor.name(QColor::HexArgb));
    texts.insert(nameOf("WatermarkShadowOffset"), pairText(offset.x(), offset.y(), ','));
}

/// A font with a size that can be drawn; otherwise the default.
QFont fontFrom(const QString& text)
{
    QFont font;
    const bool isFont = font.fromString(plainText(text));
    const bool isSmall = font.pointSizeF() <= largestFont && font.pixelSize() <= largestFont;
    return isFont && isSmall ? font : QFont();
}

QColor colorFrom(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^#[0-9a-fA-F]{8}$"));
    return pattern.match(text).hasMatch() ? QColor(text) : QColor();
}

WatermarkRecipe watermarkFrom(const Texts& texts)
{
    WatermarkRecipe watermark;
    constexpr int anyAlignment = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;
    const int usual = static_cast<int>(watermark.alignment);
    watermark.alignment =
        Qt::Alignment(numberFrom(texts, "WatermarkAlignment", 0, anyAlignment, usual));
    const QPoint margins =
        pairFrom(texts.value(nameOf("WatermarkMargins")), ',').value_or(QPoint());
    watermark.xMargin = margins.x();
    watermark.yMargin = margins.y();
    watermark.opacity = numberFrom(texts, "WatermarkOpacity", 0, largestOpacity, watermark.opacity);
    watermark.widthPercent = numberFrom(texts, "WatermarkWidthPercent", 1, 100, 0);
    watermark.hasShadow = texts.value(nameOf("WatermarkShadow")) != nameOf(no);
    watermark.text = plainLines(texts.value(nameOf("WatermarkText")));
    watermark.font = fontFrom(texts.value(nameOf("WatermarkFont")));
    watermark.textColor = colorFrom(texts.value(nameOf("WatermarkColor")));
    watermark.shadowColor = colorFrom(texts.value(nameOf("WatermarkShadowColor")));
    watermark.shadowOffset =
        pairFrom(texts.value(nameOf("WatermarkShadowOffset")), ',').value_or(QPoint());
    return watermark;
}

} // namespace

RecipeTexts::Texts RecipeTexts::of(const ImageRecipe& recipe, const QSize& frame, bool keepsQuality)
{
    Texts texts;
    texts.insert(nameOf("Contrast"), QString::number(recipe.contrast));
    texts.insert(nameOf("Brightness"), QString::number(recipe.brightness));
    addSize(texts, recipe, frame);
    if (recipe.keepsDeepColours) {
        texts.insert(nameOf("DeepColours"), nameOf(yes));
    }
    if (recipe.keepsHdr) {
        texts.insert(nameOf("Hdr"), nameOf(asStored));
    }
    if (isForced(recipe.deinterlacing)) {
        texts.insert(nameOf("Deinterlacing"), recipe.deinterlacing);
    }
    if (keepsQuality) {
        texts.insert(nameOf("Quality"), QString::number(recipe.jpegQuality));
    }
    if (recipe.watermark) {
        addWatermark(texts, *recipe.watermark);
    }
    return texts;
}

ImageRecipe RecipeTexts::recipeFrom(const Texts& texts)
{
    ImageRecipe recipe;
    recipe.contrast =
        numberFrom(texts, "Contrast", -largestAdjustment, largestAdjustment, recipe.contrast);
    recipe.brightness =
        numberFrom(texts, "Brightness", -largestAdjustment, largestAdjustment, recipe.brightness);
    recipe.jpegQuality = numberFrom(texts, "Quality", 0, highestQuality, recipe.jpegQuality);
    recipe.keepsDeepColours = isYes(texts, "DeepColours");
    recipe.keepsHdr = texts.value(nameOf("Hdr")) == nameOf(asStored);
    const QString deinterlacing = texts.value(nameOf("Deinterlacing"));
    if (isForced(deinterlacing)) {
        recipe.deinterlacing = deinterlacing;
    }
    recipe.resampling = resamplingFrom(texts);
    const std::optional<QPoint> size = pairFrom(texts.value(nameOf("Size")), 'x');
    if (size && size->x() > 0 && size->y() > 0) {
        recipe.keepsSize = false;
        recipe.bounds = QSize(size->x(), size->y());
        recipe.keepsAspectRatio = texts.value(nameOf("Fit")) != nameOf("Fill");
        // A recipe that fills its bounds comes from a profile, and profiles enlarge.
        recipe.enlarges = isYes(texts, "Enlarges") || !recipe.keepsAspectRatio;
    }
    if (texts.value(nameOf("Watermark")) == nameOf("Text")) {
        recipe.watermark = watermarkFrom(texts);
    }
    return recipe;
}

bool RecipeTexts::hasPictureWatermark(const Texts& texts)
{
    return texts.value(nameOf("Watermark")) == nameOf("Picture");
}
