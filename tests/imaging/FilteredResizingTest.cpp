#include "imaging/FilteredResizing.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

constexpr ResizeFilter filters[] = {ResizeFilter::Area, ResizeFilter::Lanczos,
                                    ResizeFilter::Bicubic, ResizeFilter::Nearest};

/// Alternating white and black pixels in all channels except alpha, which is opaque.
cv::Mat chequers(int type, cv::Size size)
{
    const double white = CV_MAT_DEPTH(type) == CV_16U ? 65535.0 : 255.0;
    cv::Mat mat(size, type, cv::Scalar(0, 0, 0, white));
    cv::Mat tile;
    for (int y = 0; y < size.height; ++y) {
        for (int x = y % 2; x < size.width; x += 2) {
            tile = mat(cv::Rect(x, y, 1, 1));
            tile = cv::Scalar::all(white);
        }
    }
    return mat;
}

/// The sample of one channel in the middle, relative to the maximum.
double middle(const cv::Mat& mat, int channel = 0)
{
    cv::Mat plane;
    cv::extractChannel(mat, plane, channel);
    const int x = mat.cols / 2;
    const int y = mat.rows / 2;
    return mat.depth() == CV_16U ? plane.at<ushort>(y, x) / 65535.0 : plane.at<uchar>(y, x) / 255.0;
}

} // namespace

class FilteredResizingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chequers_becomeTheGreyOfTheirLight_data() { typesAndFilters(); }
    void chequers_becomeTheGreyOfTheirLight()
    {
        QFETCH(const int, type);
        QFETCH(const int, filter);
        const auto how = static_cast<ResizeFilter>(filter);
        if (how == ResizeFilter::Nearest) {
            QSKIP("Nearest mixes nothing.");
        }
        const cv::Mat source = chequers(type, {60, 60});
        const cv::Mat coded = filteredResize(source, {20, 20}, {how, ResizeLight::AsCoded});
        const cv::Mat linear = filteredResize(source, {20, 20}, {how, ResizeLight::Linear});
        QCOMPARE(coded.type(), type);
        QCOMPARE(linear.type(), type);
        QVERIFY2(std::abs(middle(coded) - 0.5) < 0.07, qPrintable(QString::number(middle(coded))));
        // Half of the light corresponds to the code 188 of 255.
        QVERIFY2(std::abs(middle(linear) - 0.7354) < 0.06,
                 qPrintable(QString::number(middle(linear))));
        if (source.channels() == 4) {
            QCOMPARE(middle(linear, 3), 1.0);
        }
    }

    void evenPictures_stayEven_data() { typesAndFilters(); }
    void evenPictures_stayEven()
    {
        QFETCH(const int, type);
        QFETCH(const int, filter);
        const bool isDeep = CV_MAT_DEPTH(type) == CV_16U;
        for (const auto light : {ResizeLight::AsCoded, ResizeLight::Linear}) {
            for (int code = 0; code < 256; code += 15) {
                const double value = isDeep ? code * 257 - (code > 0 ? 100 : 0) : code;
                const cv::Mat source(9, 11, type, cv::Scalar::all(value));
                const cv::Mat opaque =
                    source.channels() == 4
                        ? cv::Mat(9, 11, type,
                                  cv::Scalar(value, value, value, isDeep ? 65535 : 255))
                        : source;
                for (const cv::Size size : {cv::Size(4, 3), cv::Size(30, 20)}) {
                    const cv::Mat result =
                        filteredResize(opaque, size, {static_cast<ResizeFilter>(filter), light});
                    QCOMPARE(result.size(), size);
                    QCOMPARE(qRound(middle(result) * (isDeep ? 65535 : 255)), qRound(value));
                }
            }
        }
    }

    void area_isWhatItWas_asCoded()
    {
        const cv::Mat source = chequers(CV_8UC3, {60, 40});
        cv::Mat expected;
        cv::resize(source, expected, {23, 17}, 0.0, 0.0, cv::INTER_AREA);
        const cv::Mat result = filteredResize(source, {23, 17}, Resampling());
        QCOMPARE(cv::norm(result, expected, cv::NORM_INF), 0.0);
    }

    void nearest_keepsPixels_data() { typesAndFilters(); }
    void nearest_keepsPixels()
    {
        QFETCH(const int, type);
        const cv::Mat source = chequers(type, {4, 4});
        const Resampling nearest{ResizeFilter::Nearest, ResizeLight::Linear};
        const cv::Mat large = filteredResize(source, {12, 12}, nearest);
        for (int y = 0; y < 12; ++y) {
            for (int x = 0; x < 12; ++x) {
                const double expected = (x / 3 + y / 3) % 2 == 0 ? 1.0 : 0.0;
                QCOMPARE(middle(large(cv::Rect(x, y, 1, 1))), expected);
            }
        }
        QCOMPARE(cv::norm(filteredResize(large, {4, 4}, nearest), source, cv::NORM_INF), 0.0);
    }

    void transparentColours_doNotShow()
    {
        // Red beside transparent green.
        cv::Mat source(8, 8, CV_8UC4, cv::Scalar(0, 0, 255, 255));
        cv::Mat right = source(cv::Rect(4, 0, 4, 8));
        right = cv::Scalar(0, 255, 0, 0);
        for (const auto filter : {ResizeFilter::Lanczos, ResizeFilter::Bicubic}) {
            const cv::Mat result = filteredResize(source, {3, 3}, {filter, ResizeLight::AsCoded});
            const auto pixel = result.at<cv::Vec4b>(1, 1);
            QCOMPARE(int(pixel[1]), 0);
            QCOMPARE(int(pixel[2]), 255);
            QVERIFY(pixel[3] > 100 && pixel[3] < 155);
        }
    }

    void filters_differ()
    {
        cv::Mat source(1, 32, CV_8UC1, cv::Scalar::all(40));
        source(cv::Rect(16, 0, 16, 1)) = cv::Scalar::all(200);
        const auto range = [&source](ResizeFilter filter) {
            double low = 0.0;
            double high = 0.0;
            cv::minMaxLoc(filteredResize(source, {128, 1}, {filter, ResizeLight::AsCoded}), &low,
                          &high);
            return high - low;
        };
        QCOMPARE(range(ResizeFilter::Nearest), 160.0);
        QCOMPARE(range(ResizeFilter::Area), 160.0);
        QVERIFY(range(ResizeFilter::Bicubic) > 163.0);
        QVERIFY(range(ResizeFilter::Lanczos) > range(ResizeFilter::Bicubic));
    }

private:
    static void typesAndFilters()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("filter");
        for (const auto& [name, type] :
             {std::pair("grey", CV_8UC1), std::pair("RGB", CV_8UC3), std::pair("RGBA", CV_8UC4),
              std::pair("deep RGB", CV_16UC3), std::pair("deep RGBA", CV_16UC4)}) {
            for (const ResizeFilter filter : filters) {
                QTest::addRow("%s %d", name, static_cast<int>(filter))
                    << type << static_cast<int>(filter);
            }
        }
    }
};

QTEST_GUILESS_MAIN(FilteredResizingTest)
#include "FilteredResizingTest.moc"
