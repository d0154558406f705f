#include "imaging/QtOcv.h"

#include <QTest>

#include <opencv2/core.hpp>

namespace {

QImage imageFilledWith(QRgb color)
{
    QImage image(QSize(5, 3), QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

} // namespace

/// The way from matrices to images; QtOcvTest takes the other one.
class QtOcvImageTest : public QObject
{
    Q_OBJECT

private slots:
    void matToImageShared_viewsTheMatrix_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QImage::Format>("hint");
        QTest::addColumn<QImage::Format>("format");
        for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32,
                                  QImage::Format_ARGB32_Premultiplied, QImage::Format_RGBX8888,
                                  QImage::Format_RGBA8888, QImage::Format_RGBA8888_Premultiplied}) {
            QTest::addRow("four, hint %d", format) << CV_8UC4 << format << format;
        }
        QTest::newRow("four, no hint")
            << CV_8UC4 << QImage::Format_Invalid << QImage::Format_ARGB32;
        QTest::newRow("four, hint RGB888")
            << CV_8UC4 << QImage::Format_RGB888 << QImage::Format_ARGB32;
        QTest::newRow("three, hint RGB32")
            << CV_8UC3 << QImage::Format_RGB32 << QImage::Format_RGB888;
        for (const auto format :
             {QImage::Format_Indexed8, QImage::Format_Alpha8, QImage::Format_Grayscale8}) {
            QTest::addRow("one, hint %d", format) << CV_8UC1 << format << format;
        }
        QTest::newRow("one, hint RGB32")
            << CV_8UC1 << QImage::Format_RGB32 << QImage::Format_Indexed8;
    }
    void matToImageShared_viewsTheMatrix()
    {
        QFETCH(int, type);
        QFETCH(QImage::Format, hint);
        const cv::Mat whole(6, 9, type, cv::Scalar::all(3));
        const cv::Mat mat = whole(cv::Rect(1, 2, 4, 3));
        const QImage image = QtOcv::matToImage_shared(mat, hint);
        QTEST(image.format(), "format");
        QCOMPARE(image.size(), QSize(4, 3));
        QCOMPARE(image.bytesPerLine(), static_cast<int>(whole.step[0]));
        QVERIFY(image.constBits() == mat.data);
    }

    void matToImageShared_hasATableOfOpaqueGreys_whenIndexed()
    {
        const cv::Mat mat(2, 2, CV_8UC1, cv::Scalar(9));
        const QImage image = QtOcv::matToImage_shared(mat, QImage::Format_Invalid);
        QCOMPARE(image.colorCount(), 256);
        for (int level = 0; level < 256; ++level) {
            QCOMPARE(image.color(level), qRgba(level, level, level, 255));
        }
        QVERIFY(QtOcv::matToImage_shared(mat, QImage::Format_Grayscale8).colorTable().isEmpty());
    }

    void matToImageShared_isNull_forAnEmptyMatrix()
    {
        QVERIFY(QtOcv::matToImage_shared(cv::Mat(), QImage::Format_ARGB32).isNull());
        QVERIFY(QtOcv::matToImage_shared(cv::Mat(0, 5, CV_8UC4), QImage::Format_ARGB32).isNull());
    }

    void matToImage_isNull_forWhatItCannotConvert()
    {
        QVERIFY(QtOcv::matToImage(cv::Mat(), QtOcv::Bgr, QImage::Format_Invalid).isNull());
        QVERIFY(
            QtOcv::matToImage(cv::Mat(2, 2, CV_8UC2), QtOcv::Bgr, QImage::Format_Invalid).isNull());
        QVERIFY(QtOcv::matToImage(cv::Mat(2, 2, CV_8UC(5)), QtOcv::Bgr, QImage::Format_Invalid)
                    .isNull());
    }

    void matToImage_choosesTheFormat_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("order");
        QTest::addColumn<QImage::Format>("hint");
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<QRgb>("color");
        const QRgb straight = qRgba(200, 100, 50, 25);
        const QRgb opaque = qRgb(200, 100, 50);
        const int bgr = QtOcv::Bgr;
        const int rgb = QtOcv::Rgb;
        const int argb = QtOcv::Argb;
        const auto none = QImage::Format_Invalid;
        for (const int order : {bgr, rgb, argb}) {
            QTest::addRow("four, order %d, no hint", order)
                << CV_8UC4 << order << none << QImage::Format_ARGB32 << straight;
            QTest::addRow("four, order %d, RGB32", order)
                << CV_8UC4 << order << QImage::Format_RGB32 << QImage::Format_RGB32 << opaque;
            QTest::addRow("four, order %d, RGBA8888", order)
                << CV_8UC4 << order << QImage::Format_RGBA8888 << QImage::Format_RGBA8888
                << straight;
            QTest::addRow("four, order %d, RGB16 by way of RGB32", order)
                << CV_8UC4 << order << QImage::Format_RGB16 << QImage::Format_RGB16
                << qRgb(206, 101, 49);
            QTest::addRow("four, order %d, RGBA64 by way of ARGB32", order)
                << CV_8UC4 << order << QImage::Format_RGBA64 << QImage::Format_RGBA64 << straight;
            QTest::addRow("four, order %d, no format", order)
                << CV_8UC4 << order << QImage::NImageFormats << QImage::Format_ARGB32 << straight;
        }
        for (const int order : {bgr, argb}) {
            QTest::addRow("four, order %d, RGB888", order)
                << CV_8UC4 << order << QImage::Format_RGB888 << QImage::Format_RGB888 << opaque;
        }
        // The hint cannot hold four channels: the samples are laid out B, G, R, A, and read R, G,
        // B, A.
        QTest::newRow("four, rgb, RGB888 exchanges") << CV_8UC4 << rgb << QImage::Format_RGB888
                                                     << QImage::Format_RGB888 << qRgb(50, 100, 200);
        for (const int order : {bgr, rgb}) {
            QTest::addRow("three, order %d, no hint", order)
                << CV_8UC3 << order << none << QImage::Format_RGB888 << opaque;
            QTest::addRow("three, order %d, RGB32", order)
                << CV_8UC3 << order << QImage::Format_RGB32 << QImage::Format_RGB32 << opaque;
        }
    }
    void matToImage_choosesTheFormat()
    {
        QFETCH(int, type);
        QFETCH(int, order);
        QFETCH(QImage::Format, hint);
        const auto matOrder = static_cast<QtOcv::MatColorOrder>(order);
        const cv::Mat mat =
            QtOcv::imageToMat(imageFilledWith(qRgba(200, 100, 50, 25)), type, matOrder);
        const QImage image = QtOcv::matToImage(mat, matOrder, hint);
        QTEST(image.format(), "format");
        QCOMPARE(image.size(), QSize(5, 3));
        QTEST(image.pixel(4, 2), "color");
    }

    void matToImage_choosesTheFormat_whenGrey_data()
    {
        QTest::addColumn<QImage::Format>("hint");
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("none") << QImage::Format_Invalid << QImage::Format_Indexed8;
        QTest::newRow("Indexed8") << QImage::Format_Indexed8 << QImage::Format_Indexed8;
        QTest::newRow("Grayscale8") << QImage::Format_Grayscale8 << QImage::Format_Grayscale8;
        QTest::newRow("Alpha8") << QImage::Format_Alpha8 << QImage::Format_Alpha8;
        QTest::newRow("RGB32") << QImage::Format_RGB32 << QImage::Format_RGB32;
        QTest::newRow("ARGB32") << QImage::Format_ARGB32 << QImage::Format_ARGB32;
    }
    void matToImage_choosesTheFormat_whenGrey()
    {
        QFETCH(QImage::Format, hint);
        const cv::Mat mat(3, 5, CV_8UC1, cv::Scalar(77));
        const QImage image = QtOcv::matToImage(mat, QtOcv::Bgr, hint);
        QTEST(image.format(), "format");
        QCOMPARE(image.pixel(4, 2),
                 hint == QImage::Format_Alpha8 ? qRgba(0, 0, 0, 77) : qRgb(77, 77, 77));
    }

    void matToImage_scalesSamples_whenDeeper()
    {
        const cv::Mat reals(2, 2, CV_32FC3, cv::Scalar(1.0, 0.2, 0.0));
        const QImage fromReals = QtOcv::matToImage(reals, QtOcv::Bgr, QImage::Format_Invalid);
        QCOMPARE(fromReals.pixel(1, 1), qRgb(0, 51, 255));
        const cv::Mat words(2, 2, CV_16UC4, cv::Scalar(65025, 510, 255, 65535));
        const QImage fromWords = QtOcv::matToImage(words, QtOcv::Bgr, QImage::Format_Invalid);
        QCOMPARE(fromWords.pixel(1, 1), qRgba(1, 2, 255, 255));
        const cv::Mat beyond(2, 2, CV_32FC1, cv::Scalar(7.0));
        const QImage saturated = QtOcv::matToImage(beyond, QtOcv::Bgr, QImage::Format_Grayscale8);
        QCOMPARE(saturated.pixel(1, 1), qRgb(255, 255, 255));
    }

    void matToImage_ownsItsPixels_data()
    {
        QTest::addColumn<int>("type");
        for (const int type : {CV_8UC1, CV_8UC3, CV_8UC4, CV_16UC4, CV_32FC3}) {
            QTest::addRow("%d", type) << type;
        }
    }
    void matToImage_ownsItsPixels()
    {
        QFETCH(int, type);
        cv::Mat mat(3, 5, type, cv::Scalar::all(1.0));
        const QImage image = QtOcv::matToImage(mat, QtOcv::Rgb, QImage::Format_Invalid);
        const QImage copy = image.copy();
        mat.setTo(cv::Scalar::all(0.0));
        QCOMPARE(image, copy);
        mat.release();
        QCOMPARE(image, copy);
    }
};

QTEST_GUILESS_MAIN(QtOcvImageTest)
#include "QtOcvImageTest.moc"
