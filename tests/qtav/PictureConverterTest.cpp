#include "qtav/src/PictureConverter.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>

using QtAV::FramePtr;
using QtAV::PictureConverter;

namespace {

constexpr int frameWidth = 64;
constexpr int frameHeight = 32;
constexpr double slope = 3.0; ///< of Cb, for each pixel
constexpr double middle = 128.0;

double slopeAt(double x)
{
    return middle + slope * (x - frameWidth / 2.0);
}

/// Luma is constant; Cb rises steadily from left to right.
FramePtr ramp(AVPixelFormat format, AVChromaLocation location, double offset)
{
    FramePtr frame = QtAV::makeFrame();
    frame->width = frameWidth;
    frame->height = frameHeight;
    frame->format = format;
    frame->color_range = AVCOL_RANGE_MPEG;
    frame->colorspace = AVCOL_SPC_BT709;
    frame->chroma_location = location;
    if (av_frame_get_buffer(frame.get(), 0) < 0) {
        qFatal("out of memory");
    }
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(format);
    const int step = 1 << descriptor.log2_chroma_w;
    for (int y = 0; y < frameHeight; ++y) {
        for (int x = 0; x < frameWidth; ++x) {
            frame->data[0][y * frame->linesize[0] + x] = 126;
        }
    }
    for (int y = 0; y < frameHeight >> descriptor.log2_chroma_h; ++y) {
        for (int x = 0; x < frameWidth / step; ++x) {
            const auto cb = static_cast<uint8_t>(std::lround(slopeAt(x * step + offset)));
            frame->data[1][y * frame->linesize[1] + x] = cb;
            frame->data[2][y * frame->linesize[2] + x] = 128;
        }
    }
    return frame;
}

/// A full-range picture without colour.
FramePtr grey(int width, int height, const QString& pattern)
{
    FramePtr frame = QtAV::makeFrame();
    frame->width = width;
    frame->height = height;
    frame->format = AV_PIX_FMT_YUV420P;
    frame->color_range = AVCOL_RANGE_JPEG;
    if (av_frame_get_buffer(frame.get(), 0) < 0) {
        qFatal("out of memory");
    }
    std::mt19937 random(3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            int value = int(random() % 256);
            if (pattern == QLatin1String("lines")) {
                value = x % 7 == 0 || y % 11 == 0 ? 235 : 20;
            } else if (pattern == QLatin1String("squares")) {
                value = (x + y) % 2 == 0 ? 230 : 30;
            }
            frame->data[0][y * frame->linesize[0] + x] = static_cast<uint8_t>(value);
        }
    }
    for (const int plane : {1, 2}) {
        std::memset(frame->data[plane], 128, size_t(frame->linesize[plane]) * size_t(height / 2));
    }
    return frame;
}

/// The mean of luma under a pixel of the picture at another size, with fractions of pixels.
double meanUnder(const AVFrame& frame, const QSize& size, int x, int y)
{
    const double stepX = double(frame.width) / size.width();
    const double stepY = double(frame.height) / size.height();
    const auto overlap = [](int pixel, double from, double to) {
        return std::max(0.0, std::min(pixel + 1.0, to) - std::max(double(pixel), from));
    };
    double sum = 0.0;
    for (int v = int(y * stepY); v < std::min(frame.height, int((y + 1) * stepY) + 1); ++v) {
        for (int u = int(x * stepX); u < std::min(frame.width, int((x + 1) * stepX) + 1); ++u) {
            sum += frame.data[0][v * frame.linesize[0] + u] *
                   overlap(u, x * stepX, (x + 1) * stepX) * overlap(v, y * stepY, (y + 1) * stepY);
        }
    }
    return sum / (stepX * stepY);
}

} // namespace

/// Compares scaled pictures with the standard's formula.
class PictureConverterTest : public QObject
{
    Q_OBJECT

private slots:
    void convert_reusesTheMemoryOfImagesThatAreGone_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("with alpha") << QImage::Format_ARGB32;
        QTest::newRow("without") << QImage::Format_RGB888;
        QTest::newRow("16 bits") << QImage::Format_RGBX64;
    }
    void convert_reusesTheMemoryOfImagesThatAreGone()
    {
        QFETCH(const QImage::Format, format);
        // Lines of an odd width end with bytes that belong to no pixel.
        const FramePtr frame = grey(63, 32, QStringLiteral("lines"));
        const FramePtr other = grey(63, 32, QStringLiteral("squares"));
        const QSize size(frame->width, frame->height);
        PictureConverter converter;
        const QImage kept = converter.convert(*frame, size, format);
        QCOMPARE(kept.format(), format);
        const QImage copy = kept.copy();
        const uchar* memory = nullptr;
        {
            const QImage second = converter.convert(*other, size, format);
            QVERIFY(second.constBits() != kept.constBits());
            memory = second.constBits();
        }
        const QImage third = converter.convert(*other, size, format);
        QVERIFY(third.constBits() == memory);
        QCOMPARE(kept, copy);
        QVERIFY(third != kept);
    }

    void chroma_staysWhereItWasSampled_whenScaled_data();
    void chroma_staysWhereItWasSampled_whenScaled();
    void smallerPicture_isTheMeanOfTheAreaUnderEachPixel_data();
    void smallerPicture_isTheMeanOfTheAreaUnderEachPixel();
    void scaledPicture_keepsFormatAndColours();
    void scaledPicture_becomesTheSameImage_asTheWhole();
};

void PictureConverterTest::chroma_staysWhereItWasSampled_whenScaled_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("location");
    QTest::addColumn<double>("offset");
    QTest::newRow("4:2:0, not said")
        << int(AV_PIX_FMT_YUV420P) << int(AVCHROMA_LOC_UNSPECIFIED) << 0.0;
    QTest::newRow("4:2:0, left") << int(AV_PIX_FMT_YUV420P) << int(AVCHROMA_LOC_LEFT) << 0.0;
    QTest::newRow("4:2:0, top left") << int(AV_PIX_FMT_YUV420P) << int(AVCHROMA_LOC_TOPLEFT) << 0.0;
    QTest::newRow("4:2:0, centre") << int(AV_PIX_FMT_YUV420P) << int(AVCHROMA_LOC_CENTER) << 0.5;
    QTest::newRow("4:2:2, left") << int(AV_PIX_FMT_YUV422P) << int(AVCHROMA_LOC_LEFT) << 0.0;
    QTest::newRow("4:4:4") << int(AV_PIX_FMT_YUV444P) << int(AVCHROMA_LOC_UNSPECIFIED) << 0.0;
}

void PictureConverterTest::chroma_staysWhereItWasSampled_whenScaled()
{
    QFETCH(int, format);
    QFETCH(int, location);
    QFETCH(double, offset);
    const FramePtr frame = ramp(AVPixelFormat(format), AVChromaLocation(location), offset);
    constexpr int times = 2;
    PictureConverter converter;
    const QImage image = converter.convert(*frame, QSize(times * frameWidth, frameHeight));
    QCOMPARE(image.size(), QSize(times * frameWidth, frameHeight));
    // Blue by ITU-R BT.709 where nothing is clipped; the ends of lines have no neighbours.
    for (int x = times * frameWidth / 4; x < times * frameWidth * 3 / 4; ++x) {
        const double place = (x + 0.5) / times - 0.5;
        const double blue =
            255.0 * ((126.0 - 16.0) / 219.0 + 1.8556 * (slopeAt(place) - middle) / 224.0);
        const double expected = std::min(255.0, std::max(0.0, blue));
        const int got = qBlue(image.pixel(x, frameHeight / 2));
        QVERIFY2(std::abs(got - expected) < 2.0,
                 qPrintable(QStringLiteral("%1 instead of %2").arg(got).arg(expected)));
    }
}

void PictureConverterTest::smallerPicture_isTheMeanOfTheAreaUnderEachPixel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("pattern");
    for (const char* pattern : {"lines", "squares", "noise"}) {
        for (const QSize size : {QSize(120, 80), QSize(60, 40), QSize(160, 110), QSize(97, 31)}) {
            const QString name = QStringLiteral("%1, %2 x %3")
                                     .arg(QLatin1String(pattern))
                                     .arg(size.width())
                                     .arg(size.height());
            QTest::newRow(qPrintable(name)) << size << QString::fromLatin1(pattern);
        }
    }
}

/// The finest details: lines and squares of one pixel, and noise. Nothing vanishes, and no false
/// patterns appear.
void PictureConverterTest::smallerPicture_isTheMeanOfTheAreaUnderEachPixel()
{
    QFETCH(QSize, size);
    QFETCH(QString, pattern);
    const FramePtr frame = grey(240, 160, pattern);
    PictureConverter converter;
    const QImage image = converter.convert(*frame, size);
    const FramePtr scaled = converter.scaled(*frame, size);
    QCOMPARE(image.size(), size);
    QVERIFY(scaled);
    double largest = 0.0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double mean = meanUnder(*frame, size, x, y);
            const int kept = scaled->data[0][y * scaled->linesize[0] + x];
            largest = std::max(
                {largest, std::abs(qGreen(image.pixel(x, y)) - mean), std::abs(kept - mean)});
        }
    }
    QVERIFY2(largest <= 2.0, QByteArray::number(largest).constData());
}

void PictureConverterTest::scaledPicture_keepsFormatAndColours()
{
    for (const AVPixelFormat format :
         {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUV444P}) {
        const FramePtr frame = ramp(format, AVCHROMA_LOC_LEFT, 0.0);
        frame->color_primaries = AVCOL_PRI_BT709;
        frame->color_trc = AVCOL_TRC_BT709;
        PictureConverter converter;
        const FramePtr scaled = converter.scaled(*frame, {frameWidth / 2, frameHeight / 2});
        QVERIFY(scaled);
        QCOMPARE(scaled->width, frameWidth / 2);
        QCOMPARE(scaled->height, frameHeight / 2);
        QCOMPARE(scaled->format, int(format));
        QCOMPARE(scaled->colorspace, AVCOL_SPC_BT709);
        QCOMPARE(scaled->color_range, AVCOL_RANGE_MPEG);
        QCOMPARE(scaled->color_primaries, AVCOL_PRI_BT709);
        QCOMPARE(scaled->color_trc, AVCOL_TRC_BT709);
        QCOMPARE(scaled->chroma_location, AVCHROMA_LOC_LEFT);
    }
}

/// Also for interleaved chroma: the ramp shows whether it was shifted.
void PictureConverterTest::scaledPicture_becomesTheSameImage_asTheWhole()
{
    for (const AVChromaLocation location :
         {AVCHROMA_LOC_LEFT, AVCHROMA_LOC_TOPLEFT, AVCHROMA_LOC_CENTER}) {
        const FramePtr frame =
            ramp(AV_PIX_FMT_YUV420P, location, location == AVCHROMA_LOC_CENTER ? 0.5 : 0.0);
        const QSize half(frameWidth / 2, frameHeight / 2);
        PictureConverter converter;
        const FramePtr scaled = converter.scaled(*frame, half);
        QVERIFY(scaled);
        const QImage fromSmall = converter.convert(*scaled, half);
        const QImage fromWhole = converter.convert(*frame, half);
        for (int x = half.width() / 4; x < half.width() * 3 / 4; ++x) {
            const QRgb a = fromSmall.pixel(x, half.height() / 2);
            const QRgb b = fromWhole.pixel(x, half.height() / 2);
            QVERIFY2(std::abs(qBlue(a) - qBlue(b)) <= 3,
                     qPrintable(QStringLiteral("%1 and %2").arg(qBlue(a)).arg(qBlue(b))));
        }
    }
}

QTEST_GUILESS_MAIN(PictureConverterTest)
#include "PictureConverterTest.moc"
