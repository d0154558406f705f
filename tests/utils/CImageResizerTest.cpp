#include "utils/CImageResizer.h"

#include <QScreen>
#include <QTest>

#include <cmath>

namespace {

/// A smooth picture without fine detail, so that every good method gives nearly the same.
QImage smoothPicture(int width, int height, QImage::Format format)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = 6.2831853 * x / width;
            const double v = 6.2831853 * y / height;
            image.setPixel(x, y,
                           qRgba(static_cast<int>(127.5 + 120.0 * std::sin(2.0 * u)),
                                 static_cast<int>(127.5 + 120.0 * std::cos(v)),
                                 static_cast<int>(127.5 + 120.0 * std::sin(u + v)),
                                 static_cast<int>(160.0 + 90.0 * std::cos(u - v))));
        }
    }
    return image.convertToFormat(format);
}

/// Peak signal-to-noise ratio in dB over the premultiplied channels; 99 for equal pictures.
double psnr(const QImage& left, const QImage& right)
{
    const QImage a = left.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = right.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    double squares = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int i = 0; i < 4 * a.width(); ++i) {
            const double difference = a.constScanLine(y)[i] - b.constScanLine(y)[i];
            squares += difference * difference;
        }
    }
    const double mean = squares / (4.0 * a.width() * a.height());
    return mean > 0.0 ? 10.0 * std::log10(255.0 * 255.0 / mean) : 99.0;
}

} // namespace

class CImageResizerTest : public QObject
{
    Q_OBJECT

private slots:
    void scaled_followsItsRule_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("bounds");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("larger on both axes, wider")
            << QSize(1920, 1080) << QSize(640, 480) << QSize(640, 360);
        QTest::newRow("larger on both axes, taller")
            << QSize(1080, 1920) << QSize(640, 480) << QSize(270, 480);
        QTest::newRow("smaller on both axes exceeds one")
            << QSize(100, 50) << QSize(200, 200) << QSize(400, 200);
        QTest::newRow("wider only exceeds the width")
            << QSize(400, 50) << QSize(200, 100) << QSize(800, 100);
        QTest::newRow("taller only exceeds the height")
            << QSize(50, 400) << QSize(100, 200) << QSize(100, 800);
        QTest::newRow("equal") << QSize(64, 48) << QSize(64, 48) << QSize(64, 48);
        QTest::newRow("equal on one axis") << QSize(64, 96) << QSize(64, 48) << QSize(64, 96);
        QTest::newRow("a half is rounded up") << QSize(10, 5) << QSize(5, 2) << QSize(4, 2);
        QTest::newRow("a half is rounded away from zero")
            << QSize(20, 10) << QSize(5, 5) << QSize(5, 3);
        QTest::newRow("no size") << QSize(0, 10) << QSize(5, 5) << QSize(0, 0);
        QTest::newRow("no bounds") << QSize(10, 10) << QSize(5, 0) << QSize(0, 0);
        QTest::newRow("negative bounds") << QSize(10, 10) << QSize(-5, 5) << QSize(0, 0);
    }
    void scaled_followsItsRule()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, bounds);
        QTEST(scaled(size, bounds), "expected");
    }

    void scaled_staysWithinInt_whenTheRatiosAreExtreme()
    {
        const QSize size = scaled(QSize(1, 1000000), QSize(1000000, 1));
        QCOMPARE(size.width(), 1000000);
        QVERIFY(size.height() > 0);
    }

    void resize_isQtsFastScaling_whenMethodIsFast()
    {
        const QImage image = smoothPicture(50, 30, QImage::Format_RGB32);
        QCOMPARE(
            CImageResizer::resize(image, QSize(25, 25), CImageResizer::Fast, CImageResizer::Keep),
            image.scaled(QSize(25, 25), Qt::KeepAspectRatio, Qt::FastTransformation));
        QCOMPARE(
            CImageResizer::resize(image, QSize(25, 25), CImageResizer::Fast, CImageResizer::Ignore),
            image.scaled(QSize(25, 25), Qt::IgnoreAspectRatio, Qt::FastTransformation));
    }

    void resize_isQtsSmoothScaling_whenMethodIsFiltered()
    {
        const QImage image = smoothPicture(50, 30, QImage::Format_ARGB32);
        QCOMPARE(CImageResizer::resize(image, QSize(25, 25), CImageResizer::Filtered,
                                       CImageResizer::Keep),
                 image.scaled(QSize(25, 25), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        // Every aspect but 0 ignores the ratio.
        QCOMPARE(CImageResizer::resize(image, QSize(25, 25), CImageResizer::Filtered,
                                       static_cast<CImageResizer::AspectRatio>(2)),
                 image.scaled(QSize(25, 25), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    void resize_isBicubic_whenMethodIsBicubic()
    {
        const QImage image = smoothPicture(50, 30, QImage::Format_RGB32);
        QCOMPARE(CImageResizer::resize(image, QSize(20, 20), CImageResizer::Bicubic,
                                       CImageResizer::Keep),
                 CImageResizer::bicubicInterpolation(image, QSize(20, 20), CImageResizer::Keep));
    }

    void resize_isNull_whenMethodIsUnknown()
    {
        const QImage image = smoothPicture(5, 5, QImage::Format_RGB32);
        QVERIFY(CImageResizer::resize(image, QSize(4, 4),
                                      static_cast<CImageResizer::ResizeMethod>(3),
                                      CImageResizer::Keep)
                    .isNull());
    }

    void bicubic_isCloseToSmoothScaling_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("half, opaque") << QSize(160, 120) << QImage::Format_RGB32;
        QTest::newRow("odd reduction, opaque") << QSize(113, 47) << QImage::Format_RGB32;
        QTest::newRow("strong reduction, alpha") << QSize(40, 30) << QImage::Format_ARGB32;
        QTest::newRow("double, opaque") << QSize(640, 480) << QImage::Format_RGB32;
        QTest::newRow("odd enlargement, alpha") << QSize(701, 333) << QImage::Format_ARGB32;
        QTest::newRow("wider and lower, alpha") << QSize(500, 100) << QImage::Format_ARGB32;
        QTest::newRow("grey") << QSize(160, 120) << QImage::Format_Grayscale8;
    }
    void bicubic_isCloseToSmoothScaling()
    {
        QFETCH(QSize, size);
        QFETCH(QImage::Format, format);
        const QImage image = smoothPicture(320, 240, format);
        const QImage result =
            CImageResizer::bicubicInterpolation(image, size, CImageResizer::Ignore);
        QCOMPARE(result.size(), size);
        const double ratio =
            psnr(result, image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        QVERIFY2(ratio > 40.0, qPrintable(QString::number(ratio)));
    }

    void bicubic_isTruerThanBilinear_whenEnlarging()
    {
        const QImage truth = smoothPicture(256, 256, QImage::Format_RGB32);
        const QImage small =
            CImageResizer::bicubicInterpolation(truth, QSize(32, 32), CImageResizer::Ignore);
        const QImage bicubic =
            CImageResizer::bicubicInterpolation(small, truth.size(), CImageResizer::Ignore);
        const QImage bilinear =
            small.scaled(truth.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QVERIFY(psnr(bicubic, truth) > psnr(bilinear, truth) + 3.0);
    }

    void bicubic_isTheImage_whenTheSizeIsItsOwn()
    {
        const QImage image = smoothPicture(33, 17, QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(CImageResizer::bicubicInterpolation(image, image.size(), CImageResizer::Keep),
                 image);
    }

    void bicubic_staysEven_whenTheImageIsEven()
    {
        QImage image(7, 5, QImage::Format_ARGB32_Premultiplied);
        image.fill(qPremultiply(qRgba(200, 100, 50, 128)));
        for (const QSize size : {QSize(3, 2), QSize(1, 1), QSize(70, 61)}) {
            const QImage result =
                CImageResizer::bicubicInterpolation(image, size, CImageResizer::Ignore);
            QImage expected(size, QImage::Format_ARGB32_Premultiplied);
            expected.fill(qPremultiply(qRgba(200, 100, 50, 128)));
            QCOMPARE(result, expected);
        }
    }

    void bicubic_keepsColorsWithinAlpha_whenEdgesAreHard()
    {
        QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        for (int y = 4; y < 12; ++y) {
            for (int x = 4; x < 12; ++x) {
                image.setPixel(x, y, qRgba(255, 255, 255, 255));
            }
        }
        const QImage result =
            CImageResizer::bicubicInterpolation(image, QSize(50, 50), CImageResizer::Ignore);
        for (int y = 0; y < 50; ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(result.constScanLine(y));
            for (int x = 0; x < 50; ++x) {
                QVERIFY(qRed(line[x]) <= qAlpha(line[x]));
            }
        }
        QCOMPARE(result.pixel(25, 25), qRgba(255, 255, 255, 255));
        QCOMPARE(result.pixel(0, 0), 0U);
    }

    void bicubic_averages_whenAFinePatternShrinks()
    {
        QImage image(300, 300, QImage::Format_RGB32);
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 300; ++x) {
                image.setPixel(x, y, (x + y) % 2 == 0 ? 0xffffffff : 0xff000000);
            }
        }
        const QImage result =
            CImageResizer::bicubicInterpolation(image, QSize(50, 50), CImageResizer::Ignore);
        for (int y = 5; y < 45; ++y) {
            for (int x = 5; x < 45; ++x) {
                QVERIFY(std::abs(qRed(result.pixel(x, y)) - 127) <= 4);
            }
        }
    }

    void bicubic_takesScaledSize_whenTheAspectIsKept()
    {
        const QImage image = smoothPicture(40, 5, QImage::Format_RGB32);
        QCOMPARE(
            CImageResizer::bicubicInterpolation(image, QSize(20, 10), CImageResizer::Keep).size(),
            QSize(80, 10));
    }

    void bicubic_givesRgb32OrPremultiplied_afterTheImagesAlpha()
    {
        const auto formatOf = [](QImage::Format format) {
            return CImageResizer::bicubicInterpolation(smoothPicture(8, 8, format), QSize(4, 4),
                                                       CImageResizer::Ignore)
                .format();
        };
        QCOMPARE(formatOf(QImage::Format_RGB888), QImage::Format_RGB32);
        QCOMPARE(formatOf(QImage::Format_RGBA8888), QImage::Format_ARGB32_Premultiplied);
    }

    void bicubic_isNull_whenThereIsNothingToScale()
    {
        const QImage image = smoothPicture(8, 8, QImage::Format_RGB32);
        for (const auto aspect : {CImageResizer::Keep, CImageResizer::Ignore}) {
            QVERIFY(CImageResizer::bicubicInterpolation(QImage(), QSize(4, 4), aspect).isNull());
            QVERIFY(CImageResizer::bicubicInterpolation(image, QSize(0, 4), aspect).isNull());
            QVERIFY(CImageResizer::bicubicInterpolation(image, QSize(4, -1), aspect).isNull());
        }
    }

    void bicubic_isNull_whenTheResultIsLargerThanAnImageCanBe()
    {
        const QImage image = smoothPicture(8, 8, QImage::Format_RGB32);
        QVERIFY(CImageResizer::bicubicInterpolation(image, QSize(2000000, 2000000),
                                                    CImageResizer::Ignore)
                    .isNull());
    }

    void bicubic_works_whenTheImageIsOnePixel()
    {
        QImage image(1, 1, QImage::Format_RGB32);
        image.fill(qRgb(1, 2, 3));
        const QImage result =
            CImageResizer::bicubicInterpolation(image, QSize(9, 4), CImageResizer::Ignore);
        QCOMPARE(result.pixel(8, 3), qRgb(1, 2, 3));
    }

    void svg_isRenderedAtTheRequestedSize()
    {
        QSize size;
        const QImage image = CImageResizer::svg(QStringLiteral("quadrants"), &size, QSize(40, 20));
        QCOMPARE(size, QSize(40, 20));
        QCOMPARE(image.size(), size);
        QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(image.pixel(5, 5), qRgba(255, 0, 0, 255));
        QCOMPARE(image.pixel(35, 15), qRgba(0, 0, 255, 255));
        QCOMPARE(image.pixel(35, 5), 0U);
    }

    void svg_hasItsDefaultSizeInScreenPixels_whenARequestedSideIsNegative_data()
    {
        QTest::addColumn<QSize>("requested");
        QTest::newRow("none") << QSize();
        QTest::newRow("no height") << QSize(40, -1);
    }
    void svg_hasItsDefaultSizeInScreenPixels_whenARequestedSideIsNegative()
    {
        QFETCH(QSize, requested);
        const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
        QSize size;
        const QImage image = CImageResizer::svg(QStringLiteral("quadrants"), &size, requested);
        QCOMPARE(size, QSize(qRound(20 * ratio), qRound(10 * ratio)));
        QCOMPARE(image.size(), size);
    }

    void svg_isNull_whenTheRequestedSizeIsZero()
    {
        QSize size(7, 7);
        QVERIFY(CImageResizer::svg(QStringLiteral("quadrants"), &size, QSize(0, 0)).isNull());
        QCOMPARE(size, QSize(0, 0));
    }

    void svg_isNullWithSizeMinusOne_whenThereIsNoPicture_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << QStringLiteral("missing");
        QTest::newRow("broken") << QStringLiteral("broken");
    }
    void svg_isNullWithSizeMinusOne_whenThereIsNoPicture()
    {
        QFETCH(QString, name);
        QSize size(7, 7);
        QVERIFY(CImageResizer::svg(name, &size, QSize(10, 10)).isNull());
        QCOMPARE(size, QSize(-1, -1));
    }

    void svg_works_whenNobodyAsksForTheSize()
    {
        QVERIFY(!CImageResizer::svg(QStringLiteral("quadrants"), nullptr, QSize(4, 2)).isNull());
        QVERIFY(CImageResizer::svg(QStringLiteral("missing"), nullptr, QSize(4, 2)).isNull());
    }
};

QTEST_MAIN(CImageResizerTest)
#include "CImageResizerTest.moc"
