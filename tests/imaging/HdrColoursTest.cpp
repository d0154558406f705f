#include "imaging/HdrColours.h"

#include "imaging/ImageFileWriter.h"
#include "imaging/Rendering.h"

#include <QBuffer>
#include <QImageReader>
#include <QRgba64>
#include <QTest>

#include <lcms2.h>

#include <cmath>
#include <memory>

using QtAV::StoredColours;
using Primaries = StoredColours::Primaries;
using Transfer = StoredColours::Transfer;

namespace {

constexpr StoredColours pq{Transfer::Pq, Primaries::Bt2020};
constexpr StoredColours hlg{Transfer::Hlg, Primaries::Bt2020};

struct ProfileDeleter
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using ProfilePtr = std::unique_ptr<void, ProfileDeleter>;

ProfilePtr openProfile(const QByteArray& bytes)
{
    return ProfilePtr(
        cmsOpenProfileFromMem(bytes.constData(), static_cast<cmsUInt32Number>(bytes.size())));
}

/// Grey of 40 nits, with a colour space.
QImage flatImage(const StoredColours& colours, QImage::Format format = QImage::Format_RGBX64)
{
    QImage image(64, 48, format);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            line[x] = qRgba64(27001, 27002, 27003, 65535);
        }
    }
    image.setColorSpace(HdrColours::colorSpaceOf(colours));
    return image;
}

QRgba64 storedPixelAt(const QImage& image, int x, int y)
{
    return reinterpret_cast<const QRgba64*>(image.constScanLine(y))[x];
}

ImageRecipe storedRecipe()
{
    ImageRecipe recipe;
    recipe.keepsHdr = true;
    return recipe;
}

WatermarkRecipe whiteSquare(int opacity)
{
    WatermarkRecipe watermark;
    watermark.kind = WatermarkRecipe::Kind::Picture;
    watermark.alignment = Qt::AlignLeft | Qt::AlignTop;
    watermark.opacity = opacity;
    watermark.picture = QImage(8, 8, QImage::Format_RGB32);
    watermark.picture.fill(Qt::white);
    return watermark;
}

} // namespace

class HdrColoursTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void profile_namesCurveAndPrimaries_data();
    void profile_namesCurveAndPrimaries();
    void profile_hasTheStandardsWhite();
    void image_tellsWhatItsValuesStandFor();
    void pngAndTiff_keepValuesAndProfile_data();
    void pngAndTiff_keepValuesAndProfile();
    void png_saysItsCodePoints_beforeItsPicture();
    void size_changes_andColoursStay();
    void watermark_isAsBrightAsInStandardRange();
};

void HdrColoursTest::profile_namesCurveAndPrimaries_data()
{
    QTest::addColumn<int>("transfer");
    QTest::addColumn<int>("primaries");
    QTest::addColumn<int>("transferCode");
    QTest::addColumn<int>("primariesCode");
    const auto row = [](const char* name, const StoredColours& colours, int transfer,
                        int primaries) {
        QTest::newRow(name) << static_cast<int>(colours.transfer)
                            << static_cast<int>(colours.primaries) << transfer << primaries;
    };
    row("PQ", pq, 16, 9);
    row("HLG", hlg, 18, 9);
    row("PQ of P3", {Transfer::Pq, Primaries::P3}, 16, 12);
    row("PQ of BT.709", {Transfer::Pq, Primaries::Standard}, 16, 1);
}

void HdrColoursTest::profile_namesCurveAndPrimaries()
{
    QFETCH(const int, transfer);
    QFETCH(const int, primaries);
    const StoredColours colours{static_cast<Transfer>(transfer), static_cast<Primaries>(primaries)};
    const QColorSpace space = HdrColours::colorSpaceOf(colours);
    QVERIFY(space.isValid());
    const ProfilePtr profile = openProfile(space.iccProfile());
    QVERIFY(profile);
    QCOMPARE(cmsGetProfileVersion(profile.get()), 4.4);
    // The type, four bytes that are reserved, and the numbers.
    QByteArray codes(100, '\0');
    codes.resize(static_cast<int>(cmsReadRawTag(profile.get(), cmsSigcicpTag, codes.data(), 100)));
    QCOMPARE(codes.size(), 12);
    QCOMPARE(codes.left(8), QByteArray("cicp\0\0\0\0", 8));
    QTEST(static_cast<int>(codes.at(8)), "primariesCode");
    QTEST(static_cast<int>(codes.at(9)), "transferCode");
    QCOMPARE(static_cast<int>(codes.at(10)), 0);
    QCOMPARE(static_cast<int>(codes.at(11)), 1);
    const auto* const curve =
        static_cast<const cmsToneCurve*>(cmsReadTag(profile.get(), cmsSigGreenTRCTag));
    QVERIFY(curve != nullptr);
    for (const float value : {0.0F, 0.25F, 0.5F, 0.75F, 1.0F}) {
        QVERIFY(std::abs(cmsEvalToneCurveFloat(curve, value) - colours.lightOf(value)) < 1e-4);
    }
}

void HdrColoursTest::profile_hasTheStandardsWhite()
{
    const ProfilePtr profile = openProfile(HdrColours::colorSpaceOf(pq).iccProfile());
    // In the connection space white is D50, whatever the white of the picture.
    cmsCIEXYZ sum{0.0, 0.0, 0.0};
    for (const cmsTagSignature tag :
         {cmsSigRedColorantTag, cmsSigGreenColorantTag, cmsSigBlueColorantTag}) {
        const auto* const xyz = static_cast<const cmsCIEXYZ*>(cmsReadTag(profile.get(), tag));
        QVERIFY(xyz != nullptr);
        sum.X += xyz->X;
        sum.Y += xyz->Y;
        sum.Z += xyz->Z;
    }
    QVERIFY(std::abs(sum.X - 0.9642) < 0.001);
    QVERIFY(std::abs(sum.Y - 1.0) < 0.001);
    QVERIFY(std::abs(sum.Z - 0.8249) < 0.001);
}

void HdrColoursTest::image_tellsWhatItsValuesStandFor()
{
    QVERIFY(*HdrColours::of(flatImage(pq)) == pq);
    QVERIFY(*HdrColours::of(flatImage(hlg)) == hlg);
    QImage other(4, 4, QImage::Format_RGBX64);
    QVERIFY(!HdrColours::of(other));
    other.setColorSpace(QColorSpace(QColorSpace::SRgb));
    QVERIFY(!HdrColours::of(other));
}

void HdrColoursTest::pngAndTiff_keepValuesAndProfile_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QImage::Format>("format");
    for (const char* const type : {"png", "tif", "tiff"}) {
        QTest::addRow("%s", type) << QString::fromLatin1(type) << QImage::Format_RGBX64;
        QTest::addRow("%s with alpha", type) << QString::fromLatin1(type) << QImage::Format_RGBA64;
    }
}

void HdrColoursTest::pngAndTiff_keepValuesAndProfile()
{
    QFETCH(const QString, type);
    QFETCH(const QImage::Format, format);
    const QImage image = flatImage(pq, format);
    QByteArray content = imaging::encode(image, 90, type);
    QBuffer buffer(&content);
    QImageReader reader(&buffer);
    const QImage read = reader.read();
    QCOMPARE(read.size(), image.size());
    QVERIFY(*HdrColours::of(read) == pq);
    const QImage deep = read.convertToFormat(QImage::Format_RGBA64);
    QCOMPARE(static_cast<quint64>(storedPixelAt(deep, 5, 5)),
             static_cast<quint64>(storedPixelAt(image, 5, 5)));
}

void HdrColoursTest::png_saysItsCodePoints_beforeItsPicture()
{
    const QByteArray content = imaging::encode(flatImage(hlg), 90, QStringLiteral("png"));
    const int chunk = content.indexOf("cICP");
    QVERIFY(chunk > 0);
    QVERIFY(chunk < content.indexOf("IDAT"));
    QVERIFY(chunk < content.indexOf("iCCP"));
    QCOMPARE(content.mid(chunk - 4, 12), QByteArray("\0\0\0\4cICP\x09\x12\0\1", 12));
    // The checksum of these eight bytes, by another program.
    QCOMPARE(content.mid(chunk + 8, 4), QByteArray::fromHex("4ea7f790"));
    const QByteArray usual =
        imaging::encode(QImage(4, 4, QImage::Format_RGB32), 90, QStringLiteral("png"));
    QVERIFY(!usual.contains("cICP"));
}

void HdrColoursTest::size_changes_andColoursStay()
{
    ImageRecipe recipe = storedRecipe();
    recipe.keepsSize = false;
    recipe.bounds = QSize(32, 24);
    recipe.resampling = {ResizeFilter::Lanczos, ResizeLight::Linear};
    const QImage made = imaging::render(flatImage(pq), recipe).image;
    QCOMPARE(made.size(), QSize(32, 24));
    QCOMPARE(made.format(), QImage::Format_RGBX64);
    QVERIFY(*HdrColours::of(made) == pq);
    QVERIFY(std::abs(int(storedPixelAt(made, 9, 9).red()) - 27001) <= 1);
}

void HdrColoursTest::watermark_isAsBrightAsInStandardRange()
{
    ImageRecipe recipe = storedRecipe();
    recipe.watermark = whiteSquare(255);
    const QImage opaque = imaging::render(flatImage(pq), recipe).image;
    const int white = static_cast<int>(std::lround(pq.valuesOf({1, 1, 1})[0] * 65535));
    QVERIFY(std::abs(int(storedPixelAt(opaque, 3, 3).red()) - white) <= 1);
    QCOMPARE(int(storedPixelAt(opaque, 20, 20).red()), 27001);
    recipe.watermark = whiteSquare(128);
    const QImage half = imaging::render(flatImage(pq), recipe).image;
    QVERIFY(std::abs(int(storedPixelAt(half, 3, 3).red()) - (white + 27001) / 2) < 200);
    QVERIFY(*HdrColours::of(half) == pq);
}

QTEST_MAIN(HdrColoursTest)
#include "HdrColoursTest.moc"
