#include "tests/qtav/Decoding.h"
#include "tests/support/ColourFormulas.h"
#include "tests/support/ColourSamples.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/ResourceLimits.h"

#include <QTest>
#include <QThreadPool>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>

using namespace decoding;
using testsupport::ColourSample;
using testsupport::Sample;
using testsupport::Trait;

namespace {

QtAV::VideoFrame firstFrameOf(const QString& file)
{
    Player player(testsupport::samplePath(file));
    const auto packet = player.nextVideoPacket();
    return packet ? player.decodeKeyFrame(*packet) : QtAV::VideoFrame();
}

/// The next decoded frame; an invalid one at the end.
QtAV::VideoFrame nextFrameOf(Player& player)
{
    while (const auto packet = player.nextVideoPacket()) {
        const QtAV::VideoFrame frame =
            player.decoder->decode(*packet) ? player.decoder->frame() : QtAV::VideoFrame();
        if (frame.isValid()) {
            return frame;
        }
    }
    return {};
}

/// Red, green and blue.
std::array<int, 3> channels(QRgb pixel)
{
    return {qRed(pixel), qGreen(pixel), qBlue(pixel)};
}

std::array<double, 3> meanColour(const QImage& image)
{
    std::array<double, 3> sum{};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            for (size_t i = 0; i < sum.size(); ++i) {
                sum[i] += channels(image.pixel(x, y))[i];
            }
        }
    }
    for (double& value : sum) {
        value /= double(image.width()) * image.height();
    }
    return sum;
}

double meanDifference(const QImage& one, const QImage& other)
{
    double sum = 0.0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            for (size_t i = 0; i < 3; ++i) {
                sum += std::abs(channels(one.pixel(x, y))[i] - channels(other.pixel(x, y))[i]);
            }
        }
    }
    return sum / 3.0 / one.width() / one.height();
}

/// How far a colour may be from the standards' formulas: colours outside sRGB keep some of their
/// differences.
double allowedFor(const testsupport::Rgb& light, const ColourSample& sample)
{
    constexpr double forStandard = 1.0;
    constexpr double forWide = 3.0;
    constexpr double forOutside = 12.0;
    if (sample.primaries == testsupport::Primaries::Standard) {
        return forStandard;
    }
    const bool isOutside = std::any_of(light.begin(), light.end(),
                                       [](double l) { return l < -1e-9 || l > 1.0 + 1e-9; });
    return isOutside && sample.transfer != testsupport::Transfer::Standard ? forOutside : forWide;
}

} // namespace

class VideoFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void scaledDown_keepsTimeSizeAndPicture_data();
    void scaledDown_keepsTimeSizeAndPicture();
    void scaledDown_isTheFrameItself_whereItCannotBeSmaller();

    void invalidFrame_hasNothing();
    void image_isUprightWithSquarePixels_forEverySample_data();
    void image_isUprightWithSquarePixels_forEverySample();
    void colours_followTheStandards_forEveryMatrixRangeAndDepth_data();
    void colours_followTheStandards_forEveryMatrixRangeAndDepth();
    void alpha_isKept_whereTheFormatHasIt_data();
    void alpha_isKept_whereTheFormatHasIt();
    void alpha_isOpaque_whereTheFormatHasNone();
    void imageFormat_hasAlpha_onlyWhereThePictureHas_data();
    void imageFormat_hasAlpha_onlyWhereThePictureHas();
    void region_isCutOut_inPixelsOfTheUprightPicture();
    void region_isClipped_whenItReachesOutside();
    void size_isThatAskedFor_withAndWithoutARegion();
    void smallerImage_showsTheSame_forEverySample_data();
    void smallerImage_showsTheSame_forEverySample();
    void smallestImage_isNearThePicturesMeanColour();
    void format_isThatAskedFor_data();
    void format_isThatAskedFor();
    void image_isNull_whenMemoryRunsOut_data();
    void image_isNull_whenMemoryRunsOut();
    void copies_showTheSamePicture_afterTheDecoderHasGone();
    void image_keepsItsPixels_whenOthersAreMade();
    void image_isTheSame_fromSeveralThreadsAtOnce();
};

void VideoFrameTest::initTestCase()
{
    testsupport::MemoryLimit::prepare();
}

void VideoFrameTest::invalidFrame_hasNothing()
{
    const QtAV::VideoFrame frame;
    QVERIFY(!frame.isValid());
    QCOMPARE(frame.width(), 0);
    QCOMPARE(frame.height(), 0);
    QCOMPARE(frame.timestamp(), 0.0);
    QVERIFY(frame.format().isEmpty());
    QCOMPARE(frame.imageFormat(), QImage::Format_Invalid);
    QVERIFY(frame.displaySize().isEmpty());
    QVERIFY(frame.toImage().isNull());
}

void VideoFrameTest::image_isUprightWithSquarePixels_forEverySample_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

void VideoFrameTest::image_isUprightWithSquarePixels_forEverySample()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    Player player(testsupport::samplePath(file));
    const QtAV::VideoFrame frame = nextFrameOf(player);
    QVERIFY(frame.isValid());
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
    QTest::addColumn<int>("index");
    const QList<ColourSample>& samples = testsupport::colourSamples();
    for (int i = 0; i < samples.size(); ++i) {
        QTest::newRow(qPrintable(samples.at(i).file)) << i;
    }
}

void VideoFrameTest::colours_followTheStandards_forEveryMatrixRangeAndDepth()
{
    QFETCH(int, index);
    const ColourSample& sample = testsupport::colourSamples().at(index);
    const QImage image = firstFrameOf(sample.file).toImage();
    QCOMPARE(image.size(), sample.size);
    const QList<testsupport::PatchCodes> patches = testsupport::patchCodes(sample);
    QCOMPARE(patches.size(), 8);
    for (int patch = 0; patch < patches.size(); ++patch) {
        const testsupport::Rgb light =
            testsupport::lightOf(testsupport::valuesOf(patches.at(patch), sample), sample.transfer,
                                 sample.primaries, sample.peakNits);
        const double allowed = allowedFor(light, sample);
        const QRect area = testsupport::patchArea(sample, patch);
        for (const QPoint place :
             {area.topLeft(), area.center(), area.bottomRight() - QPoint(7, 7)}) {
            const std::array<double, 3> got = meanColour(image.copy(QRect(place, QSize(8, 8))));
            for (size_t channel = 0; channel < 3; ++channel) {
                const double expected = testsupport::srgbOf(light[channel]);
                const QString what = QStringLiteral("patch %1, channel %2: %3 instead of %4")
                                         .arg(patch)
                                         .arg(channel)
                                         .arg(got[channel])
                                         .arg(expected);
                QVERIFY2(std::abs(got[channel] - expected) <= allowed, qPrintable(what));
            }
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
    QVERIFY2(highest > 112, qPrintable(QString::number(highest)));
}

void VideoFrameTest::alpha_isOpaque_whereTheFormatHasNone()
{
    const QImage image = firstFrameOf(QStringLiteral("h264_bframes.mp4")).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QCOMPARE(qAlpha(image.pixel(x, y)), 255);
        }
    }
}

void VideoFrameTest::imageFormat_hasAlpha_onlyWhereThePictureHas_data()
{
    image_isUprightWithSquarePixels_forEverySample_data();
}

void VideoFrameTest::imageFormat_hasAlpha_onlyWhereThePictureHas()
{
    QFETCH(QString, file);
    // The pictures of a GIF may have transparency, although those of the samples do not.
    const bool hasAlpha =
        testsupport::sampleNamed(file).has(Trait::Alpha) || file.endsWith(QLatin1String(".gif"));
    Player player(testsupport::samplePath(file));
    const QtAV::VideoFrame frame = nextFrameOf(player);
    QCOMPARE(frame.imageFormat(), hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB888);
    const QImage image = frame.toImage(frame.imageFormat());
    QCOMPARE(image.hasAlphaChannel(), hasAlpha);
    QCOMPARE(image.convertToFormat(QImage::Format_ARGB32), frame.toImage());
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

void VideoFrameTest::smallerImage_showsTheSame_forEverySample_data()
{
    image_isUprightWithSquarePixels_forEverySample_data();
}

void VideoFrameTest::smallerImage_showsTheSame_forEverySample()
{
    QFETCH(QString, file);
    Player player(testsupport::samplePath(file));
    const QtAV::VideoFrame frame = nextFrameOf(player);
    QVERIFY(frame.isValid());
    const QSize size = frame.displaySize() / 1.7;
    const QImage smaller = frame.toImage(QImage::Format_ARGB32, size);
    QCOMPARE(smaller.size(), size);
    const QImage expected = frame.toImage()
                                .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                .convertToFormat(QImage::Format_ARGB32);
    const std::array<double, 3> mean = meanColour(smaller);
    const std::array<double, 3> expectedMean = meanColour(expected);
    for (size_t i = 0; i < mean.size(); ++i) {
        QVERIFY2(std::abs(mean[i] - expectedMean[i]) < 1.0,
                 qPrintable(QString::number(mean[i] - expectedMean[i])));
    }
    // Edges are sharper in one of them.
    const double difference = meanDifference(smaller, expected);
    QVERIFY2(difference < 5.0, qPrintable(QString::number(difference)));
}

void VideoFrameTest::smallestImage_isNearThePicturesMeanColour()
{
    for (const char* file : {"h264_2160p.mp4", "h264_bframes.mp4"}) {
        const QtAV::VideoFrame frame = firstFrameOf(QString::fromLatin1(file));
        const std::array<double, 3> expected = meanColour(frame.toImage());
        const QImage image = frame.toImage(QImage::Format_ARGB32, QSize(1, 1));
        QCOMPARE(image.size(), QSize(1, 1));
        // Scaling gives the middle of the picture more weight than its edges.
        for (size_t i = 0; i < expected.size(); ++i) {
            QVERIFY2(std::abs(channels(image.pixel(0, 0))[i] - expected[i]) < 16.0, file);
        }
    }
}

void VideoFrameTest::format_isThatAskedFor_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QImage::Format>("expected");
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGB888,
                              QImage::Format_ARGB32_Premultiplied, QImage::Format_Grayscale8}) {
        QTest::addRow("%d", int(format)) << format << format;
    }
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

void VideoFrameTest::image_isNull_whenMemoryRunsOut_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QSize>("size");
    const QString opaque = QStringLiteral("h264_2160p.mp4");
    const QString turned = QStringLiteral("turned_90.mp4");
    QTest::newRow("converted") << opaque << QImage::Format_ARGB32 << QSize();
    QTest::newRow("without alpha") << opaque << QImage::Format_RGB888 << QSize();
    QTest::newRow("enlarged") << turned << QImage::Format_ARGB32 << QSize(20000, 20000);
    QTest::newRow("absurdly wide") << turned << QImage::Format_ARGB32 << QSize(100000000, 1);
}

void VideoFrameTest::image_isNull_whenMemoryRunsOut()
{
    if (!testsupport::MemoryLimit::isPossible()) {
        QSKIP("Memory cannot be limited here.");
    }
    QFETCH(QString, file);
    QFETCH(QImage::Format, format);
    QFETCH(QSize, size);
    const QtAV::VideoFrame frame = firstFrameOf(file);
    QVERIFY(frame.isValid());
    {
        const testsupport::MemoryLimit limit(16 * 1024 * 1024);
        QVERIFY(frame.toImage(format, size).isNull());
    }
    QVERIFY(!frame.toImage(format).isNull());
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

void VideoFrameTest::image_keepsItsPixels_whenOthersAreMade()
{
    Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    const QtAV::VideoFrame first = nextFrameOf(player);
    const QtAV::VideoFrame second = nextFrameOf(player);
    QVERIFY(second.isValid());
    const QImage kept = first.toImage();
    QImage changed = kept;
    changed.setPixel(0, 0, qRgb(1, 2, 3));
    const QImage before = kept.copy();
    QVERIFY(second.toImage() != before);
    QCOMPARE(kept, before);
    QCOMPARE(first.toImage(), before);
}

void VideoFrameTest::image_isTheSame_fromSeveralThreadsAtOnce()
{
    // A format that uses the scalers, which the threads share.
    const QtAV::VideoFrame frame = firstFrameOf(QStringLiteral("anamorphic_4_3.mkv"));
    const QImage expected = frame.toImage();
    QVERIFY(!expected.isNull());
    std::atomic<int> same{0};
    constexpr int times = 64;
    QThreadPool pool;
    pool.setMaxThreadCount(4);
    for (int i = 0; i < times; ++i) {
        pool.start([&] { same += frame.toImage() == expected; });
    }
    pool.waitForDone();
    QCOMPARE(same.load(), times);
}

void VideoFrameTest::scaledDown_keepsTimeSizeAndPicture_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"h264_bframes.mp4", "turned_90_anamorphic.mp4", "hevc_10bit.mkv",
                             "anamorphic_pal.mpg", "h264_full_range.mp4"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void VideoFrameTest::scaledDown_keepsTimeSizeAndPicture()
{
    QFETCH(QString, file);
    decoding::Player player(testsupport::samplePath(file));
    const auto packet = player.isReady() ? player.nextVideoPacket() : std::nullopt;
    QVERIFY(packet);
    const QtAV::VideoFrame frame = player.decodeKeyFrame(*packet);
    QVERIFY(frame.isValid() && !frame.isScaledDown());
    const QSize size = frame.displaySize() / 2;
    const QtAV::VideoFrame small = frame.scaledDown(size);
    QVERIFY(small.isScaledDown());
    QCOMPARE(small.timestamp(), frame.timestamp());
    QCOMPARE(small.displaySize(), frame.displaySize());
    QCOMPARE(small.width() * small.height(), size.width() * size.height());
    QVERIFY(small.byteCount() < frame.byteCount());
    const QImage own = small.toImage(QImage::Format_RGB32, size);
    const QImage whole = frame.toImage(QImage::Format_RGB32, size);
    QCOMPARE(own.size(), size);
    QCOMPARE(small.toImage().size(), frame.displaySize());
    // With less chroma, edges between colours differ, but not light and dark.
    qint64 difference = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            difference += std::abs(qGray(own.pixel(x, y)) - qGray(whole.pixel(x, y)));
        }
    }
    const double mean = double(difference) / (double(size.width()) * size.height());
    QVERIFY2(mean <= 1.0, QByteArray::number(mean).constData());
    QCOMPARE(decoding::shown(small).number, decoding::shown(frame).number);
}

void VideoFrameTest::scaledDown_isTheFrameItself_whereItCannotBeSmaller()
{
    QVERIFY(!QtAV::VideoFrame().scaledDown({10, 10}).isValid());
    for (const char* file : {"h264_bframes.mp4", "vp9_alpha.webm"}) {
        decoding::Player player(testsupport::samplePath(QString::fromLatin1(file)));
        const auto packet = player.isReady() ? player.nextVideoPacket() : std::nullopt;
        QVERIFY(packet);
        const QtAV::VideoFrame frame = player.decodeKeyFrame(*packet);
        const bool hasAlpha = QByteArray(file) == "vp9_alpha.webm";
        for (const QSize size :
             {frame.displaySize(), frame.displaySize() * 2, QSize(), QSize(0, 5)}) {
            QVERIFY(!frame.scaledDown(size).isScaledDown());
        }
        QCOMPARE(frame.scaledDown({40, 30}).isScaledDown(), !hasAlpha);
    }
}

QTEST_GUILESS_MAIN(VideoFrameTest)
#include "VideoFrameTest.moc"
