#include "imaging/QtOcv.h"

#include <QTest>

#include <opencv2/core.hpp>

namespace {

constexpr int keepChannels = -8;

using Values = QVector<int>;
using Reals = QVector<double>;

QImage filledImage(QImage::Format format, QRgb color, const QSize& size = QSize(5, 3))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image.convertToFormat(format);
}

/// A picture of odd width in which every pixel differs from its neighbours.
QImage variedImage(QImage::Format format)
{
    QImage image(7, 5, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgba(30 * x, 40 * y, 11 * x * y % 256, 255 - 7 * x));
        }
    }
    return image.convertToFormat(format);
}

Values pixelAt(const cv::Mat& mat, int x, int y)
{
    Values values;
    for (int channel = 0; channel < mat.channels(); ++channel) {
        values.append(mat.ptr(y)[x * mat.channels() + channel]);
    }
    return values;
}

template <typename Sample>
Reals firstPixel(const cv::Mat& mat)
{
    Reals values;
    for (int channel = 0; channel < mat.channels(); ++channel) {
        values.append(static_cast<double>(mat.ptr<Sample>(0)[channel]));
    }
    return values;
}

bool isClose(const Reals& values, const Reals& expected)
{
    if (values.size() != expected.size()) {
        return false;
    }
    for (int i = 0; i < values.size(); ++i) {
        if (std::abs(values[i] - expected[i]) > 1e-6) {
            return false;
        }
    }
    return true;
}

} // namespace

class QtOcvTest : public QObject
{
    Q_OBJECT

private slots:
    void order_hasFixedValues()
    {
        QCOMPARE(int(QtOcv::Bgr), 0);
        QCOMPARE(int(QtOcv::Rgb), 1);
        QCOMPARE(int(QtOcv::Argb), 2);
    }

    void imageToMatShared_viewsTheImage_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("order"); // -1: left untouched
        QTest::newRow("Indexed8") << QImage::Format_Indexed8 << CV_8UC1 << -1;
        QTest::newRow("Alpha8") << QImage::Format_Alpha8 << CV_8UC1 << -1;
        QTest::newRow("Grayscale8") << QImage::Format_Grayscale8 << CV_8UC1 << -1;
        QTest::newRow("RGB32") << QImage::Format_RGB32 << CV_8UC4 << int(QtOcv::Bgr);
        QTest::newRow("ARGB32") << QImage::Format_ARGB32 << CV_8UC4 << int(QtOcv::Bgr);
        QTest::newRow("ARGB32pm") << QImage::Format_ARGB32_Premultiplied << CV_8UC4
                                  << int(QtOcv::Bgr);
        QTest::newRow("RGB888") << QImage::Format_RGB888 << CV_8UC3 << int(QtOcv::Rgb);
        QTest::newRow("RGBX8888") << QImage::Format_RGBX8888 << CV_8UC4 << int(QtOcv::Rgb);
        QTest::newRow("RGBA8888") << QImage::Format_RGBA8888 << CV_8UC4 << int(QtOcv::Rgb);
        QTest::newRow("RGBA8888pm")
            << QImage::Format_RGBA8888_Premultiplied << CV_8UC4 << int(QtOcv::Rgb);
    }
    void imageToMatShared_viewsTheImage()
    {
        QFETCH(QImage::Format, format);
        QFETCH(int, type);
        QFETCH(int, order);
        const QImage image = variedImage(format);
        auto written = QtOcv::Argb;
        const cv::Mat mat = QtOcv::imageToMat_shared(image, &written);
        QCOMPARE(int(written), order < 0 ? int(QtOcv::Argb) : order);
        QCOMPARE(mat.type(), type);
        QCOMPARE(mat.cols, 7);
        QCOMPARE(mat.rows, 5);
        QCOMPARE(mat.step[0], static_cast<size_t>(image.bytesPerLine()));
        QVERIFY(mat.data == image.constBits());
        QVERIFY(!QtOcv::imageToMat_shared(image, nullptr).empty());
    }

    void imageToMatShared_sharesEvenACopysPixels()
    {
        const QImage image = variedImage(QImage::Format_ARGB32);
        const QImage copy = image;
        QVERIFY(QtOcv::imageToMat_shared(copy, nullptr).data == image.constBits());
    }

    void imageToMatShared_isEmpty_forOtherFormats_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("Mono") << QImage::Format_Mono;
        QTest::newRow("RGB16") << QImage::Format_RGB16;
        QTest::newRow("RGB30") << QImage::Format_RGB30;
        QTest::newRow("RGBA64") << QImage::Format_RGBA64;
        QTest::newRow("Grayscale16") << QImage::Format_Grayscale16;
        QTest::newRow("BGR888") << QImage::Format_BGR888;
    }
    void imageToMatShared_isEmpty_forOtherFormats()
    {
        QFETCH(QImage::Format, format);
        auto order = QtOcv::Argb;
        QVERIFY(QtOcv::imageToMat_shared(variedImage(format), &order).empty());
        QCOMPARE(order, QtOcv::Argb);
    }

    void imageToMatShared_isEmpty_forANullImage()
    {
        QVERIFY(QtOcv::imageToMat_shared(QImage(), nullptr).empty());
    }

    void imageToMat_isEmpty_forANullImage()
    {
        QVERIFY(QtOcv::imageToMat(QImage(), CV_8UC4, QtOcv::Bgr).empty());
    }

    /// The table of formats, as visible in the matrix: one channel of grey or index, three of an
    /// opaque picture, four straight or premultiplied.
    void imageToMat_takesTheClosestFormat_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<Values>("pixel");
        const Values straight{0, 0, 255, 119};
        const Values premultiplied{0, 0, 119, 119};
        const Values opaque{0, 0, 255, 255};
        const Values three{0, 0, 255};
        QTest::newRow("RGB32") << QImage::Format_RGB32 << opaque;
        QTest::newRow("RGB16") << QImage::Format_RGB16 << opaque;
        QTest::newRow("ARGB32") << QImage::Format_ARGB32 << straight;
        QTest::newRow("ARGB32pm") << QImage::Format_ARGB32_Premultiplied << premultiplied;
        QTest::newRow("ARGB8565pm") << QImage::Format_ARGB8565_Premultiplied << Values();
        QTest::newRow("ARGB6666pm") << QImage::Format_ARGB6666_Premultiplied << Values();
        QTest::newRow("ARGB8555pm") << QImage::Format_ARGB8555_Premultiplied << Values();
        QTest::newRow("ARGB4444pm") << QImage::Format_ARGB4444_Premultiplied << premultiplied;
        QTest::newRow("RGB888") << QImage::Format_RGB888 << three;
        QTest::newRow("RGB666") << QImage::Format_RGB666 << three;
        QTest::newRow("RGB555") << QImage::Format_RGB555 << three;
        QTest::newRow("RGB444") << QImage::Format_RGB444 << three;
        QTest::newRow("RGBX8888") << QImage::Format_RGBX8888 << opaque;
        QTest::newRow("RGBA8888") << QImage::Format_RGBA8888 << straight;
        QTest::newRow("RGBA8888pm") << QImage::Format_RGBA8888_Premultiplied << premultiplied;
        QTest::newRow("Alpha8") << QImage::Format_Alpha8 << Values{119};
        QTest::newRow("Grayscale8") << QImage::Format_Grayscale8 << Values();
        QTest::newRow("BGR30") << QImage::Format_BGR30 << opaque;
        QTest::newRow("A2BGR30pm") << QImage::Format_A2BGR30_Premultiplied << Values();
        QTest::newRow("RGB30") << QImage::Format_RGB30 << opaque;
        QTest::newRow("A2RGB30pm") << QImage::Format_A2RGB30_Premultiplied << Values();
        QTest::newRow("RGBX64") << QImage::Format_RGBX64 << opaque;
        QTest::newRow("RGBA64") << QImage::Format_RGBA64 << straight;
        QTest::newRow("RGBA64pm") << QImage::Format_RGBA64_Premultiplied << straight;
        QTest::newRow("Grayscale16") << QImage::Format_Grayscale16 << Values();
        QTest::newRow("BGR888") << QImage::Format_BGR888 << opaque;
    }
    void imageToMat_takesTheClosestFormat()
    {
        QFETCH(QImage::Format, format);
        QFETCH(Values, pixel);
        const QImage image = filledImage(format, qRgba(255, 0, 0, 119));
        if (pixel.isEmpty()) {
            pixel = coarsePixel(image);
        }
        const cv::Mat mat = QtOcv::imageToMat(image, keepChannels, QtOcv::Bgr);
        QCOMPARE(mat.cols, 5);
        QCOMPARE(mat.rows, 3);
        QCOMPARE(pixelAt(mat, 4, 2), pixel);
    }

    void imageToMat_takesIndexesAsGreys()
    {
        QImage image(2, 1, QImage::Format_Indexed8);
        image.setColorTable({qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255)});
        image.setPixel(0, 0, 1);
        image.setPixel(1, 0, 2);
        const cv::Mat mat = QtOcv::imageToMat(image, CV_8UC3, QtOcv::Bgr);
        QCOMPARE(pixelAt(mat, 0, 0), (Values{1, 1, 1}));
        QCOMPARE(pixelAt(mat, 1, 0), (Values{2, 2, 2}));
    }

    void imageToMat_takesBitsAsGreys_whenMono_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("Mono") << QImage::Format_Mono;
        QTest::newRow("MonoLSB") << QImage::Format_MonoLSB;
    }
    void imageToMat_takesBitsAsGreys_whenMono()
    {
        QFETCH(QImage::Format, format);
        QImage image(9, 2, format);
        image.fill(0);
        image.setPixel(8, 1, 1);
        const cv::Mat mat = QtOcv::imageToMat(image, keepChannels, QtOcv::Bgr);
        QCOMPARE(mat.type(), CV_8UC1);
        QCOMPARE(pixelAt(mat, 8, 1), Values{1});
        QCOMPARE(pixelAt(mat, 7, 1), Values{0});
    }

    void imageToMat_givesThePixels_whenRgb32BecomesThreeChannels()
    {
        const QImage image = variedImage(QImage::Format_RGB32);
        const cv::Mat mat = QtOcv::imageToMat(image, CV_8UC3, QtOcv::Bgr);
        QCOMPARE(mat.type(), CV_8UC3);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb color = image.pixel(x, y);
                QCOMPARE(pixelAt(mat, x, y), (Values{qBlue(color), qGreen(color), qRed(color)}));
            }
        }
    }

    void imageToMat_givesTheOrderAskedFor_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("order");
        QTest::addColumn<Values>("pixel");
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_RGBA8888}) {
            QTest::addRow("%d to bgra", format)
                << format << CV_8UC4 << int(QtOcv::Bgr) << Values{50, 100, 200, 25};
            QTest::addRow("%d to rgba", format)
                << format << CV_8UC4 << int(QtOcv::Rgb) << Values{200, 100, 50, 25};
            QTest::addRow("%d to argb", format)
                << format << CV_8UC4 << int(QtOcv::Argb) << Values{25, 200, 100, 50};
            QTest::addRow("%d to rgb", format)
                << format << CV_8UC3 << int(QtOcv::Rgb) << Values{200, 100, 50};
            QTest::addRow("%d to bgr", format)
                << format << CV_8UC3 << int(QtOcv::Bgr) << Values{50, 100, 200};
            QTest::addRow("%d to grey", format)
                << format << CV_8UC1 << int(QtOcv::Bgr) << Values{124};
        }
        const auto rgb = QImage::Format_RGB888;
        QTest::newRow("rgb to bgra")
            << rgb << CV_8UC4 << int(QtOcv::Bgr) << Values{50, 100, 200, 255};
        QTest::newRow("rgb to rgba")
            << rgb << CV_8UC4 << int(QtOcv::Rgb) << Values{200, 100, 50, 255};
        QTest::newRow("rgb to argb")
            << rgb << CV_8UC4 << int(QtOcv::Argb) << Values{255, 200, 100, 50};
        QTest::newRow("rgb to bgr") << rgb << CV_8UC3 << int(QtOcv::Bgr) << Values{50, 100, 200};
        QTest::newRow("rgb to rgb") << rgb << CV_8UC3 << int(QtOcv::Rgb) << Values{200, 100, 50};
        QTest::newRow("rgb to grey") << rgb << CV_8UC1 << int(QtOcv::Rgb) << Values{124};
    }
    void imageToMat_givesTheOrderAskedFor()
    {
        QFETCH(QImage::Format, format);
        QFETCH(int, type);
        QFETCH(int, order);
        QFETCH(Values, pixel);
        const cv::Mat mat = QtOcv::imageToMat(filledImage(format, qRgba(200, 100, 50, 25)), type,
                                              static_cast<QtOcv::MatColorOrder>(order));
        QCOMPARE(mat.type(), type);
        QCOMPARE(pixelAt(mat, 4, 2), pixel);
    }

    void imageToMat_isIndependent_whenNothingChanges_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<int>("type");
        QTest::newRow("grey, kept") << QImage::Format_Grayscale8 << CV_8UC(CV_CN_MAX);
        QTest::newRow("argb, kept") << QImage::Format_ARGB32 << keepChannels;
        QTest::newRow("argb") << QImage::Format_ARGB32 << CV_8UC4;
    }
    void imageToMat_isIndependent_whenNothingChanges()
    {
        QFETCH(QImage::Format, format);
        QFETCH(int, type);
        const QImage image = variedImage(format);
        cv::Mat mat = QtOcv::imageToMat(image, type, QtOcv::Bgr);
        QCOMPARE(mat.channels(), image.depth() / 8);
        QVERIFY(mat.data != image.constBits());
        QCOMPARE(QtOcv::matToImage_shared(mat, format), image);
        mat.setTo(0);
        QCOMPARE(image, variedImage(format));
    }

    void imageToMat_scalesSamples_whenDeeper()
    {
        const QImage image = filledImage(QImage::Format_ARGB32, qRgba(255, 51, 0, 102));
        const cv::Mat words = QtOcv::imageToMat(image, CV_16UC4, QtOcv::Bgr);
        QCOMPARE(words.type(), CV_16UC4);
        QCOMPARE(firstPixel<ushort>(words), (Reals{0.0, 51.0 * 255, 65025.0, 102.0 * 255}));
        const cv::Mat reals = QtOcv::imageToMat(image, CV_32FC4, QtOcv::Rgb);
        QCOMPARE(reals.type(), CV_32FC4);
        QVERIFY(isClose(firstPixel<float>(reals), {1.0, 0.2, 0.0, 0.4}));
        QCOMPARE(QtOcv::imageToMat(image, CV_MAKETYPE(CV_16U, CV_CN_MAX), QtOcv::Bgr).type(),
                 CV_16UC4);
    }

    void imageToMat_fillsAlphaBeforeScaling_whenArgbIsAsked_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("RGB888") << QImage::Format_RGB888;
        QTest::newRow("Grayscale8") << QImage::Format_Grayscale8;
    }
    void imageToMat_fillsAlphaBeforeScaling_whenArgbIsAsked()
    {
        QFETCH(QImage::Format, format);
        const QImage image = filledImage(format, qRgb(255, 255, 255));
        QCOMPARE(pixelAt(QtOcv::imageToMat(image, CV_8UC4, QtOcv::Argb), 0, 0),
                 (Values{255, 255, 255, 255}));
        const cv::Mat words = QtOcv::imageToMat(image, CV_16UC4, QtOcv::Argb);
        QCOMPARE(firstPixel<ushort>(words), (Reals{65025.0, 65025.0, 65025.0, 65025.0}));
        const cv::Mat reals = QtOcv::imageToMat(image, CV_32FC4, QtOcv::Argb);
        QVERIFY(isClose(firstPixel<float>(reals), {1.0 / 255.0, 1.0, 1.0, 1.0}));
    }

    void conversions_areInverse_data()
    {
        QTest::addColumn<int>("depth");
        QTest::addColumn<int>("order");
        for (const int depth : {CV_8U, CV_16U, CV_32F}) {
            for (const int order : {0, 1, 2}) {
                QTest::addRow("depth %d, order %d", depth, order) << depth << order;
            }
        }
    }
    void conversions_areInverse()
    {
        QFETCH(int, depth);
        QFETCH(int, order);
        const auto matOrder = static_cast<QtOcv::MatColorOrder>(order);
        const QImage image = variedImage(QImage::Format_ARGB32);
        const cv::Mat mat = QtOcv::imageToMat(image, CV_MAKETYPE(depth, 4), matOrder);
        QCOMPARE(QtOcv::matToImage(mat, matOrder, QImage::Format_ARGB32), image);
    }

private:
    /// A coarse format's pixel after Qt's conversion to the corresponding format.
    static Values coarsePixel(const QImage& image)
    {
        const auto argbValues = [](const QImage& converted) {
            const QRgb pixel = *reinterpret_cast<const QRgb*>(converted.constScanLine(0));
            return Values{qBlue(pixel), qGreen(pixel), qRed(pixel), qAlpha(pixel)};
        };
        switch (image.format()) {
        case QImage::Format_Grayscale8:
            return {*image.constScanLine(0)};
        case QImage::Format_ARGB8565_Premultiplied:
        case QImage::Format_ARGB6666_Premultiplied:
        case QImage::Format_ARGB8555_Premultiplied:
            return argbValues(image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        default:
            return argbValues(image.convertToFormat(QImage::Format_ARGB32));
        }
    }
};

QTEST_GUILESS_MAIN(QtOcvTest)
#include "QtOcvTest.moc"
