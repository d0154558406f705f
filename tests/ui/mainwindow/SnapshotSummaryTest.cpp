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

} // namespace

void SnapshotSummaryTest::text_tellsSizeFormatAndWatermark()
{
    ImageRecipe recipe;
    recipe.watermark = WatermarkRecipe();
    QCOMPARE(SnapshotSummary::text(small, large, QStringLiteral("jpg"), recipe),
             QStringLiteral("640 × 360 of 1920 × 1080 · JPEG 100 · watermark"));
}

void SnapshotSummaryTest::text_tellsTheFramesSize_onlyWhenItDiffers()
{
    QCOMPARE(SnapshotSummary::text(large, large, QStringLiteral("png"), ImageRecipe()),
             QStringLiteral("1920 × 1080 · PNG"));
}

void SnapshotSummaryTest::text_tellsTheQuality_onlyWhenTheFormatHasOne()
{
    ImageRecipe recipe;
    recipe.jpegQuality = 80;
    const auto format = [&recipe](const char* type) {
        return SnapshotSummary::text(large, large, QString::fromLatin1(type), recipe)
            .section(QStringLiteral(" · "), 1);
    };
    QCOMPARE(format("JPEG"), QStringLiteral("JPEG 80"));
    QCOMPARE(format("webp"), QStringLiteral("WebP 80"));
    QCOMPARE(format("jxl"), QStringLiteral("JPEG XL 80"));
    QCOMPARE(format("tif"), QStringLiteral("TIFF"));
    QCOMPARE(format("bmp"), QStringLiteral("BMP"));
}

QTEST_APPLESS_MAIN(SnapshotSummaryTest)
#include "SnapshotSummaryTest.moc"
