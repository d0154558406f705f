#include "qtav/src/YuvToRgb.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using QtAV::FramePtr;
using QtAV::YuvToRgb;

namespace {

constexpr double redShare = 0.2126;
constexpr double blueShare = 0.0722;

/// A frame of noise, BT.709.
FramePtr noise(AVPixelFormat format, int width, int height, AVColorRange range)
{
    FramePtr frame = QtAV::makeFrame();
    frame->format = format;
    frame->width = width;
    frame->height = height;
    frame->colorspace = AVCOL_SPC_BT709;
    frame->color_range = range;
    if (av_frame_get_buffer(frame.get(), 0) < 0) {
        qFatal("no memory");
    }
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(format);
    std::mt19937 random(7);
    for (int plane = 0; plane < AV_NUM_DATA_POINTERS && frame->data[plane]; ++plane) {
        const bool isChroma = plane == 1 || plane == 2;
        const int lines = isChroma ? AV_CEIL_RSHIFT(height, d.log2_chroma_h) : height;
        const int mask = (1 << d.comp[0].depth) - 1;
        const int bytes = frame->linesize[plane] * lines;
        if (d.comp[0].depth == 8) {
            std::generate_n(frame->data[plane], bytes, [&] { return uint8_t(random() & 0xff); });
        } else {
            auto* const samples = reinterpret_cast<uint16_t*>(frame->data[plane]);
            std::generate_n(samples, bytes / 2, [&] { return uint16_t(int(random()) & mask); });
        }
    }
    return frame;
}

/// A stored sample; positions outside are those at the edge.
double stored(const AVFrame& frame, int component, int x, int y)
{
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(AVPixelFormat(frame.format));
    const bool isChroma = component == 1 || component == 2;
    const int width = isChroma ? AV_CEIL_RSHIFT(frame.width, d.log2_chroma_w) : frame.width;
    const int height = isChroma ? AV_CEIL_RSHIFT(frame.height, d.log2_chroma_h) : frame.height;
    const AVComponentDescriptor& c = d.comp[component];
    const uint8_t* const place = frame.data[c.plane] +
                                 std::clamp(y, 0, height - 1) * frame.linesize[c.plane] +
                                 std::clamp(x, 0, width - 1) * c.step + c.offset;
    return c.depth > 8 ? *reinterpret_cast<const uint16_t*>(place) : *place;
}

/// Interpolates between the two nearest samples; `place` is in steps of chroma.
double between(double a, double b, double place)
{
    const double part = place - std::floor(place);
    return a * (1 - part) + b * part;
}

/// Chroma at a position of luma: on every second column, between the lines of halved height.
double chroma(const AVFrame& frame, int component, int x, int y, double left)
{
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(AVPixelFormat(frame.format));
    const double column = d.log2_chroma_w ? (x - left) / 2.0 : x;
    const double line = d.log2_chroma_h ? (y - 0.5) / 2.0 : y;
    const int x0 = int(std::floor(column));
    const int y0 = int(std::floor(line));
    const auto onLine = [&](int yy) {
        return between(stored(frame, component, x0, yy), stored(frame, component, x0 + 1, yy),
                       column);
    };
    return between(onLine(y0), onLine(y0 + 1), line);
}

std::array<double, 3> expected(const AVFrame& frame, int x, int y)
{
    const AVPixFmtDescriptor& d = *av_pix_fmt_desc_get(AVPixelFormat(frame.format));
    const bool full = frame.color_range == AVCOL_RANGE_JPEG;
    const int depth = d.comp[0].depth;
    const double unit = std::pow(2.0, depth - 8);
    const double top = std::pow(2.0, depth) - 1;
    const bool hasChroma = d.nb_components >= 3;
    const double luma =
        (stored(frame, 0, x, y) - (full ? 0 : 16 * unit)) / (full ? top : 219 * unit);
    const auto part = [&](int component) {
        // Chroma is sampled on the left in MPEG; in JPEG, with halved lines, in the middle.
        const bool isCentred = full && d.log2_chroma_h == 1;
        const double value = chroma(frame, component, x, y, isCentred ? 0.5 : 0.0) - 128 * unit;
        return hasChroma ? value / (full ? top : 224 * unit) : 0.0;
    };
    const double cb = hasChroma ? part(1) : 0.0;
    const double cr = hasChroma ? part(2) : 0.0;
    const double r = luma + 2 * (1 - redShare) * cr;
    const double b = luma + 2 * (1 - blueShare) * cb;
    const double g = (luma - redShare * r - blueShare * b) / (1 - redShare - blueShare);
    const auto to255 = [](double v) { return std::clamp(v, 0.0, 1.0) * 255; };
    return {to255(r), to255(g), to255(b)};
}

QImage converted(const AVFrame& frame)
{
    QImage image(frame.width, frame.height, QImage::Format_ARGB32);
    YuvToRgb(frame).convert(frame, image);
    return image;
}

} // namespace

class YuvToRgbTest : public QObject
{
    Q_OBJECT

private slots:
    void picture_deviatesByOneAtMost_fromTheFormula_data();
    void picture_deviatesByOneAtMost_fromTheFormula();
    void pixels_areTheSame_whicheverInstructionsMakeThem();
    void alpha_isTakenOver_inEveryDepth();
    void otherFormats_areNotRead();
};

void YuvToRgbTest::picture_deviatesByOneAtMost_fromTheFormula_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("range");
    for (const AVPixelFormat format :
         {AV_PIX_FMT_YUV420P, AV_PIX_FMT_NV12, AV_PIX_FMT_NV21, AV_PIX_FMT_YUV422P,
          AV_PIX_FMT_YUV440P, AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUV420P10LE, AV_PIX_FMT_YUV422P12LE,
          AV_PIX_FMT_YUV444P16LE, AV_PIX_FMT_YUVA420P, AV_PIX_FMT_GRAY8, AV_PIX_FMT_GRAY10LE}) {
        for (const AVColorRange range : {AVCOL_RANGE_MPEG, AVCOL_RANGE_JPEG}) {
            QTest::addRow("%s, %s", av_get_pix_fmt_name(format), av_color_range_name(range))
                << int(format) << int(range);
        }
    }
}

void YuvToRgbTest::picture_deviatesByOneAtMost_fromTheFormula()
{
    QFETCH(int, format);
    QFETCH(int, range);
    QVERIFY(YuvToRgb::reads(AVPixelFormat(format)));
    // A dithered pixel is one of the two values around its own.
    const double most = av_pix_fmt_desc_get(AVPixelFormat(format))->comp[0].depth > 8 ? 1.05 : 1.0;
    for (const QSize size : {QSize(64, 16), QSize(47, 9), QSize(1, 1), QSize(3, 2)}) {
        const FramePtr frame =
            noise(AVPixelFormat(format), size.width(), size.height(), AVColorRange(range));
        const QImage image = converted(*frame);
        QCOMPARE(image.size(), size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                const std::array<int, 3> got{qRed(pixel), qGreen(pixel), qBlue(pixel)};
                const auto wanted = expected(*frame, x, y);
                for (size_t i = 0; i < 3; ++i) {
                    const QString what = QStringLiteral("%1 instead of %2 at %3, %4")
                                             .arg(got[i])
                                             .arg(wanted[i])
                                             .arg(x)
                                             .arg(y);
                    QVERIFY2(std::abs(got[i] - wanted[i]) <= most, qPrintable(what));
                }
            }
        }
    }
}

void YuvToRgbTest::pixels_areTheSame_whicheverInstructionsMakeThem()
{
    // Lines of 14 pixels are too short for the wide instructions.
    constexpr int wholeWidth = 140;
    constexpr int shortWidth = 14;
    const FramePtr whole = noise(AV_PIX_FMT_YUV420P, wholeWidth, 8, AVCOL_RANGE_MPEG);
    const QImage image = converted(*whole);
    for (int left = 0; left < wholeWidth; left += shortWidth) {
        const FramePtr part = QtAV::makeFrame();
        QVERIFY(av_frame_ref(part.get(), whole.get()) >= 0);
        part->width = shortWidth;
        part->data[0] += left;
        part->data[1] += left / 2;
        part->data[2] += left / 2;
        const QImage strip = converted(*part);
        // The last pixel lies between two chroma samples, of which the partial line has only one.
        const QRect same(0, 0, shortWidth - 1, image.height());
        QCOMPARE(strip.copy(same), image.copy(same.translated(left, 0)));
    }
}

void YuvToRgbTest::alpha_isTakenOver_inEveryDepth()
{
    for (const AVPixelFormat format :
         {AV_PIX_FMT_YUVA420P, AV_PIX_FMT_YUVA444P10LE, AV_PIX_FMT_YUVA444P16LE}) {
        const FramePtr frame = noise(format, 33, 5, AVCOL_RANGE_MPEG);
        const QImage image = converted(*frame);
        const double top = (1 << av_pix_fmt_desc_get(format)->comp[3].depth) - 1;
        for (int x = 0; x < image.width(); ++x) {
            const double wanted = stored(*frame, 3, x, 2) * 255 / top;
            QVERIFY(std::abs(qAlpha(image.pixel(x, 2)) - wanted) <= 0.5001);
        }
    }
}

void YuvToRgbTest::otherFormats_areNotRead()
{
    for (const AVPixelFormat format :
         {AV_PIX_FMT_BGRA, AV_PIX_FMT_PAL8, AV_PIX_FMT_YUYV422, AV_PIX_FMT_YUV411P,
          AV_PIX_FMT_P010LE, AV_PIX_FMT_YUV420P10BE, AV_PIX_FMT_GBRP, AV_PIX_FMT_MONOBLACK,
          AV_PIX_FMT_YA8, AV_PIX_FMT_VAAPI, AV_PIX_FMT_GRAYF32LE, AV_PIX_FMT_NV24,
          AV_PIX_FMT_XYZ12LE}) {
        QVERIFY2(!YuvToRgb::reads(format), av_get_pix_fmt_name(format));
    }
}

QTEST_GUILESS_MAIN(YuvToRgbTest)
#include "YuvToRgbTest.moc"
