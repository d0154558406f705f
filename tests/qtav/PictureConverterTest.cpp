#include "qtav/src/PictureConverter.h"

#include <QTest>

#include <cmath>

using QtAV::FramePtr;
using QtAV::PictureConverter;

namespace {

constexpr int Width = 64;
constexpr int Height = 32;
constexpr double Slope = 3.0; ///< of Cb, for each pixel
constexpr double Middle = 128.0;

double slopeAt(double x)
{
    return Middle + Slope * (x - Width / 2.0);
}

/// Luma is the same everywhere; Cb rises steadily from left to right.
FramePtr ramp(AVPixelFormat format, AVChromaLocation location, double offset)
{
    FramePtr frame = QtAV::makeFrame();
    frame->width = Width;
    frame->height = Height;
    frame->format = format;
    frame->color_range = AVCOL_RANGE_MPEG;
    frame->colorspace = AVCOL_SPC_BT709;
    frame->chroma_location = location;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        qFatal("out of memory");
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(format);
    const int step = 1 << descriptor.log2_chroma_w;
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x)
            frame->data[0][y * frame->linesize[0] + x] = 126;
    }
    for (int y = 0; y < Height >> descriptor.log2_chroma_h; ++y) {
        for (int x = 0; x < Width / step; ++x) {
            const auto cb = static_cast<uint8_t>(std::lround(slopeAt(x * step + offset)));
            frame->data[1][y * frame->linesize[1] + x] = cb;
            frame->data[2][y * frame->linesize[2] + x] = 128;
        }
    }
    return frame;
}

} // namespace

/// Scaled pictures, against the standard's formula.
class PictureConverterTest : public QObject
{
    Q_OBJECT

private slots:
    void chroma_staysWhereItWasSampled_whenScaled_data();
    void chroma_staysWhereItWasSampled_whenScaled();
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
    constexpr int Times = 2;
    PictureConverter converter;
    const QImage image = converter.convert(*frame, QSize(Times * Width, Height));
    QCOMPARE(image.size(), QSize(Times * Width, Height));
    // Blue by ITU-R BT.709, where nothing is cut off; the ends of lines have no neighbours.
    for (int x = Times * Width / 4; x < Times * Width * 3 / 4; ++x) {
        const double place = (x + 0.5) / Times - 0.5;
        const double blue =
            255.0 * ((126.0 - 16.0) / 219.0 + 1.8556 * (slopeAt(place) - Middle) / 224.0);
        const double expected = std::min(255.0, std::max(0.0, blue));
        const int got = qBlue(image.pixel(x, Height / 2));
        QVERIFY2(std::abs(got - expected) < 2.0,
                 qPrintable(QStringLiteral("%1 instead of %2").arg(got).arg(expected)));
    }
}

QTEST_GUILESS_MAIN(PictureConverterTest)
#include "PictureConverterTest.moc"
