#include "qtav/src/PictureConverter.h"
#include "tests/support/ColourFormulas.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

extern "C" {
#include <libavutil/mastering_display_metadata.h>
}

using QtAV::FramePtr;
using QtAV::PictureConverter;
using testsupport::pqOf;
using testsupport::Primaries;
using testsupport::Rgb;
using testsupport::srgbOf;

namespace {

constexpr int side = 16;

/// A picture of one colour.
FramePtr flat(AVPixelFormat format, const std::array<int, 3>& codes)
{
    FramePtr frame = QtAV::makeFrame();
    frame->width = side;
    frame->height = side;
    frame->format = format;
    if (av_frame_get_buffer(frame.get(), 0) < 0) {
        qFatal("out of memory");
    }
    // Writing adds to the existing bits.
    for (const AVBufferRef* const buffer : frame->buf) {
        if (buffer) {
            std::memset(buffer->data, 0, buffer->size);
        }
    }
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(format);
    for (int c = 0; c < 3; ++c) {
        std::array<uint16_t, side> samples{};
        samples.fill(static_cast<uint16_t>(codes[static_cast<size_t>(c)]));
        const bool isChroma = c > 0 && !(d.flags & AV_PIX_FMT_FLAG_RGB);
        const int width = isChroma ? AV_CEIL_RSHIFT(side, d.log2_chroma_w) : side;
        const int height = isChroma ? AV_CEIL_RSHIFT(side, d.log2_chroma_h) : side;
        for (int y = 0; y < height; ++y) {
            av_write_image_line2(samples.data(), frame->data, frame->linesize, &d, 0, y, c, width,
                                 2);
        }
    }
    return frame;
}

/// Codes of 10 bits, limited range, for R'G'B' by the matrix of BT.2020 or BT.709.
std::array<int, 3> codesFor(const Rgb& value, double red, double blue)
{
    const double luma = red * value[0] + (1.0 - red - blue) * value[1] + blue * value[2];
    const double cb = (value[2] - luma) / (2.0 * (1.0 - blue));
    const double cr = (value[0] - luma) / (2.0 * (1.0 - red));
    return {static_cast<int>(std::lround(64 + 876 * luma)),
            static_cast<int>(std::lround(512 + 896 * cb)),
            static_cast<int>(std::lround(512 + 896 * cr))};
}

/// Light of BT.2020 in cd/m² as sRGB.
Rgb shown(const Rgb& nits, double peak)
{
    const Rgb light = testsupport::toneMapped(nits, peak);
    return {srgbOf(light[0]), srgbOf(light[1]), srgbOf(light[2])};
}

/// The mean of a picture's middle, where dithering averages out.
Rgb meanOf(const QImage& image)
{
    Rgb sum{};
    for (int y = 4; y < 12; ++y) {
        for (int x = 4; x < 12; ++x) {
            const QRgb pixel = image.pixel(x, y);
            sum[0] += qRed(pixel) / 64.0;
            sum[1] += qGreen(pixel) / 64.0;
            sum[2] += qBlue(pixel) / 64.0;
        }
    }
    return sum;
}

QString text(const Rgb& value)
{
    return QStringLiteral("%1 %2 %3").arg(value[0]).arg(value[1]).arg(value[2]);
}

bool isNear(const Rgb& got, const Rgb& expected, double most)
{
    for (size_t i = 0; i < 3; ++i) {
        if (std::abs(got[i] - expected[i]) > most) {
            qWarning().noquote() << text(got) << "instead of" << text(expected);
            return false;
        }
    }
    return true;
}

FramePtr pqFrame(const Rgb& nits)
{
    const Rgb value{pqOf(nits[0]), pqOf(nits[1]), pqOf(nits[2])};
    FramePtr frame = flat(AV_PIX_FMT_YUV420P10LE, codesFor(value, 0.2627, 0.0593));
    frame->colorspace = AVCOL_SPC_BT2020_NCL;
    frame->color_primaries = AVCOL_PRI_BT2020;
    frame->color_trc = AVCOL_TRC_SMPTE2084;
    frame->color_range = AVCOL_RANGE_MPEG;
    return frame;
}

QImage trueColoursOf(const AVFrame& frame, QImage::Format format = QImage::Format_ARGB32)
{
    PictureConverter converter;
    return converter.convert(frame, {frame.width, frame.height}, format);
}

} // namespace

/// Compares pictures with high dynamic range, wide gamut and unusual matrices with the standards'
/// formulas.
class TrueColoursTest : public QObject
{
    Q_OBJECT

private slots:
    void greysOfPq_followTheStandard_data();
    void greysOfPq_followTheStandard();
    void coloursOfPq_followTheStandard_data();
    void coloursOfPq_followTheStandard();
    void peak_isThatOfTheContent_elseOfTheDisplay();
    void greysOfHlg_followTheStandard_data();
    void greysOfHlg_followTheStandard();
    void wideGamut_comesByItsPrimaries_data();
    void wideGamut_comesByItsPrimaries();
    void unusualMatrices_followTheirFormulas_data();
    void unusualMatrices_followTheirFormulas();
    void deepRgb_isExact_data();
    void deepRgb_isExact();
    void meansOfDeepPictures_areKept();
    void sixteenBits_areExact();
};

void TrueColoursTest::greysOfPq_followTheStandard_data()
{
    QTest::addColumn<double>("nits");
    for (const double nits :
         {0.0, 0.05, 1.0, 10.0, 50.0, 100.0, 203.0, 400.0, 700.0, 1000.0, 4000.0}) {
        QTest::addRow("%g", nits) << nits;
    }
}

void TrueColoursTest::greysOfPq_followTheStandard()
{
    QFETCH(const double, nits);
    const FramePtr frame = pqFrame({nits, nits, nits});
    QVERIFY(isNear(meanOf(trueColoursOf(*frame)), shown({nits, nits, nits}, 1000.0), 2.0));
}

void TrueColoursTest::coloursOfPq_followTheStandard_data()
{
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");
    QTest::addColumn<bool>("isInside");
    QTest::newRow("skin") << 90.0 << 60.0 << 45.0 << true;
    QTest::newRow("sky") << 60.0 << 110.0 << 200.0 << true;
    QTest::newRow("bright yellow") << 300.0 << 300.0 << 150.0 << true;
    QTest::newRow("outside, brighter yellow") << 800.0 << 700.0 << 200.0 << false;
    QTest::newRow("dark red") << 6.0 << 2.0 << 2.0 << true;
    QTest::newRow("outside, green") << 10.0 << 200.0 << 10.0 << false;
    QTest::newRow("outside, bright red") << 900.0 << 5.0 << 5.0 << false;
    QTest::newRow("outside, blue") << 1.0 << 1.0 << 150.0 << false;
}

void TrueColoursTest::coloursOfPq_followTheStandard()
{
    QFETCH(const double, red);
    QFETCH(const double, green);
    QFETCH(const double, blue);
    QFETCH(const bool, isInside);
    const Rgb light = testsupport::toneMapped({red, green, blue}, 1000.0);
    QCOMPARE(std::all_of(light.begin(), light.end(), [](double l) { return l >= 0 && l <= 1; }),
             isInside);
    const FramePtr frame = pqFrame({red, green, blue});
    const double most = isInside ? 3.0 : 12.0;
    QVERIFY(isNear(meanOf(trueColoursOf(*frame)), shown({red, green, blue}, 1000.0), most));
}

void TrueColoursTest::peak_isThatOfTheContent_elseOfTheDisplay()
{
    const FramePtr frame = pqFrame({600.0, 600.0, 600.0});
    const auto brightness = [&frame] { return meanOf(trueColoursOf(*frame))[0]; };
    QVERIFY(std::abs(brightness() - shown({600, 600, 600}, 1000.0)[0]) < 2.0);
    AVMasteringDisplayMetadata* const display =
        av_mastering_display_metadata_create_side_data(frame.get());
    display->has_luminance = 1;
    display->max_luminance = {4000, 1};
    QVERIFY(std::abs(brightness() - shown({600, 600, 600}, 4000.0)[0]) < 2.0);
    av_content_light_metadata_create_side_data(frame.get())->MaxCLL = 600;
    QVERIFY(brightness() > 254.0);
}

void TrueColoursTest::greysOfHlg_followTheStandard_data()
{
    QTest::addColumn<double>("value");
    for (const double value : {0.0, 0.1, 0.3, 0.5, 0.75, 0.9, 1.0}) {
        QTest::addRow("%g", value) << value;
    }
}

void TrueColoursTest::greysOfHlg_followTheStandard()
{
    QFETCH(const double, value);
    FramePtr frame = flat(AV_PIX_FMT_YUV420P10LE, codesFor({value, value, value}, 0.2627, 0.0593));
    frame->colorspace = AVCOL_SPC_BT2020_NCL;
    frame->color_primaries = AVCOL_PRI_BT2020;
    frame->color_trc = AVCOL_TRC_ARIB_STD_B67;
    const Rgb nits = testsupport::nitsOfHlg({value, value, value});
    QVERIFY(isNear(meanOf(trueColoursOf(*frame)), shown(nits, 1000.0), 2.0));
}

void TrueColoursTest::wideGamut_comesByItsPrimaries_data()
{
    QTest::addColumn<int>("primaries");
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");
    for (const AVColorPrimaries primaries :
         {AVCOL_PRI_SMPTE432, AVCOL_PRI_SMPTE431, AVCOL_PRI_BT2020}) {
        const char* const name = av_color_primaries_name(primaries);
        QTest::addRow("%s, grey", name) << int(primaries) << 0.5 << 0.5 << 0.5;
        QTest::addRow("%s, skin", name) << int(primaries) << 0.8 << 0.6 << 0.5;
        QTest::addRow("%s, red", name) << int(primaries) << 1.0 << 0.0 << 0.0;
        QTest::addRow("%s, green", name) << int(primaries) << 0.0 << 1.0 << 0.0;
    }
}

void TrueColoursTest::wideGamut_comesByItsPrimaries()
{
    QFETCH(const int, primaries);
    QFETCH(const double, red);
    QFETCH(const double, green);
    QFETCH(const double, blue);
    FramePtr frame = flat(AV_PIX_FMT_YUV420P10LE, codesFor({red, green, blue}, 0.2126, 0.0722));
    frame->colorspace = AVCOL_SPC_BT709;
    frame->color_primaries = AVColorPrimaries(primaries);
    frame->color_trc = AVCOL_TRC_IEC61966_2_1;
    const Rgb light = testsupport::lightOf(
        {red, green, blue}, testsupport::Transfer::Standard,
        primaries == AVCOL_PRI_BT2020 ? Primaries::Bt2020 : Primaries::P3, 0.0);
    QVERIFY(isNear(meanOf(trueColoursOf(*frame)),
                   {srgbOf(light[0]), srgbOf(light[1]), srgbOf(light[2])}, 3.0));
}

void TrueColoursTest::unusualMatrices_followTheirFormulas_data()
{
    QTest::addColumn<int>("space");
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");
    for (const AVColorSpace space : {AVCOL_SPC_YCGCO, AVCOL_SPC_BT2020_CL}) {
        const char* const name = av_color_space_name(space);
        QTest::addRow("%s, grey", name) << int(space) << 0.4 << 0.4 << 0.4;
        QTest::addRow("%s, orange", name) << int(space) << 0.9 << 0.5 << 0.1;
        QTest::addRow("%s, blue", name) << int(space) << 0.2 << 0.3 << 0.8;
    }
}

void TrueColoursTest::unusualMatrices_followTheirFormulas()
{
    QFETCH(const int, space);
    QFETCH(const double, red);
    QFETCH(const double, green);
    QFETCH(const double, blue);
    double luma = red / 4 + green / 2 + blue / 4;
    double first = -red / 4 + green / 2 - blue / 4;
    double second = red / 2 - blue / 2;
    if (space == AVCOL_SPC_BT2020_CL) {
        const auto toLight = [](double v) {
            return v < 0.0812429 ? v / 4.5 : std::pow((v + 0.0992968) / 1.0992968, 1 / 0.45);
        };
        const double light =
            0.2627 * toLight(red) + 0.6780 * toLight(green) + 0.0593 * toLight(blue);
        luma = 1.0992968 * std::pow(light, 0.45) - 0.0992968;
        first = (blue - luma) / (blue <= luma ? 1.9404 : 1.5816);
        second = (red - luma) / (red <= luma ? 1.7184 : 0.9936);
    }
    FramePtr frame =
        flat(AV_PIX_FMT_YUV444P10LE, {static_cast<int>(std::lround(64 + 876 * luma)),
                                      static_cast<int>(std::lround(512 + 896 * first)),
                                      static_cast<int>(std::lround(512 + 896 * second))});
    frame->colorspace = AVColorSpace(space);
    frame->color_range = AVCOL_RANGE_MPEG;
    QVERIFY(isNear(meanOf(trueColoursOf(*frame)), {255 * red, 255 * green, 255 * blue}, 1.0));
}

void TrueColoursTest::deepRgb_isExact_data()
{
    QTest::addColumn<int>("format");
    for (const AVPixelFormat format :
         {AV_PIX_FMT_GBRP9LE, AV_PIX_FMT_GBRP10LE, AV_PIX_FMT_GBRP12LE, AV_PIX_FMT_GBRP16LE,
          AV_PIX_FMT_GBRP16BE, AV_PIX_FMT_RGB48LE, AV_PIX_FMT_RGB48BE, AV_PIX_FMT_BGR48LE,
          AV_PIX_FMT_X2RGB10LE, AV_PIX_FMT_RGB565LE, AV_PIX_FMT_RGB555LE, AV_PIX_FMT_BGR444LE}) {
        QTest::newRow(av_get_pix_fmt_name(format)) << int(format);
    }
}

void TrueColoursTest::deepRgb_isExact()
{
    QFETCH(const int, format);
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(AVPixelFormat(format));
    std::array<int, 3> tops{};
    for (size_t c = 0; c < 3; ++c) {
        tops[c] = (1 << d.comp[c].depth) - 1;
    }
    for (const Rgb& part : {Rgb{0, 0, 0}, Rgb{1, 1, 1}, Rgb{0.3, 0.6, 0.9}, Rgb{1, 0, 0.5}}) {
        std::array<int, 3> codes{};
        Rgb expected{};
        for (size_t c = 0; c < 3; ++c) {
            codes[c] = static_cast<int>(part[c] * tops[c]);
            expected[c] = 255.0 * codes[c] / tops[c];
        }
        const FramePtr frame = flat(AVPixelFormat(format), codes);
        const bool isDeep = d.comp[0].depth > 8;
        QVERIFY(isNear(meanOf(trueColoursOf(*frame)), expected, isDeep ? 0.2 : 0.5001));
    }
}

void TrueColoursTest::meansOfDeepPictures_areKept()
{
    for (int luma = 100; luma < 900; luma += 7) {
        FramePtr frame = flat(AV_PIX_FMT_YUV420P10LE, {luma, 512, 512});
        frame->colorspace = AVCOL_SPC_BT709;
        frame->color_range = AVCOL_RANGE_MPEG;
        const double expected = 255.0 * (luma - 64) / 876.0;
        QVERIFY(isNear(meanOf(trueColoursOf(*frame)), {expected, expected, expected}, 0.2));
    }
}

void TrueColoursTest::sixteenBits_areExact()
{
    for (int luma = 64; luma <= 940; luma += 73) {
        FramePtr frame = flat(AV_PIX_FMT_YUV420P10LE, {luma, 512, 512});
        frame->colorspace = AVCOL_SPC_BT709;
        frame->color_range = AVCOL_RANGE_MPEG;
        const QImage image = trueColoursOf(*frame, QImage::Format_RGBX64);
        QCOMPARE(image.format(), QImage::Format_RGBX64);
        const double expected = 65535.0 * (luma - 64) / 876.0;
        QVERIFY(std::abs(double(image.pixelColor(3, 3).rgba64().green()) - expected) < 4.0);
    }
}

QTEST_GUILESS_MAIN(TrueColoursTest)
#include "TrueColoursTest.moc"
