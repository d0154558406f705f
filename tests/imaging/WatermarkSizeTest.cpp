#include "imaging/ImageProcessingManager.h"
#include "imaging/Rendering.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"

#include <QFontDatabase>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

constexpr QSize smallImage{640, 360};
constexpr QSize largeImage{3840, 2160};
constexpr QSize uprightImage{1080, 1920};

QImage blackImage(const QSize& size)
{
    QImage image(size, QImage::Format_RGB888);
    image.fill(Qt::black);
    return image;
}

QRect brightArea(const QImage& image)
{
    QRect area;
    const QImage greys = image.convertToFormat(QImage::Format_Grayscale8);
    for (int y = 0; y < greys.height(); ++y) {
        const uchar* const line = greys.constScanLine(y);
        for (int x = 0; x < greys.width(); ++x) {
            if (line[x] > 40) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

WatermarkRecipe pictureRecipe(const QSize& size, int percent)
{
    WatermarkRecipe recipe;
    recipe.kind = WatermarkRecipe::Kind::Picture;
    recipe.picture = QImage(size, QImage::Format_RGB32);
    recipe.picture.fill(Qt::white);
    recipe.widthPercent = percent;
    recipe.xMargin = 15;
    recipe.yMargin = 10;
    return recipe;
}

/// Blocks from edge to edge, so that the visible width equals the measured one.
WatermarkRecipe textRecipe(const QString& text, int percent)
{
    WatermarkRecipe recipe;
    recipe.text = text;
    recipe.font = QFont(QStringLiteral("DejaVu Sans Mono"), 12);
    recipe.textColor = Qt::white;
    recipe.hasShadow = false;
    recipe.widthPercent = percent;
    recipe.xMargin = 15;
    recipe.yMargin = 10;
    return recipe;
}

QString blocks(int count)
{
    return QString(count, QChar(0x2588));
}

QRect drawn(const QSize& image, const WatermarkRecipe& recipe)
{
    return brightArea(imaging::watermarked(blackImage(image), recipe));
}

} // namespace

/// Watermarks with a relative width, and texts without a shadow.
class WatermarkSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void picture_takesItsPartOfTheWidth_data();
    void picture_takesItsPartOfTheWidth();
    void text_takesItsPartOfTheWidth_data();
    void text_takesItsPartOfTheWidth();
    void text_isNoHigherThanTheImage();
    void textWithoutWidth_isHarmless();
    void text_hasItsFontsSize_withoutAPart();
    void shadow_isNotDrawn_whenItIsOff();
    void profile_hasItsOwnSize_whereItWasStoredWithoutAChoice();
    void window_makesTheSamePicture_asTheRecipe();
};

void WatermarkSizeTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    const QString file = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf");
    QVERIFY2(QFontDatabase::addApplicationFont(file) >= 0, qPrintable(file));
}

void WatermarkSizeTest::picture_takesItsPartOfTheWidth_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QRect>("area");
    QTest::newRow("smaller") << smallImage << QSize(400, 100) << 25 << QRect(465, 310, 160, 40);
    QTest::newRow("larger") << largeImage << QSize(400, 100) << 25 << QRect(2865, 1910, 960, 240);
    QTest::newRow("upright") << uprightImage << QSize(50, 100) << 10 << QRect(957, 1694, 108, 216);
    QTest::newRow("too high") << smallImage << QSize(100, 400) << 100 << QRect(535, 0, 90, 350);
    QTest::newRow("own size") << smallImage << QSize(400, 100) << 0 << QRect(225, 250, 400, 100);
}

void WatermarkSizeTest::picture_takesItsPartOfTheWidth()
{
    QFETCH(QSize, image);
    QFETCH(QSize, picture);
    QFETCH(int, percent);
    QTEST(drawn(image, pictureRecipe(picture, percent)), "area");
}

void WatermarkSizeTest::text_takesItsPartOfTheWidth_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("text");
    QTest::newRow("small") << smallImage << 20 << blocks(8);
    QTest::newRow("large") << largeImage << 20 << blocks(8);
    QTest::newRow("upright") << uprightImage << 50 << blocks(8);
    QTest::newRow("whole width") << smallImage << 95 << blocks(30);
    QTest::newRow("lines") << largeImage << 30 << blocks(3) + QLatin1Char('\n') + blocks(12);
}

void WatermarkSizeTest::text_takesItsPartOfTheWidth()
{
    QFETCH(QSize, image);
    QFETCH(int, percent);
    QFETCH(QString, text);
    const QRect area = drawn(image, textRecipe(text, percent));
    const double wanted = image.width() * percent / 100.0;
    QVERIFY2(std::abs(area.width() - wanted) <= 2 + wanted / 100,
             qPrintable(QStringLiteral("%1 for %2").arg(area.width()).arg(wanted)));
    QVERIFY(std::abs(area.right() - (image.width() - 16)) <= 2);
    // The blocks go a little below the line.
    QVERIFY(area.bottom() <= image.height() - 10 + area.height() / 20);
    QVERIFY(area.bottom() > image.height() - 10 - area.height());
}

void WatermarkSizeTest::text_isNoHigherThanTheImage()
{
    WatermarkRecipe recipe = textRecipe(blocks(1), 100);
    recipe.alignment = Qt::AlignCenter;
    const QRect area = drawn(smallImage, recipe);
    QVERIFY(area.height() > smallImage.height() * 3 / 4);
    QVERIFY(area.width() < smallImage.width() / 2);
}

void WatermarkSizeTest::textWithoutWidth_isHarmless()
{
    QCOMPARE(drawn(smallImage, textRecipe(QStringLiteral("\n\n"), 50)), QRect());
    QCOMPARE(drawn({1, 1}, textRecipe(QString(), 50)), QRect());
    QVERIFY(!imaging::watermarked(blackImage({1, 1}), textRecipe(blocks(3), 1)).isNull());
}

void WatermarkSizeTest::text_hasItsFontsSize_withoutAPart()
{
    const WatermarkRecipe recipe = textRecipe(blocks(8), 0);
    QCOMPARE(drawn(largeImage, recipe).size(), drawn(smallImage, recipe).size());
}

void WatermarkSizeTest::shadow_isNotDrawn_whenItIsOff()
{
    WatermarkProfile profile(nullptr);
    profile.setText(blocks(4));
    profile.setTextColor(Qt::white);
    profile.setTextShadowColor(Qt::red);
    profile.setTextShadowXOffset(-60);
    profile.setTextShadow(false);
    const QImage without = imaging::watermarked(blackImage(smallImage), recipes::of(profile));
    profile.setTextShadow(true);
    const QImage with = imaging::watermarked(blackImage(smallImage), recipes::of(profile));
    QVERIFY(brightArea(with).left() < brightArea(without).left());
    for (int y = 0; y < without.height(); ++y) {
        for (int x = 0; x < without.width(); ++x) {
            const QColor color = without.pixelColor(x, y);
            QCOMPARE(color.red(), color.green());
        }
    }
}

void WatermarkSizeTest::profile_hasItsOwnSize_whereItWasStoredWithoutAChoice()
{
    const std::unique_ptr<BaseProfile> made(WatermarkProfile::profileManager()->createProfile());
    auto& profile = static_cast<WatermarkProfile&>(*made);
    QVERIFY(profile.relativeSize());
    QCOMPARE(recipes::of(profile).widthPercent, profile.relativeWidth());
    const QTemporaryDir dir;
    QSettings settings(dir.filePath(QStringLiteral("old.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("text"), QStringLiteral("old"));
    profile.load(settings);
    QVERIFY(!profile.relativeSize());
    QCOMPARE(recipes::of(profile).widthPercent, 0);
    profile.setRelativeSize(true);
    profile.setRelativeWidth(1000);
    QCOMPARE(recipes::of(profile).widthPercent, 100);
    profile.save(settings);
    WatermarkProfile stored(nullptr);
    stored.load(settings);
    QVERIFY(stored.relativeSize());
}

void WatermarkSizeTest::window_makesTheSamePicture_asTheRecipe()
{
    WatermarkProfile mark(nullptr);
    mark.setText(QStringLiteral("Harbour"));
    mark.setRelativeSize(true);
    mark.setRelativeWidth(33);
    ImageProfile profile(nullptr);
    profile.setImageWidth(333);
    profile.setImageHeight(222);
    const QImage window =
        ImageProcessingManager::instance()->processImage(blackImage(largeImage), &profile, &mark);
    const QImage series =
        imaging::render(blackImage(largeImage), recipes::of(profile, &mark)).image;
    QCOMPARE(imaging::encode(window, 90, QStringLiteral("png")),
             imaging::encode(series, 90, QStringLiteral("png")));
    QVERIFY(!brightArea(window).isEmpty());
}

QTEST_MAIN(WatermarkSizeTest)
#include "WatermarkSizeTest.moc"
