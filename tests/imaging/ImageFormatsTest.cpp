#include "imaging/ImageFormats.h"

#include "imaging/Rendering.h"

#include <QImage>
#include <QImageWriter>
#include <QTest>

#include <cstdlib>

namespace {

QImage picture(QImage::Format format)
{
    QImage image(96, 64, QImage::Format_RGBX64);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const auto noise = static_cast<quint16>((x * 7919 + y * 104729) % 9000);
            image.setPixelColor(x, y, QColor::fromRgba64(600 * x + noise / 3, 900 * y, noise * 7));
        }
    }
    return image.convertToFormat(format);
}

} // namespace

class ImageFormatsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offeredFormats_areThoseThatCanBeWritten()
    {
        const QStringList suffixes = ImageFormats::suffixes();
        QCOMPARE(suffixes.mid(0, 6).join(QLatin1Char(' ')),
                 QStringLiteral("jpg jpeg png tif tiff bmp"));
        const auto writable = QImageWriter::supportedImageFormats();
        for (const char* const optional : {"webp", "avif", "jxl"}) {
            QCOMPARE(suffixes.contains(QLatin1String(optional)), writable.contains(optional));
            QCOMPARE(ImageFormats::canWrite(QLatin1String(optional)), writable.contains(optional));
        }
        QVERIFY(ImageFormats::canWrite(QStringLiteral("PNG")));
        QVERIFY(ImageFormats::canWrite(QStringLiteral("ppm")));
        QVERIFY(!ImageFormats::canWrite(QStringLiteral("gif")));
        QVERIFY(!ImageFormats::canWrite(QString()));
    }

    void everyFormat_holdsThePicture_data() { optionalFormats({"jpg", "png", "tiff", "bmp"}); }
    void everyFormat_holdsThePicture()
    {
        QFETCH(const QString, type);
        if (!ImageFormats::canWrite(type)) {
            QSKIP("The plugin is not installed.");
        }
        const QImage image = picture(QImage::Format_RGB888);
        const QImage read = QImage::fromData(imaging::encode(image, 90, type), qPrintable(type));
        QCOMPARE(read.size(), image.size());
        QVERIFY(std::abs(qRed(read.pixel(50, 30)) - qRed(image.pixel(50, 30))) < 32);
    }

    void quality_matters_whereItIsSaidTo_data() { optionalFormats({"jpg", "JPEG", "png", "tiff"}); }
    void quality_matters_whereItIsSaidTo()
    {
        QFETCH(const QString, type);
        if (!ImageFormats::canWrite(type)) {
            QSKIP("The plugin is not installed.");
        }
        const QImage image = picture(QImage::Format_RGB888);
        const auto low = imaging::encode(image, 20, type).size();
        const auto high = imaging::encode(image, 95, type).size();
        QVERIFY(low > 0);
        QCOMPARE(low < high, ImageFormats::hasQuality(type));
    }

    void depth_isKept_whereItIsSaidTo_data()
    {
        optionalFormats({"jpg", "png", "tif", "tiff", "bmp"});
    }
    void depth_isKept_whereItIsSaidTo()
    {
        QFETCH(const QString, type);
        if (!ImageFormats::canWrite(type)) {
            QSKIP("The plugin is not installed.");
        }
        const QImage image = picture(QImage::Format_RGBX64);
        const QImage read = QImage::fromData(imaging::encode(image, 90, type), qPrintable(type));
        QCOMPARE(read.size(), image.size());
        QCOMPARE(read.depth() == 64, ImageFormats::hasDepth(type));
        ImageRecipe recipe;
        recipe.keepsDeepColours = true;
        QCOMPARE(forType(recipe, type).keepsDeepColours, ImageFormats::hasDepth(type));
    }

private:
    static void optionalFormats(std::initializer_list<const char*> others)
    {
        QTest::addColumn<QString>("type");
        for (const char* const type : others) {
            QTest::newRow(type) << QString::fromLatin1(type);
        }
        for (const char* const type : {"webp", "avif", "jxl"}) {
            QTest::newRow(type) << QString::fromLatin1(type);
        }
    }
};

QTEST_GUILESS_MAIN(ImageFormatsTest)
#include "ImageFormatsTest.moc"
