#include "imaging/MatChannels.h"

#include <QTest>

using namespace QtOcv;

namespace {

constexpr int red = 200;
constexpr int green = 100;
constexpr int blue = 50;
constexpr int alpha = 25;

using Values = QVector<int>;

/// One pixel of Red, Green, Blue and Alpha in the order.
Values pixel(MatColorOrder order, int channels = 4)
{
    switch (order) {
    case Bgr:
        return channels == 3 ? Values{blue, green, red} : Values{blue, green, red, alpha};
    case Rgb:
        return channels == 3 ? Values{red, green, blue} : Values{red, green, blue, alpha};
    case Argb:
        return {alpha, red, green, blue};
    }
    return {};
}

/// A matrix of two by three equal pixels.
cv::Mat matOf(const Values& values)
{
    cv::Mat mat(2, 3, CV_8UC(values.size()));
    for (int y = 0; y < mat.rows; ++y) {
        for (int i = 0; i < mat.cols * mat.channels(); ++i) {
            mat.ptr(y)[i] = static_cast<uchar>(values[i % values.size()]);
        }
    }
    return mat;
}

/// The values of the matrix's last pixel.
Values lastPixel(const cv::Mat& mat)
{
    Values values;
    const uchar* line = mat.ptr(mat.rows - 1) + (mat.cols - 1) * mat.channels();
    for (int channel = 0; channel < mat.channels(); ++channel) {
        values.append(line[channel]);
    }
    return values;
}

} // namespace

Q_DECLARE_METATYPE(QtOcv::MatColorOrder)

class MatChannelsTest : public QObject
{
    Q_OBJECT

private:
    static void addOrderPairs()
    {
        QTest::addColumn<MatColorOrder>("from");
        QTest::addColumn<MatColorOrder>("to");
        const std::array<const char*, 3> names{"bgr", "rgb", "argb"};
        for (const auto from : {Bgr, Rgb, Argb}) {
            for (const auto to : {Bgr, Rgb, Argb}) {
                QTest::addRow("%s to %s", names[from], names[to]) << from << to;
            }
        }
    }

private slots:
    void reordered_movesEveryChannel_data() { addOrderPairs(); }
    void reordered_movesEveryChannel()
    {
        QFETCH(MatColorOrder, from);
        QFETCH(MatColorOrder, to);
        const cv::Mat mat = matOf(pixel(from));
        const cv::Mat result = reordered(mat, from, to);
        QCOMPARE(lastPixel(result), pixel(to));
        QVERIFY(result.data != mat.data);
        QCOMPARE(lastPixel(mat), pixel(from));
    }

    void withChannels_doesNothing_whenFourAreThereInTheOrder_data() { addOrderPairs(); }
    void withChannels_doesNothing_whenFourAreThereInTheOrder()
    {
        QFETCH(MatColorOrder, from);
        QFETCH(MatColorOrder, to);
        const cv::Mat result = withChannels(matOf(pixel(from)), 4, from, to, 255.0);
        QCOMPARE(result.empty(), from == to);
        if (from != to) {
            QCOMPARE(lastPixel(result), pixel(to));
        }
    }

    void withChannels_dropsAlpha_whenThreeAreAskedOfFour_data()
    {
        QTest::addColumn<MatColorOrder>("from");
        QTest::addColumn<MatColorOrder>("to");
        const std::array<const char*, 3> names{"bgr", "rgb", "argb"};
        for (const auto from : {Bgr, Rgb, Argb}) {
            for (const auto to : {Bgr, Rgb}) {
                QTest::addRow("%s to %s", names[from], names[to]) << from << to;
            }
        }
    }
    void withChannels_dropsAlpha_whenThreeAreAskedOfFour()
    {
        QFETCH(MatColorOrder, from);
        QFETCH(MatColorOrder, to);
        const cv::Mat result = withChannels(matOf(pixel(from)), 3, from, to, 255.0);
        QCOMPARE(lastPixel(result), pixel(to, 3));
    }

    void withChannels_swaps_whenThreeAreInTheOtherOrder()
    {
        const cv::Mat rgb = matOf(pixel(Rgb, 3));
        QCOMPARE(lastPixel(withChannels(rgb, 3, Rgb, Bgr, 255.0)), pixel(Bgr, 3));
        QVERIFY(withChannels(rgb, 3, Rgb, Rgb, 255.0).empty());
    }

    void withChannels_isTheSameGrey_whateverTheOrder()
    {
        // 0.299 R + 0.587 G + 0.114 B
        const Values grey{124};
        for (const auto order : {Bgr, Rgb, Argb}) {
            QCOMPARE(lastPixel(withChannels(matOf(pixel(order)), 1, order, Bgr, 255.0)), grey);
        }
        QCOMPARE(lastPixel(withChannels(matOf(pixel(Rgb, 3)), 1, Rgb, Bgr, 255.0)), grey);
        QVERIFY(withChannels(matOf({7}), 1, Bgr, Bgr, 255.0).empty());
    }

    void withChannels_repeatsGrey()
    {
        const cv::Mat grey = matOf({7});
        QCOMPARE(lastPixel(withChannels(grey, 3, Bgr, Rgb, 255.0)), (Values{7, 7, 7}));
        QCOMPARE(lastPixel(withChannels(grey, 4, Bgr, Rgb, 9.0)), (Values{7, 7, 7, 255}));
        QCOMPARE(lastPixel(withChannels(grey, 4, Bgr, Bgr, 9.0)), (Values{7, 7, 7, 255}));
        QCOMPARE(lastPixel(withChannels(grey, 4, Bgr, Argb, 9.0)), (Values{9, 7, 7, 7}));
    }

    void withChannels_addsAlpha_whenFourAreAskedOfThree()
    {
        const cv::Mat rgb = matOf(pixel(Rgb, 3));
        QCOMPARE(lastPixel(withChannels(rgb, 4, Rgb, Rgb, 9.0)), (Values{red, green, blue, 255}));
        QCOMPARE(lastPixel(withChannels(rgb, 4, Rgb, Bgr, 9.0)), (Values{blue, green, red, 255}));
        QCOMPARE(lastPixel(withChannels(rgb, 4, Rgb, Argb, 9.0)), (Values{9, red, green, blue}));
    }

    void withChannels_saturatesTheAlphaFill()
    {
        const cv::Mat result = withChannels(matOf({7}), 4, Bgr, Argb, 65535.0);
        QCOMPARE(lastPixel(result), (Values{255, 7, 7, 7}));
    }

    void withChannels_isEmpty_forAnotherNumber()
    {
        QVERIFY(withChannels(matOf({1, 2, 3}), 2, Rgb, Rgb, 255.0).empty());
        QVERIFY(withChannels(matOf({1, 2}), 4, Rgb, Rgb, 255.0).empty());
        QVERIFY(withChannels(matOf({1, 2}), 3, Rgb, Rgb, 255.0).empty());
        QVERIFY(withChannels(matOf({1, 2}), 1, Rgb, Rgb, 255.0).empty());
    }
};

QTEST_GUILESS_MAIN(MatChannelsTest)
#include "MatChannelsTest.moc"
