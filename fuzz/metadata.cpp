// The metadata of a picture, which describes its video and how it was made; and that of a video.

#include "imaging/Metadata.h"
#include "fuzz/InputFile.h"
#include "imaging/RecipeTexts.h"
#include "imaging/Recording.h"
#include "imaging/Rendering.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QStringList>

#include <cstdlib>
#include <memory>

namespace {

/// Fonts need it. What it says about invalid ones is of no interest.
std::unique_ptr<QGuiApplication> makeApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.warning=false"));
    return std::make_unique<QGuiApplication>(count, arguments);
}

/// The texts in lines such as "Contrast=10", more of which are useful than of whole files.
RecipeTexts::Texts textsIn(const QString& text)
{
    RecipeTexts::Texts texts;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        texts.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
    }
    return texts;
}

/// Makes a picture as the recipe says. Larger ones would only take longer.
void applyRecipe(const ImageRecipe& recipe)
{
    constexpr int largestSide = 200;
    const bool isSmall =
        recipe.bounds.width() <= largestSide && recipe.bounds.height() <= largestSide;
    if (recipe.keepsSize || isSmall) {
        QImage picture(48, 36, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        static_cast<void>(imaging::render(picture, recipe));
    }
}

/// What a recipe is stored as gives the same recipe.
void checkTexts(const ImageRecipe& recipe)
{
    const QSize frame(48, 36);
    const RecipeTexts::Texts stored = RecipeTexts::of(recipe, frame, true);
    if (RecipeTexts::of(RecipeTexts::recipeFrom(stored), frame, true) != stored) {
        std::abort();
    }
}

void useRecipe(const ImageRecipe& recipe)
{
    applyRecipe(recipe);
    checkTexts(recipe);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const auto application = makeApplication();
    const InputFile file(data, size);
    QString error;
    if (const auto origin = imaging::readOrigin(file.path(), error)) {
        useRecipe(origin->recipe);
    }
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data),
                                           static_cast<int>(size < 4096 ? size : 4096));
    const RecipeTexts::Texts texts = textsIn(text);
    static_cast<void>(RecipeTexts::hasPictureWatermark(texts));
    useRecipe(RecipeTexts::recipeFrom(texts));
    static_cast<void>(Recording::parseMoment(text));
    static_cast<void>(Recording::parsePlace(text));
    static_cast<void>(plainText(text));
    static_cast<void>(plainLines(text));
    return 0;
}
