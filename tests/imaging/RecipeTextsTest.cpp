#include "imaging/RecipeTexts.h"

#include <QTest>

using RecipeTexts::Texts;

namespace {

constexpr QSize frame{320, 240};

WatermarkRecipe textWatermark()
{
    WatermarkRecipe watermark;
    watermark.alignment = Qt::AlignLeft | Qt::AlignVCenter;
    watermark.xMargin = -3;
    watermark.yMargin = 17;
    watermark.opacity = 99;
    watermark.text = QStringLiteral("two\nlines, <&\">");
    watermark.font = QFont(QStringLiteral("DejaVu Sans"), 31, QFont::Bold, true);
    watermark.textColor = QColor(1, 2, 3, 4);
    watermark.shadowColor = QColor(250, 251, 252, 253);
    watermark.shadowOffset = QPoint(2, -5);
    watermark.widthPercent = 35;
    return watermark;
}

Texts textsOf(const ImageRecipe& recipe)
{
    return RecipeTexts::of(recipe, frame, true);
}

ImageRecipe sized(const QSize& bounds, bool keepsAspectRatio, bool enlarges)
{
    ImageRecipe recipe;
    recipe.keepsSize = false;
    recipe.bounds = bounds;
    recipe.keepsAspectRatio = keepsAspectRatio;
    recipe.enlarges = enlarges;
    return recipe;
}

} // namespace

class RecipeTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recipe_comesBack()
    {
        ImageRecipe recipe = sized({640, 100}, true, false);
        recipe.contrast = -7;
        recipe.brightness = 31;
        recipe.jpegQuality = 83;
        recipe.keepsDeepColours = true;
        recipe.deinterlacing = QStringLiteral("off");
        recipe.keepsHdr = true;
        recipe.resampling = {ResizeFilter::Bicubic, ResizeLight::Linear};
        recipe.watermark = textWatermark();
        const ImageRecipe back = RecipeTexts::recipeFrom(textsOf(recipe));
        QCOMPARE(back.keepsSize, false);
        QCOMPARE(back.bounds, QSize(640, 100));
        QCOMPARE(back.keepsAspectRatio, true);
        QCOMPARE(back.contrast, -7);
        QCOMPARE(back.brightness, 31);
        QCOMPARE(back.jpegQuality, 83);
        QVERIFY(back.keepsDeepColours);
        QVERIFY(back.keepsHdr);
        QCOMPARE(back.deinterlacing, QStringLiteral("off"));
        QVERIFY(back.resampling.filter == ResizeFilter::Bicubic);
        QVERIFY(back.resampling.light == ResizeLight::Linear);
        QVERIFY(back.watermark);
        QVERIFY(back.watermark->kind == WatermarkRecipe::Kind::Text);
        QCOMPARE(back.watermark->alignment, recipe.watermark->alignment);
        QCOMPARE(back.watermark->xMargin, -3);
        QCOMPARE(back.watermark->yMargin, 17);
        QCOMPARE(back.watermark->opacity, 99);
        QCOMPARE(back.watermark->text, recipe.watermark->text);
        QCOMPARE(back.watermark->font, recipe.watermark->font);
        QCOMPARE(back.watermark->textColor, recipe.watermark->textColor);
        QCOMPARE(back.watermark->shadowColor, recipe.watermark->shadowColor);
        QCOMPARE(back.watermark->shadowOffset, recipe.watermark->shadowOffset);
        QCOMPARE(back.watermark->widthPercent, 35);
        QVERIFY(back.watermark->hasShadow);
    }

    void watermarkWithoutShadow_comesBackWithout()
    {
        ImageRecipe recipe;
        recipe.watermark = textWatermark();
        recipe.watermark->hasShadow = false;
        recipe.watermark->widthPercent = 0;
        const Texts texts = textsOf(recipe);
        QVERIFY(!RecipeTexts::recipeFrom(texts).watermark->hasShadow);
        QCOMPARE(RecipeTexts::recipeFrom(texts).watermark->widthPercent, 0);
        recipe.watermark->shadowColor = Qt::red;
        QCOMPARE(textsOf(recipe), texts);
    }

    void recipesOfTheSameEffect_haveTheSameTexts()
    {
        // It shrinks, whether enlarging is allowed or not.
        QCOMPARE(textsOf(sized({100, 100}, true, true)), textsOf(sized({100, 100}, true, false)));
        // It keeps the size, since the frame already fits.
        QCOMPARE(textsOf(sized({999, 999}, true, false)), textsOf(ImageRecipe()));
        QVERIFY(textsOf(sized({999, 999}, true, true)) != textsOf(ImageRecipe()));
        QVERIFY(textsOf(sized({100, 100}, true, true)) != textsOf(sized({100, 100}, false, true)));
        ImageRecipe filtered;
        filtered.resampling = {ResizeFilter::Lanczos, ResizeLight::Linear};
        QCOMPARE(textsOf(filtered), textsOf(ImageRecipe()));
        ImageRecipe quality;
        quality.jpegQuality = 3;
        QVERIFY(textsOf(quality) != textsOf(ImageRecipe()));
        QCOMPARE(RecipeTexts::of(quality, frame, false),
                 RecipeTexts::of(ImageRecipe(), frame, false));
        ImageRecipe marked;
        marked.watermark = textWatermark();
        marked.watermark->opacity = 0;
        QCOMPARE(textsOf(marked), textsOf(ImageRecipe()));
    }

    void enlarging_comesBack_whereItMattered()
    {
        QVERIFY(RecipeTexts::recipeFrom(textsOf(sized({999, 999}, true, true))).enlarges);
        const ImageRecipe filled = RecipeTexts::recipeFrom(textsOf(sized({999, 50}, false, true)));
        QVERIFY(filled.enlarges);
        QVERIFY(!filled.keepsAspectRatio);
    }

    void pictureWatermark_isOnlyMentioned()
    {
        ImageRecipe recipe;
        recipe.watermark = WatermarkRecipe();
        recipe.watermark->kind = WatermarkRecipe::Kind::Picture;
        recipe.watermark->picture = QImage(3, 3, QImage::Format_RGB32);
        QVERIFY(RecipeTexts::hasPictureWatermark(textsOf(recipe)));
        QVERIFY(!RecipeTexts::recipeFrom(textsOf(recipe)).watermark);
        recipe.watermark->picture = QImage();
        QVERIFY(!RecipeTexts::hasPictureWatermark(textsOf(recipe)));
    }

    void senselessTexts_leaveTheDefaults_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const char* text) {
            QTest::addRow("%s %s", name, text)
                << QString::fromLatin1(name) << QString::fromLatin1(text);
        };
        for (const char* const text : {"", "x", "1e9", "256", "-256", "99999999999999999999"}) {
            row("Contrast", text);
            row("Brightness", text);
        }
        for (const char* const text : {"-1", "101", "ninety"}) {
            row("Quality", text);
        }
        for (const char* const text :
             {"0x0", "-3x5", "5", "5x", "5x5x5", "99999x10", "2147483647x2147483647", "5 x 5"}) {
            row("Size", text);
        }
    }
    void senselessTexts_leaveTheDefaults()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, text);
        const ImageRecipe recipe = RecipeTexts::recipeFrom({{name, text}});
        const ImageRecipe usual;
        QCOMPARE(recipe.contrast, usual.contrast);
        QCOMPARE(recipe.brightness, usual.brightness);
        QCOMPARE(recipe.jpegQuality, usual.jpegQuality);
        QCOMPARE(recipe.keepsSize, usual.keepsSize);
        QVERIFY(!recipe.watermark);
    }

    void senselessWatermark_canStillBeDrawn()
    {
        const ImageRecipe recipe = RecipeTexts::recipeFrom(
            {{QStringLiteral("Watermark"), QStringLiteral("Text")},
             {QStringLiteral("WatermarkText"), QString(100000, QLatin1Char('x'))},
             {QStringLiteral("WatermarkFont"), QStringLiteral("Sans,1000000,-1,5,50,0,0,0,0,0")},
             {QStringLiteral("WatermarkColor"), QStringLiteral("#zzzzzzzz")},
             {QStringLiteral("WatermarkMargins"), QStringLiteral("2147483647,1")},
             {QStringLiteral("WatermarkAlignment"), QStringLiteral("-1")}});
        QVERIFY(recipe.watermark);
        QCOMPARE(recipe.watermark->text.size(), 1000);
        QVERIFY(recipe.watermark->font.pointSize() < 1000);
        QCOMPARE(recipe.watermark->xMargin, 0);
        QCOMPARE(recipe.watermark->alignment, WatermarkRecipe().alignment);
    }

    void textsThatAreReadBack_areStoredAlike_whateverTheFontIsCalled()
    {
        for (const char* const name : {"DejaVu Sans", " \x1b[1m Sans\t", "\x01\x02\x03"}) {
            const ImageRecipe recipe = RecipeTexts::recipeFrom(
                {{QStringLiteral("Watermark"), QStringLiteral("Text")},
                 {QStringLiteral("WatermarkText"), QStringLiteral("x")},
                 {QStringLiteral("WatermarkFont"), QString::fromLatin1(name)}});
            const Texts stored = textsOf(recipe);
            QCOMPARE(textsOf(RecipeTexts::recipeFrom(stored)), stored);
        }
    }
};

QTEST_MAIN(RecipeTextsTest)
#include "RecipeTextsTest.moc"
