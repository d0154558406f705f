#include "imaging/Rendering.h"

#include <QImage>
#include <QRgba64>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

/// Every pixel has codes that 8 bits cannot represent.
QImage deepPicture(QImage::Format format)
{
    QImage image(61, 37, format);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const auto code = static_cast<quint16>((x * 1000 + y * 7 + 1) % 65535);
            const quint16 alpha = format == QImage::Format_RGBX64 ? 65535 : 40000 + y;
            line[x] = qRgba64(code, 65535 - code, code / 3, alpha);
        }
    }
    return image;
}

ImageRecipe deepRecipe()
{
    ImageRecipe recipe;
    recipe.keepsDeepColours = true;
    return recipe;
}

QRgba64 deepPixelAt(const QImage& image, int x, int y)
{
    return reinterpret_cast<const QRgba64*>(image.constScanLine(y))[x];
}

} // namespace

class DeepColoursTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void render_keepsEveryBit_data() { formats(); }
    void render_keepsEveryBit()
    {
        QFETCH(const QImage::Format, format);
        const QImage image = deepPicture(format);
        const QImage made = imaging::render(image, deepRecipe()).image;
        QCOMPARE(made.format(), format);
        QCOMPARE(made, image);
    }

    void render_gives8Bits_unlessTheRecipeKeepsMore()
    {
        const QImage opaque = imaging::render(deepPicture(QImage::Format_RGBX64), {}).image;
        QCOMPARE(opaque.format(), QImage::Format_RGB888);
        const QImage clear = imaging::render(deepPicture(QImage::Format_RGBA64), {}).image;
        QCOMPARE(clear.format(), QImage::Format_ARGB32);
        const QImage plain(8, 8, QImage::Format_RGB888);
        QCOMPARE(imaging::render(plain, deepRecipe()).image.format(), QImage::Format_RGB888);
    }

    void corrections_areThoseOf8Bits_butFiner()
    {
        QImage image = deepPicture(QImage::Format_RGBX64);
        ImageRecipe recipe = deepRecipe();
        recipe.contrast = -100;
        recipe.brightness = 10;
        const QImage made = imaging::render(image, recipe).image;
        QCOMPARE(made.format(), QImage::Format_RGBX64);
        for (int x = 0; x < image.width(); ++x) {
            const QRgba64 before = deepPixelAt(image, x, 5);
            const QRgba64 after = deepPixelAt(made, x, 5);
            // Half a step is rounded to the even code.
            QVERIFY(std::abs(after.red() - (before.red() * 0.5 + 2570.0)) <= 0.5);
            QVERIFY(std::abs(after.green() - (before.green() * 0.5 + 2570.0)) <= 0.5);
            QCOMPARE(after.alpha(), quint16(65535));
        }
    }

    void size_changes_withoutLosingBits_data()
    {
        QTest::addColumn<int>("filter");
        for (const auto filter : {ResizeFilter::Area, ResizeFilter::Lanczos, ResizeFilter::Bicubic,
                                  ResizeFilter::Nearest}) {
            QTest::addRow("filter %d", static_cast<int>(filter)) << static_cast<int>(filter);
        }
    }
    void size_changes_withoutLosingBits()
    {
        QFETCH(const int, filter);
        QImage image(64, 64, QImage::Format_RGBX64);
        image.fill(QColor::fromRgba64(12345, 321, 54321));
        ImageRecipe recipe = deepRecipe();
        recipe.keepsSize = false;
        recipe.bounds = QSize(20, 20);
        recipe.keepsAspectRatio = true;
        recipe.resampling = {static_cast<ResizeFilter>(filter), ResizeLight::Linear};
        const QImage made = imaging::render(image, recipe).image;
        QCOMPARE(made.size(), QSize(20, 20));
        const QRgba64 pixel = deepPixelAt(made, 9, 9);
        QCOMPARE(pixel.red(), quint16(12345));
        QCOMPARE(pixel.green(), quint16(321));
        QCOMPARE(pixel.blue(), quint16(54321));
        QCOMPARE(pixel.alpha(), quint16(65535));
    }

    void watermark_isDrawn_onDeepPictures_data() { formats(); }
    void watermark_isDrawn_onDeepPictures()
    {
        QFETCH(const QImage::Format, format);
        ImageRecipe recipe = deepRecipe();
        WatermarkRecipe mark;
        mark.kind = WatermarkRecipe::Kind::Picture;
        mark.picture = QImage(10, 10, QImage::Format_ARGB32);
        mark.picture.fill(Qt::red);
        mark.alignment = Qt::AlignLeft | Qt::AlignTop;
        recipe.watermark = mark;
        const QImage image = deepPicture(format);
        const QImage made = imaging::render(image, recipe).image;
        QCOMPARE(made.format(), format);
        QCOMPARE(made.pixelColor(3, 3), QColor(Qt::red));
        QCOMPARE(deepPixelAt(made, 30, 30), deepPixelAt(image, 30, 30));
    }

    void files_keepEveryBit_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QImage::Format>("format");
        for (const char* const type : {"png", "tif", "tiff"}) {
            QTest::addRow("%s", type) << QString::fromLatin1(type) << QImage::Format_RGBX64;
            QTest::addRow("%s with alpha", type)
                << QString::fromLatin1(type) << QImage::Format_RGBA64;
        }
    }
    void files_keepEveryBit()
    {
        QFETCH(const QString, type);
        QFETCH(const QImage::Format, format);
        const QImage image = deepPicture(format);
        const PictureSource source =
            PictureSource::of(QStringLiteral("/a.mkv"), {}, 1, 1000).at(1.0, image.size());
        const QImage read = QImage::fromData(imaging::encode(image, deepRecipe(), type, source));
        QCOMPARE(read.depth(), 64);
        const QImage back = read.convertToFormat(QImage::Format_RGBA64);
        const QImage expected = image.convertToFormat(QImage::Format_RGBA64);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QCOMPARE(deepPixelAt(back, x, y), deepPixelAt(expected, x, y));
            }
        }
    }

    void filesOf8Bits_areMade_ofDeepPictures_data()
    {
        QTest::addColumn<QString>("type");
        for (const char* const type : {"jpg", "bmp", "webp"}) {
            QTest::newRow(type) << QString::fromLatin1(type);
        }
    }
    void filesOf8Bits_areMade_ofDeepPictures()
    {
        QFETCH(const QString, type);
        const QImage image = deepPicture(QImage::Format_RGBX64);
        for (const int quality : {80, 100}) {
            const QImage read = QImage::fromData(imaging::encode(image, quality, type));
            QCOMPARE(read.size(), image.size());
            QVERIFY(std::abs(read.pixelColor(30, 20).red() - image.pixelColor(30, 20).red()) < 24);
        }
    }

private:
    static void formats()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("opaque") << QImage::Format_RGBX64;
        QTest::newRow("with alpha") << QImage::Format_RGBA64;
    }
};

QTEST_MAIN(DeepColoursTest)
#include "DeepColoursTest.moc"
