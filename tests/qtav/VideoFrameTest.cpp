#include "tests/qtav/Decoding.h"
#include "tests/support/FrameNumber.h"

#include <QTest>
#include <QThreadPool>

#include <array>
#include <atomic>
#include <cmath>

using namespace decoding;
using testsupport::Sample;
using testsupport::Trait;

namespace {

QtAV::VideoFrame firstFrameOf(const QString& file)
{
    Player player(testsupport::samplePath(file));
    const auto packet = player.nextVideoPacket();
    return packet ? player.decodeKeyFrame(*packet) : QtAV::VideoFrame();
}

struct Code
{
    int luma;
    int cb;
    int cr;
};

/// The patches in the colour samples, four in a row below the number, as codes of 8 bits.
constexpr std::array<Code, 8> Patches{{{16, 128, 128},
                                       {235, 128, 128},
                                       {60, 128, 128},
                                       {120, 100, 160},
                                       {120, 160, 100},
                                       {150, 100, 110},
                                       {100, 150, 150},
                                       {81, 90, 240}}};

/// ITU-R BT.601, BT.709 and BT.2020, R'G'B' from Y'CbCr in 0 to 255.
std::array<double, 3> rgbOf(const Code& code, double red, double blue, bool fullRange, int depth)
{
    // The samples of 10 bits have four times the code and 1 more.
    const double scale = 1 << (depth - 8);
    const double plus = depth > 8 ? 1.0 : 0.0;
    const double top = scale * 256 - 1;
    const auto level = [&](int value) { return value * scale + plus; };
    const double y =
        fullRange ? level(code.luma) / top : (level(code.luma) - 16 * scale) / (219 * scale);
    const auto chroma = [&](int value) {
        return (level(value) - 128 * scale) / (fullRange ? top : 224 * scale);
    };
    const double r = y + 2 * (1 - red) * chroma(code.cr);
    const double b = y + 2 * (1 - blue) * chroma(code.cb);
    const double g = (y - red * r - blue * b) / (1 - red - blue);
    const auto to255 = [](double v) { return std::min(1.0, std::max(0.0, v)) * 255; };
    return {to255(r), to255(g), to255(b)};
}

} // namespace

class VideoFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void invalidFrame_hasNothing();
    void image_isUprightWithSquarePixels_forEverySample_data();
    void image_isUprightWithSquarePixels_forEverySample();
    void colours_followTheStandards_forEveryMatrixRangeAndDepth_data();
    void colours_followTheStandards_forEveryMatrixRangeAndDepth();
    void alpha_isKept_whereTheFormatHasIt_data();
    void alpha_isKept_whereTheFormatHasIt();
    void alpha_isOpaque_whereTheFormatHasNone();
    void region_isCutOut_inPixelsOfTheUprightPicture();
    void region_isClipped_whenItReachesOutside();
    void size_isThatAskedFor_withAndWithoutARegion();
    void format_isThatAskedFor_data();
    void format_isThatAskedFor();
    void copies_showTheSamePicture_afterTheDecoderHasGone();
    void image_isTheSame_fromSeveralThreadsAtOnce();
};

void VideoFrameTest::invalidFrame_hasNothing()
{
    const QtAV::VideoFrame frame;
    QVERIFY(!frame.isValid());
    QCOMPARE(frame.width(), 0);
    QCOMPARE(frame.height(), 0);
    QCOMPARE(frame.timestamp(), 0.0);
    QVERIFY(frame.format().isEmpty());
    QVERIFY(frame.displaySize().isEmpty());
    QVERIFY(frame.toImage().isNull());
}

void VideoFrameTest::image_isUprightWithSquarePixels_forEverySample_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::allVideoSamples())
        QTest::newRow(qPrintable(sample.file)) << sample.file;
}

void VideoFrameTest::image_isUprightWithSquarePixels_forEverySample()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    Player player(testsupport::samplePath(file));
    QtAV::VideoFrame frame;
    while (!frame.isValid()) {
        const auto packet = player.nextVideoPacket();
        QVERIFY(packet);
        if (player.decoder->decode(*packet))
            frame = player.decoder->frame();
    }
    QCOMPARE(QSize(frame.width(), frame.height()), sample.codedSize);
    QCOMPARE(frame.displaySize(), sample.displaySize);
    QVERIFY(!frame.format().isEmpty());
    const QImage image = frame.toImage();
    QCOMPARE(image.size(), sample.displaySize);
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QVERIFY(testsupport::isUpright(image));
    QCOMPARE(testsupport::frameNumber(image).value_or(-1), sample.firstNumber);
}

void VideoFrameTest::colours_followTheStandards_forEveryMatrixRangeAndDepth_data()
{
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("blue");
    QTest::addColumn<bool>("fullRange");
    QTest::addColumn<int>("depth");
    const auto add = [](const QString& name, double red, double blue, bool fullRange) {
        QTest::newRow(qPrintable(name + QStringLiteral("_8bit.mp4")))
            << red << blue << fullRange << 8;
        QTest::newRow(qPrintable(name + QStringLiteral("_10bit.mkv")))
            << red << blue << fullRange << 10;
    };
    for (const bool full : {false, true}) {
        const QString range = full ? QStringLiteral("full") : QStringLiteral("limited");
        add(QStringLiteral("colour_bt601_") + range, 0.299, 0.114, full);
        add(QStringLiteral("colour_bt709_") + range, 0.2126, 0.0722, full);
        add(QStringLiteral("colour_bt2020_") + range, 0.2627, 0.0593, full);
    }
    add(QStringLiteral("colour_untagged_sd"), 0.299, 0.114, false);
    add(QStringLiteral("colour_untagged_hd"), 0.2126, 0.0722, false);
}

void VideoFrameTest::colours_followTheStandards_forEveryMatrixRangeAndDepth()
{
    QFETCH(double, red);
    QFETCH(double, blue);
    QFETCH(bool, fullRange);
    QFETCH(int, depth);
    constexpr double Allowed = 2.0;
    const QImage image = firstFrameOf(QString::fromLatin1(QTest::currentDataTag())).toImage();
    QVERIFY(!image.isNull());
    const double top = image.height() / 6.0;
    for (size_t i = 0; i < Patches.size(); ++i) {
        const auto expected = rgbOf(Patches.at(i), red, blue, fullRange, depth);
        const int x = int((double(i % 4) + 0.5) * image.width() / 4);
        const int y = int(top + (double(i / 4) + 0.5) * (image.height() - top) / 2);
        const QRgb pixel = image.pixel(x, y);
        const std::array<int, 3> got{qRed(pixel), qGreen(pixel), qBlue(pixel)};
        for (size_t channel = 0; channel < 3; ++channel) {
            const QString what = QStringLiteral("patch %1, channel %2: %3 instead of %4")
                                     .arg(i)
                                     .arg(channel)
                                     .arg(got[channel])
                                     .arg(expected[channel]);
            QVERIFY2(std::abs(got[channel] - expected[channel]) <= Allowed, qPrintable(what));
        }
    }
}

void VideoFrameTest::alpha_isKept_whereTheFormatHasIt_data()
{
    QTest::addColumn<QString>("file");
    int found = 0;
    for (const Sample& sample : testsupport::allVideoSamples()) {
        if (sample.has(Trait::Alpha)) {
            QTest::newRow(qPrintable(sample.file)) << sample.file;
            ++found;
        }
    }
    QVERIFY(found > 0);
}

void VideoFrameTest::alpha_isKept_whereTheFormatHasIt()
{
    QFETCH(QString, file);
    const QImage image = firstFrameOf(file).toImage();
    QVERIFY(image.hasAlphaChannel());
    int lowest = 255;
    int highest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            lowest = std::min(lowest, qAlpha(image.pixel(x, y)));
            highest = std::max(highest, qAlpha(image.pixel(x, y)));
        }
    }
    QVERIFY2(lowest < 16, qPrintable(QString::number(lowest)));
    QVERIFY2(highest > 239, qPrintable(QString::number(highest)));
}

void VideoFrameTest::alpha_isOpaque_whereTheFormatHasNone()
{
    const QImage image = firstFrameOf(QStringLiteral("h264_bframes.mp4")).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(qAlpha(image.pixel(x, y)), 255);
    }
}

void VideoFrameTest::region_isCutOut_inPixelsOfTheUprightPicture()
{
    const QtAV::VideoFrame frame = firstFrameOf(QStringLiteral("turned_90.mp4"));
    const QImage whole = frame.toImage();
    const QRect part(40, 30, 101, 77);
    QCOMPARE(frame.toImage(QImage::Format_ARGB32, QSize(), part), whole.copy(part));
}

void VideoFrameTest::region_isClipped_whenItReachesOutside()
{
    const QtAV::VideoFrame frame = firstFrameOf(QStringLiteral("h264_bframes.mp4"));
    const QImage whole = frame.toImage();
    const QRectF over(300, 200, 500, 500);
    QCOMPARE(frame.toImage(QImage::Format_ARGB32, QSize(), over), whole.copy(300, 200, 20, 40));
    QVERIFY(frame.toImage(QImage::Format_ARGB32, QSize(), QRectF(400, 0, 10, 10)).isNull());
}

void VideoFrameTest::size_isThatAskedFor_withAndWithoutARegion()
{
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("h264_bframes.mp4"));
    const QtAV::VideoFrame frame = firstFrameOf(sample.file);
    for (const QSize size : {QSize(64, 48), QSize(1001, 333), QSize(320, 240)}) {
        const QImage image = frame.toImage(QImage::Format_ARGB32, size);
        QCOMPARE(image.size(), size);
        QCOMPARE(testsupport::frameNumber(image).value_or(-1), sample.firstNumber);
        const QImage part = frame.toImage(QImage::Format_ARGB32, size, QRectF(10, 20, 100, 100));
        QCOMPARE(part.size(), size);
    }
}

void VideoFrameTest::format_isThatAskedFor_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QImage::Format>("expected");
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGB888,
                              QImage::Format_ARGB32_Premultiplied, QImage::Format_Grayscale8})
        QTest::addRow("%d", int(format)) << format << format;
    QTest::newRow("invalid") << QImage::Format_Invalid << QImage::Format_ARGB32;
}

void VideoFrameTest::format_isThatAskedFor()
{
    QFETCH(QImage::Format, format);
    QFETCH(QImage::Format, expected);
    const QtAV::VideoFrame frame = firstFrameOf(QStringLiteral("h264_bframes.mp4"));
    const QImage image = frame.toImage(format);
    QCOMPARE(image.format(), expected);
    QCOMPARE(image, frame.toImage().convertToFormat(expected));
}

void VideoFrameTest::copies_showTheSamePicture_afterTheDecoderHasGone()
{
    QtAV::VideoFrame kept;
    QImage before;
    {
        const QtAV::VideoFrame frame = firstFrameOf(QStringLiteral("hevc_8bit.mp4"));
        before = frame.toImage();
        kept = frame;
    }
    QVERIFY(!before.isNull());
    QCOMPARE(kept.toImage(), before);
}

void VideoFrameTest::image_isTheSame_fromSeveralThreadsAtOnce()
{
    // A format that goes through the scalers, which the threads share.
    const QtAV::VideoFrame frame = firstFrameOf(QStringLiteral("anamorphic_4_3.mkv"));
    const QImage expected = frame.toImage();
    QVERIFY(!expected.isNull());
    std::atomic<int> same{0};
    constexpr int Times = 64;
    QThreadPool pool;
    pool.setMaxThreadCount(4);
    for (int i = 0; i < Times; ++i)
        pool.start([&] { same += frame.toImage() == expected; });
    pool.waitForDone();
    QCOMPARE(same.load(), Times);
}

QTEST_GUILESS_MAIN(VideoFrameTest)
#include "VideoFrameTest.moc"
