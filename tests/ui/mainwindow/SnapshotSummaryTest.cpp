#include "ui/mainwindow/SnapshotSummary.h"

#include <QTest>

class SnapshotSummaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_tellsSizeFormatAndWatermark();
    void text_tellsTheFramesSize_onlyWhenItDiffers();
    void text_tellsTheQuality_onlyWhenTheFormatHasOne();
};

namespace {

const QSize small(640, 360);
const QSize large(1920, 1080);

/// The tildes stand for spaces at which no line is broken.
QString unbroken(const char* text)
{
    return QString::fromUtf8(text).replace(QLatin1Char('~'), QChar(QChar::Nbsp));
}

} // namespace

void SnapshotSummaryTest::text_tellsSizeFormatAndWatermark()
{
    ImageRecipe recipe;
    recipe.watermark = WatermarkRecipe();
    QCOMPARE(SnapshotSummary::text(small, large, QStringLiteral("jpg"), recipe),
             unbroken("640~×~360 of 1920~×~1080~· JPEG~100~· watermark"));
}

void SnapshotSummaryTest::text_tellsTheFramesSize_onlyWhenItDiffers()
{
    QCOMPARE(SnapshotSummary::text(large, large, QStringLiteral("png"), ImageRecipe()),
             unbroken("1920~×~1080~· PNG"));
}

void SnapshotSummaryTest::text_tellsTheQuality_onlyWhenTheFormatHasOne()
{
    ImageRecipe recipe;
    recipe.jpegQuality = 80;
    const auto format = [&recipe](const char* type) {
        return SnapshotSummary::text(large, large, QString::fromLatin1(type), recipe)
            .section(unbroken("~· "), 1);
    };
    QCOMPARE(format("JPEG"), unbroken("JPEG~80"));
    QCOMPARE(format("webp"), unbroken("WebP~80"));
    QCOMPARE(format("jxl"), unbroken("JPEG XL~80"));
    QCOMPARE(format("tif"), QStringLiteral("TIFF"));
    QCOMPARE(format("bmp"), QStringLiteral("BMP"));
}

QTEST_APPLESS_MAIN(SnapshotSummaryTest)
#include "SnapshotSummaryTest.moc"
